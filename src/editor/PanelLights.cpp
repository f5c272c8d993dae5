// What the panel's lights and lit buttons say of the engine.
#include "editor/PanelLights.h"

#include "engine/Transport.h"
#include "framework/ChannelSlots.h"

namespace korvane {

namespace {

bool Editing(const GrooveEngine& engine) { return ShownModes(engine).editMode; }

Light Lit(bool holdsNotes, bool edited, bool blinks)
{
    if (blinks) return holdsNotes ? Light::BlinkFull : Light::BlinkHalf;
    if (holdsNotes) return edited ? Light::Full : Light::Half;
    return edited ? Light::BlinkHalf : Light::Off;
}

bool BarHoldsNotes(const GroovePattern& pattern, int channel, int bar)
{
    for (int step = bar * kStepsPerBar; step < (bar + 1) * kStepsPerBar; ++step)
        if (pattern.steps[channel][step] != 0) return true;
    return false;
}

} // namespace

Light ChannelLight(const GrooveEngine& engine, int channel)
{
    const Selection& selection = engine.selection;
    const bool current = channel == selection.selectedChannel;
    if (Editing(engine) && selection.channelMarked[channel]) return current ? Light::BlinkFull : Light::BlinkHalf;
    if (current) return Light::Full;
    return engine.Channel(channel).soundedThisBlock ? Light::Half : Light::Off;
}

Light StepLight(const GrooveEngine& engine, int k)
{
    const Selection& selection = engine.selection;
    const GroovePattern& pattern = engine.score.Current();
    const int channel = selection.selectedChannel;
    if (k >= kStepsPerBar) {
        const int bar = k - kStepsPerBar;
        const bool holdsNotes = BarHoldsNotes(pattern, channel, bar), selected = selection.selectedBar == bar;
        const bool marked = Editing(engine) && selection.selectedBarMark == bar;
        return Lit(holdsNotes || selected, selected, marked);
    }
    const int step = selection.StepInPattern(k);
    const bool plays = engine.clock.playing && engine.clock.patternStep == step;
    return Lit(pattern.steps[channel][step] != 0, selection.editStep == k, plays);
}

Light PatternLight(const GrooveEngine& engine, int pattern)
{
    const bool current = engine.score.currentPattern == pattern;
    if (Editing(engine) && engine.selection.selectedPatternMark == pattern) return Light::BlinkHalf;
    return current ? Light::Half : Light::Off;
}

bool StepLed(const GrooveEngine& engine, int k)
{
    const Selection& selection = engine.selection;
    const int edited = selection.editStep;
    if (Editing(engine) && edited >= 0 && !selection.OnSampler())
        return (engine.score.Current().steps[selection.selectedChannel][selection.StepInPattern(edited)] >> k & 1u) !=
               0;
    if (!engine.clock.playing) return engine.buttons.stepHeld[k];
    const int step = engine.clock.patternStep;
    return k < kStepsPerBar ? step % kStepsPerBar == k : step / kStepsPerBar == k - kStepsPerBar;
}

bool FxLed(const GrooveEngine& engine, int effect)
{
    if (engine.buttons.fxOn[effect]) return true;
    if (engine.buttons.fxPad && engine.selection.selectedFx == effect) return true;
    return engine.storedParams[engine.selection.selectedChannel][slot::FxGlue + effect] != 0.0f;
}

const char* PadAxisName(int effect, bool vertical)
{
    static constexpr const char* kNames[kEffects][2] = {
        {"Distortion", "Lowpass"},  {"Crush", "Lowpass"},       {"Depth", "Feedback"},  {"Depth", "Feedback"},
        {"Frequency", "Resonance"}, {"Frequency", "Resonance"}, {"Feedback", "Filter"}, {"Feedback", "Filter"},
        {"Panning", "Binaural"},    {"Release", "Drop Level"}};
    return effect >= 0 && effect < kEffects ? kNames[effect][vertical] : "---";
}

} // namespace korvane
