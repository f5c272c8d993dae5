// Soft clipper into a lowpass.
#pragma once

#include "engine/dsp/Biquad.h"
#include "engine/fx/Effect.h"

namespace korvane {

/// s ÷ (|s| k + 1), made up for and followed by one second-order section; crossfaded.
/// x  drive, moved by the LFO once per block    y  lowpass
class Distortion final : public Effect {
public:
    void Reset() override;
    void Process(UnitControls& unit, const StereoBlock& block) override;

private:
    BiquadChain<Stereo, 1> tone;
};

} // namespace korvane
