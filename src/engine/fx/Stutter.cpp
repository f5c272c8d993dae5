// Stutter: slices, fade and tail.
#include "engine/fx/Stutter.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "engine/dsp/EqualSteps.h"
#include "engine/fx/DelayLengths.h"
#include "engine/fx/Fade.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

constexpr std::int32_t kTailFrames = 202; // a little longer than a seam, by ear

} // namespace

void Stutter::Allocate(float rate) { loop.Allocate(LongDelayFrames(rate)); }

void Stutter::Process(UnitControls& unit, const StereoBlock& block)
{
    unit.holdFrames = unit.bypass ? std::max(unit.holdFrames - block.frames, -1) : kTailFrames;
    for (int from = 0; from < block.frames;) {
        const int frames = StepBelowOne(unit.lfoPhase, unit.lfoIncrement, block.frames - from);
        Play(unit, {block.left + from, block.right + from, frames});
        from += frames;
        if (unit.lfoPhase < 1.0) continue;
        unit.lfoPhase -= std::floor(unit.lfoPhase);
        loop.EndSlice(unit.reverse != 0);
    }
}

/// A part of a slice.
void Stutter::Play(UnitControls& unit, const StereoBlock& block)
{
    float levels[kMaxRun];
    for (int from = 0; from < block.frames;) {
        const int frames = loop.Alike(block.frames - from);
        if (loop.Playing()) FillLevels(unit, levels, frames);
        loop.Run({block.left + from, block.right + from, frames}, levels);
        from += frames;
    }
}

} // namespace korvane
