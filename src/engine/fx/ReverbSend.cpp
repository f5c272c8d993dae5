// Reverb send: the reverb's parameters, send, return and tail.
#include "engine/fx/ReverbSend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <new>

#include "engine/kernels/Kernels.h"
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
    if (unit.x == setX && unit.y == setY) return;
    setX = unit.x;
    setY = unit.y;
    const float decay = law::ReverbDecay(unit.x);
    reverb->SetParameter(reverb::HighDamping, law::ReverbDamping(unit.y));
    reverb->SetParameter(reverb::Decay, decay);
    reverb->SetParameter(reverb::Reverb, law::ReverbLevel(decay));
}

void ReverbSend::Process(UnitControls& unit, const StereoBlock& block)
{
    const EffectRun run{this, &unit, block};
    ProcessAll({&run, 1});
}

void ReverbSend::ProcessAll(std::span<const EffectRun> runs)
{
    std::array<ReverbJob, kChannels> jobs;
    for (std::size_t n = 0; n < runs.size(); ++n) {
        ReverbSend& send = static_cast<ReverbSend&>(*runs[n].effect);
        const UnitControls& unit = *runs[n].unit;
        send.Set(unit);
        float* const sides[] = {runs[n].block.left, runs[n].block.right};
        ::new (&jobs[n]) ReverbJob(send.reverb->Job(sides, sides, true)); // a copy would wait for its fields
        jobs[n].send = unit.mix;
        jobs[n].sendTarget = unit.Target();
    }
    kernels.runReverbs(jobs.data(), static_cast<int>(runs.size()), runs[0].block.frames);
    for (std::size_t n = 0; n < runs.size(); ++n) {
        UnitControls& unit = *runs[n].unit;
        const auto [left, right, frames] = runs[n].block;
        unit.mix = jobs[n].send;
        const auto full = static_cast<std::int32_t>(std::lround(unit.sampleRate * kTailSeconds));
        const int heard = kernels.heardFrames(left, right, frames);
        unit.holdFrames = std::max((heard > 0 ? full + heard : unit.holdFrames) - frames, -1);
    }
}

} // namespace korvane
