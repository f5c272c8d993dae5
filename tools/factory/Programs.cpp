// Synth and sampler programs: recipes that turn a reset channel into a sound.
#include "Programs.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace korvane::factory {

Patch& Patch::Set(int slotIndex, float value)
{
    engine.storedParams[channel][slotIndex] = value;
    return *this;
}

Patch& Patch::Wave(int oscillator, const char* name) { return File(oscillator - 1, name); }

Patch& Patch::Sample(int layer, const char* name) { return File(kFirstLayerSlot + layer - 1, name); }

Patch& Patch::File(int sampleSlot, const char* name)
{
    char path[64]; // a file name alone: the instrument finds it in its own folders
    std::snprintf(path, sizeof path, "\\%s.wav", name);
    engine.Channel(channel).sound.sampleSlots[static_cast<std::size_t>(sampleSlot)].path.Set(path);
    return *this;
}

void UseProgram(GrooveEngine& engine, int channel, const char* name)
{
    for (const ProgramRow& row : channel < kSamplerChannels ? SamplerPrograms() : SynthPrograms()) {
        if (std::strcmp(row.name, name) != 0) continue;
        engine.InitChannel(channel);
        Patch patch(engine, channel);
        row.make(patch);
        return;
    }
    std::fprintf(stderr, "korvane-factory: no program '%s'\n", name);
    std::exit(1);
}

} // namespace korvane::factory
