// The transport: play, record, edit, and a host that starts and stops.
#include "engine/Transport.h"

namespace korvane {

namespace {

void Execute(GrooveEngine& engine, const TransportCommand& command)
{
    const Clock& clock = engine.clock;
    switch (command.kind) {
    case TransportCommand::Kind::Play:
        if (clock.playing != command.on) TogglePlay(engine);
        break;
    case TransportCommand::Kind::Record:
        if (clock.recordMode != command.on) ToggleRecord(engine);
        break;
    case TransportCommand::Kind::Host:
        if (clock.playing && clock.recordMode) ToggleRecord(engine);
        if (clock.playing) TogglePlay(engine); // leaving a recording from standstill has stopped it already
        if (command.on) TogglePlay(engine);
        break;
    }
}

void Do(GrooveEngine& engine, TransportCommand::Kind kind, bool on, Shared<std::int8_t>* asked)
{
    const TransportCommand command{kind, on};
    if (engine.MayTouchVoices()) {
        ServeTransport(engine); // what came before comes first
        Execute(engine, command);
        return;
    }
    if (asked) *asked = static_cast<std::int8_t>(on);
    if (!engine.commands.transport.Push(command) && asked) *asked = std::int8_t{-1};
}

bool Shown(std::int8_t asked, bool is) { return asked < 0 ? is : asked != 0; }

} // namespace

void TogglePlay(GrooveEngine& engine)
{
    Clock& clock = engine.clock;
    const bool start = !clock.playing;
    clock.playing = start;
    for (int c = 0; c < kChannels; ++c) engine.RefreshChannel(c);
    if (start) {
        clock.Locate();
        engine.score.patternRepeats = 0;
    }
    engine.buttons.ClearStutter();
    engine.score.Restart();
    if (!start) engine.ReleaseSequenced();
    clock.countIn = static_cast<std::int8_t>(start && clock.recordMode ? kStepsPerBar : 0);
    if (!start && clock.recordMode) ToggleRecord(engine);
}

void ToggleRecord(GrooveEngine& engine)
{
    Clock& clock = engine.clock;
    const bool on = clock.recordMode.Toggle();
    if (on) {
        if (clock.editMode) ToggleEdit(engine);
        clock.recordStartedWhilePlaying = static_cast<bool>(clock.playing);
    } else if (clock.playing && !clock.recordStartedWhilePlaying) {
        TogglePlay(engine);
    }
    engine.recorder.Clear();
}

void ServeTransport(GrooveEngine& engine)
{
    EngineCommands& commands = engine.commands;
    TransportCommand command;
    if (!commands.transport.Pop(command)) return;
    do Execute(engine, command);
    while (commands.transport.Pop(command));
    commands.playAsked = commands.recordAsked = std::int8_t{-1};
}

void SetPlay(GrooveEngine& engine, bool on)
{
    Do(engine, TransportCommand::Kind::Play, on, &engine.commands.playAsked);
}

void SetRecord(GrooveEngine& engine, bool on)
{
    Do(engine, TransportCommand::Kind::Record, on, &engine.commands.recordAsked);
}

void FollowHost(GrooveEngine& engine, bool running) { Do(engine, TransportCommand::Kind::Host, running, nullptr); }

bool PlayShown(const GrooveEngine& engine) { return Shown(engine.commands.playAsked, engine.clock.playing); }

bool RecordShown(const GrooveEngine& engine) { return Shown(engine.commands.recordAsked, engine.clock.recordMode); }

void ToggleEdit(GrooveEngine& engine)
{
    if (engine.clock.editMode.Toggle()) {
        engine.clock.recordMode = false;
        return;
    }
    engine.selection.editStep = engine.selection.selectedBarMark = engine.selection.selectedPatternMark = -1;
    engine.selection.ClearMarks();
}

} // namespace korvane
