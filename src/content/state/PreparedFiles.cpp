// The files of channels, found and decoded beside the running engine.
#include "content/state/PreparedFiles.h"

#include <utility>

namespace korvane {

PreparedFiles::~PreparedFiles()
{
    for (auto& channel : uses)
        for (SoundUse* use : channel) engine.samplePool->returned.Push(use);
}

void PreparedFiles::Prepare(int channel, const ChannelSettings& asked)
{
    settings[channel] = &asked;
    for (int s = 0; s < kSampleSlots; ++s)
        uses[channel][s] = engine.samplePool->Use(SampleSlot::RequestFor(asked.paths[s]), SlotKind(s));
}

void PreparedFiles::Put()
{
    for (int c = 0; c < kChannels; ++c)
        if (settings[c]) Put(c, *settings[c]);
}

void PreparedFiles::Put(int channel, const ChannelSettings& asked)
{
    GrooveChannel& target = engine.Channel(channel);
    for (int s = 0; s < kSampleSlots; ++s) {
        SampleSlot& slot = target.sound.sampleSlots[static_cast<std::size_t>(s)];
        slot.request.Withdraw();
        slot.offer.Put(std::exchange(uses[channel][s], nullptr), engine.samplePool->returned);
        slot.path.Set(asked.paths[s]);
    }
    target.programPath.Set(asked.programPath);
}

} // namespace korvane
