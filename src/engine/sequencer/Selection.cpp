// What is shown, selected and marked for editing.
#include "engine/sequencer/Selection.h"

#include <algorithm>

#include "framework/ParameterTable.h"

namespace korvane {

int Selection::ChannelIndexOf(int base) const
{
    switch (BankOf(base)) {
    case Bank::Envelope: return base + envelopeNumber;
    case Bank::Lfo: return base + lfoNumber;
    case Bank::Layer: return base + layerNumber;
    case Bank::Fx: return base + selectedFx;
    case Bank::None: break;
    }
    return base;
}

void Selection::MarkBar(int bar)
{
    if (selectedBarMark == bar) {
        selectedBarMark = -1;
    } else {
        selectedBarMark = bar;
        selectedBar = bar;
    }
}

void Selection::Move(int direction)
{
    const int edited = editStep;
    if (edited == -1) {
        selectedBar = std::clamp(selectedBar + direction, 0, kBars - 1);
        return;
    }
    const int step = StepInPattern(edited) + direction;
    if (step < 0 || step >= kSteps) return;
    selectedBar = step / kStepsPerBar;
    editStep = step % kStepsPerBar;
}

void Selection::EndEditing()
{
    editStep = selectedBarMark = selectedPatternMark = -1;
    ClearMarks();
}

void Selection::Reset()
{
    selectedChannel = kSamplerChannels;
    selectedBar = selectedFx = 0;
    envelopeNumber = lfoNumber = layerNumber = std::int8_t{0};
    EndEditing();
}

} // namespace korvane
