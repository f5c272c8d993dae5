// The engine core's pattern editing: copy, paste, clear, nudge, move.
#include <algorithm>

#include "engine/GrooveEngine.h"

namespace korvane {

void GrooveEngine::Copy()
{
    clipboard->CopyFrom(Pattern());
    copiedBar = static_cast<int>(selectedBar);
    if (editStep != -1) copiedStep = static_cast<int>(editStep);
}

void GrooveEngine::Paste()
{
    if (const int target = selectedPatternMark; target != -1) {
        patterns[static_cast<std::size_t>(target)]->CopyFrom(*clipboard);
        selectedPatternMark = -1;
        return;
    }
    GroovePattern& pattern = Pattern();
    const int fromBar = copiedBar * kStepsPerBar, toBar = selectedBar * kStepsPerBar;
    const int edited = editStep;
    for (int c = 0; c < kChannels; ++c) {
        const bool chosen = c == selectedChannel || channelMarked[c];
        if (selectedBarMark != -1) {
            for (int s = 0; chosen && copiedBar >= 0 && s < kStepsPerBar; ++s)
                pattern.CopyStep(c, toBar + s, *clipboard, c, fromBar + s);
        } else if (edited != -1) {
            if (!chosen || copiedBar < 0 || copiedStep < 0) continue;
            pattern.CopyStep(c, toBar + edited, *clipboard, c, fromBar + copiedStep);
            if (c < kSamplerChannels) pattern.steps[c][toBar + edited] = 1u << edited;
        } else if (channelMarked[c]) {
            for (int s = 0; s < kSteps; ++s) pattern.CopyStep(c, s, *clipboard, c, s);
        }
    }
    if (selectedBarMark == -1) editStep = -1;
}

void GrooveEngine::Clear()
{
    GroovePattern& pattern = Pattern();
    const int bar = selectedBar * kStepsPerBar, edited = editStep;
    if (edited != -1) {
        pattern.ClearStep(selectedChannel, bar + edited);
    } else {
        for (int c = 0; c < kChannels; ++c) {
            if (selectedBarMark == -1) {
                if (channelMarked[c]) pattern.ClearChannel(c);
            } else if (c == selectedChannel || channelMarked[c]) {
                for (int s = 0; s < kStepsPerBar; ++s) pattern.ClearStep(c, bar + s);
            }
        }
    }
    editStep = selectedBarMark = -1;
    ClearMarks();
}

void GrooveEngine::Forward() { Move(+1); }
void GrooveEngine::Back() { Move(-1); }

void GrooveEngine::Move(int direction)
{
    if (!editMode && NudgeHeldSteps(direction)) return;
    const int bar = selectedBar;
    const int edited = editStep;
    if (edited == -1) {
        selectedBar = std::clamp(bar + direction, 0, kBars - 1);
        return;
    }
    const int step = bar * kStepsPerBar + edited + direction;
    if (step < 0 || step >= kSteps) return;
    selectedBar = step / kStepsPerBar;
    editStep = step % kStepsPerBar;
}

/// Moves the held steps that hold notes by one, within their bar. False when there is none.
bool GrooveEngine::NudgeHeldSteps(int direction)
{
    GroovePattern& pattern = Pattern();
    const int channel = selectedChannel;
    const int bar = selectedBar * kStepsPerBar;
    bool any = false;
    for (int n = 0; n < kStepsPerBar; ++n) {
        const int step = direction > 0 ? kStepsPerBar - 1 - n : n;
        const int other = step + direction;
        if (!stepHeld[step] || pattern.steps[channel][bar + step] == 0) continue;
        any = true;
        if (other < 0 || other >= kStepsPerBar) continue;
        pattern.SwapSteps(channel, bar + step, bar + other);
        if (channel >= kSamplerChannels) continue;
        for (const int moved : {step, other})
            if (pattern.steps[channel][bar + moved] != 0) pattern.steps[channel][bar + moved] = 1u << moved;
    }
    return any;
}

} // namespace korvane
