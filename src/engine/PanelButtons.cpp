// The panel's other buttons: channels, patterns, mutes, effects, stutter, moving about.
#include "engine/PanelButtons.h"

#include "engine/Transport.h"

namespace korvane {

namespace {

/// The channels that hear the effect buttons, the pad and the stutter have changed.
void RefreshReach(GrooveEngine& engine)
{
    engine.buttons.RefreshStutterCodes(engine.selection.selectedChannel);
    engine.RefreshFxActive();
}

void SelectChannel(GrooveEngine& engine, int channel)
{
    engine.selection.selectedChannel = channel;
    RefreshReach(engine);
}

} // namespace

void SelectPattern(GrooveEngine& engine, int p)
{
    if (p < 0 || p >= kPatterns) return;
    Selection& selection = engine.selection;
    Score& score = engine.score;
    if (ShownModes(engine).editMode) {
        selection.selectedPatternMark = selection.selectedPatternMark == p ? -1 : p;
        selection.selectedBarMark = selection.editStep = -1;
        selection.ClearMarks();
        return;
    }
    const int current = score.currentPattern;
    if (!score.playOnce[current]) score.nextPattern = current;
    const int length = score.patterns[p]->length;
    const Modes modes = ShownModes(engine);
    if (!modes.playing)
        score.patternRepeats = 0;
    else if (score.playOnce[p] && engine.clock.patternStep >= length - 1)
        score.patternRepeats = 1;
    if (p != current && modes.playing && modes.recordMode) SetRecord(engine, false);
    score.currentPattern = p;
}

void ChannelPress(GrooveEngine& engine, int c)
{
    if (c < 0 || c >= kChannels) return;
    Selection& selection = engine.selection;
    Buttons& buttons = engine.buttons;
    if (ShownModes(engine).editMode) {
        const bool marked = selection.channelMarked[c];
        if (!marked) SelectChannel(engine, c);
        selection.channelMarked[c] = !marked;
        selection.editStep = selection.selectedPatternMark = -1;
        return;
    }
    const bool anyMarked = Any(selection.channelMarked);
    if (anyMarked) buttons.markedSelection = true;
    buttons.channelHeld[c] = true;
    selection.editStep = -1;
    RefreshReach(engine);
    if (!buttons.muteModifier) return;
    buttons.muteModifierUsed = true;
    if (anyMarked) engine.mixer.muted[c].Toggle();
}

void ChannelRelease(GrooveEngine& engine, int c)
{
    Selection& selection = engine.selection;
    Buttons& buttons = engine.buttons;
    if (ShownModes(engine).editMode || c < 0 || c >= kChannels || !buttons.channelHeld[c]) return;
    buttons.channelHeld[c] = false;
    RefreshReach(engine);
    const bool anyMarked = Any(selection.channelMarked);
    if (buttons.markedSelection) {
        if (!anyMarked) buttons.markedSelection = false;
        return;
    }
    if (anyMarked || c == selection.selectedChannel) return;
    engine.ReleaseLive(selection.selectedChannel);
    SelectChannel(engine, c);
}

void SetMuteModifier(GrooveEngine& engine, bool held)
{
    Buttons& buttons = engine.buttons;
    buttons.muteModifier = held;
    if (held) {
        for (int c = 0; c < kChannels; ++c) {
            if (!buttons.channelHeld[c]) continue;
            engine.mixer.muted[c].Toggle();
            buttons.markedSelection = buttons.muteModifierUsed = true;
        }
        return;
    }
    if (!buttons.muteModifierUsed) engine.mixer.muted[engine.selection.selectedChannel].Toggle();
    buttons.muteModifierUsed = false;
}

void SetFxButton(GrooveEngine& engine, int effect, bool held)
{
    if (effect < 0 || effect >= kEffects) return;
    if (held && !Any(engine.buttons.fxOn)) engine.selection.selectedFx = effect;
    engine.buttons.fxOn[effect] = held;
    engine.RefreshFxActive();
}

void SetFxPad(GrooveEngine& engine, bool held)
{
    engine.buttons.fxPad = held;
    engine.RefreshFxActive();
}

void SetStutterButton(GrooveEngine& engine, int button, bool held)
{
    if (held)
        engine.buttons.stutterButtons.Press(button);
    else
        engine.buttons.stutterButtons.Release(button);
    engine.buttons.RefreshStutterCodes(engine.selection.selectedChannel);
}

void Move(GrooveEngine& engine, int direction)
{
    if (!ShownModes(engine).editMode &&
        engine.score.NudgeHeldSteps(engine.selection, engine.buttons.stepHeld, direction))
        return;
    engine.selection.Move(direction);
}

} // namespace korvane
