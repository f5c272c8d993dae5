// What a channel's sample or oscillator slot holds and waits for.
#include "content/SampleSlot.h"

#include <utility>

namespace korvane {

bool SampleSlot::TakeOffer(SoundReturns& returned)
{
    SoundUse* const next = offer.Take();
    if (!next) return false;
    const PoolEntry* const before = Playing();
    entry.store(next->entry, std::memory_order_release);
    returned.Push(std::exchange(use, next)); // not before nobody finds its entry here any more
    name.Set(next->entry ? next->entry->name : "");
    path.Set(next->entry ? next->entry->path : "");
    return before != next->entry;
}

void ServeRequest(SamplePool& pool, SampleSlot& slot, int kind)
{
    char path[LoadRequest::kPathBytes];
    if (slot.request.Take(path)) slot.offer.Put(pool.Use(path, kind), pool.returned);
}

} // namespace korvane
