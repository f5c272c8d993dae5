// The transport's modes, and what an order makes of them.
#pragma once

#include <cstdint>

namespace korvane {

/// What the transport shall do.
struct TransportCommand {
    enum class Kind : std::uint8_t { Play, Record, Edit, Host };
    Kind kind;
    bool on; // of the host: whether it runs
};

/// Playing, recording and editing, which depend on each other: one rule for the modes that are and those that waiting
/// orders will lead to.
struct Modes {
    bool playing = false, recordMode = false, editMode = false;
    bool recordStartedWhilePlaying = false;

    /// A stop ends recording.
    Modes TogglePlay() const;
    /// Recording ends edit mode. A recording that began from standstill stops the sequencer when it ends.
    Modes ToggleRecord() const;
    /// Edit mode ends recording, which stops nothing.
    Modes ToggleEdit() const;
    /// A host that runs starts the sequencer anew and is no recording, one that stands leaves it stopped.
    Modes FollowHost(bool running) const;
    Modes After(TransportCommand order) const;

    /// In one byte, and back.
    std::uint8_t Packed() const;
    static Modes Unpacked(std::uint8_t bits);
};

} // namespace korvane
