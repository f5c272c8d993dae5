// Stutter: slices, fade and tail.
#include "engine/fx/Stutter.h"

#include <cmath>
#include <cstdint>

#include "engine/fx/DelayLengths.h"
#include "engine/fx/Tail.h"

namespace korvane {

namespace {

constexpr std::int32_t kTailFrames = 202; // a little longer than a seam, by ear

} // namespace

void Stutter::Allocate(float rate) { loop.Allocate(LongDelayFrames(rate)); }

void Stutter::Process(UnitControls& unit, const StereoBlock& block)
{
    const float target = unit.Target();
    float level = unit.mix;
    for (int n = 0; n < block.frames; ++n) {
        unit.holdFrames = TailLeft(unit.holdFrames, !unit.bypass, kTailFrames);
        const float inLeft = block.left[n];
        const float inRight = block.right[n];
        if (loop.Playing()) {
            level += (target - level) * UnitControls::kOnStep;
            float outLeft = 0.0f, outRight = 0.0f;
            loop.Read(outLeft, outRight);
            block.left[n] = (1.0f - level) * inLeft + level * outLeft;
            block.right[n] = (1.0f - level) * inRight + level * outRight;
        }
        loop.Record(inLeft, inRight);
        unit.lfoPhase += unit.lfoIncrement;
        if (unit.lfoPhase < 1.0) continue;
        unit.lfoPhase -= std::floor(unit.lfoPhase);
        loop.EndSlice(unit.reverse != 0);
    }
    unit.mix = level;
}

} // namespace korvane
