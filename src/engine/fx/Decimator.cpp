// Decimator: hold period and lowpass.
#include "engine/fx/Decimator.h"

#include "engine/fx/Tone.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

void Decimator::Reset()
{
    sides.lowpass.chain = {};
    sides.held = sides.left = Stereo{};
}

const float* Decimator::Prepare(UnitControls& unit, int frames)
{
    const int period = law::CrushFrames(Clamp(1.0f + unit.BlockLfo(frames) - unit.x, 0.0f, 1.0f));
    sides.period = Both(static_cast<float>(period));
    if (toneInputs.Moved({unit.y, unit.sampleRate})) SetTone(sides.lowpass, unit.y, unit.sampleRate);
    return nullptr;
}

} // namespace korvane
