// One channel with its steps as an image, for part files.
#include "content/state/PartImage.h"

#include "content/state/ImageTags.h"
#include "content/state/StepRecord.h"
#include "framework/ParameterTable.h"

namespace korvane {

namespace {

const char (&PartTag(int channel))[5] { return channel < kSamplerChannels ? tag::kSamplerPart : tag::kSynthPart; }

} // namespace

void WritePart(ByteWriter& out, const GrooveEngine& engine, int channel)
{
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
    WritePart(out, engine, engine.selection.selectedChannel);
    return out.Size();
}

bool ReadPart(ByteReader in, GrooveEngine& engine, PartState& part)
{
    if (!in.Tag(PartTag(part.channel))) return false;
    if (!ReadChannelChunk(in.Chunk(), part.settings)) return false;

    ByteReader sequence = in.Chunk();
    if (!sequence.Tag(tag::kSequence)) return false;
    engine.score.SettleLocks();
    const GroovePattern& target = engine.score.Current();
    GroovePattern& read = *engine.score.spare[0];
    for (int step = 0; step < kSteps; ++step) {
        part.steps = step + 1;
        if (!ReadStepRecord(sequence, read, part.channel, step)) return false;
        target.locks[part.channel][step].Touch(read.locks[part.channel][step].Count());
    }
    float noteLength = 0.0f;
    if (!in.Read(noteLength)) return false;
    part.noteLength = noteLength;
    return true;
}

void PutPart(GrooveEngine& engine, const PartState& part)
{
    PutSettings(engine, part.channel, part.settings);
    engine.score.Current().CopySteps(part.channel, 0, *engine.score.spare[0], 0, part.steps);
    if (!part.noteLength) return;
    engine.storedParams[part.channel][slot::NoteLength] = *part.noteLength;
    engine.RefreshChannel(part.channel);
}

bool LoadPart(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length)
{
    PartState part(engine, engine.selection.selectedChannel);
    const bool whole = ReadPart(ByteReader(data, length), engine, part);
    if (part.settings.begun) AskFiles(engine, part.channel, part.settings);
    PutPart(engine, part);
    return whole;
}

} // namespace korvane
