// Soft clipper into a lowpass.
#pragma once

#include "engine/fx/SidesEffect.h"

namespace korvane {

/// x  drive, moved by the LFO once per block    y  lowpass
class Distortion final : public SidesEffect<DistortionSide, &Kernels::distort> {
public:
    void Reset() override;

protected:
    const float* Prepare(UnitControls& unit, int frames) override;

private:
    LastInputs<2> toneInputs;
};

} // namespace korvane
