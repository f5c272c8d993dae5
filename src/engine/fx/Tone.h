// Lowpass behind distortion and decimator.
#pragma once

#include "engine/dsp/Biquad.h"
#include "framework/KnobLaws.h"

namespace korvane {

inline FilterCoefficients ToneCoefficients(float y, float rate)
{
    constexpr float kQuality = 0.99f; // without a peak, by ear
    return LowPassCoefficients(law::ToneHz(y), kQuality, rate);
}

} // namespace korvane
