// Panner: delay and gain of each side.
#include "engine/fx/Panner.h"

#include "engine/fx/DelayLengths.h"
#include "engine/kernels/Kernels.h"
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
    last = Stereo{};
}

void Panner::Process(UnitControls& unit, const StereoBlock& block)
{
    float lfo[kMaxRun], away[2][kMaxRun];
    double speeds[kMaxRun];
    TapePlace places[2][kMaxRun];
    unit.FillLfo(lfo, block.frames);
    const float x = unit.x;
    const float y = unit.y;
    for (int n = 0; n < block.frames; ++n) {
        const float s = 2.0f * (x + lfo[n]) - 1.0f; // -1 left, 1 right
        away[0][n] = DelayOf(s);
        away[1][n] = DelayOf(-s);
        block.left[n] *= GainOf(s, y);
        block.right[n] *= GainOf(-s, y);
    }
    for (int side = 0; side < 2; ++side) {
        TapeClock& clock = delays[side]->clock;
        kernels.tapeSpeeds(away[side], clock.length, speeds, block.frames);
        clock.Run(speeds, block.frames, places[side]);
    }
    MFXTapeDelay& left = *delays[0];
    MFXTapeDelay& right = *delays[1];
    Stereo recorded = last;
    for (int n = 0; n < block.frames; ++n) {
        recorded = OpenStep(recorded, LoadFrame(block.left, block.right, n));
        block.left[n] = left.Read(places[0][n]);
        block.right[n] = right.Read(places[1][n]);
        left.Write(recorded[0], places[0][n]);
        right.Write(recorded[1], places[1][n]);
    }
    last = recorded;
}

} // namespace korvane
