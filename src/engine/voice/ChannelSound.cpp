// What the voices of one channel share.
#include "engine/voice/ChannelSound.h"

#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

bool Targets(float code, int index) { return code != 0.0f && slot::ModulationTarget(Truncate(code)) == index; }

} // namespace

float ChannelSound::Modulated(int index) const
{
    if (index < 0 || index >= kChannelSlots) return 0.0f;
    float value = params[index];
    const auto modulate = [&](int destination, int amount, float source) {
        if (Targets(params[destination], index))
            value = Clamp(value + law::SourceAmount(params[amount]) * source, 0.0f, 1.0f);
    };
    modulate(slot::VelocityDestination, slot::VelocityAmount, velocityIn);
    modulate(slot::WheelDestination, slot::WheelAmount, modWheelIn);
    modulate(slot::PressureDestination, slot::PressureAmount, pressureIn);
    return value;
}

} // namespace korvane
