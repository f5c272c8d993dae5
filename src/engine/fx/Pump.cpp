// Pump: envelope over the LFO period.
#include "engine/fx/Pump.h"

#include <algorithm>
#include <cmath>

#include "engine/dsp/EqualSteps.h"
#include "engine/dsp/StereoFrame.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

constexpr float kEnvelopeStep = 0.01f; // of the way per frame: no clicks

/// p  0..1 of the period
float EnvelopeAt(float p, float release)
{
    constexpr float kAttack = 0.01f; // of the period
    const float fall = (p - kAttack) / (1.0f - kAttack);
    return p < kAttack ? p / kAttack : 1.0f - std::min(fall * fall * fall * fall * release, 1.0f);
}

} // namespace

void Pump::Process(UnitControls& unit, const StereoBlock& block)
{
    double phases[kMaxRun];
    float levels[kMaxRun];
    for (int from = 0; from < block.frames;) {
        from += StepBelowOne(unit.lfoPhase, unit.lfoIncrement, block.frames - from, phases + from);
        if (!(unit.lfoPhase < 1.0)) unit.lfoPhase -= std::floor(unit.lfoPhase);
    }
    const float release = law::PumpSpeed(unit.x);
    const float drop = law::PumpDrop(unit.y);
    for (int n = 0; n < block.frames; ++n) levels[n] = EnvelopeAt(static_cast<float>(phases[n]), release);
    float level = envelope;
    for (int n = 0; n < block.frames; ++n) levels[n] = level += (levels[n] - level) * kEnvelopeStep;
    envelope = Flushed(level);
    for (int n = 0; n < block.frames; ++n) {
        const float gain = 1.0f - levels[n] * drop;
        block.left[n] *= gain;
        block.right[n] *= gain;
    }
}

} // namespace korvane
