// Sample-and-hold decimator into a lowpass.
#pragma once

#include "engine/dsp/Biquad.h"
#include "engine/fx/Effect.h"

namespace korvane {

/// Takes a frame and holds it for a period, then one second-order section; crossfaded.
/// x  crush, coarsest at 0, moved by the LFO once per block    y  lowpass
class Decimator final : public Effect {
public:
    void Reset() override;
    void Process(UnitControls& unit, const StereoBlock& block) override;

private:
    Stereo held{};
    int heldFrames = 0; // left before the next frame is taken
    BiquadChain<Stereo, 1> tone;
};

} // namespace korvane
