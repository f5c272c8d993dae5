// Effect units that crossfade to a filtered signal: distortion, decimator, lowpass, highpass.
#include <cmath>

#include "engine/fx/FXUnit.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Lowpass behind distortion and decimator: 1024 Hz (y = 0) to 19.9 kHz.
FilterCoefficients ToneCoefficients(float y, float rate)
{
    constexpr float kToneQ = 0.99f;
    return LowPassCoefficients(std::pow(2.0f, y * 4.28f + 10.0f), kToneQ, rate);
}

} // namespace

/// Fades between the input and wet(input); returns at once when the fade to the input is over.
template <class Wet>
void FXUnit::Crossfade(const Block& block, Wet wet)
{
    audible = 1;
    const float target = Target();
    float level = mix;
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * kOnStep;
        const Stereo dry = LoadFrame(block.left, block.right, n);
        StoreFrame((1.0f - level) * dry + level * wet(dry), block.left, block.right, n);
    }
    mix = level;
}

void FXUnit::Distort(const Block& block)
{
    if (Off()) return;
    const float drive = Clamp(x + BlockLfo(block.frames), 0.0f, 1.0f);
    const float k = drive * drive * drive * drive * 1024.0f;
    const float makeUp = k * 0.5f + 0.5f;
    const FilterCoefficients c = ToneCoefficients(y, sampleRate);
    auto lowpass = tone;
    Crossfade(block, [&](Stereo dry) {
        const Stereo clipped = dry / (Magnitude(dry) * k + 1.0f) * makeUp;
        return lowpass.Step<false>(clipped, c);
    });
    tone = lowpass;
}

void FXUnit::Decimate(const Block& block)
{
    if (Off()) return;
    const float d = Clamp(1.0f + BlockLfo(block.frames) - x, 0.0f, 1.0f);
    const int period = Truncate(d * d * 64.0f + 3.0f);
    const FilterCoefficients c = ToneCoefficients(y, sampleRate);
    auto lowpass = tone;
    Stereo sample = held;
    int countdown = holdCounter;
    Crossfade(block, [&](Stereo dry) {
        if (countdown > 0) --countdown;
        if (countdown == 0) {
            sample = dry;
            countdown = period;
        }
        return lowpass.Step<false>(sample, c);
    });
    tone = lowpass;
    held = sample;
    holdCounter = countdown;
}

template <bool highPass>
void FXUnit::Filter(const Block& block)
{
    if (Off()) return;
    const float d = Clamp(x + BlockLfo(block.frames), 0.0f, 1.0f);
    const float q = 2.0f * (y * y) + 1.0f;
    const FilterCoefficients c = highPass ? HighPassCoefficients(std::pow(2.0f, d * 9.28f * 0.8f + 5.0f), q, sampleRate)
                                          : LowPassCoefficients(std::pow(2.0f, d * 8.28f + 6.0f), q, sampleRate);
    auto stages = filter;
    Crossfade(block, [&](Stereo dry) { return stages.template Step<highPass>(dry, c); });
    filter = stages;
}

template void FXUnit::Filter<false>(const Block&);
template void FXUnit::Filter<true>(const Block&);

} // namespace korvane
