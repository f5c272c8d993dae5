// Chorus: tape speed and feedback, frame by frame.
#include "engine/fx/Chorus.h"

#include "engine/fx/DelayLengths.h"
#include "engine/fx/Fade.h"
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
    double speeds[kMaxRun];
    TapePlace places[kMaxRun];
    unit.FillLfo(lfo, block.frames);
    TapeDelay<StereoChain>& tapes = *delays;
    for (int n = 0; n < block.frames; ++n)
        speeds[n] = tapes.clock.SpeedFor(static_cast<double>(DelayOf(unit.x, lfo[n])));
    tapes.clock.Run(speeds, block.frames, places);
    float levels[kMaxRun];
    FillLevels(unit, levels, block.frames);
    const float feedback = law::ChorusFeedback(unit.y);
    RecordPath<StereoChain> path = tapes.path;
    for (int n = 0; n < block.frames; ++n) {
        const float left = block.left[n];
        const float right = block.right[n];
        const StereoChain out = tapes.Read(places[n]);
        const StereoChain in = {Float4{left, out.left[0], out.left[1], 0.0f},
                                Float4{right, out.right[0], out.right[1], 0.0f}};
        // Three inversions in series: the sum is inverted, too.
        tapes.Write(path.Step(-levels[n] * in + feedback * out, 1.0f, 0.0f), places[n]);
        block.left[n] = left + out.left[2];
        block.right[n] = right + out.right[2];
    }
    tapes.path = path;
}

} // namespace korvane
