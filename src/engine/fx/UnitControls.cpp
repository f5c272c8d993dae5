// LFO and fade of an effect unit.
#include "engine/fx/UnitControls.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/dsp/Silence.h"

namespace korvane {

namespace {

/// LFO value at phase p, 0..1.
template <LfoShape shape>
float LfoValue(double p)
{
    if constexpr (shape == LfoShape::Sine)
        return static_cast<float>(std::sin(2.0 * std::numbers::pi * p));
    else if constexpr (shape == LfoShape::Triangle)
        return static_cast<float>(2.0 * p <= 1.0 ? 2.0 * p : 2.0 - 2.0 * p);
    else if constexpr (shape == LfoShape::Ramp)
        return static_cast<float>(p);
    else
        return p > 0.5 ? 1.0f : 0.0f;
}

template <LfoShape shape>
double FillShape(float* lfo, int frames, float amount, double phase, double increment)
{
    for (int n = 0; n < frames; ++n) {
        lfo[n] = LfoValue<shape>(phase) * amount;
        phase += increment;
        if (phase >= 1.0) phase -= std::floor(phase);
    }
    return phase;
}

} // namespace

bool UnitControls::FadedOut() const { return bypass && mix < kSilence; }

float UnitControls::BlockLfo(int frames)
{
    float value = 0.0f;
    if (lfoAmount != 0.0f) RunLfo(&value, 1, 0.0);
    lfoPhase = AdvancedPhase(frames);
    return value;
}

void UnitControls::FillLfo(float* lfo, int frames)
{
    if (lfoAmount != 0.0f) {
        lfoPhase = RunLfo(lfo, frames, lfoIncrement);
    } else {
        std::fill_n(lfo, frames, 0.0f);
        lfoPhase = AdvancedPhase(frames);
    }
}

/// Returns the phase behind the last frame.
double UnitControls::RunLfo(float* lfo, int frames, double increment) const
{
    using enum LfoShape;
    switch (lfoShape) {
    case Sine: return FillShape<Sine>(lfo, frames, lfoAmount, lfoPhase, increment);
    case Triangle: return FillShape<Triangle>(lfo, frames, lfoAmount, lfoPhase, increment);
    case Ramp: return FillShape<Ramp>(lfo, frames, lfoAmount, lfoPhase, increment);
    case Square: break;
    }
    return FillShape<Square>(lfo, frames, lfoAmount, lfoPhase, increment);
}

double UnitControls::AdvancedPhase(int frames) const
{
    const double phase = lfoPhase + frames * lfoIncrement;
    return phase - std::floor(phase);
}

} // namespace korvane
