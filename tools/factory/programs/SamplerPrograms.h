// The sampler programs by kit.
#pragma once

#include <vector>

#include "factory/words/SamplerSound.h"

namespace korvane::factory {

std::vector<SamplerProgram> VoltPrograms();
std::vector<SamplerProgram> DeepPrograms();
std::vector<SamplerProgram> OakPrograms();
std::vector<SamplerProgram> ForgePrograms();

} // namespace korvane::factory
