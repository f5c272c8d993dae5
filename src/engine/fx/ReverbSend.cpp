// Reverb send: the reverb's parameters, send, return and tail.
#include "engine/fx/ReverbSend.h"

#include <cmath>
#include <cstdint>

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/Tail.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

constexpr float kTailSeconds = 0.25f; // behind the last sound; longer than the reverb's longest line, 0.22 s

// What the pad does not control.
constexpr struct {
    std::int32_t index;
    float value;
} kFixed[] = {
    {reverb::HighCut, 1.0f},  {reverb::LowCut, 0.1f}, {reverb::Diffusion, 1.0f},
    {reverb::RoomSize, 1.0f}, {reverb::Dry, 0.0f},
};

} // namespace

void ReverbSend::Allocate(float rate)
{
    if (!reverb) reverb = std::make_unique<fxReverb>(ReverbParts::Late);
    for (const auto& setting : kFixed) reverb->SetParameter(setting.index, setting.value);
    reverb->SetSampleRate(rate);
}

void ReverbSend::Reset() { reverb->Reset(); }

bool ReverbSend::Runs(const UnitControls& unit) const { return !unit.bypass || unit.holdFrames > 0; }

void ReverbSend::Set(const UnitControls& unit)
{
    const float decay = law::ReverbDecay(unit.x);
    reverb->SetParameter(reverb::HighDamping, law::ReverbDamping(unit.y));
    reverb->SetParameter(reverb::Decay, decay);
    reverb->SetParameter(reverb::Reverb, law::ReverbLevel(decay));
}

void ReverbSend::Process(UnitControls& unit, const StereoBlock& block)
{
    Set(unit);
    float sendLeft[kMaxRun], sendRight[kMaxRun], wetLeft[kMaxRun], wetRight[kMaxRun];
    const float target = unit.Target();
    float level = unit.mix;
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * UnitControls::kOnStep;
        sendLeft[n] = block.left[n] * level;
        sendRight[n] = block.right[n] * level;
    }
    unit.mix = level;
    float* sends[] = {sendLeft, sendRight};
    float* wets[] = {wetLeft, wetRight};
    reverb->ProcessReplacing(sends, wets, block.frames);

    const auto full = static_cast<std::int32_t>(std::lround(unit.sampleRate * kTailSeconds));
    std::int32_t tail = unit.holdFrames;
    for (int n = 0; n < block.frames; ++n) {
        const Stereo wet = LoadFrame(wetLeft, wetRight, n);
        const Stereo out = LoadFrame(block.left, block.right, n) + wet;
        tail = TailLeft(tail, CanBeHeard(out), full);
        StoreFrame(out, block.left, block.right, n);
    }
    unit.holdFrames = tail;
}

} // namespace korvane
