// The files of channels, found and decoded beside the running engine.
#pragma once

#include "content/SoundHandover.h"
#include "content/state/ChannelChunk.h"
#include "engine/GrooveEngine.h"

namespace korvane {

/// What a load will offer to slots, all at once. The loader's but for Offer; what has not been offered is returned at
/// the end.
class PreparedFiles {
public:
    explicit PreparedFiles(GrooveEngine& forEngine) : engine(forEngine) {}
    PreparedFiles(const PreparedFiles&) = delete;
    ~PreparedFiles();

    /// Finds and decodes what the settings ask for. The channel's texts say from here on what they ask for, and what
    /// its slots were asked for before is withdrawn.
    void Prepare(int channel, const ChannelSettings& settings);

    /// The slots play it from the next run on. Who has the engine to itself.
    void Offer();

private:
    GrooveEngine& engine;
    SoundUse* uses[kChannels][kSampleSlots] = {};
};

} // namespace korvane
