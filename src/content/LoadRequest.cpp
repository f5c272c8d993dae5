// A mailbox for one path.
#include "content/LoadRequest.h"

#include <cstring>

namespace korvane {

void LoadRequest::Post(const char* path)
{
    std::uint64_t packed[kWords] = {};
    if (path) std::memcpy(packed, path, strnlen(path, kPathBytes - 1));
    std::uint32_t seen = state.load();
    do {
        if ((seen & kPhase) == kWriting) return; // another post is under way; it counts as the later one
    } while (!state.compare_exchange_weak(seen, ((seen & ~kPhase) + kTurn) | kWriting));
    for (int n = 0; n < kWords; ++n) words[n].store(packed[n], std::memory_order_relaxed);
    state.store(((seen & ~kPhase) + kTurn) | (packed[0] == 0 ? kEmpty : kFull));
}

void LoadRequest::Withdraw()
{
    std::uint32_t seen = state.load();
    while ((seen & kPhase) == kFull && !state.compare_exchange_weak(seen, (seen & ~kPhase) | kEmpty)) {}
}

bool LoadRequest::Take(char (&path)[kPathBytes])
{
    std::uint32_t seen = state.load();
    if ((seen & kPhase) != kFull) return false;
    std::uint64_t packed[kWords];
    for (int n = 0; n < kWords; ++n) packed[n] = words[n].load(std::memory_order_acquire);
    if (!state.compare_exchange_strong(seen, (seen & ~kPhase) | kEmpty)) return false; // replaced meanwhile
    std::memcpy(path, packed, sizeof packed);
    return true;
}

} // namespace korvane
