// Notes that other threads ask the audio thread to start and release.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>

namespace korvane {

/// What a thread other than the audio thread wants done to voices. Voices belong to the audio thread alone.
struct VoiceCommand {
    enum class Kind : std::uint8_t { NoteOn, ReleaseNote, ReleaseLive, ReleaseSequenced };
    Kind kind;
    std::uint8_t channel; // 0..12
    std::int16_t note;    // NoteOn, ReleaseNote
    float velocity;       // NoteOn
};

/// Bounded queue, many writers, one reader; nobody waits. Each cell carries a turn number that says whose move it is
/// (D. Vyukov's bounded queue). A full queue drops the command.
class VoiceCommands {
public:
    static constexpr std::uint32_t kCapacity = 256;

    VoiceCommands();
    /// Any thread. False when the queue is full.
    bool Push(VoiceCommand command);
    /// Audio thread. False when there is nothing to take.
    bool Pop(VoiceCommand& command);

private:
    struct Cell {
        std::atomic<std::uint32_t> turn;
        VoiceCommand command;
    };
    std::array<Cell, kCapacity> cells;
    std::atomic<std::uint32_t> writePosition{0};
    std::uint32_t readPosition = 0;
};

} // namespace korvane
