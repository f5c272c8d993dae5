// A queue on which no thread waits for another.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>

namespace korvane {

/// Bounded queue, many writers, one reader at a time. Each cell carries a turn number that says whose move it is
/// (D. Vyukov's bounded queue). What a writer did before Push, the reader sees after Pop. A writer that is interrupted
/// within Push holds back what was pushed after it until it goes on.
template <class Command, std::uint32_t kCapacity>
class CommandQueue {
    static_assert((kCapacity & (kCapacity - 1)) == 0, "positions wrap");

public:
    CommandQueue()
    {
        for (std::uint32_t n = 0; n < kCapacity; ++n) cells[n].turn = n;
    }

    /// Any thread. False when the queue is full; the command is dropped.
    bool Push(Command command)
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

    /// How many have been pushed so far; wraps. Any thread.
    std::uint32_t Pushed() const { return writePosition.load(std::memory_order_acquire); }

    /// The reader. How many have been taken so far.
    std::uint32_t Popped() const { return readPosition; }
    bool Empty() const { return Popped() == Pushed(); }
    /// The reader. False when there is nothing to take.
    bool Pop(Command& command)
    {
        Cell& cell = cells[readPosition % kCapacity];
        if (cell.turn.load(std::memory_order_acquire) != readPosition + 1) return false;
        command = cell.command;
        cell.turn.store(readPosition + kCapacity, std::memory_order_release);
        ++readPosition;
        return true;
    }

private:
    struct Cell {
        std::atomic<std::uint32_t> turn;
        Command command;
    };
    std::array<Cell, kCapacity> cells;
    std::atomic<std::uint32_t> writePosition{0};
    std::uint32_t readPosition = 0;
};

} // namespace korvane
