// One channel with samples and waveforms made by hand.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "content/SamplePool.h"
#include "engine/ChannelStages.h"
#include "engine/fx/Signals.h"
#include "framework/ParameterTable.h"

namespace korvane {

/// A sample that has something in every frame, a little later on the right.
inline float Wobble(int c, int i) { return std::sin(0.02f * static_cast<float>(i + 40 * c)); }

/// A run of one channel by itself.
inline void RenderAlone(GrooveChannel& channel, int frames, float tempo)
{
    channel.Refresh(tempo);
    GrooveChannel* const alone[] = {&channel};
    RenderVoices(alone, frames);
}

struct VoiceRig {
    static constexpr float kRate = 44100.0f, kTempo = 120.0f;

    explicit VoiceRig(bool isSampler)
    {
        channel.sound.isSampler = isSampler;
        Set({{slot::Pitch, 0.5f},          {slot::NoteLength, 0.5f},      {slot::AmpDecay, 1.0f},
             {slot::AmpSustain, 1.0f},     {slot::AmpRelease, 0.1f},      {slot::AmpLevel, 0.5f},
             {slot::FilterCutoff, 1.0f},   {slot::EnvelopeDecay, 1.0f},   {slot::EnvelopeDecay + 1, 1.0f},
             {slot::Octave, 0.5f},         {slot::Osc1Pitch, 0.5f},       {slot::Osc1Detune, 0.5f},
             {slot::Osc2Pitch, 0.5f},      {slot::Osc2Detune, 0.5f},      {slot::Osc3Pitch, 0.5f},
             {slot::Osc3Detune, 0.5f},     {slot::VelocityAmount, 0.5f},  {slot::WheelAmount, 0.5f},
             {slot::PressureAmount, 0.5f}, {slot::BendRange, 0.16666667f}});
        for (int l = 0; l < kLayers; ++l) {
            Set({{slot::LayerLevel + l, 0.5f}, {slot::LayerPan + l, 0.5f}, {slot::LayerPitch + l, 0.5f}});
            Set({{slot::LayerDecay + l, 1.0f}, {slot::LayerHiCut + l, 1.0f}});
        }
        channel.Reset(kRate);
    }

    using Value = std::pair<int, float>; // slot
    using Values = std::vector<Value>;
    void Set(const Values& values)
    {
        for (const auto& [slot, value] : values) channel.sound.params[slot] = value;
    }

    CWaveSample& GiveSample(int layer, int frames, int channels, const std::function<float(int, int)>& value)
    {
        auto sample = std::make_shared<CWaveSample>();
        sample->numFrames = frames;
        sample->numChannels = channels;
        for (int c = 0; c < channels; ++c) {
            auto data = std::make_unique<float[]>(static_cast<std::size_t>(frames + CWaveSample::kPadFrames));
            for (int i = 0; i < frames; ++i) data[i] = value(c, i);
            sample->channelData[c] = std::move(data);
        }
        Entry(kFirstLayerSlot + layer).sample = sample;
        return *sample;
    }

    /// value of table t at point i
    void GiveWave(int oscillator, const std::function<float(int, int)>& value)
    {
        auto tables = std::make_unique<float[]>(kWaveTableFloats);
        for (int t = 0; t < kWaveTables; ++t)
            for (int i = 0; i < kWaveTablePoints; ++i) tables[t * kWaveTablePoints + i] = value(t, i);
        Entry(oscillator).waveTables = std::move(tables);
    }

    PoolEntry& Entry(int slot)
    {
        entries.push_back(std::make_unique<PoolEntry>());
        channel.sound.sampleSlots[static_cast<std::size_t>(slot)].entry = entries.back().get();
        return *entries.back();
    }

    ChannelVoice& Voice(int v) { return *channel.voices[static_cast<std::size_t>(v)]; }
    ChannelVoice& Last() { return Voice(kVoices - 1); } // the first note of an idle channel plays here

    void Render(int frames, int run = 100)
    {
        for (; frames > 0; frames -= run) RenderAlone(channel, frames < run ? frames : run, kTempo);
    }

    /// Plays a live note with these values and lets it settle.
    void Start(const Values& values, int note, int frames = 200)
    {
        Set(values);
        channel.NoteOn(note, 0, 1);
        Render(frames);
    }

    /// What the first note's voice gives over the next frames; nothing once it has ended.
    Sound Play(int frames)
    {
        Sound sound(frames);
        for (int from = 0; from < frames; from += kBlock) {
            const int run = std::min(kBlock, frames - from);
            RenderAlone(channel, run, kTempo);
            if (!Last().active) break;
            std::copy_n(Last().left, run, &sound.left[from]);
            std::copy_n(Last().right, run, &sound.right[from]);
        }
        return sound;
    }

    std::unique_ptr<SamplePool> pool = std::make_unique<SamplePool>();
    std::vector<std::unique_ptr<PoolEntry>> entries;
    RandomGenerator random;
    GrooveChannel channel{*pool, random};
};

} // namespace korvane
