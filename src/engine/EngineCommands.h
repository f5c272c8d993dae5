// What other threads ask the audio thread to do between two chunks.
#pragma once

#include <cstdint>

#include "engine/sequencer/Modes.h"
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

/// Owned by GrooveEngine. Any thread pushes, who has the engine to itself pops: the audio thread at the start of each
/// chunk. The transport is among it because a start is many fields that a tick must not meet half written. A full queue
/// drops notes; of transport orders that it cannot hold, the modes that they lead to are kept.
struct EngineCommands {
    static constexpr std::uint32_t kVoices = 256, kTransport = 64; // far more than hands send in a block

    CommandQueue<VoiceCommand, kVoices> voices;
    CommandQueue<TransportCommand, kTransport> transport;

    // The modes that all orders so far lead to, for who reads a switch back at once: Modes in the lowest byte, then
    // whether orders wait, then how many there have been. Who gives an order writes, and who has the engine to itself
    // once all are done.
    Shared<std::uint32_t> expected;
    Shared<std::uint32_t> unqueued; // orders that found no room; who gives them counts
    std::uint32_t settled = 0;      // of these, made good; who has the engine to itself

    // While a groove loads: how often the queue had been pushed to when that began, and what the orders given since
    // lead to from standstill: Modes, with kLoading. The loader begins, who has the engine to itself goes on.
    static constexpr std::uint32_t kLoading = 1u << 8;
    Shared<std::uint32_t> loadBegan, sinceLoad;
};

} // namespace korvane
