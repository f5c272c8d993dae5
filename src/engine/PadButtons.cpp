// The engine core's buttons: steps, bars, patterns, channels; live play, recording, selection.
#include <algorithm>
#include <cmath>

#include "engine/GrooveEngine.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// The first sampler channel that a button plays, else the selected one.
int PadChannel(const GrooveEngine& engine, int k)
{
    for (int c = 0; c < kSamplerChannels; ++c)
        if (engine.padKeys[c] == k) return c;
    return engine.selectedChannel;
}

} // namespace

void GrooveEngine::ClearMarks()
{
    for (auto& mark : channelMarked) mark = false;
}

bool GrooveEngine::AnyMarked() const
{
    return std::any_of(std::begin(channelMarked), std::end(channelMarked),
                       [](const Shared<bool>& mark) -> bool { return mark; });
}

void GrooveEngine::StepButton(int k)
{
    if (k < 0 || k >= kNotes) {
        NoteOn(selectedChannel, kFirstNote + k, liveVelocity);
        return;
    }
    if (stepHeld[k]) return;
    stepHeld[k] = true;
    RecordPress(k);
    const int edited = editStep;
    if (!editMode) {
        const bool sampler = selectedChannel < kSamplerChannels;
        NoteOn(sampler ? PadChannel(*this, k) : static_cast<int>(selectedChannel), kFirstNote + k, liveVelocity);
    } else if (edited == -1 && k >= kStepsPerBar) {
        SelectBar(k - kStepsPerBar);
    } else if (k < kStepsPerBar && selectedChannel < kSamplerChannels) {
        EditSamplerStep(k);
    } else if (edited == -1) {
        editStep = k;
        ClearMarks();
    } else {
        ToggleNote(edited, k);
    }
}

void GrooveEngine::SelectBar(int bar)
{
    if (selectedBarMark == bar) {
        selectedBarMark = -1;
    } else {
        selectedBarMark = bar;
        selectedBar = bar;
    }
}

/// Sampler steps go from off to on, from on to edited, from edited to off.
void GrooveEngine::EditSamplerStep(int k)
{
    const int channel = selectedChannel;
    const int step = selectedBar * kStepsPerBar + k;
    const std::uint32_t word = Pattern().steps[channel][step];
    const bool set = (word >> k & 1u) != 0;
    const bool edited = editStep == k;
    selectedBarMark = -1;
    if (!set) {
        Pattern().steps[channel][step] = word | 1u << k;
        NoteOn(channel, kFirstNote + k, 1.0f);
        editStep = -1;
        return;
    }
    if (edited) Pattern().ClearStep(channel, step);
    editStep = edited ? -1 : k;
    selectedPatternMark = -1;
    ClearMarks();
}

void GrooveEngine::ToggleNote(int step, int k)
{
    const int channel = selectedChannel;
    auto& word = Pattern().steps[channel][selectedBar * kStepsPerBar + step];
    word = word ^ 1u << k;
    if (word >> k & 1u) NoteOn(channel, kFirstNote + k, 1.0f);
}

void GrooveEngine::StepButtonRelease(int k)
{
    if (k < 0 || k >= kNotes || !stepHeld[k]) return;
    stepHeld[k] = false;
    RecordRelease(k);
    if (editMode) {
        ReleaseLive(selectedChannel);
        return;
    }
    const bool sampler = selectedChannel < kSamplerChannels;
    ReleaseNote(sampler ? PadChannel(*this, k) : static_cast<int>(selectedChannel), kFirstNote + k);
}

