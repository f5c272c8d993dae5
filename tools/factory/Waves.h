// The single cycles of the synth oscillators.
#pragma once

#include <vector>

#include "Sound.h"
#include "WaveSpectra.h"

namespace korvane::factory {

struct Cycle {
    const char* name; // also the file's name
    wave::Spectrum spectrum;
};

std::vector<Cycle> AllCycles();

/// The cycle as it is written: no DC, shifted until its first harmonic is a sine of phase 0, as loud as can be.
/// Oscillators that start together therefore add in the fundamental, whatever waves they play.
Sound Render(const Cycle& cycle);

} // namespace korvane::factory
