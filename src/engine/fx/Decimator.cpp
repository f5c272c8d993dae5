// Decimator: hold period and lowpass.
#include "engine/fx/Decimator.h"

#include "engine/fx/Tone.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

void Decimator::Reset()
{
    for (auto& side : sides) {
        side.lowpass.chain = {};
        side.held = side.left = 0.0f;
    }
}

const float* Decimator::Prepare(UnitControls& unit, int frames)
{
    const int period = law::CrushFrames(Clamp(1.0f + unit.BlockLfo(frames) - unit.x, 0.0f, 1.0f));
    for (auto& side : sides) side.period = static_cast<float>(period);
    if (toneInputs.Moved({unit.y, unit.sampleRate})) SetTone(sides, unit.y, unit.sampleRate);
    return nullptr;
}

} // namespace korvane
