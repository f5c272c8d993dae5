// Pump: envelope over the LFO period.
#include "engine/fx/Pump.h"

#include <algorithm>
#include <cmath>

#include "engine/dsp/StereoFrame.h"
#include "framework/KnobLaws.h"

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
    const float release = law::PumpSpeed(unit.x);
    const float drop = law::PumpDrop(unit.y);
    const double increment = unit.lfoIncrement;
    float level = envelope;
    double phase = unit.lfoPhase;
    for (int n = 0; n < block.frames; ++n) {
        const float e = EnvelopeAt(static_cast<float>(phase), release);
        phase += increment;
        if (phase >= 1.0) phase -= std::floor(phase);
        level += (e - level) * kEnvelopeStep;
        const float gain = 1.0f - level * drop;
        block.left[n] *= gain;
        block.right[n] *= gain;
    }
    envelope = Flushed(level);
    unit.lfoPhase = phase;
}

} // namespace korvane
