// LFO and fade of an effect unit.
#include "engine/fx/UnitControls.h"

#include <algorithm>
#include <cmath>

#include "engine/dsp/EqualSteps.h"
#include "engine/dsp/Silence.h"
#include "engine/kernels/Kernels.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

/// LFO value at phase p, 0..1.
template <LfoShape shape>
float LfoValue(double p)
{
    if constexpr (shape == LfoShape::Triangle)
        return static_cast<float>(2.0 * p <= 1.0 ? 2.0 * p : 2.0 - 2.0 * p);
    else if constexpr (shape == LfoShape::Ramp)
        return static_cast<float>(p);
    else
        return p > 0.5 ? 1.0f : 0.0f;
}

template <LfoShape shape>
void ShapeLfo(const double* phases, float amount, float* lfo, int frames)
{
    for (int n = 0; n < frames; ++n) lfo[n] = LfoValue<shape>(phases[n]) * amount;
}

} // namespace

bool UnitControls::FadedOut() const { return bypass && mix < kSilence; }

float UnitControls::BlockLfo(int frames)
{
    float value = 0.0f;
    if (lfoAmount != 0.0f) ShapePhases(&lfoPhase, &value, 1);
    lfoPhase = AdvancedPhase(frames);
    return value;
}

void UnitControls::FillLfo(float* lfo, int frames)
{
    if (lfoAmount != 0.0f) {
        double phases[kMaxRun];
        FillPhases(phases, frames);
        ShapePhases(phases, lfo, frames);
    } else {
        std::fill_n(lfo, frames, 0.0f);
        lfoPhase = AdvancedPhase(frames);
    }
}

void UnitControls::FillPhases(double* phases, int frames)
{
    for (int from = 0; from < frames;) {
        from += StepBelowOne(lfoPhase, lfoIncrement, frames - from, phases + from);
        if (!(lfoPhase < 1.0)) lfoPhase -= std::floor(lfoPhase);
    }
}

void UnitControls::ShapePhases(const double* phases, float* lfo, int frames) const
{
    using enum LfoShape;
    switch (lfoShape) {
    case Sine: kernels.sines(phases, lfoAmount, lfo, frames); break;
    case Triangle: ShapeLfo<Triangle>(phases, lfoAmount, lfo, frames); break;
    case Ramp: ShapeLfo<Ramp>(phases, lfoAmount, lfo, frames); break;
    case Square: ShapeLfo<Square>(phases, lfoAmount, lfo, frames); break;
    }
}

double UnitControls::AdvancedPhase(int frames) const
{
    const double phase = lfoPhase + frames * lfoIncrement;
    return phase - std::floor(phase);
}

} // namespace korvane
