// The files of channels, found and decoded beside the running engine.
#include "content/state/PreparedFiles.h"

#include <utility>

namespace korvane {

PreparedFiles::~PreparedFiles()
{
    for (auto& channel : uses)
        for (SoundUse* use : channel) engine.samplePool->returned.Push(use);
}

void PreparedFiles::Prepare(int channel, const ChannelSettings& settings)
{
    GrooveChannel& target = engine.Channel(channel);
    for (int s = 0; s < kSampleSlots; ++s) {
        SampleSlot& slot = target.sound.sampleSlots[static_cast<std::size_t>(s)];
        slot.request.Post("");
        uses[channel][s] = engine.samplePool->Use(SampleSlot::RequestFor(settings.paths[s]), SlotKind(s));
        slot.path.Set(settings.paths[s]);
    }
    target.programPath.Set(settings.programPath);
}

void PreparedFiles::Offer()
{
    for (int c = 0; c < kChannels; ++c)
        for (int s = 0; s < kSampleSlots; ++s)
            if (SoundUse* const use = std::exchange(uses[c][s], nullptr))
                engine.Channel(c).sound.sampleSlots[static_cast<std::size_t>(s)].offer.Put(use,
                                                                                           engine.samplePool->returned);
}

} // namespace korvane
