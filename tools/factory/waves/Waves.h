// The single cycles of the synth oscillators.
#pragma once

#include <vector>

#include "factory/sound/Cycle.h"

namespace korvane::factory {

std::vector<Cycle> AllCycles();

} // namespace korvane::factory
