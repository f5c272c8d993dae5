// Lowpass behind distortion and decimator.
#pragma once

#include <cmath>

#include "engine/dsp/Biquad.h"

namespace korvane {

/// 1024 Hz (y = 0) to 19.9 kHz.
inline float ToneHz(float y)
{
    constexpr float kLowestOctave = 10.0f, kOctaves = 4.28f; // above 1 Hz
    return std::pow(2.0f, y * kOctaves + kLowestOctave);
}

inline FilterCoefficients ToneCoefficients(float y, float rate)
{
    constexpr float kQuality = 0.99f; // without a peak, by ear
    return LowPassCoefficients(ToneHz(y), kQuality, rate);
}

} // namespace korvane
