// One channel with its steps as an image, for part files.
#include "content/state/PartImage.h"

#include "content/ByteReader.h"
#include "content/state/ChannelChunk.h"
#include "content/state/ImageTags.h"
#include "content/state/StepRecord.h"
#include "framework/ParameterTable.h"

namespace korvane {

namespace {

const char (&PartTag(int channel))[5] { return channel < kSamplerChannels ? tag::kSamplerPart : tag::kSynthPart; }

} // namespace

void WritePart(ByteWriter& out, const GrooveEngine& engine)
{
    const int channel = engine.selection.selectedChannel;
    const GroovePattern& pattern = engine.score.Current();
    out.Tag(PartTag(channel));
    out.Chunk([&] { WriteChannelChunk(out, engine, channel); });
    out.Chunk([&] {
        out.Tag(tag::kSequence);
        for (int step = 0; step < kSteps; ++step) WriteStepRecord(out, pattern, channel, step);
    });
    out.Write(static_cast<float>(engine.storedParams[channel][slot::NoteLength]));
}

std::int32_t SavePart(const GrooveEngine& engine, std::uint8_t* buffer)
{
    ByteWriter out(buffer);
    WritePart(out, engine);
    return out.Size();
}

bool LoadPart(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length)
{
    const int channel = engine.selection.selectedChannel;
    ByteReader in(data, length);
    if (!in.Tag(PartTag(channel))) return false;
    const ByteReader sound = in.Chunk();
    if (!LoadChannelChunk(engine, sound.Rest(), sound.Left(), channel)) return false;

    ByteReader sequence = in.Chunk();
    if (!sequence.Tag(tag::kSequence)) return false;
    for (int step = 0; step < kSteps; ++step)
        if (!ReadStepRecord(sequence, engine.score.Current(), channel, step)) return false;

    float noteLength = 0.0f;
    if (!in.Read(noteLength)) return false;
    engine.storedParams[channel][slot::NoteLength] = noteLength;
    engine.RefreshChannel(channel);
    return true;
}

} // namespace korvane
