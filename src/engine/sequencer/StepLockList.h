// The parameter locks of one step.
#pragma once

#include <cstdint>

#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// One lock: while its step plays, channel parameter `param` is its stored value plus `offset`, clamped to 0..1.
/// Indices outside 0..211 come only from images; they are kept and act on nothing. Aligned so that every compiler
/// reads and writes it with one instruction.
struct alignas(8) StepLock {
    std::int32_t param;
    float offset;
};

/// Locks of one step of one channel, in the order in which they were set. Host, editor and MIDI write while the audio
/// thread walks: entries live in place, one per channel parameter, and nothing is ever reallocated. Of two writers at
/// the same instant one may lose its change; a reader may meet a list in the middle of a removal for one tick.
class StepLockList {
public:
    static constexpr int kCapacity = kChannelSlots;

    /// Adds, replaces or, for an offset below 0.0001 in magnitude, removes the lock of `param`. Any thread.
    /// param  0..211; anything else is ignored
    void Set(int param, float offset);

    /// Appends an entry as it stands in an image, in order. False when the list is full.
    bool Append(int param, float offset);

    /// The offset of the first lock of `param`, 0 when there is none.
    float Offset(int param) const;

    /// block[param] = clamp(block[param] + offset, 0, 1) for every entry with an index in 0..211, in order.
    void ApplyTo(float* block) const;

    void Clear() { count = 0; }
    void CopyFrom(const StepLockList& other);
    int Count() const { return count; }
    StepLock At(int n) const { return entries[n]; }

private:
    Shared<std::int32_t> count;
    Shared<StepLock> entries[kCapacity];
};

} // namespace korvane
