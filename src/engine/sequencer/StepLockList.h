// The parameter locks of one step.
#pragma once

#include <atomic>
#include <bit>
#include <cstdint>

#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// One lock: while its step plays, channel parameter `param` is its stored value plus `offset`, clamped to 0..1.
/// Indices outside 0..211 come only from images; they are kept and act on nothing.
struct StepLock {
    std::int32_t param;
    float offset;
};

/// Locks of one step of one channel, in the order in which they were set. Any thread reads while another writes: there
/// is a place for one entry per channel parameter, and nothing is ever reallocated; a reader may meet a list in the
/// middle of a removal for one tick. One thread writes at a time: who has the pattern alone. Threads that share one
/// change its lists through GroovePattern.
///
/// The pattern has the places. It gives them from memory that costs nothing before it is written, so only entries below
/// the count are touched.
class StepLockList {
public:
    static constexpr int kCapacity = kChannelSlots;

    /// Adds, replaces or, for an offset below 0.0001 in magnitude, removes the lock of `param`.
    /// param  0..211; anything else is ignored
    void Set(int param, float offset);

    /// Appends an entry as it stands in an image, in order. False when the list is full.
    bool Append(int param, float offset);

    /// The offset of the first lock of `param`, 0 when there is none.
    float Offset(int param) const;

    /// block[param] = clamp(block[param] + offset, 0, 1) for every entry with an index in 0..211, in order.
    void ApplyTo(float* block) const;

    /// Has the system give memory for so many entries, before the audio thread writes them; changes none. Any thread.
    void Touch(int entries) const
    {
        for (int n = 0; n < entries; ++n) {
            std::uint64_t same = Place(n).load(std::memory_order_relaxed);
            Place(n).compare_exchange_strong(same, same); // a write, which fetch_or (0) is not for every compiler
        }
    }

    void Clear() { count = 0; }
    void CopyFrom(const StepLockList& other);
    void SwapWith(StepLockList& other);
    int Count() const { return count; }
    /// n  0..Count() - 1
    StepLock At(int n) const { return std::bit_cast<StepLock>(Place(n).load(std::memory_order_relaxed)); }

private:
    friend class GroovePattern; // gives the places

    /// One instruction reads or writes an entry, so that it is never torn.
    std::atomic_ref<std::uint64_t> Place(int n) const { return std::atomic_ref(first[n * kStepsPerBar]); }
    void Put(int n, StepLock lock) { Place(n).store(std::bit_cast<std::uint64_t>(lock), std::memory_order_relaxed); }

    Shared<std::int32_t> count;
    std::uint64_t* first = nullptr; // place of entry 0; the steps of a bar take turns
};

} // namespace korvane
