// LFO shapes and rates.
#include "engine/voice/Lfo.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"

namespace korvane {

namespace {

template <class Shape>
void RunShape(Lfo& lfo, float* values, int frames, Shape shape)
{
    float phase = lfo.phase;
    for (int n = 0; n < frames; ++n) {
        values[n] = shape(phase) * lfo.amount;
        phase += lfo.increment;
        phase -= std::floor(phase);
    }
    lfo.phase = phase;
}

} // namespace

void Lfo::Run(float* values, int frames)
{
    if (amount == 0.0f) return RunShape(*this, values, frames, [](float) { return 0.0f; });
    switch (shape) {
    case LfoShape::Sine:
        return RunShape(*this, values, frames, [](float p) { return std::sin(2.0f * std::numbers::pi_v<float> * p); });
    case LfoShape::Triangle:
        return RunShape(*this, values, frames, [](float p) { return 2.0f * p <= 1.0f ? 2.0f * p : 2.0f - 2.0f * p; });
    case LfoShape::Ramp: return RunShape(*this, values, frames, [](float p) { return 1.0f - p; });
    case LfoShape::Square: return RunShape(*this, values, frames, [](float p) { return p < 0.5f ? 1.0f : 0.0f; });
    default: std::fill_n(values, frames, 0.0f);
    }
}

float LfoFrequency(float rateValue, float syncValue, float tempo)
{
    const int mode = law::Position(syncValue, slot::LastPosition(slot::LfoSync));
    if (mode < 1) return law::LfoFreeHz(rateValue);
    if (!(tempo > 0.0f)) return 0.0f;
    const float beats = SyncBeats(rateValue) * (mode > 1 ? kBeatsPerBar : 1.0f);
    const float frequency = 1.0f / (beats * 60.0f / tempo);
    return std::isfinite(frequency) ? frequency : 0.0f;
}

} // namespace korvane
