// One channel with its steps as an image, for part files.
#include "content/state/ImageLayout.h"
#include "framework/ParameterTable.h"

namespace korvane {

namespace {

const char (&PartTag(int channel))[5] { return channel < kSamplerChannels ? tag::kSamplerPart : tag::kSynthPart; }

} // namespace

void WritePart(ByteWriter& out, const GrooveEngine& engine)
{
    const int channel = engine.selectedChannel;
    const GroovePattern& pattern = engine.Pattern();
    out.Tag(PartTag(channel));
    out.Chunk([&] { WriteChannelChunk(out, engine, channel); });
    out.Chunk([&] {
        out.Tag(tag::kSequence);
        for (int step = 0; step < kSteps; ++step) WriteStepRecord(out, pattern, channel, step);
    });
    out.Write(static_cast<float>(engine.storedParams[channel][slot::NoteLength]));
}

std::int32_t GrooveEngine::SavePart(std::uint8_t* buffer) const
{
    ByteWriter out(buffer);
    WritePart(out, *this);
    return out.Size();
}

bool GrooveEngine::LoadPart(const std::uint8_t* data, std::int32_t length)
{
    const int channel = selectedChannel;
    ByteReader in(data, length);
    if (!in.Tag(PartTag(channel))) return false;
    const ByteReader sound = in.Chunk();
    if (!LoadChannelChunk(sound.Rest(), sound.Left(), channel)) return false;

    ByteReader sequence = in.Chunk();
    if (!sequence.Tag(tag::kSequence)) return false;
    for (int step = 0; step < kSteps; ++step)
        if (!ReadStepRecord(sequence, Pattern(), channel, step)) return false;

    float noteLength = 0.0f;
    if (!in.Read(noteLength)) return false;
    storedParams[channel][slot::NoteLength] = noteLength;
    RefreshChannel(channel);
    return true;
}

} // namespace korvane
