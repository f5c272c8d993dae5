// What a channel's sample or oscillator slot holds and waits for.
#pragma once

#include "content/LoadRequest.h"
#include "content/SamplePool.h"
#include "platform/SharedText.h"

namespace korvane {

/// One of a channel's seven slots.
struct SampleSlot {
    LoadRequest request;        // any thread posts
    SharedText<256> name;       // as the editor shows it; the audio thread writes
    SharedText<512> path;       // as a groove stores it; the audio thread writes, a state load under the handshake
    PoolEntry* entry = nullptr; // audio thread only
};

/// Carries out the slot's request, if there is one: lets go of the old file, then loads the new one. A file that is not
/// found leaves the slot empty. Audio thread, at the start of a block.
/// kind  of the slot: kind::Sample or kind::Waveform
void ServeRequest(SamplePool& pool, SampleSlot& slot, int kind);

} // namespace korvane
