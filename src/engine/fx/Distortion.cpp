// Distortion: drive, clipper, lowpass.
#include "engine/fx/Distortion.h"

#include "engine/fx/Crossfade.h"
#include "engine/fx/Tone.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Steepness k of the clipper: 0 leaves the signal as it is but for its level, 1024 makes a square of it.
float DriveOf(float drive) { return drive * drive * drive * drive * 1024.0f; }

/// Full scale keeps about half its level at every drive.
float MakeUpFor(float k) { return k * 0.5f + 0.5f; }

} // namespace

void Distortion::Reset() { tone = {}; }

void Distortion::Process(UnitControls& unit, const StereoBlock& block)
{
    const float k = DriveOf(Clamp(unit.x + unit.BlockLfo(block.frames), 0.0f, 1.0f));
    const float makeUp = MakeUpFor(k);
    const FilterCoefficients c = ToneCoefficients(unit.y, unit.sampleRate);
    auto lowpass = tone;
    Crossfade(unit, block, [&](Stereo dry) {
        const Stereo clipped = dry / (Magnitude(dry) * k + 1.0f) * makeUp;
        return lowpass.Step<false>(clipped, c);
    });
    tone = lowpass;
}

} // namespace korvane
