// What the voices of one channel share.
#include "engine/voice/ChannelSound.h"

#include <iterator>

#include "framework/KnobLaws.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Channel parameter that a modulation destination code targets, −1 none. Codes are positions in the editor's list of
/// destinations, in which headings and separators count.
constexpr int kNoTarget = -1;
constexpr int kModulationTargets[] = {
    kNoTarget,                // "---"
    slot::FilterCutoff,       //
    slot::FilterResonance,    //
    kNoTarget,                // separator
    slot::Modulation,         //
    kNoTarget,                // "Envelope 1"
    slot::EnvelopeAttack,     //
    slot::EnvelopeDecay,      //
    slot::EnvelopeAmount,     //
    kNoTarget,                // "Envelope 2"
    slot::EnvelopeAttack + 1, //
    slot::EnvelopeDecay + 1,  //
    slot::EnvelopeAmount + 1, //
    kNoTarget,                // "LFO 1"
    slot::LfoRate,            //
    slot::LfoAmount,          //
    kNoTarget,                // "LFO 2"
    slot::LfoRate + 1,        //
    slot::LfoAmount + 1,      //
    kNoTarget,                // "Amplitude EG"
    slot::AmpAttack,          //
    slot::AmpDecay,           //
};

bool Targets(float code, int index)
{
    if (code == 0.0f) return false;
    const int c = Truncate(code);
    return c > 0 && c < static_cast<int>(std::size(kModulationTargets)) && kModulationTargets[c] == index;
}

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
