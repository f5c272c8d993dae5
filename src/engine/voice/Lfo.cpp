// LFO shapes and rates.
#include "engine/voice/Lfo.h"

#include <cmath>

#include "engine/kernels/VoiceMotion.h"
#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"

namespace korvane {

void Lfo::FillSines(float* values, int frames) const
{
    float p = phase;
    for (int n = 0; n < frames; ++n) {
        values[n] = LfoSine(p);
        p = Fraction(p + increment);
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
