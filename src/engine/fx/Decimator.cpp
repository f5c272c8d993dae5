// Decimator: hold period, hold, lowpass.
#include "engine/fx/Decimator.h"

#include "engine/fx/Crossfade.h"
#include "engine/fx/Tone.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

void Decimator::Reset()
{
    held = Stereo{};
    heldFrames = 0;
    tone = {};
}

void Decimator::Process(UnitControls& unit, const StereoBlock& block)
{
    const int period = law::CrushFrames(Clamp(1.0f + unit.BlockLfo(block.frames) - unit.x, 0.0f, 1.0f));
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
