// The transport's modes, and what an order makes of them.
#include "engine/sequencer/Modes.h"

namespace korvane {

Modes Modes::TogglePlay() const
{
    Modes next = *this;
    next.playing = !playing;
    return !next.playing && recordMode ? next.ToggleRecord() : next;
}

Modes Modes::ToggleRecord() const
{
    Modes next = *this;
    next.recordMode = !recordMode;
    if (next.recordMode) {
        next.editMode = false;
        next.recordStartedWhilePlaying = playing;
        return next;
    }
    return playing && !recordStartedWhilePlaying ? next.TogglePlay() : next;
}

Modes Modes::ToggleEdit() const
{
    Modes next = *this;
    next.editMode = !editMode;
    if (next.editMode) next.recordMode = false;
    return next;
}

Modes Modes::FollowHost(bool running) const
{
    Modes next = *this;
    if (next.playing && next.recordMode) next = next.ToggleRecord();
    if (next.playing) next = next.TogglePlay(); // leaving a recording from standstill has stopped it already
    return running ? next.TogglePlay() : next;
}

Modes Modes::After(TransportCommand order) const
{
    switch (order.kind) {
    case TransportCommand::Kind::Play: return playing == order.on ? *this : TogglePlay();
    case TransportCommand::Kind::Record: return recordMode == order.on ? *this : ToggleRecord();
    case TransportCommand::Kind::Edit: return editMode == order.on ? *this : ToggleEdit();
    case TransportCommand::Kind::Host: return FollowHost(order.on);
    }
    return *this;
}

std::uint8_t Modes::Packed() const
{
    return static_cast<std::uint8_t>(playing | recordMode << 1 | editMode << 2 | recordStartedWhilePlaying << 3);
}

Modes Modes::Unpacked(std::uint8_t bits)
{
    return {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
}

} // namespace korvane
