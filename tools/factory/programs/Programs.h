// Synth and sampler programs: the whole library.
#pragma once

#include <vector>

#include "factory/words/Patch.h"

namespace korvane::factory {

std::vector<ProgramRow> SynthPrograms();
std::vector<ProgramRow> SamplerPrograms();

/// Resets the channel and applies the program of that name; the process ends with a message when there is none.
void UseProgram(GrooveEngine& engine, int channel, const char* name);

} // namespace korvane::factory
