// Lowpass behind distortion and decimator.
#pragma once

#include "engine/dsp/Biquad.h"
#include "framework/KnobLaws.h"

namespace korvane {

/// y  0..1    rate  Hz
template <class Sides>
void SetTone(Sides& sides, float y, float rate)
{
    constexpr float kQuality = 0.99f; // without a peak, by ear
    for (auto& side : sides) side.lowpass.Set(LowPassCoefficients(law::ToneHz(y), kQuality, rate), kLowPassMiddle);
}

} // namespace korvane
