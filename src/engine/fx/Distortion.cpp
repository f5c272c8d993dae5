// Distortion: drive, clipper, lowpass.
#include "engine/fx/Distortion.h"

#include "engine/fx/Crossfade.h"
#include "engine/fx/Tone.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

void Distortion::Reset() { tone = {}; }

void Distortion::Process(UnitControls& unit, const StereoBlock& block)
{
    const float k = law::Drive(Clamp(unit.x + unit.BlockLfo(block.frames), 0.0f, 1.0f));
    const float makeUp = law::DriveMakeUp(k);
    const FilterCoefficients c = ToneCoefficients(unit.y, unit.sampleRate);
    auto lowpass = tone;
    Crossfade(unit, block, [&](Stereo dry) {
        const Stereo clipped = dry / (Magnitude(dry) * k + 1.0f) * makeUp;
        return lowpass.Step<false>(clipped, c);
    });
    tone = lowpass;
}

} // namespace korvane
