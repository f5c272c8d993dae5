// The metronome of a recording.
#include "engine/mix/Click.h"

#include "engine/dsp/Silence.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

constexpr float kFirstLevel = 3.0f; // heard above a full mix
constexpr float kDecay = 0.01f;     // of the level per frame
constexpr double kBeatHz = 500.0, kBarHz = 1000.0;

} // namespace

void Click::Arm(int step, double rate)
{
    if (step % kStepsPerBeat != 0) return;
    clickLevel = kFirstLevel;
    clickIncrement = static_cast<float>((step % kStepsPerBar == 0 ? kBarHz : kBeatHz) / rate);
}

void Click::Add(float* left, float* right, int frames)
{
    float level = clickLevel, phase = clickPhase;
    if (level <= kSilence) return;
    for (int n = 0; n < frames; ++n) {
        phase += clickIncrement;
        level -= kDecay * level;
        const float sample = phase <= 0.5f ? level : 0.0f;
        if (phase > 1.0f) phase -= 1.0f;
        left[n] += sample;
        right[n] += sample;
    }
    clickPhase = phase;
    clickLevel = level;
}

} // namespace korvane
