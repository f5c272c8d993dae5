// The channel parameters: what each of a channel's 212 values is, where it starts and how it steps.
#include "framework/ChannelSlots.h"

#include "platform/Numbers.h"

namespace korvane {

namespace {

bool IsSlot(int index) { return index >= 0 && index < kChannelSlots; }

} // namespace

Bank BankOf(int base)
{
    if (!IsSlot(base)) return Bank::None;
    const ChannelSlot& row = SlotOf(base);
    return row.first == base ? row.bank : Bank::None;
}

float ChannelBlockDefault(int index, bool isSampler)
{
    if (!IsSlot(index)) return 0.0f;
    return isSampler ? SlotOf(index).samplerDefault : SlotOf(index).synthDefault;
}

namespace slot {

float LaneValue(int index, float value)
{
    const float shown = Clamp(value, 0.0f, 1.0f);
    const auto steps = static_cast<float>(SlotOf(index).laneSteps);
    return steps == 0.0f ? shown : static_cast<float>(Truncate(shown * steps + 0.5f)) / steps;
}

} // namespace slot
} // namespace korvane
