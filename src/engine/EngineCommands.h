// What other threads ask the audio thread to do between two blocks.
#pragma once

#include <cstdint>

#include "platform/CommandQueue.h"
#include "platform/Shared.h"

namespace korvane {

/// Voices belong to the audio thread alone.
struct VoiceCommand {
    enum class Kind : std::uint8_t { NoteOn, ReleaseNote, ReleaseLive };
    Kind kind;
    std::uint8_t channel; // 0..12
    std::int16_t note;    // NoteOn, ReleaseNote
    float velocity;       // NoteOn
};

/// So does the transport: a start is many fields that a tick must not meet half written.
struct TransportCommand {
    enum class Kind : std::uint8_t { Play, Record, Host };
    Kind kind;
    bool on; // the state that is wanted; of the host: whether it runs
};

/// Owned by GrooveEngine. Any thread pushes, who has the engine to itself pops: the audio thread at the start of each
/// chunk. A full queue drops what comes; a reset drops notes, never transport.
struct EngineCommands {
    static constexpr std::uint32_t kVoices = 256, kTransport = 64; // far more than hands send in a block

    CommandQueue<VoiceCommand, kVoices> voices;
    CommandQueue<TransportCommand, kTransport> transport;

    // What was asked for and not done yet, for who reads the switch back at once: 0 off, 1 on, -1 nothing. The asker
    // writes, the audio thread clears; one that it clears too early shows the old state for a block.
    Shared<std::int8_t> playAsked = std::int8_t{-1}, recordAsked = std::int8_t{-1};
};

} // namespace korvane
