// The eight patterns, which of them plays, and what copy and paste do to them.
#include "engine/sequencer/Score.h"

namespace korvane {

Score::Score() : clipboard(std::make_unique<GroovePattern>())
{
    for (auto& pattern : memory) pattern = std::make_unique<GroovePattern>();
    for (std::size_t p = 0; p < kPatterns; ++p) {
        patterns[p] = memory[p].get();
        spare[p] = memory[kPatterns + p].get();
    }
    Fill(lastStep, -1);
}

void Score::ReturnFromPlayOnce(int patternStep, bool looping)
{
    const int repeats = patternRepeats, current = currentPattern;
    if (repeats > 0)
        patternRepeats.Replace(repeats, repeats - 1); // a selection meanwhile counts
    else if (playOnce[current] && !looping && patternStep == Current().length - 1)
        currentPattern.Replace(current, nextPattern);
}

void Score::Restart()
{
    nextPattern = static_cast<int>(currentPattern);
    Fill(lastStep, -1);
}

void Score::Copy(const Selection& selection)
{
    clipboard->CopyFrom(Current());
    copiedBar = static_cast<int>(selection.selectedBar);
    if (selection.editStep != -1) copiedStep = static_cast<int>(selection.editStep);
}

void Score::Paste(Selection& selection)
{
    if (const int target = selection.selectedPatternMark; target != -1) {
        patterns[target]->CopyFrom(*clipboard);
        selection.selectedPatternMark = -1;
        return;
    }
    GroovePattern& pattern = Current();
    const int fromBar = copiedBar, fromStep = copiedStep, edited = selection.editStep;
    const int toBar = selection.StepInPattern(0);
    const bool barMarked = selection.selectedBarMark != -1;
    for (int c = 0; c < kChannels; ++c) {
        if (barMarked) {
            if (selection.Chosen(c) && fromBar >= 0)
                pattern.CopySteps(c, toBar, *clipboard, fromBar * kStepsPerBar, kStepsPerBar);
        } else if (edited != -1) {
            if (!selection.Chosen(c) || fromBar < 0 || fromStep < 0) continue;
            pattern.CopySteps(c, toBar + edited, *clipboard, fromBar * kStepsPerBar + fromStep, 1);
            if (c < kSamplerChannels) pattern.steps[c][toBar + edited] = SamplerBit(edited);
        } else if (selection.channelMarked[c]) {
            pattern.CopySteps(c, 0, *clipboard, 0, kSteps);
        }
    }
    if (!barMarked) selection.editStep = -1;
}

void Score::Clear(Selection& selection)
{
    GroovePattern& pattern = Current();
    const int bar = selection.StepInPattern(0), edited = selection.editStep;
    if (edited != -1) {
        pattern.ClearStep(selection.selectedChannel, bar + edited);
    } else {
        for (int c = 0; c < kChannels; ++c) {
            if (selection.selectedBarMark == -1) {
                if (selection.channelMarked[c]) pattern.ClearChannel(c);
            } else if (selection.Chosen(c)) {
                for (int s = 0; s < kStepsPerBar; ++s) pattern.ClearStep(c, bar + s);
            }
        }
    }
    selection.editStep = selection.selectedBarMark = -1;
    selection.ClearMarks();
}

bool Score::NudgeHeldSteps(const Selection& selection, const Shared<bool>* stepHeld, int direction)
{
    GroovePattern& pattern = Current();
    const int channel = selection.selectedChannel;
    const int bar = selection.StepInPattern(0);
    bool any = false;
    for (int n = 0; n < kStepsPerBar; ++n) {
        const int step = direction > 0 ? kStepsPerBar - 1 - n : n;
        const int other = step + direction;
        if (!stepHeld[step] || pattern.steps[channel][bar + step] == 0) continue;
        any = true;
        if (other < 0 || other >= kStepsPerBar) continue;
        pattern.SwapSteps(channel, bar + step, bar + other);
    }
    return any;
}

void Score::Reset()
{
    ResetSelection();
    for (auto& pattern : patterns) pattern->Clear();
}

void Score::ResetSelection()
{
    currentPattern = nextPattern = patternRepeats = 0;
    Fill(playOnce, false);
}

void Score::SettleLocks() const
{
    for (const auto& pattern : memory) pattern->SettleLocks();
    clipboard->SettleLocks();
}

void Score::ClearSpare()
{
    SettleLocks();
    for (GroovePattern* pattern : spare) pattern->Clear();
    SettleLocks();
}

void Score::SwapPatterns()
{
    for (int p = 0; p < kPatterns; ++p) spare[p] = patterns[p].Exchange(spare[p]);
}

} // namespace korvane
