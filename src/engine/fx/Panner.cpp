// Panner: delay and gain of each side.
#include "engine/fx/Panner.h"

#include "engine/fx/DelayLengths.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Part of the tape's length.
/// away  -1..1: how far the sound has moved away from the side
float DelayOf(float away) { return Clamp(away, 0.0f, kLongestTapePart); }

/// 1 up to the middle way, down to 0 for a side that the sound is away from (y = 1).
float GainOf(float away, float y) { return Clamp((1.0f - away * y) * 2.0f, 0.0f, 1.0f); }

} // namespace

void Panner::Allocate(float rate)
{
    for (auto& delay : delays) delay = std::make_unique<MFXTapeDelay>(ShortDelayFrames(rate));
}

void Panner::Reset()
{
    for (auto& delay : delays) delay->Clear();
}

void Panner::Process(UnitControls& unit, const StereoBlock& block)
{
    float lfo[kMaxRun];
    unit.FillLfo(lfo, block.frames);
    const float x = unit.x;
    const float y = unit.y;
    MFXTapeDelay& left = *delays[0];
    MFXTapeDelay& right = *delays[1];
    left.inputGain = right.inputGain = 1.0f;
    for (int n = 0; n < block.frames; ++n) {
        const float s = 2.0f * (x + lfo[n]) - 1.0f; // -1 left, 1 right
        left.speed = left.SpeedFor(static_cast<double>(DelayOf(s)));
        right.speed = right.SpeedFor(static_cast<double>(DelayOf(-s)));
        block.left[n] = left.Process(GainOf(s, y) * block.left[n]);
        block.right[n] = right.Process(GainOf(-s, y) * block.right[n]);
    }
}

} // namespace korvane
