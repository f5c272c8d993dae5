// One pattern: eight bars of steps for thirteen channels.
#pragma once

#include <cstdint>
#include <memory>

#include "engine/sequencer/LockEdits.h"
#include "engine/sequencer/StepLockList.h"
#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// The only bit that a sampler's step has: its own number in the bar.
constexpr std::uint32_t SamplerBit(int step) { return 1u << step % kStepsPerBar; }

/// Steps and their parameter locks, channel by channel, step = bar × 16 + step in the bar. Eight per engine and one
/// clipboard. Host, editor and MIDI write steps and locks and the audio thread, which records, too; it writes the
/// length at every tick. All read. Of changes at the same instant none is lost, be they of notes or of locks
/// (LockEdits).
///
/// What an empty pattern has, words and counts, is 36 KB. The entries of the locks live in pages of the system that
/// cost nothing until a lock is written there: 2.8 MB when every step locks every parameter, 4 or 8 KB for a bar of a
/// channel whose steps lock up to 32. A page that was written stays: to give it back might take a lock from under a
/// writer.
class GroovePattern {
public:
    /// Throws std::bad_alloc.
    GroovePattern();
    /// Length 16, every step word 0, every lock list empty.
    void Clear();
    void CopyFrom(const GroovePattern& other);

    void ClearStep(int channel, int step);
    void ClearLocks(int channel, int step);
    void ClearChannel(int channel);
    /// Adds notes to a step, takes them out or turns them over, in one piece; the word after it.
    std::uint32_t SetNotes(int channel, int step, std::uint32_t notes);
    std::uint32_t ClearNotes(int channel, int step, std::uint32_t notes);
    std::uint32_t FlipNotes(int channel, int step, std::uint32_t notes);
    /// As StepLockList::Set.
    void SetLock(int channel, int step, int param, float offset);
    /// Copies steps of a channel, words and locks, from another pattern.
    void CopySteps(int channel, int step, const GroovePattern& from, int fromStep, int count);
    /// Copies one step of any channel.
    void CopyStep(int channel, int step, const GroovePattern& from, int fromChannel, int fromStep);
    /// Exchanges two steps of a channel, words and locks; those of a sampler that hold a note have their own bit then.
    /// A note put into one of them meanwhile stays in one.
    void SwapSteps(int channel, int a, int b);
    /// Waits until all changes of locks that have been asked for are done, as LockEdits::Settle.
    void SettleLocks() const { lockEdits.Settle(); }
    /// Sets `length` to the last bar with a note on any channel, rounded up to 1, 2, 4 or 8 bars, in steps; leaves it
    /// while steps change places.
    void UpdateLength();

    Shared<std::uint32_t> steps[kChannels][kSteps]; // bit k (0..23) plays note 48 + k
    StepLockList locks[kChannels][kSteps];          // to read; who has the pattern alone may write
    Shared<std::int32_t> length = kStepsPerBar;     // 16, 32, 64 or 128 steps

    /// While one exists, steps change places and the last bar may be without its note for a moment: ticks keep the
    /// length that the pattern had.
    class Moving {
    public:
        explicit Moving(GroovePattern& moved) : pattern(moved) { Count(1); }
        Moving(const Moving&) = delete;
        ~Moving() { Count(kEnded - 1); }

    private:
        void Count(std::uint32_t more)
        {
            pattern.moves.Update([more](std::uint32_t all) { return all + more; });
        }

        GroovePattern& pattern;
    };

private:
    static constexpr std::uint32_t kEnded = 1u << 16;

    void Copy(int channel, int step, const GroovePattern& from, int fromChannel, int fromStep, int count);

    struct Unmap {
        void operator()(std::uint64_t* pages) const;
    };

    const std::unique_ptr<std::uint64_t[], Unmap> entries; // bar by bar of each channel
    Shared<std::uint32_t> moves; // under way; above kEnded those that have ended, as a count that wraps
    LockEdits lockEdits;
};

} // namespace korvane
