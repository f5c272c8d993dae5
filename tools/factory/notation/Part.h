// How parts are written down: one channel, with what it plays.
#pragma once

#include <vector>

#include "factory/notation/GrooveScore.h"

namespace korvane::factory {

struct Part {
    const char* name;    // also the file's name
    groove::Track track; // on the first sampler or synth channel
    const char* bars;    // as in a clip
    std::vector<groove::Lock> locks;
    std::vector<Effect> effects;
};

/// Puts the part into an empty groove, its channel selected.
void Write(const Part& part, GrooveEngine& engine);

} // namespace korvane::factory
