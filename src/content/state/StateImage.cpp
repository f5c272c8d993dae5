// The whole groove as one image, for groove files and hosts.
#include "content/state/StateImage.h"

#include <algorithm>
#include <initializer_list>

#include "content/state/ImageTags.h"
#include "content/state/StepRecord.h"

namespace korvane {

namespace {

void WriteHeader(ByteWriter& out, const GrooveEngine& engine)
{
    const Selection& selection = engine.selection;
    out.Tag(tag::kGroove);
    for (const int shown :
         std::initializer_list<int>{selection.selectedChannel, selection.selectedBar, engine.score.currentPattern,
                                    selection.selectedFx, selection.envelopeNumber, selection.lfoNumber})
        out.Write(static_cast<std::int8_t>(shown));
    for (const bool flag : engine.mixer.muted) out.Write(static_cast<std::int8_t>(flag));
    for (const bool flag : engine.score.playOnce) out.Write(static_cast<std::int8_t>(flag));
    out.Write(static_cast<float>(engine.clock.shuffleAmount));
    for (const auto& control : engine.ext.extControls) {
        out.Write(static_cast<float>(control.value));
        const ExtBinding bound = control.binding;
        out.Write(bound.channel);
        out.Write(bound.param);
    }
}

/// A selection of 0..count - 1; everything that indexes by it relies on the range.
template <class T>
void ReadSelection(ByteReader& in, Shared<T>& field, int count)
{
    std::int8_t value = 0;
    if (in.Read(value)) field = static_cast<T>(std::clamp<int>(value, 0, count - 1));
}

template <std::size_t kCount>
void ReadFlags(ByteReader& in, Shared<bool> (&flags)[kCount])
{
    for (auto& flag : flags) {
        std::int8_t value = 0;
        if (in.Read(value)) flag = value != 0;
    }
}

void ReadExtControl(ByteReader& in, ExtControl& control)
{
    const auto value = in.Read<float>();
    const auto channel = in.Read<std::int32_t>();
    const auto param = in.Read<std::int32_t>();
    if (!in.Ok()) return;
    control.value = value;
    control.binding = {channel, param};
}

/// The fields that are there are taken over, also when the header is cut.
void ReadHeader(ByteReader& in, GrooveEngine& engine)
{
    ReadSelection(in, engine.selection.selectedChannel, kChannels);
    ReadSelection(in, engine.selection.selectedBar, kBars);
    ReadSelection(in, engine.score.currentPattern, kPatterns);
    ReadSelection(in, engine.selection.selectedFx, kEffects);
    ReadSelection(in, engine.selection.envelopeNumber, 2);
    ReadSelection(in, engine.selection.lfoNumber, 2);
    ReadFlags(in, engine.mixer.muted);
    ReadFlags(in, engine.score.playOnce);
    float shuffle = 0.0f;
    if (in.Read(shuffle)) engine.clock.shuffleAmount = shuffle;
    for (auto& control : engine.ext.extControls) ReadExtControl(in, control);
}

void WritePattern(ByteWriter& out, const GroovePattern& pattern)
{
    out.Tag(tag::kPattern);
    for (int channel = 0; channel < kChannels; ++channel)
        for (int step = 0; step < kSteps; ++step) WriteStepRecord(out, pattern, channel, step);
}

/// Leaves an unknown chunk's pattern empty and a cut one's with the steps up to the cut.
void ReadPattern(ByteReader in, GroovePattern& pattern)
{
    if (!in.Tag(tag::kPattern)) return;
    for (int channel = 0; channel < kChannels; ++channel)
        for (int step = 0; step < kSteps; ++step)
            if (!ReadStepRecord(in, pattern, channel, step)) return;
}

} // namespace

void WriteState(ByteWriter& out, const GrooveEngine& engine)
{
    WriteHeader(out, engine);
    for (int channel = 0; channel < kChannels; ++channel) out.Chunk([&] { WriteChannelChunk(out, engine, channel); });
    for (const auto& pattern : engine.score.patterns) out.Chunk([&] { WritePattern(out, *pattern); });
}

std::int32_t SaveState(const GrooveEngine& engine, std::uint8_t* buffer)
{
    ByteWriter out(buffer);
    WriteState(out, engine);
    return out.Size();
}

GrooveState::GrooveState(const GrooveEngine& engine)
{
    for (int c = 0; c < kChannels; ++c) channels.emplace_back(engine, c);
}

bool ReadState(ByteReader in, GrooveEngine& engine, GrooveState& state)
{
    constexpr int kBehindTag = kStateHeaderBytes - 4;
    if (!in.Tag(tag::kGroove)) return false;
    state.begun = true;
    engine.score.ClearSpare();
    state.header = in.Next(kBehindTag);
    if (state.header.Left() < kBehindTag) return false;
    for (ChannelSettings& channel : state.channels)
        if (!ReadChannelChunk(in.Chunk(), channel)) return false;
    for (GroovePattern* pattern : engine.score.spare) {
        const ByteReader chunk = in.Chunk();
        if (!in.Ok()) return false;
        ReadPattern(chunk, *pattern);
    }
    return true;
}

void PutState(GrooveEngine& engine, const GrooveState& state)
{
    engine.ResetPanel();
    engine.score.SwapPatterns();
    for (int c = 0; c < kChannels; ++c)
        if (!state.channels[static_cast<std::size_t>(c)].begun) engine.InitSettings(c);
    ByteReader header = state.header;
    ReadHeader(header, engine);
    for (int c = 0; c < kChannels; ++c) PutSettings(engine, c, state.channels[static_cast<std::size_t>(c)]);
}

bool LoadState(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length)
{
    GrooveState state(engine);
    const bool whole = ReadState(ByteReader(data, length), engine, state);
    if (!state.begun) return false;
    for (int c = 0; c < kChannels; ++c) AskFiles(engine, c, state.channels[static_cast<std::size_t>(c)]);
    PutState(engine, state);
    return whole;
}

} // namespace korvane
