// What a channel's sample or oscillator slot holds and waits for.
#pragma once

#include <atomic>

#include "content/LoadRequest.h"
#include "content/SamplePool.h"
#include "content/SoundHandover.h"
#include "platform/SharedText.h"

namespace korvane {

/// One of a channel's seven slots. What happens to a file in it stands in SoundHandover.h.
struct SampleSlot {
    SampleSlot() = default;
    SampleSlot(const SampleSlot&) = delete;
    ~SampleSlot() { delete use; }

    /// A slot without a file is asked to be empty.
    static const char* RequestFor(const char* path) { return *path ? path : "!"; }
    /// Asks for a file, or for none, and stores the path until that is done.
    void Ask(const char* file)
    {
        request.Post(RequestFor(file));
        path.Set(file);
    }

    /// Plays what has been offered from here on; whether that is another sound. Who has the engine to itself, at the
    /// start of a run.
    bool TakeOffer(SoundReturns& returned);

    /// What plays, null when that is nothing. Who has the engine to itself.
    PoolEntry* Playing() const { return entry.load(std::memory_order_relaxed); }

    LoadRequest request;  // any thread posts, the loader takes
    SoundOffer offer;     // the loader puts, who has the engine to itself takes
    SharedText<256> name; // as the editor shows it; who takes an offer writes
    SharedText<512> path; // as a groove stores it: until its file is taken, the path that a load has asked for
    std::atomic<PoolEntry*> entry{nullptr}; // what plays; who has the engine to itself, others by SamplePool::SoundOf
    SoundUse* use = nullptr;                // on whose account; who has the engine to itself
};

/// Of a slot by its number: oscillators come first.
constexpr int SlotKind(int slot) { return slot < kFirstLayerSlot ? kind::Waveform : kind::Sample; }

/// Carries out the slot's request, if there is one. A file that is not found leaves the slot empty. The loader; with
/// nobody else about, anybody.
/// kind  of the slot, see SlotKind
void ServeRequest(SamplePool& pool, SampleSlot& slot, int kind);

} // namespace korvane
