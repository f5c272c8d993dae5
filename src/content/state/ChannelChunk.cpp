// One channel's sound in an image: files, parameters, program path.
#include "content/state/ImageLayout.h"

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

std::int32_t GrooveEngine::SaveChannelChunk(std::uint8_t* buffer, int channel) const
{
    ByteWriter out(buffer);
    WriteChannelChunk(out, *this, channel);
    return out.Size();
}

bool GrooveEngine::LoadChannelChunk(const std::uint8_t* data, std::int32_t length, int channel)
{
    ByteReader in(data, length);
    if (channel < 0 || channel >= kChannels || !in.Tag(tag::kChannel)) return false;
    InitChannel(channel);

    char path[kImagePathBytes];
    for (SampleSlot& slot : Channel(channel).sound.sampleSlots) {
        if (!in.Text(path)) return false;
        slot.request.Post(*path ? path : "!");
        slot.path.Set(path);
    }
    // What is missing reads as 0. Wild values stand, to be saved again.
    for (Shared<float>& value : storedParams[channel]) value = in.Read<float>();
    if (!in.Ok()) return false;
    RefreshChannel(channel);
    if (in.Left() >= kImagePathBytes && in.Text(path)) Channel(channel).programPath.Set(path);
    return true;
}

} // namespace korvane
