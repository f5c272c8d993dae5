// The files of channels, found and decoded beside the running engine.
#pragma once

#include "content/SoundHandover.h"
#include "content/state/ChannelChunk.h"
#include "engine/GrooveEngine.h"

namespace korvane {

/// What a load will offer to slots, all at once. The loader's but for Put; what has not been put is returned at the
/// end.
class PreparedFiles {
public:
    explicit PreparedFiles(GrooveEngine& forEngine) : engine(forEngine) {}
    PreparedFiles(const PreparedFiles&) = delete;
    ~PreparedFiles();

    /// Finds and decodes what the settings ask for; the engine stays as it is.
    /// asked  lives until the end
    void Prepare(int channel, const ChannelSettings& asked);

    /// The slots play it from the next run on, and store until then what was asked for. Requests that still wait there
    /// came before it and are withdrawn. Who has the engine to itself.
    void Put();

private:
    void Put(int channel, const ChannelSettings& asked);

    GrooveEngine& engine;
    const ChannelSettings* settings[kChannels] = {}; // null: the channel stays as it is
    SoundUse* uses[kChannels][kSampleSlots] = {};
};

} // namespace korvane
