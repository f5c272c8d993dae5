// Five-band equaliser of a channel.
#pragma once

#include <span>

#include "engine/fx/Effect.h"
#include "engine/kernels/Equaliser.h"

namespace korvane {

class Equaliser;

/// An equaliser and its channel's block.
struct EqualiserRun {
    Equaliser* equaliser;
    StereoBlock block;
};

/// Shelf and peaking sections of R. Bristow-Johnson's "Cookbook formulae for audio equalizer biquad filter
/// coefficients", in series on both sides. Audio thread; allocates nothing.
class Equaliser {
public:
    /// gain  0..1: −12..12 dB
    void SetBand(int band, float gain, float rate);
    void Clear();

    /// Equalisers of several channels, in place; blocks are equally long.
    static void ProcessAll(std::span<const EqualiserRun> runs);

    /// Something above −80 dB is still in the filters.
    bool Ringing() const;
    /// There is nothing in the filters: silence passes and changes nothing.
    bool Silent() const;

private:
    alignas(64) EqualiserSide<Stereo> sides{};
};

/// Coefficients of one band; pure.
BandCoefficients<float> EqualiserBand(int band, float gain, float rate);

} // namespace korvane
