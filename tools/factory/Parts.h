// The factory parts: one channel each, with what it plays.
#pragma once

#include <vector>

#include "GrooveScore.h"

namespace korvane::factory {

struct Part {
    const char* name;    // also the file's name
    groove::Track track; // on the first sampler or synth channel
    const char* bars;    // as in a clip
    std::vector<groove::Lock> locks;
    std::vector<synth::Effect> effects;
};

std::vector<Part> AllParts();

/// Puts the part into an empty groove, its channel selected.
void Write(const Part& part, GrooveEngine& engine);

} // namespace korvane::factory
