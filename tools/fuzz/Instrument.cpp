// What the targets try their inputs on.
#include "fuzz/Instrument.h"

#include <cmath>

#include "platform/Files.h"
#include "shell/SMX_Def.h"
#include "support/Riff.h"

namespace korvane::fuzz {

std::int32_t Number(ByteReader& in)
{
    const auto small = in.Read<std::uint8_t>();
    return small < 240 ? small : in.Read<std::int32_t>();
}

Bytes Some(ByteReader& in)
{
    Bytes bytes(std::min<std::size_t>(in.Read<std::uint8_t>() % 64u, static_cast<std::size_t>(in.Left())));
    for (auto& byte : bytes) byte = in.Read<std::uint8_t>();
    return bytes;
}

Content::Content()
{
    SMX_Def::Install();
    for (const char* name : {"Drum Samples/hit.wav", "Synth Waves/Saw.wav"})
        WriteText(path / name, riff::WavOf(std::vector<float>(300, 0.5f)));
    for (const char* name : {"Synth Programs/A/1.kvsynth", "Sampler Programs/A/1.kvsmp"})
        WriteText(path / name, "3nyS" + std::string(4944, '\0'));
}

std::string Content::File(const char* name, const Bytes& bytes) const
{
    WriteBytes(path / name, bytes);
    return EnginePath((path / name).c_str());
}

Outputs::Outputs(int frames)
{
    for (std::size_t n = 0; n < sound.size(); ++n) {
        sound[n].resize(static_cast<std::size_t>(frames));
        pointers[n] = sound[n].data();
    }
}

Instrument::Instrument() : synth(&host)
{
    GrooveEngine& engine = *synth.engine;
    for (int c = 0; c < kChannels; ++c) {
        for (auto& word : engine.score.patterns[0]->steps[c]) word = 0xFFFF;
        engine.score.patterns[0]->locks[c][0].Append(slot::Pitch, 0.25f);
        if (c >= kSamplerChannels) continue;
        const std::string sample = EnginePath((content.path / "Drum Samples/hit.wav").c_str());
        engine.Channel(c).sound.sampleSlots[kFirstLayerSlot].path.Set(sample.c_str());
    }
    state.resize(static_cast<std::size_t>(synth.GetProgramChunk(nullptr)));
    synth.GetProgramChunk(state.data());
    synth.SavePartFile(content.File("part", {}).c_str());
    part = ReadBytes(content.path / "part");
    synth.SaveProgramFile(content.File("program", {}).c_str());
    program = ReadBytes(content.path / "program");
    synth.SetSampleRate(44100.0);
    synth.Reset();
    synth.SetProgram(0);
    Forget();
}

Instrument& Instrument::Get()
{
    static Instrument instrument;
    return instrument;
}

void Instrument::Forget()
{
    synth.SetProgramChunk(state.data(), static_cast<std::int32_t>(state.size()));
    synth.SetTempo(120.0);
    synth.SetPlaying(true);
}

void Instrument::Play(int frames)
{
    Outputs outputs(frames);
    synth.ProcessBlock(nullptr, outputs.pointers.data(), frames, true);
    for (const auto& output : outputs.sound)
        for (const float x : output) Require(std::isfinite(x), "sound that is no number");
}

void Instrument::Try(bool (KVInstrument::*load)(const char*), const Bytes& file)
{
    const Limits limits(file.size());
    const std::string path = content.File("input", file);
    for (const int channel : {0, kSamplerChannels}) {
        synth.engine->selection.selectedChannel = channel;
        (synth.*load)(path.c_str());
        Play(300);
    }
    Forget();
}

Bytes Altered(Bytes image, const std::uint8_t* data, std::size_t size)
{
    if (size > 0 && data[0] == '3') return {data, data + size};
    ByteReader in(data, static_cast<std::int32_t>(size));
    while (in.Ok() && in.Left() > 0 && !image.empty()) {
        std::size_t at = in.Read<std::uint32_t>() % image.size();
        const int count = in.Read<std::uint8_t>() % 16;
        if (count == 0) image.resize(at);
        for (int n = 0; n < count && at < image.size(); ++n) image[at++] = in.Read<std::uint8_t>();
    }
    return image;
}

} // namespace korvane::fuzz
