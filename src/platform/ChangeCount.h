// Whether values that other threads write have changed.
#pragma once

#include <atomic>
#include <cstdint>

namespace korvane {

/// Counts changes, so that a reader finds out by one number whether to look at many.
///
/// Who changes a value stores it first and counts afterwards; who reads asks for the number first and looks at the
/// values afterwards. A change that is read before it is counted makes the reader look once more than necessary. A
/// change that the reader has missed is not counted yet: once it is, the number differs, and the reader finds that
/// value or one that has replaced it, which counts in turn. So nothing stays unseen, however writers meet; that a
/// writer may leave out what already stands there changes nothing, since whoever has stored it counts it.
class ChangeCount {
public:
    /// Any thread.
    void Add() { Note(true); }
    /// Any thread. Counts a change, if there was one. Of two threads that both call it, one has done before what the
    /// other sees after it.
    void Note(bool changed) { count.fetch_add(changed ? 1u : 0u, std::memory_order_acq_rel); }
    /// The reader. Differs from its last answer when something has changed since.
    std::uint32_t Now() const { return count.load(std::memory_order_acquire); }

private:
    std::atomic<std::uint32_t> count{0};
};

} // namespace korvane
