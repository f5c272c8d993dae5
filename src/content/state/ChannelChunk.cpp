// One channel's sound in an image: files, parameters, program path.
#include "content/state/ChannelChunk.h"

#include <algorithm>
#include <iterator>

#include "content/PathText.h"
#include "content/state/ImageTags.h"
#include "framework/ChannelSlots.h"

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

ChannelSettings::ChannelSettings(const GrooveEngine& engine, int channel)
{
    for (int s = 0; s < kSampleSlots; ++s) SetText(paths[s], engine.DefaultFile(s));
    for (int n = 0; n < kChannelSlots; ++n) values[n] = ChannelBlockDefault(n, channel < kSamplerChannels);
}

bool ReadChannelChunk(ByteReader in, ChannelSettings& settings)
{
    if (!in.Tag(tag::kChannel)) return false;
    settings.begun = true;
    for (auto& path : settings.paths)
        if (!in.Text(path)) return false;
    // What is missing reads as 0. Wild values stand, to be saved again.
    for (float& value : settings.values) value = in.Read<float>();
    settings.whole = in.Ok();
    if (in.Left() >= kImagePathBytes) in.Text(settings.programPath);
    return settings.whole;
}

void PutSettings(GrooveEngine& engine, int channel, const ChannelSettings& settings)
{
    if (!settings.begun) return;
    engine.InitSettings(channel);
    std::copy(std::begin(settings.values), std::end(settings.values), engine.storedParams[channel]);
    if (settings.whole) engine.RefreshChannel(channel);
}

void AskFiles(GrooveEngine& engine, int channel, const ChannelSettings& settings)
{
    GrooveChannel& target = engine.Channel(channel);
    int n = 0;
    for (SampleSlot& slot : target.sound.sampleSlots) slot.Ask(settings.paths[n++]);
    target.programPath.Set(settings.programPath);
}

bool LoadChannelChunk(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length, int channel)
{
    if (channel < 0 || channel >= kChannels) return false;
    ChannelSettings settings(engine, channel);
    ReadChannelChunk(ByteReader(data, length), settings);
    if (settings.begun) AskFiles(engine, channel, settings);
    PutSettings(engine, channel, settings);
    return settings.whole;
}

} // namespace korvane
