// The transport: play, record, edit, and a host that starts and stops.
#include "engine/Transport.h"

#include <utility>

namespace korvane {

namespace {

using Kind = TransportCommand::Kind;

void Execute(GrooveEngine& engine, const TransportCommand& command)
{
    Clock& clock = engine.clock;
    switch (command.kind) {
    case Kind::Play:
        if (clock.playing != command.on) TogglePlay(engine);
        break;
    case Kind::Record:
        if (clock.recordMode != command.on) ToggleRecord(engine);
        break;
    case Kind::Edit:
        if (clock.editMode == command.on) break;
        clock.editMode = command.on;
        if (command.on) clock.recordMode = false; // which stops nothing
        break;
    case Kind::Host:
        if (clock.playing && clock.recordMode) ToggleRecord(engine);
        if (clock.playing) TogglePlay(engine); // leaving a recording from standstill has stopped it already
        if (command.on) TogglePlay(engine);
        break;
    }
}

void Do(GrooveEngine& engine, TransportCommand command, Shared<std::int8_t>& asked)
{
    if (engine.MayTouchVoices()) {
        ServeTransport(engine); // what came before comes first
        Execute(engine, command);
        return;
    }
    asked = static_cast<std::int8_t>(command.on);
    if (!engine.commands.transport.Push(command)) engine.commands.overflowed = true;
}

bool Shown(std::int8_t asked, bool is) { return asked == EngineCommands::kNothing ? is : asked != 0; }

/// All orders are done. Those that found no room count by what was asked for last.
void Settle(GrooveEngine& engine)
{
    EngineCommands& commands = engine.commands;
    const bool overflowed = commands.overflowed.Exchange(false);
    const std::pair<Kind, Shared<std::int8_t>&> wishes[] = {
        {Kind::Edit, commands.editAsked}, {Kind::Record, commands.recordAsked}, {Kind::Play, commands.playAsked}};
    for (const auto& [kind, asked] : wishes) {
        const std::int8_t wish = asked.Exchange(EngineCommands::kNothing);
        if (overflowed && wish != EngineCommands::kNothing) Execute(engine, {kind, wish != 0});
    }
}

} // namespace

void SetPlay(GrooveEngine& engine, bool on) { Do(engine, {Kind::Play, on}, engine.commands.playAsked); }

void SetRecord(GrooveEngine& engine, bool on) { Do(engine, {Kind::Record, on}, engine.commands.recordAsked); }

void SetEdit(GrooveEngine& engine, bool on)
{
    if (!on && EditShown(engine)) engine.selection.EndEditing();
    Do(engine, {Kind::Edit, on}, engine.commands.editAsked);
}

void FollowHost(GrooveEngine& engine, bool running) { Do(engine, {Kind::Host, running}, engine.commands.playAsked); }

bool PlayShown(const GrooveEngine& engine) { return Shown(engine.commands.playAsked, engine.clock.playing); }

bool RecordShown(const GrooveEngine& engine) { return Shown(engine.commands.recordAsked, engine.clock.recordMode); }

bool EditShown(const GrooveEngine& engine) { return Shown(engine.commands.editAsked, engine.clock.editMode); }

void ServeTransport(GrooveEngine& engine) { ServeTransport(engine, engine.commands.transport.Pushed()); }

void ServeTransport(GrooveEngine& engine, std::uint32_t pushed)
{
    auto& orders = engine.commands.transport;
    if (orders.Popped() == pushed && !engine.commands.overflowed) return;
    TransportCommand command;
    while (orders.Popped() != pushed && orders.Pop(command)) Execute(engine, command);
    if (orders.Empty()) Settle(engine);
}

void TogglePlay(GrooveEngine& engine)
{
    Clock& clock = engine.clock;
    const bool start = !clock.playing;
    if (!start) clock.playing = false;
    for (int c = 0; c < kChannels; ++c) engine.RefreshChannel(c, start);
    if (start) {
        clock.Locate();
        engine.score.patternRepeats = 0;
    }
    engine.buttons.ClearStutter();
    engine.score.Restart();
    if (!start) engine.ReleaseSequenced();
    clock.countIn = static_cast<std::int8_t>(start && clock.recordMode ? kStepsPerBar : 0);
    if (!start && clock.recordMode) ToggleRecord(engine);
    if (start) clock.playing = true; // last: a button pressed by another thread records at the new position
}

void ToggleRecord(GrooveEngine& engine)
{
    Clock& clock = engine.clock;
    const bool on = !clock.recordMode;
    clock.recordMode = on;
    if (on) {
        if (clock.editMode) engine.selection.EndEditing();
        clock.editMode = false;
        clock.recordStartedWhilePlaying = static_cast<bool>(clock.playing);
    } else if (clock.playing && !clock.recordStartedWhilePlaying) {
        TogglePlay(engine);
    }
    engine.recorder.Clear();
}

} // namespace korvane
