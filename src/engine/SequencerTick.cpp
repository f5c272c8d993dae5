// What happens at each tick of the step clock.
#include "engine/SequencerTick.h"

#include <algorithm>

#include "engine/fx/FxSettings.h"
#include "framework/ParameterTable.h"

namespace korvane {

namespace {

/// The step that plays now, the pattern's length, the click.
void AdvancePosition(GrooveEngine& engine)
{
    Clock& clock = engine.clock;
    const bool recording = clock.Recording();
    engine.score.ReturnFromPlayOnce(clock.patternStep, clock.playBar || recording);
    GroovePattern& pattern = engine.score.Current();
    int step = clock.stepCounter;
    pattern.UpdateLength();
    if (!clock.CountingIn()) {
        step %= pattern.length;
    } else {
        int beat = step;
        if (clock.countIn > 0) {
            clock.samplesToNextStep = 0.0;
            clock.stepCounter = std::uint8_t{0};
            step = 0;
            beat = clock.countIn;
        }
        engine.mixer.click.Arm(beat, clock.sampleRate);
    }
    if (clock.playBar && !recording) step = engine.selection.StepInPattern(step % kStepsPerBar);
    clock.patternStep = static_cast<std::uint8_t>(step);
}

/// The channel's stutter and its effects' LFOs follow the steps.
void SyncEffects(GrooveEngine& engine, int c)
{
    GrooveChannel& channel = engine.Channel(c);
    const std::int8_t pressed = engine.buttons.stutterCode[c];
    std::int8_t code = pressed;
    SetStutter(*channel.stutterUnit, code);
    if (code != pressed) engine.buttons.stutterCode[c].Replace(pressed, code); // a button pressed meanwhile stands
    for (auto& unit : channel.fxUnits) SyncLfo(*unit, engine.clock.stepCounter);
}

void PlayStep(GrooveEngine& engine, int c, bool late, bool recording)
{
    GrooveChannel& channel = engine.Channel(c);
    const Clock& clock = engine.clock;
    const int position = std::min<int>(clock.patternStep, kSteps - 1);
    const bool recorded = recording && c == engine.selection.selectedChannel; // heard straight
    const bool shuffled = channel.sound.params[slot::ShuffleEnable] != 0.0f && !recorded;
    if (!late) SyncEffects(engine, c);
    const std::uint32_t word = engine.score.Current().steps[c][position];
    if (word == 0) return;
    if (!late) {
        engine.score.lastStep[c] = position;
        engine.RefreshChannel(c);
    }
    const bool odd = (clock.patternStep & 1) != 0;
    const bool sounds = shuffled ? late || !odd : !late; // shuffled channels sound late on odd steps
    if (!sounds) return;
    ReleaseSequenced(channel.voices);
    const std::uint32_t sounding = engine.recorder.playedThisStep[c];
    for (int k = 0; k < kNotes; ++k)
        if ((word & ~sounding) >> k & 1u) channel.NoteOn(kFirstNote + k, clock.tempo, 1.0f);
}

} // namespace

void SequencerTick(GrooveEngine& engine, bool late)
{
    Clock& clock = engine.clock;
    if (!clock.playing) {
        for (auto& channel : engine.channels) channel->stutterUnit->bypass = 1;
        return;
    }
    if (!late) AdvancePosition(engine);
    const bool silent = clock.CountingIn() && clock.countIn > 0;
    const bool recording = clock.Recording();
    for (int c = 0; !silent && c < kChannels; ++c) PlayStep(engine, c, late, recording);
    if (late) return;
    Fill(engine.recorder.playedThisStep, 0u);
    clock.Advance();
}

} // namespace korvane
