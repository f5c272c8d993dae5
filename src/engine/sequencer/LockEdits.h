// Changes of lock lists, one after another, whoever asks for them.
#pragma once

#include <atomic>
#include <cstdint>

#include "engine/sequencer/StepLockList.h"
#include "platform/CommandQueue.h"

namespace korvane {

/// Changes of one pattern's lists, none of which is lost. A change is done when the call returns, but for two cases:
/// another thread is at it and is about to do it; or another was interrupted within its call, and does what came after
/// it when it goes on. Once all calls have returned, all is done. Who may wait, and needs a change done, calls Settle:
/// after each of many, and before touching what a change that waits still reads or writes.
///
/// No thread waits for another in the changes themselves: each puts its own into a queue, and the one that finds nobody
/// at it does what stands there, for the others too. When so many wait that the queue is full, since who is at it was
/// interrupted for long, a change is made at once: it may then undo one of the same instant, and older ones that wait
/// come after it.
class LockEdits {
public:
    // Any thread.

    /// As StepLockList::Set.
    void Set(StepLockList& list, int param, float offset);
    /// lists, from  the first of `count` that lie side by side
    void Clear(StepLockList* lists, int count);
    /// Copies what stands in the others when it is done.
    void Copy(StepLockList* lists, const StepLockList* from, int count);
    void Swap(StepLockList& list, StepLockList& other);

    /// Waits until all that has been asked for so far is done, a fifth of a second at most; the next change may be
    /// another thread's to do again. Not on the audio thread.
    void Settle() const;

private:
    struct Edit {
        enum class Kind : std::uint8_t { Set, Clear, Copy, Swap };
        Kind kind = Kind::Set;
        int count = 1;
        int param = 0;
        float offset = 0.0f;
        StepLockList* list = nullptr;
        StepLockList* other = nullptr;
        const StepLockList* from = nullptr;
    };
    enum class State { Nobody, AtIt, AskedAgain };

    void Ask(const Edit& edit);
    void DoWaiting();
    static void Do(const Edit& edit);

    CommandQueue<Edit, 64> waiting; // whoever is at it reads
    std::atomic<State> state{State::Nobody};
    std::atomic<std::uint32_t> done{0}; // of those in the queue so far; whoever is at it counts
};

} // namespace korvane
