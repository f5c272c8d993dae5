// The list of modulation destinations.
#include "editor/commands/DestinationList.h"

#include <cstdint>

#include "framework/ChannelSlots.h"

namespace korvane {

namespace {

struct Destination {
    std::uint8_t kind; // of item::
    const char* text;
    int target = -1; // the channel parameter that it moves
};

// clang-format off
constexpr Destination kDestinations[] = {
    {item::Choice,    "---"},
    {item::Choice,    "Cutoff",     slot::FilterCutoff},
    {item::Choice,    "Resonance",  slot::FilterResonance},
    {item::Separator, ""},
    {item::Choice,    "Mod Amount", slot::Modulation},
    {item::Heading,   "Envelope 1"},
    {item::Choice,    "EG1 Attack", slot::EnvelopeAttack},
    {item::Choice,    "EG1 Decay",  slot::EnvelopeDecay},
    {item::Choice,    "EG1 Amount", slot::EnvelopeAmount},
    {item::Heading,   "Envelope 2"},
    {item::Choice,    "EG2 Attack", slot::EnvelopeAttack + 1},
    {item::Choice,    "EG2 Decay",  slot::EnvelopeDecay + 1},
    {item::Choice,    "EG2 Amount", slot::EnvelopeAmount + 1},
    {item::Heading,   "LFO 1"},
    {item::Choice,    "LFO1 Rate",  slot::LfoRate},
    {item::Choice,    "LFO1 Amount", slot::LfoAmount},
    {item::Heading,   "LFO 2"},
    {item::Choice,    "LFO2 Rate",  slot::LfoRate + 1},
    {item::Choice,    "LFO2 Amount", slot::LfoAmount + 1},
    {item::Heading,   "Amplitude EG"},
    {item::Choice,    "AMP Attack", slot::AmpAttack},
    {item::Choice,    "AMP Decay",  slot::AmpDecay},
};
// clang-format on

/// The code by which the engine knows a channel parameter as a destination; -1: it is none.
constexpr int CodeOf(int parameter)
{
    for (const ChannelSlot& row : kChannelSlotTable)
        if (const int member = parameter - row.first; member >= 0 && member < row.count && member < 2)
            return row.sourceCodes[member];
    return -1;
}

constexpr bool EveryPositionIsItsCode()
{
    int position = 0, found = 0;
    for (const Destination& row : kDestinations) {
        if (row.target >= 0 && CodeOf(row.target) != position) return false;
        found += row.target >= 0;
        ++position;
    }
    for (const ChannelSlot& row : kChannelSlotTable) found -= (row.sourceCodes[0] != 0) + (row.sourceCodes[1] != 0);
    return found == 0;
}
static_assert(EveryPositionIsItsCode());

} // namespace

void FillDestinationList(CControlDropDownList& list)
{
    for (const Destination& row : kDestinations) list.AddItem(row.text, row.kind);
}

} // namespace korvane
