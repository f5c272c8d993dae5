// Cost of the voices: sources, modulation, channel filter.
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "content/SamplePool.h"
#include "engine/ChannelStages.h"
#include "engine/kernels/VoiceFilter.h"
#include "framework/ParameterTable.h"

using namespace korvane;

namespace {

constexpr int kFrames = 128;
constexpr float kTempo = 120.0f;

std::array<GrooveChannel*, kChannels> Pointers(const Channels& channels)
{
    std::array<GrooveChannel*, kChannels> pointers;
    for (std::size_t c = 0; c < pointers.size(); ++c) pointers[c] = channels[c].get();
    return pointers;
}

/// A run of one channel by itself.
void RenderAlone(GrooveChannel& channel, int frames, float tempo)
{
    channel.Refresh(tempo);
    GrooveChannel* const alone[] = {&channel};
    RenderVoices(alone, frames);
}

/// All channels, with a sample in every layer and a waveform in every oscillator.
struct Rig {
    std::unique_ptr<SamplePool> pool = std::make_unique<SamplePool>();
    RandomGenerator random;
    PoolEntry wave, drum;
    std::array<std::unique_ptr<GrooveChannel>, kChannels> channels;

    Rig()
    {
        auto tables = std::make_unique<float[]>(kWaveTableFloats);
        for (std::size_t i = 0; i < kWaveTableFloats; ++i)
            tables[i] = 0.5f * std::sin(6.2831853f * static_cast<float>(i % kWaveTablePoints) / 1024.0f);
        wave.waveTables = std::move(tables);
        auto sample = std::make_unique<CWaveSample>();
        sample->numChannels = 2;
        sample->numFrames = 1 << 20;
        for (auto& data : sample->channelData) {
            data = std::make_unique<float[]>((1 << 20) + CWaveSample::kPadFrames);
            for (int i = 0; i < 1 << 20; ++i) data[i] = std::sin(0.05f * static_cast<float>(i));
        }
        drum.sample = std::move(sample);
        for (int c = 0; c < kChannels; ++c) {
            channels[c] = std::make_unique<GrooveChannel>(*pool, random);
            GrooveChannel& channel = *channels[c];
            channel.sound.isSampler = c < kSamplerChannels;
            for (int s = 0; s < kSampleSlots; ++s)
                channel.sound.sampleSlots[s].entry = s < kFirstLayerSlot ? &wave : &drum;
            for (int index :
                 {slot::Pitch, slot::AmpLevel, slot::Octave, slot::Osc1Pitch, slot::Osc1Detune, slot::Osc2Pitch,
                  slot::Osc2Detune, slot::Osc3Pitch, slot::Osc3Detune, slot::UnisonDetune, slot::FilterCutoff})
                channel.sound.params[index] = 0.5f;
            for (int index : {slot::AmpDecay, slot::AmpSustain, slot::EnvelopeDecay})
                channel.sound.params[index] = 1.0f;
            channel.sound.params[slot::EnvelopeDecay + 1] = 1.0f;
            for (int l = 0; l < kLayers; ++l) {
                for (int index : {slot::LayerLevel, slot::LayerPan, slot::LayerPitch})
                    channel.sound.params[index + l] = 0.4f;
                for (int index : {slot::LayerDecay, slot::LayerHiCut}) channel.sound.params[index + l] = 1.0f;
                channel.sound.params[slot::LayerBypass + l] = l == 0 ? 0.0f : 1.0f;
            }
            channel.Reset(44100.0f);
        }
    }

    void Play(int c, int notes)
    {
        for (int n = 0; n < notes; ++n) channels[c]->NoteOn(48 + n, 0.0f, 1.0f);
    }

