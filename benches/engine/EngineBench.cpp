// Whole blocks of the engine: a tick, a typical groove, everything at once.
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <random>

#include "engine/GrooveEngine.h"
#include "engine/RenderLoop.h"
#include "engine/SequencerTick.h"
#include "engine/Transport.h"
#include "framework/ParameterTable.h"
#include "platform/Files.h"
#include "support/Riff.h"

namespace korvane {
namespace {

constexpr int kFrames = 128;
constexpr double kRate = 48000.0;

/// Ten seconds of noise and a saw cycle in the temp folder.
std::string SoundFile(const char* name, int frames)
{
    const std::string path =
        (std::filesystem::temp_directory_path() / (std::string("korvane_bench_") + name + ".wav")).string();
    std::minstd_rand noise(1);
    riff::Bytes sound;
    for (int n = 0; n < frames; ++n)
        sound += riff::Little(frames > 4096 ? noise() & 0x3FFF : static_cast<std::size_t>(n * 16), 2);
    std::ofstream(path, std::ios::binary) << riff::Wav(riff::Format(riff::kIntegers, 1, 16) + riff::Data(sound));
    return EnginePath(path.c_str());
}

struct Rig {
    GrooveEngine engine;
    std::vector<float> buffer = std::vector<float>(28 * kFrames);
    std::array<float*, 28> out{};

    Rig(int layers, float unison)
    {
        engine.ResetGroove();
        engine.ResetEngine(static_cast<float>(kRate));
        const std::string sample = SoundFile("noise", 441000), wave = SoundFile("saw", 2048);
        for (int c = 0; c < kChannels; ++c) {
            for (int n = 0; n < kSampleSlots; ++n) {
                const bool used = n < kFirstLayerSlot + layers;
                const std::string& file = n < kFirstLayerSlot ? wave : sample;
                engine.Channel(c).sound.sampleSlots[static_cast<std::size_t>(n)].Ask(used ? file.c_str() : "");
            }
            engine.storedParams[c][slot::UnisonVoices] = unison;
            engine.storedParams[c][slot::LayerPitch] = 0.3f;
            engine.RefreshChannel(c);
        }
        for (std::size_t n = 0; n < out.size(); ++n) out[n] = &buffer[n * kFrames];
        engine.ServeRequests();
        Block();
    }

    void Block() { RenderFrames(engine, out.data(), kFrames); }

    void Notes(int perSampler, int perSynth)
    {
        for (int c = 0; c < kChannels; ++c)
            for (int n = 0; n < (c < kSamplerChannels ? perSampler : perSynth); ++n) engine.NoteOn(c, 50 + 3 * n, 1.0f);
    }
};

void Report(benchmark::State& state)
{
    state.counters["of_real_time"] = benchmark::Counter(static_cast<double>(state.iterations()) * kFrames / kRate,
                                                        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// Blocks of notes that start anew once they have ended.
template <class Start>
void SoundingBlock(benchmark::State& state, Rig& rig, const Start& start)
{
    for (auto _ : state) {
        if (rig.engine.Channel(0).activeVoices == 0) {
            state.PauseTiming();
            rig.engine.ResetEngine(0.0f);
            start();
            state.ResumeTiming();
        }
        rig.Block();
    }
    Report(state);
}

/// 13 channels, 20 voices: one note on each sampler channel, a bass, a lead, three chords.
void TypicalBlock(benchmark::State& state)
{
    Rig rig(1, 0.2f);
    SoundingBlock(state, rig, [&rig] {
        rig.Notes(1, 2);
        for (const int c : {8, 9}) rig.engine.NoteOn(c, 70, 1.0f);
    });
}

/// 13 channels, 78 voices, four layers or sixteen-fold unison each.
void HeaviestBlock(benchmark::State& state)
{
    Rig rig(4, 1.0f);
    SoundingBlock(state, rig, [&rig] { rig.Notes(6, 6); });
}

void SilentBlock(benchmark::State& state)
{
    Rig rig(1, 0.0f);
    for (auto _ : state) rig.Block();
    Report(state);
}

/// A tick that starts a note on every channel.
void Tick(benchmark::State& state)
{
    Rig rig(1, 0.0f);
    SetPlay(rig.engine, true);
    for (int c = 0; c < kChannels; ++c)
        for (int s = 0; s < kSteps; ++s) rig.engine.score.patterns[0]->steps[c][s] = 1u;
    for (auto _ : state) SequencerTick(rig.engine, false);
}

BENCHMARK(SilentBlock);
BENCHMARK(TypicalBlock);
BENCHMARK(HeaviestBlock);
BENCHMARK(Tick);

} // namespace
} // namespace korvane
