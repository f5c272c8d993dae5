// The engine core's sequencer: what happens at each tick of the step clock.
#include <algorithm>
#include <array>

#include "engine/GrooveEngine.h"
#include "engine/fx/FxSettings.h"
#include "framework/ParameterTable.h"

namespace korvane {

namespace {

constexpr float kClickLevel = 3.0f;
constexpr double kClickHz = 500.0, kBarClickHz = 1000.0;

} // namespace

void GrooveEngine::SequencerTick(bool late)
{
    if (!playing) {
        for (auto& channel : channels) channel->stutterUnit->bypass = 1;
        return;
    }
    if (!late) AdvancePosition();
    const bool silent = CountingIn() && countIn > 0;
    if (!silent) {
        const bool recording = Recording();
        for (int c = 0; c < kChannels; ++c) PlayStep(c, late, recording);
    }
    if (late) return;
    for (auto& notes : playedThisStep) notes = 0u;
    if (countIn < 1) {
        countIn = std::int8_t{-1};
        stepCounter = static_cast<std::uint8_t>((stepCounter + 1) & (kSteps - 1)); // eight bars, the longest pattern
    } else {
        patternStep = stepCounter = std::uint8_t{0};
        countIn = static_cast<std::int8_t>(countIn - 1);
    }
}

void GrooveEngine::AdvancePosition()
{
    const bool recording = Recording();
    if (patternRepeats > 0)
        patternRepeats = patternRepeats - 1;
    else if (playOnce[currentPattern] && !playBar && !recording && patternStep == Pattern().length - 1)
        currentPattern = static_cast<int>(nextPattern);
    GroovePattern& pattern = Pattern();
    int step = stepCounter;
    pattern.UpdateLength();
    if (!CountingIn()) {
        step %= pattern.length;
    } else {
        int click = step;
        if (countIn > 0) {
            samplesToNextStep = 0.0;
            stepCounter = std::uint8_t{0};
            step = 0;
            click = countIn;
        }
        if (click % 4 == 0) {
            clickLevel = kClickLevel;
            clickIncrement = static_cast<float>((click % kStepsPerBar == 0 ? kBarClickHz : kClickHz) / sampleRate);
        }
    }
    if (playBar && !recording) step = step % kStepsPerBar + kStepsPerBar * selectedBar;
    patternStep = static_cast<std::uint8_t>(step);
}

void GrooveEngine::PlayStep(int c, bool late, bool recording)
{
    GrooveChannel& channel = Channel(c);
    const int position = std::min<int>(patternStep, kSteps - 1);
    const bool shuffled = channel.sound.params[slot::ShuffleEnable] != 0.0f && !(recording && c == selectedChannel);
    if (!late) {
        const std::int8_t pressed = stutterCode[c];
        std::int8_t code = pressed;
        SetStutter(*channel.stutterUnit, code);
        if (code != pressed) stutterCode[c].Replace(pressed, code); // a button pressed meanwhile stands
        for (auto& unit : channel.fxUnits) SyncLfo(*unit, stepCounter);
    }
    const std::uint32_t word = Pattern().steps[c][position];
    if (word == 0) return;
    if (!late) {
        lastStep[c] = position;
        RefreshChannel(c);
    }
    const bool odd = (patternStep & 1) != 0;
    const bool sounds = shuffled ? late || !odd : !late; // shuffled channels sound late on odd steps
    if (!sounds) return;
    channel.ReleaseSequenced();
    const std::uint32_t sounding = playedThisStep[c];
    for (int k = 0; k < kNotes; ++k)
        if ((word & ~sounding) >> k & 1u) channel.NoteOn(kFirstNote + k, tempo, 1.0f);
}

} // namespace korvane
