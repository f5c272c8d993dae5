// Phaser whose notches the LFO sweeps.
#pragma once

#include <array>

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/Effect.h"

namespace korvane {

/// Six first-order allpass stages in series with feedback around them, added to the input (J. O. Smith, "An allpass
/// approach to digital phasing and flanging", 1984).
/// x  depth, moved by the LFO frame by frame    y  feedback
class Phaser final : public Effect {
public:
    void Reset() override;
    void Process(UnitControls& unit, const StereoBlock& block) override;

private:
    static constexpr int kStages = 6;

    std::array<Stereo, kStages> states{};
    Stereo last{};       // output of the last stage in the frame before
    float depth = -1.0f; // smoothed; -1 takes the target at once
};

} // namespace korvane
