// Sines of many phases.
#pragma once

#include <cmath>
#include <numbers>

namespace korvane {

/// phase  turns, 0..1
[[gnu::always_inline]] inline float SineOf(double phase)
{
    return static_cast<float>(std::sin(2.0 * std::numbers::pi * phase));
}

/// sines[n] = SineOf(phases[n]) * amount. Audio thread.
using SinesKernel = void(const double* phases, float amount, float* sines, int count);

} // namespace korvane
