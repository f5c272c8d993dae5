// A single cycle of a synth oscillator: from its spectrum to a file's sound.
#pragma once

#include "factory/sound/Sound.h"
#include "factory/sound/WaveSpectra.h"

namespace korvane::factory {

struct Cycle {
    const char* name; // also the file's name
    wave::Spectrum spectrum;
};

/// The cycle as it is written: no DC, shifted until its first harmonic is a sine of phase 0, as loud as can be.
/// Oscillators that start together therefore add in the fundamental, whatever waves they play.
Sound Render(const Cycle& cycle);

} // namespace korvane::factory
