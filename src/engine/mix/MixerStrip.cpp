// Level, pan and meters of one channel.
#include "engine/mix/MixerStrip.h"

#include <algorithm>
#include <cmath>

#include "engine/dsp/Silence.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kGainCeiling = 1.0e9f; // keeps a wild level finite

/// Where a gain starts the run from.
float Start(float gain, float target)
{
    if (gain < 0.0f) return target;
    return gain < kSilence ? 0.0f : gain;
}

} // namespace

void MixerStrip::Set(float level, float pan)
{
    if (level == setLevel && pan == setPan) return;
    setLevel = level;
    setPan = pan;
    const float gain = Clamp(law::MixGain(level), 0.0f, kGainCeiling);
    targetLeft = std::max(law::PanLeft(pan) * gain, kSilence);
    targetRight = std::max(law::PanRight(pan) * gain, kSilence);
}

void MixerStrip::Skip()
{
    outGainLeft = targetLeft;
    outGainRight = targetRight;
}

StripJob MixerStrip::Job(const float* left, const float* right, float* directLeft, float* directRight, bool first) const
{
    return {{left, directLeft, targetLeft, Start(outGainLeft, targetLeft), peakLeft},
            {right, directRight, targetRight, Start(outGainRight, targetRight), peakRight},
            first};
}

void MixerStrip::Mixed(const StripJob& job)
{
    outGainLeft = job.left.gain;
    outGainRight = job.right.gain;
    peakLeft = job.left.peak;
    peakRight = job.right.peak;
}

void MixerStrip::Reset()
{
    peakLeft = peakRight = 0.0f;
    outGainLeft = outGainRight = -1.0f;
}

} // namespace korvane
