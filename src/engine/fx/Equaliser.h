// Five-band equaliser of a channel.
#pragma once

#include <array>
#include <cstdint>

#include "engine/dsp/Biquad.h"

namespace korvane {

inline constexpr int kEqBands = 5; // 80 Hz low shelf, peaks at 220, 1200 and 6000 Hz, 12 kHz high shelf

/// Shelf and peaking sections of R. Bristow-Johnson's "Cookbook formulae for audio equalizer biquad filter
/// coefficients", in series on both sides. Audio thread; allocates nothing.
class Equaliser {
public:
    /// gain  0..1: −12..12 dB
    void SetBand(int band, float gain, float rate);
    void Process(float* left, float* right, int frames);
    void Clear();

    /// Something above −80 dB is still in the filters.
    bool Ringing() const;

private:
    bool Silent() const;

    std::array<BandCoefficients, kEqBands> coefficients{};
    BiquadChain<Stereo, kEqBands> states;
};

/// Coefficients of one band; pure.
BandCoefficients EqualiserBand(int band, float gain, float rate);

} // namespace korvane
