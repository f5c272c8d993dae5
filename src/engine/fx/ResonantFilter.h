// Resonant lowpass and highpass.
#pragma once

#include "engine/dsp/Biquad.h"
#include "engine/fx/Effect.h"

namespace korvane {

/// Four equal second-order sections in series; crossfaded.
/// x  frequency, moved by the LFO once per block    y  resonance
template <bool highPass>
class ResonantFilter final : public Effect {
public:
    void Reset() override;
    void Process(UnitControls& unit, const StereoBlock& block) override;

private:
    static constexpr int kSections = 4;

    BiquadChain<Stereo, kSections> sections;
};

using LowPassFilter = ResonantFilter<false>;
using HighPassFilter = ResonantFilter<true>;

} // namespace korvane