void GrooveEngine::RecordPress(int k)
{
    if (!Recording()) return;
    int position = patternStep;
    const bool next = 1.0 - samplesToNextStep / StepFrames() > 0.5 && countIn == -1;
    if (next) ++position;
    if (position > kSteps - 1) position -= kSteps;
    const int length = Pattern().length;
    if (recordStartedWhilePlaying && position >= length) position -= length;
    frameClock = 0;
    recordStep = position % kStepsPerBar;
    recordBar = position / kStepsPerBar;
    const bool sampler = selectedChannel < kSamplerChannels;
    const int target = sampler ? PadChannel(*this, k) : static_cast<int>(selectedChannel);
    const std::uint32_t bit = 1u << (sampler ? position % kStepsPerBar : k);
    auto& word = Pattern().steps[target][position];
    word = word | bit;
    if (next) playedThisStep[target] = playedThisStep[target] | bit;
}

void GrooveEngine::RecordRelease(int k)
{
    const int step = recordStep, bar = recordBar, channel = selectedChannel;
    if (!Recording() || step < 0 || bar < 0) return;
    const int position = bar * kStepsPerBar + step;
    if ((Pattern().steps[channel][position] >> k & 1u) == 0) return;
    const double held = frameClock / static_cast<double>(sampleRate) * static_cast<double>(tempo) / 60.0;
    const float beats = std::max(static_cast<float>(held), 0.125f);
    const float length = 0.125f * std::log2(8.0f * beats);
    const float offset = length - Channel(channel).sound.params[slot::NoteLength];
    Pattern().locks[channel][position].Set(slot::NoteLength, Clamp(offset, -1.0f, 1.0f));
}

void GrooveEngine::SelectPattern(int p)
{
    if (p < 0 || p >= kPatterns) return;
    if (editMode) {
        selectedPatternMark = selectedPatternMark == p ? -1 : p;
        selectedBarMark = editStep = -1;
        ClearMarks();
        return;
    }
    if (!playOnce[currentPattern]) nextPattern = static_cast<int>(currentPattern);
    const int length = patterns[static_cast<std::size_t>(p)]->length;
    if (!playing)
        patternRepeats = 0;
    else if (playOnce[p] && patternStep >= length - 1)
        patternRepeats = 1;
    if (p != currentPattern && playing && recordMode) ToggleRecord();
    currentPattern = p;
}

void GrooveEngine::ChannelPress(int c)
{
    if (c < 0 || c >= kChannels) return;
    if (editMode) {
        const bool marked = channelMarked[c];
        if (!marked) SelectChannel(c);
        channelMarked[c] = !marked;
        editStep = selectedPatternMark = -1;
        return;
    }
    const bool anyMarked = AnyMarked();
    if (anyMarked) markedSelection = true;
    channelHeld[c] = true;
    editStep = -1;
    RefreshStutterCodes();
    RefreshAllFxActive();
    if (!muteModifier) return;
    muteModifierUsed = true;
    if (anyMarked) muted[c] = !muted[c];
}

void GrooveEngine::ChannelRelease(int c)
{
    if (editMode || c < 0 || c >= kChannels || !channelHeld[c]) return;
    channelHeld[c] = false;
    RefreshStutterCodes();
    RefreshAllFxActive();
    if (markedSelection) {
        if (!AnyMarked()) markedSelection = false;
        return;
    }
    if (AnyMarked() || c == selectedChannel) return;
    ReleaseLive(selectedChannel);
    SelectChannel(c);
}

void GrooveEngine::SelectChannel(int c)
{
    selectedChannel = c;
    RefreshStutterCodes();
    RefreshAllFxActive();
}

void GrooveEngine::SetMuteModifier(bool held)
{
    muteModifier = held;
    if (held) {
        for (int c = 0; c < kChannels; ++c) {
            if (!channelHeld[c]) continue;
            muted[c] = !muted[c];
            markedSelection = muteModifierUsed = true;
        }
        return;
    }
    if (!muteModifierUsed) muted[selectedChannel] = !muted[selectedChannel];
    muteModifierUsed = false;
}

void GrooveEngine::ToggleEdit()
{
    const bool editing = !editMode;
    editMode = editing;
    if (editing) {
        recordMode = false;
        return;
    }
    editStep = selectedBarMark = selectedPatternMark = -1;
    ClearMarks();
}

} // namespace korvane
