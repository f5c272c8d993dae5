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
    path = {};
}

void Panner::Process(UnitControls& unit, const StereoBlock& block)
{
    float lfo[kMaxRun];
    double speeds[2][kMaxRun];
    TapePlace places[2][kMaxRun];
    unit.FillLfo(lfo, block.frames);
    const float x = unit.x;
    const float y = unit.y;
    MFXTapeDelay& left = *delays[0];
    MFXTapeDelay& right = *delays[1];
    for (int n = 0; n < block.frames; ++n) {
        const float s = 2.0f * (x + lfo[n]) - 1.0f; // -1 left, 1 right
        speeds[0][n] = left.clock.SpeedFor(static_cast<double>(DelayOf(s)));
        speeds[1][n] = right.clock.SpeedFor(static_cast<double>(DelayOf(-s)));
        block.left[n] *= GainOf(s, y);
        block.right[n] *= GainOf(-s, y);
    }
    left.clock.Run(speeds[0], block.frames, places[0]);
    right.clock.Run(speeds[1], block.frames, places[1]);
    for (int n = 0; n < block.frames; ++n) {
        const Stereo in = path.Step(LoadFrame(block.left, block.right, n), 1.0f, 0.0f);
        block.left[n] = left.Read(places[0][n]);
        block.right[n] = right.Read(places[1][n]);
        left.Write(in[0], places[0][n]);
        right.Write(in[1], places[1][n]);
    }
}

} // namespace korvane
