// What a channel's sample or oscillator slot holds and waits for.
#include "content/SampleSlot.h"

#include <cstring>

namespace korvane {

void ServeRequest(SamplePool& pool, SampleSlot& slot, int kind)
{
    if (!slot.request.Pending()) return;
    char path[LoadRequest::kPathBytes];
    if (!slot.request.Take(path)) return;
    pool.Release(slot.entry);
    slot.entry = std::strcmp(path, "!") == 0 ? nullptr : pool.Load(path, kind);
    slot.path.Set(slot.entry ? slot.entry->path : "");
    slot.name.Set(slot.entry ? slot.entry->name : "");
}

} // namespace korvane
