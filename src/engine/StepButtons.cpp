// The sixteen step and eight bar buttons: live play, recording, step editing.
#include "engine/StepButtons.h"

#include <algorithm>

#include "engine/Transport.h"
#include "framework/KnobLaws.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// Sampler steps go from off to on, from on to edited, from edited to off.
void EditSamplerStep(GrooveEngine& engine, int k)
{
    Selection& selection = engine.selection;
    GroovePattern& pattern = engine.score.Current();
    const int channel = selection.selectedChannel;
    const int step = selection.StepInPattern(k);
    selection.selectedBarMark = -1;
    if ((pattern.steps[channel][step] >> k & 1u) == 0) {
        pattern.SetNotes(channel, step, 1u << k);
        engine.NoteOn(channel, kFirstNote + k, 1.0f);
        selection.editStep = -1;
        return;
    }
    const bool edited = selection.editStep == k;
    if (edited) pattern.ClearStep(channel, step);
    selection.editStep = edited ? -1 : k;
    selection.selectedPatternMark = -1;
    selection.ClearMarks();
}

void ToggleNote(GrooveEngine& engine, int step, int k)
{
    const int channel = engine.selection.selectedChannel;
    const std::uint32_t word = engine.score.Current().FlipNotes(channel, engine.selection.StepInPattern(step), 1u << k);
    if (word >> k & 1u) engine.NoteOn(channel, kFirstNote + k, 1.0f);
}

/// Recording, and no order waits that ends it; each does that ends playing or begins editing.
bool Recording(const GrooveEngine& engine) { return engine.clock.Recording() && ShownModes(engine).recordMode; }

void EditStep(GrooveEngine& engine, int k)
{
    Selection& selection = engine.selection;
    const int edited = selection.editStep;
    if (edited == -1 && k >= kStepsPerBar) {
        selection.MarkBar(k - kStepsPerBar);
    } else if (k < kStepsPerBar && selection.OnSampler()) {
        EditSamplerStep(engine, k);
    } else if (edited == -1) {
        selection.editStep = k;
        selection.ClearMarks();
    } else {
        ToggleNote(engine, edited, k);
    }
}

} // namespace

void StepButton(GrooveEngine& engine, int k)
{
    const int selected = engine.selection.selectedChannel;
    if (k < 0 || k >= kNotes) {
        engine.NoteOn(selected, kFirstNote + k, engine.liveVelocity);
        return;
    }
    if (!engine.buttons.stepHeld[k].Replace(false, true)) return;
    RecordPress(engine, k);
    if (ShownModes(engine).editMode)
        EditStep(engine, k);
    else
        engine.NoteOn(engine.buttons.PlayedChannel(k, selected), kFirstNote + k, engine.liveVelocity);
}

void StepButtonRelease(GrooveEngine& engine, int k)
{
    if (k < 0 || k >= kNotes || !engine.buttons.stepHeld[k].Replace(true, false)) return;
    RecordRelease(engine, k);
    const int selected = engine.selection.selectedChannel;
    if (ShownModes(engine).editMode)
        engine.ReleaseLive(selected);
    else
        engine.ReleaseNote(engine.buttons.PlayedChannel(k, selected), kFirstNote + k);
}

void RecordPress(GrooveEngine& engine, int k)
{
    Clock& clock = engine.clock;
    if (!Recording(engine)) return;
    int position = clock.patternStep;
    const bool next = clock.StepGone() > 0.5 && clock.countIn == -1;
    if (next) ++position;
    if (position > kSteps - 1) position -= kSteps;
    GroovePattern& pattern = engine.score.Current();
    const int length = pattern.length;
    if (clock.recordStartedWhilePlaying && position >= length) position -= length;
    clock.frameClock = 0;
    engine.recorder.recordStep = position % kStepsPerBar;
    engine.recorder.recordBar = position / kStepsPerBar;
    const int selected = engine.selection.selectedChannel;
    const int target = engine.buttons.PlayedChannel(k, selected);
    const std::uint32_t bit = selected < kSamplerChannels ? SamplerBit(position) : 1u << k;
    pattern.SetNotes(target, position, bit);
    if (next) engine.recorder.playedThisStep[target].Update([bit](std::uint32_t notes) { return notes | bit; });
}

void RecordRelease(GrooveEngine& engine, int k)
{
    const Clock& clock = engine.clock;
    const int step = engine.recorder.recordStep, bar = engine.recorder.recordBar,
              channel = engine.selection.selectedChannel;
    if (!Recording(engine) || step < 0 || bar < 0) return;
    GroovePattern& pattern = engine.score.Current();
    const int position = bar * kStepsPerBar + step;
    if ((pattern.steps[channel][position] >> k & 1u) == 0) return;
    const double held =
        clock.frameClock / static_cast<double>(clock.sampleRate) * static_cast<double>(clock.tempo) / 60.0;
    const float beats = std::max(static_cast<float>(held), beats::Eighth);
    const float offset = law::NoteBeatsValue(beats) - engine.Channel(channel).sound.params[slot::NoteLength];
    pattern.SetLock(channel, position, slot::NoteLength, Clamp(offset, -1.0f, 1.0f));
}

} // namespace korvane
