// Level, pan and meters of one channel.
#include "engine/mix/MixerStrip.h"

#include <algorithm>
#include <cmath>

#include "engine/dsp/Silence.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kGainStep = 0.01f;     // share of the distance that a gain moves per frame
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
    const float gain = Clamp(law::MixGain(level), 0.0f, kGainCeiling);
    targetLeft = std::max(law::PanLeft(pan) * gain, kSilence);
    targetRight = std::max(law::PanRight(pan) * gain, kSilence);
}

void MixerStrip::Skip()
{
    outGainLeft = targetLeft;
    outGainRight = targetRight;
}

void MixerStrip::Mix(const float* left, const float* right, int frames, const StripOutputs& outputs)
{
    float gainLeft = Start(outGainLeft, targetLeft), gainRight = Start(outGainRight, targetRight);
    const float toLeft = targetLeft, toRight = targetRight;
    const auto [mainLeft, mainRight, directLeft, directRight, first] = outputs;
    float highestLeft = peakLeft, highestRight = peakRight;
    for (int n = 0; n < frames; ++n) {
        gainLeft += (toLeft - gainLeft) * kGainStep;
        gainRight += (toRight - gainRight) * kGainStep;
        const float l = left[n] * gainLeft;
        const float r = right[n] * gainRight;
        highestLeft = std::max(highestLeft, std::fabs(l));
        highestRight = std::max(highestRight, std::fabs(r));
        mainLeft[n] = first ? l : mainLeft[n] + l;
        mainRight[n] = first ? r : mainRight[n] + r;
        directLeft[n] = l;
        directRight[n] = r;
    }
    outGainLeft = gainLeft;
    outGainRight = gainRight;
    peakLeft = highestLeft;
    peakRight = highestRight;
}

void MixerStrip::Reset()
{
    peakLeft = peakRight = 0.0f;
    outGainLeft = outGainRight = -1.0f;
}

} // namespace korvane
