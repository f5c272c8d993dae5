// How a decoded file gets to the audio thread, and back.
#pragma once

#include <atomic>
#include <utility>

#include "platform/ChangeCount.h"

namespace korvane {

struct PoolEntry;

// The states of a file on its way through a slot:
//
//   requested  Any thread has posted a path into the slot's LoadRequest. A later post takes its place.
//   loading    The loader has taken the request. It looks for the file and has the pool decode it, or finds that the
//              pool has it already: same path, size and time of change.
//   offered    The loader has made a SoundUse and put it into the slot's SoundOffer, one atomic pointer. A newer offer
//              takes the place of one that nobody has taken, which is returned.
//   playing    Who has the engine to itself has taken the offer, at the start of a run; voices read it from here on.
//              What played before is returned.
//   returned   In the pool's SoundReturns. The loader takes the whole list in its next round, counts a user less for
//              each and frees what nobody uses.
//
// Another thread that looks at a sound holds SamplePool::readers while it finds the entry in its slot and copies the
// pointer to the sound, which lives as long as that copy. A slot names its new entry before it returns the old use, and
// the loader, which has taken that return, passes through the same mutex before it frees: who looked earlier has its
// copy by then, who looks later finds the new entry. The audio thread takes no part.
//
// Requests of one slot are served in order, as there is one loader. Neither it nor the audio thread waits here. Who
// asks for files and is not the audio thread waits for the loader alone: a file that is offered counts as loaded, since
// the next run takes it.
//
// A state, a part or a program:
//
//   asked      Somebody has called the instrument and waits (KVInstrument::Load). MIDI on the audio thread leaves an
//              order in a queue instead, and waits only where the host says that its thread may (KVInstrument::Ask).
//   prepared   The loader has read the image and made all uses (PreparedFiles, GrooveState); the engine is as before.
//   made       Between two blocks the engine, its texts and the offers have changed in one piece: the audio thread did
//              that at the start of a block, or who waited for the load, or without blocks the loader
//              (CSynthesizer::MakeChange).
//   done       Who asked goes on, and reports to the host; for MIDI the teller does (KVInstrument::TellHost).

/// One slot's use of a pool entry. The loader makes and deletes it.
struct SoundUse {
    PoolEntry* entry = nullptr; // null: the slot becomes empty
    SoundUse* next = nullptr;   // on the return list
};

/// Uses that are over, on a stack (R. K. Treiber's). Everybody pushes, the loader takes all at once, so that no node
/// comes back between the two looks of a pop.
class SoundReturns {
public:
    SoundReturns() = default;
    SoundReturns(const SoundReturns&) = delete;
    ~SoundReturns()
    {
        for (SoundUse* use = TakeAll(); use;) delete std::exchange(use, use->next);
    }

    /// Null is nobody's.
    void Push(SoundUse* use)
    {
        if (!use) return;
        use->next = top.load(std::memory_order_relaxed);
        while (!top.compare_exchange_weak(use->next, use, std::memory_order_release, std::memory_order_relaxed)) {}
    }
    SoundUse* TakeAll() { return top.exchange(nullptr, std::memory_order_acquire); }

    ChangeCount offers; // of all slots that return here: who takes them looks when it has moved

private:
    std::atomic<SoundUse*> top{nullptr};
};

/// What a slot shall play next.
class SoundOffer {
public:
    SoundOffer() = default;
    SoundOffer(const SoundOffer&) = delete;
    ~SoundOffer() { delete offered.load(); }

    /// The loader, or on its behalf who has the engine to itself.
    void Put(SoundUse* use, SoundReturns& returned)
    {
        returned.Push(offered.exchange(use, std::memory_order_acq_rel));
        returned.offers.Add();
    }
    /// Null when there is nothing new. Who has the engine to itself.
    SoundUse* Take()
    {
        if (!offered.load(std::memory_order_relaxed)) return nullptr;
        return offered.exchange(nullptr, std::memory_order_acquire);
    }

private:
    std::atomic<SoundUse*> offered{nullptr};
};

} // namespace korvane
