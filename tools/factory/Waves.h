// The single cycles of the synth oscillators.
#pragma once

#include <functional>
#include <vector>

#include "Sound.h"

namespace korvane::factory {

struct Harmonic {
    double level = 0.0;
    double phase = 0.0; // turns; 0 is a sine
};

struct Cycle {
    const char* name;                      // also the file's name
    std::function<Harmonic(int)> harmonic; // 1 and up
};

std::vector<Cycle> AllCycles();

/// The cycle as it is written: no DC, its first harmonic a sine of phase 0, as loud as can be.
Sound Render(const Cycle& cycle);

} // namespace korvane::factory