    void Rewind() // keeps the layers inside the sample
    {
        for (auto& channel : channels)
            for (auto& voice : channel->voices)
                for (SamplerLayer& layer : voice->layers) layer.position = 100.5;
    }
};

void PerFrame(benchmark::State& state, double units)
{
    state.counters["ns/unit/frame"] =
        benchmark::Counter(units * kFrames * static_cast<double>(state.iterations()) * 1e-9,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BM_VoiceFilter(benchmark::State& state)
{
    Rig rig;
    const int voices = static_cast<int>(state.range(0));
    for (int v = 0; v < voices; ++v) rig.Play(v % kChannels, 1);
    for (auto& channel : rig.channels) RenderAlone(*channel, kFrames, kTempo);
    for (auto _ : state) FilterChannels(Pointers(rig.channels), *rig.pool, kFrames);
    PerFrame(state, voices);
}
BENCHMARK(BM_VoiceFilter)->Arg(1)->Arg(8)->Arg(20)->Arg(78);

void BM_SamplerChannel(benchmark::State& state) // six voices with the given number of layers; unit: layer
{
    Rig rig;
    const int layers = static_cast<int>(state.range(0));
    for (int l = 0; l < kLayers; ++l) rig.channels[0]->sound.params[slot::LayerBypass + l] = l < layers ? 0.0f : 1.0f;
    rig.Play(0, kVoices);
    for (auto _ : state) {
        rig.Rewind();
        RenderAlone(*rig.channels[0], kFrames, kTempo);
    }
    PerFrame(state, kVoices * layers);
}
BENCHMARK(BM_SamplerChannel)->Arg(1)->Arg(4);

void BM_SynthChannel(benchmark::State& state) // six voices; unit: unison voice
{
    Rig rig;
    GrooveChannel& channel = *rig.channels[kSamplerChannels];
    channel.sound.params[slot::ModKind] = static_cast<float>(state.range(0));
    const int unison = static_cast<int>(state.range(1));
    channel.sound.params[slot::UnisonVoices] = static_cast<float>(unison - 1) / 14.99f;
    if (state.range(2) != 0)
        for (int index : {slot::MixOsc2, slot::MixOsc3, slot::NoiseMix, slot::Modulation})
            channel.sound.params[index] = 0.5f;
    rig.Play(kSamplerChannels, kVoices);
    for (auto _ : state) RenderAlone(channel, kFrames, kTempo);
    PerFrame(state, kVoices * unison);
}
BENCHMARK(BM_SynthChannel)->ArgNames({"kind", "unison", "all"})->ArgsProduct({{0, 1, 2}, {1, 16}, {0, 1}});

void BM_HeaviestSynths(benchmark::State& state) // 30 voices × 16, every source
{
    Rig rig;
    for (int c = kSamplerChannels; c < kChannels; ++c) {
        rig.channels[c]->sound.params[slot::ModKind] = static_cast<float>(state.range(0));
        rig.channels[c]->sound.params[slot::UnisonVoices] = 1.0f;
        for (int index : {slot::MixOsc2, slot::MixOsc3, slot::NoiseMix, slot::Modulation})
            rig.channels[c]->sound.params[index] = 0.5f;
        rig.Play(c, kVoices);
    }
    for (auto _ : state)
        for (int c = kSamplerChannels; c < kChannels; ++c) RenderAlone(*rig.channels[c], kFrames, kTempo);
    PerFrame(state, 1);
}
BENCHMARK(BM_HeaviestSynths)->DenseRange(0, 2);

void BM_EverythingAtOnce(benchmark::State& state) // 48 sampler voices of four layers, 30 synth voices × 16
{
    Rig rig;
    for (int c = 0; c < kChannels; ++c) {
        for (int index : {slot::MixOsc2, slot::MixOsc3, slot::NoiseMix, slot::Modulation, slot::LfoAmount})
            rig.channels[c]->sound.params[index] = 0.5f;
        rig.channels[c]->sound.params[slot::UnisonVoices] = 1.0f;
        for (int l = 0; l < kLayers; ++l) rig.channels[c]->sound.params[slot::LayerBypass + l] = 0.0f;
        rig.Play(c, kVoices);
    }
    for (auto _ : state) {
        rig.Rewind();
        for (auto& channel : rig.channels) RenderAlone(*channel, kFrames, kTempo);
        FilterChannels(Pointers(rig.channels), *rig.pool, kFrames);
    }
    PerFrame(state, 1);
}
BENCHMARK(BM_EverythingAtOnce);

void BM_IdleChannels(benchmark::State& state)
{
    Rig rig;
    for (auto _ : state) {
        for (auto& channel : rig.channels) RenderAlone(*channel, kFrames, kTempo);
        FilterChannels(Pointers(rig.channels), *rig.pool, kFrames);
    }
    PerFrame(state, 1);
}
BENCHMARK(BM_IdleChannels);

} // namespace
