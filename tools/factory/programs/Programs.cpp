// Synth and sampler programs: the whole library.
#include "factory/programs/Programs.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace korvane::factory {

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
