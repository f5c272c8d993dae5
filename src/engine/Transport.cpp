// The transport: play, record, edit, and a host that starts and stops.
#include "engine/Transport.h"

namespace korvane {

namespace {

using Kind = TransportCommand::Kind;

// EngineCommands::expected
constexpr std::uint32_t kWaiting = 1u << 8, kOne = 1u << 16;
Modes ModesOf(std::uint32_t word) { return Modes::Unpacked(static_cast<std::uint8_t>(word & 0xFF)); }

/// What starts and stops have in common.
void Turn(GrooveEngine& engine, bool start)
{
    for (int c = 0; c < kChannels; ++c) engine.RefreshChannel(c, start);
    if (start) {
        engine.clock.Locate();
        engine.score.patternRepeats = 0;
    }
    engine.buttons.ClearStutter();
    engine.score.Restart();
}

void Start(GrooveEngine& engine)
{
    Clock& clock = engine.clock;
    Turn(engine, true);
    clock.countIn = static_cast<std::int8_t>(clock.recordMode ? kStepsPerBar : 0);
    clock.playing = true; // last: a button pressed by another thread records at the new position
}

void Stop(GrooveEngine& engine)
{
    engine.clock.playing = false;
    Turn(engine, false);
    engine.ReleaseSequenced();
    engine.clock.countIn = std::int8_t{0};
}

void Execute(GrooveEngine& engine, TransportCommand order)
{
    Clock& clock = engine.clock;
    const Modes before = clock.CurrentModes(), after = before.After(order);
    const bool anew = order.kind == Kind::Host && before.playing && after.playing;
    if (before.playing && (!after.playing || anew)) Stop(engine);
    if (before.editMode && !after.editMode) engine.selection.EndEditing();
    if (before.recordMode != after.recordMode && order.kind != Kind::Edit) engine.recorder.Clear();
    clock.recordMode = after.recordMode;
    clock.editMode = after.editMode;
    clock.recordStartedWhilePlaying = after.recordStartedWhilePlaying;
    if (after.playing && (!before.playing || anew)) Start(engine);
}

/// An order that was given after a groove began to load counts on that, too.
void Note(EngineCommands& commands, TransportCommand order)
{
    if (!(commands.sinceLoad & EngineCommands::kLoading)) return;
    commands.sinceLoad.Update(
        [order](std::uint32_t word) { return EngineCommands::kLoading | ModesOf(word).After(order).Packed(); });
}

void Do(GrooveEngine& engine, TransportCommand order)
{
    if (engine.MayTouchVoices()) {
        ServeTransport(engine); // what came before comes first
        Note(engine.commands, order);
        Execute(engine, order);
        return;
    }
    EngineCommands& commands = engine.commands;
    const bool editing = ShownModes(engine).editMode;
    commands.expected.Update([&](std::uint32_t word) {
        const Modes from = word & kWaiting ? ModesOf(word) : engine.clock.CurrentModes();
        return ((word & ~(kOne - 1)) + kOne) | kWaiting | from.After(order).Packed();
    });
    if (editing && !ShownModes(engine).editMode) engine.selection.EndEditing();
    if (!commands.transport.Push(order)) commands.unqueued.Update([](std::uint32_t count) { return count + 1; });
}

/// Brings the transport into the modes that orders without room would have led to.
void Reach(GrooveEngine& engine, const Modes& modes)
{
    const Modes now = engine.clock.CurrentModes();
    if (now.playing == modes.playing && now.recordMode == modes.recordMode && now.editMode == modes.editMode) return;
    const TransportCommand play{Kind::Play, modes.playing}, record{Kind::Record, modes.recordMode};
    const bool recordFirst = modes.recordMode && !modes.recordStartedWhilePlaying;
    if (recordFirst) Execute(engine, {Kind::Play, false});
    Execute(engine, recordFirst ? record : play);
    Execute(engine, recordFirst ? play : record);
    Execute(engine, {Kind::Edit, modes.editMode});
}

/// All orders are done: the modes are those that are. Not while somebody has counted an order that is not queued yet.
void Settle(GrooveEngine& engine)
{
    EngineCommands& commands = engine.commands;
    const std::uint32_t word = commands.expected, unqueued = commands.unqueued;
    const std::uint32_t done = commands.transport.Popped() + unqueued;
    if (!(word & kWaiting) || word / kOne != done % (UINT32_MAX / kOne + 1)) return;
    if (unqueued != commands.settled) Reach(engine, ModesOf(word));
    commands.settled = unqueued;
    commands.expected.Replace(word, word & ~kWaiting);
}

/// Does what had been asked for when the queue had been pushed to so many times.
void Serve(GrooveEngine& engine, std::uint32_t pushed)
{
    if (!OrdersWait(engine)) return;
    EngineCommands& commands = engine.commands;
    auto& orders = commands.transport;
    const auto left = [&orders](std::uint32_t until) { return static_cast<std::int32_t>(until - orders.Popped()); };
    for (TransportCommand order; left(pushed) > 0;) {
        const bool isLate = (commands.sinceLoad & EngineCommands::kLoading) && left(commands.loadBegan) <= 0;
        if (!orders.Pop(order)) break;
        if (isLate) Note(commands, order);
        Execute(engine, order);
    }
    if (orders.Empty()) Settle(engine);
}

} // namespace

void SetPlay(GrooveEngine& engine, bool on) { Do(engine, {Kind::Play, on}); }
void SetRecord(GrooveEngine& engine, bool on) { Do(engine, {Kind::Record, on}); }
void SetEdit(GrooveEngine& engine, bool on) { Do(engine, {Kind::Edit, on}); }
void FollowHost(GrooveEngine& engine, bool running) { Do(engine, {Kind::Host, running}); }

Modes ShownModes(const GrooveEngine& engine)
{
    const std::uint32_t word = engine.commands.expected;
    return word & kWaiting ? ModesOf(word) : engine.clock.CurrentModes();
}

bool OrdersWait(const GrooveEngine& engine)
{
    return (engine.commands.expected & kWaiting) || !engine.commands.transport.Empty();
}

void ServeTransport(GrooveEngine& engine) { Serve(engine, engine.commands.transport.Pushed()); }
void ServeBeforeLoad(GrooveEngine& engine) { Serve(engine, engine.commands.loadBegan); }

void BeginLoad(GrooveEngine& engine)
{
    EngineCommands& commands = engine.commands;
    commands.loadBegan = commands.transport.Pushed();
    commands.sinceLoad = EngineCommands::kLoading;
}

void ForgetLoad(GrooveEngine& engine) { engine.commands.sinceLoad = 0u; }
void EndLoad(GrooveEngine& engine) { Reach(engine, ModesOf(engine.commands.sinceLoad.Exchange(0))); }

} // namespace korvane
