// The engine core's transport: play, record, and notes asked for by other threads.
#include <cmath>

#include "engine/GrooveEngine.h"

namespace korvane {

void GrooveEngine::TogglePlay()
{
    const bool start = !playing;
    if (!start) playing = false;
    for (int c = 0; c < kChannels; ++c) RefreshChannel(c, start);

    if (start) {
        const double position = hostPosition > 0.0 ? static_cast<double>(hostPosition) : 0.0;
        hostPosition = position;
        const double steps = 4.0 * position;
        const double whole = std::floor(steps);
        const double fraction = steps - whole;
        const bool between = fraction > 0.01;
        const double next = between ? whole + 1.0 : whole;
        samplesToNextStep = between ? (1.0 - fraction) * StepFrames() : 0.0;
        patternRepeats = 0;
        patternStep = std::uint8_t{0};
        if (recordMode && !editMode) {
            samplesToNextStep = 0.0;
            stepCounter = std::uint8_t{0};
        } else {
            stepCounter = static_cast<std::uint8_t>(std::fmod(next, kSteps));
        }
    }

    stutterButtons.Clear();
    for (auto& code : stutterCode) code = std::int8_t{0};
    nextPattern = static_cast<int>(currentPattern);
    for (auto& step : lastStep) step = -1;
    if (!start) ReleaseSequenced();

    if (!recordMode) {
        countIn = std::int8_t{0};
    } else if (!start) {
        countIn = std::int8_t{0};
        ToggleRecord();
    } else {
        countIn = std::int8_t{kStepsPerBar};
    }
    if (start) playing = true; // last: the clock runs while stopped, and a tick must find the new position
}

void GrooveEngine::ToggleRecord()
{
    const bool nowRecording = !recordMode;
    recordMode = nowRecording;
    if (nowRecording) {
        if (editMode) ToggleEdit();
        recordStartedWhilePlaying = static_cast<bool>(playing);
    } else if (playing && !recordStartedWhilePlaying) {
        TogglePlay();
    }
    recordStep = recordBar = -1;
    for (auto& notes : playedThisStep) notes = 0u;
}

void GrooveEngine::NoteOn(int channel, int note, float velocity)
{
    Command(
        {VoiceCommand::Kind::NoteOn, static_cast<std::uint8_t>(channel), static_cast<std::int16_t>(note), velocity});
}

void GrooveEngine::ReleaseNote(int channel, int note)
{
    Command(
        {VoiceCommand::Kind::ReleaseNote, static_cast<std::uint8_t>(channel), static_cast<std::int16_t>(note), 0.0f});
}

void GrooveEngine::ReleaseLive(int channel)
{
    Command({VoiceCommand::Kind::ReleaseLive, static_cast<std::uint8_t>(channel), 0, 0.0f});
}

void GrooveEngine::ReleaseSequenced() { Command({VoiceCommand::Kind::ReleaseSequenced, 0, 0, 0.0f}); }

void GrooveEngine::Command(const VoiceCommand& command)
{
    if (!InBlock()) {
        voiceCommands.Push(command);
        return;
    }
    ExecuteVoiceCommands(); // what came before comes first
    Execute(command);
}

void GrooveEngine::ExecuteVoiceCommands()
{
    VoiceCommand command;
    while (voiceCommands.Pop(command)) Execute(command);
}

void GrooveEngine::Execute(const VoiceCommand& command)
{
    GrooveChannel& channel = Channel(command.channel);
    switch (command.kind) {
    case VoiceCommand::Kind::NoteOn: channel.NoteOn(command.note, 0.0f, command.velocity); break;
    case VoiceCommand::Kind::ReleaseNote: channel.ReleaseNote(command.note); break;
    case VoiceCommand::Kind::ReleaseLive: channel.ReleaseLive(); break;
    case VoiceCommand::Kind::ReleaseSequenced:
        for (auto& each : channels) each->ReleaseSequenced();
        break;
    }
}

} // namespace korvane
