// Resonant lowpass and highpass.
#pragma once

#include "engine/fx/SidesEffect.h"

namespace korvane {

/// x  frequency, moved by the LFO once per block    y  resonance
template <bool highPass>
class ResonantFilter final : public SidesEffect<ResonantSide, &Kernels::filterSides> {
public:
    void Reset() override;

protected:
    const float* Prepare(UnitControls& unit, int frames) override;

private:
    LastInputs<3> inputs;
};

using LowPassFilter = ResonantFilter<false>;
using HighPassFilter = ResonantFilter<true>;

} // namespace korvane
