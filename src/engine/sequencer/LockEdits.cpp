// Changes of lock lists, one after another, whoever asks for them.
#include "engine/sequencer/LockEdits.h"

#include <chrono>
#include <thread>

namespace korvane {

void LockEdits::Set(StepLockList& list, int param, float offset)
{
    Ask({.param = param, .offset = offset, .list = &list});
}

void LockEdits::Clear(StepLockList* lists, int count)
{
    Ask({.kind = Edit::Kind::Clear, .count = count, .list = lists});
}

void LockEdits::Copy(StepLockList* lists, const StepLockList* from, int count)
{
    Ask({.kind = Edit::Kind::Copy, .count = count, .list = lists, .from = from});
}

void LockEdits::Swap(StepLockList& list, StepLockList& other)
{
    Ask({.kind = Edit::Kind::Swap, .list = &list, .other = &other});
}

/// Who is at it looks again before leaving, so that a change which was put in while it looked last is not left behind.
/// It never waits for one that is still being put in: who does that asks afterwards, too.
void LockEdits::Ask(const Edit& edit)
{
    if (!waiting.Push(edit)) return Do(edit);
    if (state.exchange(State::AskedAgain) != State::Nobody) return;
    State mine;
    do {
        state.exchange(State::AtIt); // no mere store: what was put in before it was asked for is seen
        DoWaiting();
        mine = State::AtIt;
    } while (!state.compare_exchange_strong(mine, State::Nobody));
}

void LockEdits::DoWaiting()
{
    for (Edit next; waiting.Pop(next);) {
        Do(next);
        done.fetch_add(1, std::memory_order_release);
    }
}

void LockEdits::Settle() const
{
    using Clock = std::chrono::steady_clock;
    const std::uint32_t asked = waiting.Pushed();
    const auto behind = [&] { return static_cast<std::int32_t>(done.load(std::memory_order_acquire) - asked) < 0; };
    if (!behind()) return;
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(200);
    while (behind() && Clock::now() < end) std::this_thread::sleep_for(std::chrono::microseconds(100));
}

void LockEdits::Do(const Edit& edit)
{
    switch (edit.kind) {
    case Edit::Kind::Set: edit.list->Set(edit.param, edit.offset); break;
    case Edit::Kind::Clear:
        for (int n = 0; n < edit.count; ++n) edit.list[n].Clear();
        break;
    case Edit::Kind::Copy:
        for (int n = 0; n < edit.count; ++n) edit.list[n].CopyFrom(edit.from[n]);
        break;
    case Edit::Kind::Swap: edit.list->SwapWith(*edit.other); break;
    }
}

} // namespace korvane
