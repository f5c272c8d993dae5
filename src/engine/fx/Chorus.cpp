// Chorus: tape speed and feedback, frame by frame.
#include "engine/fx/Chorus.h"

#include "engine/fx/DelayLengths.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Part of the tape's length: the deeper, the shorter.
float DelayOf(float x, float lfo) { return Clamp((1.0f - x) - lfo, 0.0f, kLongestTapePart); }

} // namespace

void Chorus::Allocate(float rate) { delays = std::make_unique<TapeDelay<StereoChain>>(ShortDelayFrames(rate)); }

void Chorus::Reset() { delays->Clear(); }

void Chorus::Process(UnitControls& unit, const StereoBlock& block)
{
    float lfo[kMaxRun];
    unit.FillLfo(lfo, block.frames);
    TapeDelay<StereoChain>& tapes = *delays;
    const float x = unit.x;
    const float target = unit.Target();
    float level = unit.mix;
    tapes.feedback = law::ChorusFeedback(unit.y);
    for (int n = 0; n < block.frames; ++n) {
        level += (target - level) * UnitControls::kOnStep;
        tapes.speed = tapes.SpeedFor(static_cast<double>(DelayOf(x, lfo[n])));
        tapes.inputGain = -level; // three inversions in series: the sum is inverted, too
        const float left = block.left[n];
        const float right = block.right[n];
        const StereoChain out = tapes.Read();
        tapes.Record({Float4{left, out.left[0], out.left[1], 0.0f}, Float4{right, out.right[0], out.right[1], 0.0f}},
                     out);
        block.left[n] = left + out.left[2];
        block.right[n] = right + out.right[2];
    }
    unit.mix = level;
}

} // namespace korvane
