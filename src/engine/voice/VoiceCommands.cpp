// Notes that other threads ask the audio thread to start and release.
#include "engine/voice/VoiceCommands.h"

namespace korvane {

VoiceCommands::VoiceCommands()
{
    for (std::uint32_t n = 0; n < kCapacity; ++n) cells[n].turn = n;
}

bool VoiceCommands::Push(VoiceCommand command)
{
    std::uint32_t position = writePosition.load(std::memory_order_relaxed);
    for (;;) {
        Cell& cell = cells[position % kCapacity];
        const std::uint32_t turn = cell.turn.load(std::memory_order_acquire);
        if (turn == position) {
            if (!writePosition.compare_exchange_weak(position, position + 1, std::memory_order_relaxed)) continue;
            cell.command = command;
            cell.turn.store(position + 1, std::memory_order_release);
            return true;
        }
        if (static_cast<std::int32_t>(turn - position) < 0) return false;
        position = writePosition.load(std::memory_order_relaxed);
    }
}

bool VoiceCommands::Pop(VoiceCommand& command)
{
    Cell& cell = cells[readPosition % kCapacity];
    if (cell.turn.load(std::memory_order_acquire) != readPosition + 1) return false;
    command = cell.command;
    cell.turn.store(readPosition + kCapacity, std::memory_order_release);
    ++readPosition;
    return true;
}

} // namespace korvane
