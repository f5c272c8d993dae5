// Decimator: hold period, hold, lowpass.
#include "engine/fx/Decimator.h"

#include "engine/fx/Crossfade.h"
#include "engine/fx/Tone.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Frames that one frame is held for, 3 to 67, by ear.
/// coarseness  0..1
int HoldPeriod(float coarseness) { return Truncate(coarseness * coarseness * 64.0f + 3.0f); }

} // namespace

void Decimator::Reset()
{
    held = Stereo{};
    heldFrames = 0;
    tone = {};
}

void Decimator::Process(UnitControls& unit, const StereoBlock& block)
{
    const int period = HoldPeriod(Clamp(1.0f + unit.BlockLfo(block.frames) - unit.x, 0.0f, 1.0f));
    const FilterCoefficients c = ToneCoefficients(unit.y, unit.sampleRate);
    auto lowpass = tone;
    Stereo sample = held;
    int countdown = heldFrames;
    Crossfade(unit, block, [&](Stereo dry) {
        if (countdown > 0) --countdown;
        if (countdown == 0) {
            sample = dry;
            countdown = period;
        }
        return lowpass.Step<false>(sample, c);
    });
    tone = lowpass;
    held = sample;
    heldFrames = countdown;
}

} // namespace korvane
