// One channel's sound in an image: files, parameters, program path.
#include "content/state/ChannelChunk.h"

#include "content/ByteReader.h"
#include "content/state/ImageTags.h"

namespace korvane {

void WriteChannelChunk(ByteWriter& out, const GrooveEngine& engine, int channel)
{
    const GrooveChannel& source = engine.Channel(channel);
    char path[kImagePathBytes];
    out.Tag(tag::kChannel);
    for (const SampleSlot& slot : source.sound.sampleSlots) {
        slot.path.Get(path);
        out.Text(path);
    }
    for (const Shared<float>& value : engine.storedParams[channel]) out.Write(static_cast<float>(value));
    source.programPath.Get(path);
    out.Text(path);
}

std::int32_t SaveChannelChunk(const GrooveEngine& engine, std::uint8_t* buffer, int channel)
{
    ByteWriter out(buffer);
    WriteChannelChunk(out, engine, channel);
    return out.Size();
}

bool LoadChannelChunk(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length, int channel)
{
    ByteReader in(data, length);
    if (channel < 0 || channel >= kChannels || !in.Tag(tag::kChannel)) return false;
    engine.InitChannel(channel);

    char path[kImagePathBytes];
    for (SampleSlot& slot : engine.Channel(channel).sound.sampleSlots) {
        if (!in.Text(path)) return false;
        slot.request.Post(*path ? path : "!");
        slot.path.Set(path);
    }
    // What is missing reads as 0. Wild values stand, to be saved again.
    for (Shared<float>& value : engine.storedParams[channel]) value = in.Read<float>();
    if (!in.Ok()) return false;
    engine.RefreshChannel(channel);
    if (in.Left() >= kImagePathBytes && in.Text(path)) engine.Channel(channel).programPath.Set(path);
    return true;
}

} // namespace korvane
