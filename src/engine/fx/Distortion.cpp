// Distortion: drive and lowpass.
#include "engine/fx/Distortion.h"

#include "engine/fx/Tone.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

void Distortion::Reset() { sides.lowpass.chain = {}; }

const float* Distortion::Prepare(UnitControls& unit, int frames)
{
    const float k = law::Drive(Clamp(unit.x + unit.BlockLfo(frames), 0.0f, 1.0f));
    sides.drive = Both(k);
    sides.makeUp = Both(law::DriveMakeUp(k));
    if (toneInputs.Moved({unit.y, unit.sampleRate})) SetTone(sides.lowpass, unit.y, unit.sampleRate);
    return nullptr;
}

} // namespace korvane
