// Effect units that ring on after release: echo and reverb.
#include <algorithm>
#include <cmath>

#include "engine/fx/FXUnit.h"
#include "engine/fx/reverb/fxReverb.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kAudibleAbove = 0.0001f;

/// Counts down below a threshold and starts again above it.
struct Countdown {
    std::int32_t frames, full;
    void Step(bool again) { frames = again ? full : std::max(frames - 1, -1); }
};

// What the unit does not control.
constexpr struct {
    std::int32_t index;
    float value;
} kReverbSettings[] = {
    {reverb::HighCut, 1.0f},  {reverb::LowCut, 0.1f}, {reverb::Diffusion, 1.0f}, {reverb::RoomSize, 1.0f},
    {reverb::Predelay, 0.0f}, {reverb::Dry, 0.0f},    {reverb::MuteEr, 1.0f},
};

bool Exceeds(Stereo frame, float threshold)
{
    const Stereo level = Magnitude(frame);
    return level[0] > threshold || level[1] > threshold;
}

} // namespace

/// holdFrames keeps a released unit running while the channel sounds and for one tape after.
void FXUnit::Echo(const Block& block)
{
    if (bypass && holdFrames < 0) return;
    audible = 1;
    constexpr float kLongestSeconds = 1.5f;
    TapeDelay<Stereo>& delays = *echoDelays;
    const float send = x * x;
    const float tilt = 2.0f * y;
    const float lowpass = std::min(tilt, 1.0f);
    const float highpass = std::max(tilt - 1.0f, 0.0f);
    delays.speed = delays.SpeedFor(static_cast<double>(Clamp(lfoSeconds / kLongestSeconds, 0.01f, 0.99f)));
    delays.lowpass = lowpass * lowpass;
    delays.highpass = highpass * highpass;
    delays.feedback = send;
    const auto full = static_cast<std::int32_t>(sampleRate * kLongestSeconds);
    const float target = Target();
    float level = mix;
    Countdown hold{holdFrames, full};
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * kOnStep;
        delays.inputGain = level * send;
        const Stereo dry = LoadFrame(block.left, block.right, n);
        const Stereo wet = delays.Process(dry);
        const Stereo out = dry + wet;
        hold.Step(Exceeds(dry, kAudibleAbove) || Exceeds(out, kAudibleAbove));
        StoreFrame(out, block.left, block.right, n);
    }
    mix = level;
    holdFrames = hold.frames;
}

void FXUnit::AllocateReverb()
{
    if (!reverb) reverb = std::make_unique<fxReverb>();
    for (const auto& setting : kReverbSettings) reverb->SetParameter(setting.index, setting.value);
    reverb->SetSampleRate(sampleRate);
}

/// As with the echo, but for a quarter of a second.
void FXUnit::Reverberate(const Block& block)
{
    if (bypass && holdFrames <= 0) return;
    audible = 1;
    const float decay = 0.75f * (x * x * x);
    reverb->SetParameter(reverb::HighDamping, y * y);
    reverb->SetParameter(reverb::Decay, decay);
    reverb->SetParameter(reverb::Reverb, 0.3f * decay + 0.5f);

    float sendLeft[kMaxRun], sendRight[kMaxRun], wetLeft[kMaxRun], wetRight[kMaxRun];
    const float target = Target();
    float level = mix;
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * kOnStep;
        sendLeft[n] = block.left[n] * level;
        sendRight[n] = block.right[n] * level;
    }
    mix = level;
    float* sends[] = {sendLeft, sendRight};
    float* wets[] = {wetLeft, wetRight};
    reverb->ProcessReplacing(sends, wets, block.frames);

    const auto full = static_cast<std::int32_t>(std::lround(sampleRate * 0.25f));
    Countdown hold{holdFrames, full};
    for (int n = 0; n < block.frames; ++n) {
        const Stereo wet = LoadFrame(wetLeft, wetRight, n);
        const Stereo out = LoadFrame(block.left, block.right, n) + wet;
        hold.Step(Exceeds(out, kAudibleAbove));
        StoreFrame(out, block.left, block.right, n);
    }
    holdFrames = hold.frames;
}

} // namespace korvane
