// The whole instrument as it is heard: 28 outputs, every channel with a sound of its own.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>

#include "support/Parameters.h"
#include "support/SynthRig.h"

namespace korvane {

/// Samplers play square waves, synths constants: a level can be read off any 48 frames. The higher a channel's number
/// the louder it is.
class StageTest : public SynthTest {
protected:
    static constexpr double kRate = 48000.0;
    static constexpr int kStep = 6000; // frames, at 120 beats per minute
    static constexpr int kAnyKey = 72; // plays no pad

    using Writes = std::vector<std::pair<int, float>>; // parameter, value

    StageTest()
    {
        Synth().SetSampleRate(kRate);
        Synth().SetProgram(0);
        Play(1); // serves the requests of the start-up
        for (int c = 0; c < kChannels; ++c) {
            const float height = 0.02f * static_cast<float>(c + 1);
            if (c < kSamplerChannels)
                GiveSample(c, height);
            else
                GiveWave(c, [height](float) { return height; });
        }
    }

    /// value  over the phase 0..1 of a cycle
    void GiveWave(int c, const std::function<float(float)>& value)
    {
        auto tables = std::make_unique<float[]>(kWaveTableFloats);
        for (std::size_t n = 0; n < kWaveTableFloats; ++n)
            tables[n] = value(static_cast<float>(n % kWaveTablePoints) / static_cast<float>(kWaveTablePoints));
        Entry(c, 0).waveTables = std::move(tables);
    }

    void GiveSine(int c)
    {
        GiveWave(c, [](float phase) { return std::sin(2.0f * std::numbers::pi_v<float> * phase); });
    }

    /// A square wave of 48 frames, for four seconds; the channel's filter lets it through.
    void GiveSample(int c, float height)
    {
        constexpr int kFrames = 4 * static_cast<int>(kRate);
        auto data = std::make_unique<float[]>(kFrames + CWaveSample::kPadFrames);
        for (int n = 0; n < kFrames; ++n) data[static_cast<std::size_t>(n)] = n / 24 % 2 ? -height : height;
        auto sample = std::make_unique<CWaveSample>();
        sample->numFrames = kFrames;
        sample->numChannels = 1;
        sample->channelData[0] = std::move(data);
        Entry(c, kFirstLayerSlot).sample = std::move(sample);
        Engine().storedParams[c][slot::FilterType] = 0.0f;
        Engine().storedParams[c][slot::FilterCutoff] = 1.0f;
        Engine().RefreshChannel(c);
    }

    void Set(int parameter, float value) { Synth().SetParameter(parameter, value); }
    void Set(const Writes& writes)
    {
        for (const auto& [parameter, value] : writes) Set(parameter, value);
    }
    void Press(int parameter) { Set({{parameter, 1.0f}, {parameter, 0.0f}}); }
    void Select(int c) { Press(param::Channel1 + c); }
    void Queue(int status, int data1, int data2 = 0)
    {
        Synth().QueueEvent(static_cast<std::uint8_t>(status), static_cast<std::uint8_t>(data1),
                           static_cast<std::uint8_t>(data2), 0, 0);
    }

    /// A note that the sequencer plays: of a synth the lowest, of a sampler its step's.
    void PutStep(int c, int step, float noteLength = 1.0f)
    {
        Engine().score.Current().steps[c][step] = c < kSamplerChannels ? 1u << step % kStepsPerBar : 1u;
        Engine().storedParams[c][slot::NoteLength] = noteLength;
    }

    /// Renders the next frames in place of those in `out`. What a host left in its buffers is `before`.
    void Play(int frames, int block = 128, bool replacing = true, float before = 0.0f)
    {
        for (auto& output : out) output.assign(static_cast<std::size_t>(frames), before);
        for (int at = 0; at < frames; at += block) {
            std::array<float*, 28> pointers;
            for (std::size_t n = 0; n < out.size(); ++n) pointers[n] = out[n].data() + at;
            Synth().ProcessBlock(nullptr, pointers.data(), std::min(block, frames - at), replacing);
        }
    }

    std::vector<float>& Left(int c) { return out[static_cast<std::size_t>(2 + 2 * c)]; }
    std::vector<float>& Right(int c) { return out[static_cast<std::size_t>(3 + 2 * c)]; }

    /// The first frame that is not silent, -1 when there is none.
    static int Onset(const std::vector<float>& sound)
    {
        const auto heard = std::find_if(sound.begin(), sound.end(), [](float x) { return x != 0.0f; });
        return heard == sound.end() ? -1 : static_cast<int>(heard - sound.begin());
    }
    /// Cycles per second, by the zeros that a tone crosses on its way up; 0 when it does not.
    static double Pitch(const std::vector<float>& sound, double rate = kRate)
    {
        std::vector<std::size_t> zeros;
        for (std::size_t n = 1; n < sound.size(); ++n)
            if (sound[n - 1] < 0.0f && sound[n] >= 0.0f) zeros.push_back(n);
        if (zeros.size() < 2) return 0.0;
        return static_cast<double>(zeros.size() - 1) * rate / static_cast<double>(zeros.back() - zeros.front());
    }

    std::array<std::vector<float>, 28> out; // of the frames played last: main pair, then the channels' pairs

private:
    PoolEntry& Entry(int c, int at)
    {
        entries.push_back(std::make_unique<PoolEntry>());
        Engine().Channel(c).sound.sampleSlots[static_cast<std::size_t>(at)].entry = entries.back().get();
        return *entries.back();
    }

    std::vector<std::unique_ptr<PoolEntry>> entries;
};

} // namespace korvane
