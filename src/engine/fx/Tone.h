// Lowpass behind distortion and decimator.
#pragma once

#include "engine/dsp/Biquad.h"
#include "framework/KnobLaws.h"

namespace korvane {

/// y  0..1    rate  Hz
inline void SetTone(FilterChain<Stereo, 1>& lowpass, float y, float rate)
{
    constexpr float kQuality = 0.99f; // without a peak, by ear
    lowpass.Set(LowPassCoefficients(law::ToneHz(y), kQuality, rate), kLowPassMiddle);
}

} // namespace korvane
