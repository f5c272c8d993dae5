// What other threads ask the audio thread to do between two blocks.
#pragma once

#include <cstdint>

#include "platform/CommandQueue.h"
#include "platform/Shared.h"

namespace korvane {

/// A note to start or release. Voices belong to the audio thread alone.
struct VoiceCommand {
    enum class Kind : std::uint8_t { NoteOn, ReleaseNote, ReleaseLive };
    Kind kind;
    std::uint8_t channel; // 0..12
    std::int16_t note;    // NoteOn, ReleaseNote
    float velocity;       // NoteOn
};

/// A state that the transport shall have. The transport belongs to the audio thread: a start is many fields that a tick
/// must not meet half written.
struct TransportCommand {
    enum class Kind : std::uint8_t { Play, Record, Edit, Host };
    Kind kind;
    bool on; // of the host: whether it runs
};

/// Owned by GrooveEngine. Any thread pushes, who has the engine to itself pops: the audio thread at the start of each
/// chunk. A full queue drops notes; of transport orders it cannot hold, the last wishes are kept.
struct EngineCommands {
    static constexpr std::uint32_t kVoices = 256, kTransport = 64; // far more than hands send in a block
    static constexpr std::int8_t kNothing = -1;

    CommandQueue<VoiceCommand, kVoices> voices;
    CommandQueue<TransportCommand, kTransport> transport;
    Shared<bool> overflowed; // a transport order found no room

    // What was asked for last and not done yet, for who reads the switch back at once: 0 off, 1 on. Askers write, the
    // audio thread clears; one that it clears too early shows the old state for a block.
    Shared<std::int8_t> playAsked = kNothing, recordAsked = kNothing, editAsked = kNothing;
};

} // namespace korvane
