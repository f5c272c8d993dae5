// Sample-and-hold decimator into a lowpass.
#pragma once

#include "engine/fx/SidesEffect.h"

namespace korvane {

/// x  crush, coarsest at 0, moved by the LFO once per block    y  lowpass
class Decimator final : public SidesEffect<DecimatorSide, &Kernels::decimate> {
public:
    void Reset() override;

protected:
    const float* Prepare(UnitControls& unit, int frames) override;

private:
    LastInputs<2> toneInputs;
};

} // namespace korvane
