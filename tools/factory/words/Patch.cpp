// The channel that a program is written into.
#include "factory/words/Patch.h"

#include <cstdio>

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

} // namespace korvane::factory
