// The channel filter: what it does to a sine, and voices side by side against each alone.
#include <gtest/gtest.h>

#include <vector>

#include "engine/fx/Signals.h"
#include "engine/kernels/VoiceFilter.h"
#include "engine/voice/VoiceRig.h"

namespace korvane {
namespace {

std::array<GrooveChannel*, kChannels> Pointers(const Channels& channels)
{
    std::array<GrooveChannel*, kChannels> pointers;
    for (std::size_t c = 0; c < pointers.size(); ++c) pointers[c] = channels[c].get();
    return pointers;
}

struct FilterRig {
    std::unique_ptr<SamplePool> pool = std::make_unique<SamplePool>();
    RandomGenerator random;
    std::array<std::unique_ptr<GrooveChannel>, kChannels> channels;

    FilterRig()
    {
        for (int c = 0; c < kChannels; ++c) channels[c] = std::make_unique<GrooveChannel>(*pool, random, c);
    }

    float Value() { return static_cast<float>(random.Next()) * 0x1p-32f; }

    /// A voice in the middle of a note, with anything in its buffers and filter.
    void Play(int c, int v)
    {
        ChannelVoice& voice = *channels[c]->voices[v];
        channels[c]->sound.filterType = c % 3;
        channels[c]->activeVoices |= static_cast<std::uint8_t>(1u << v);
        voice.resonance = Value();
        for (auto& side : voice.filterState)
            for (float& stage : side) stage = Value() - 0.5f;
        // Cutoffs lie beyond both ends as well.
        for (float* buffer : {voice.left, voice.right, voice.cutoffFrames, voice.gainFrames})
            for (int n = 0; n < kMaxRun; ++n) buffer[n] = 1.4f * Value() - 0.2f;
    }
};

// Gain and turn of a sine of 0.5 on the left and, into the limiter, of 2 on the right. The numbers come from a model in
// double that was written from the rules of the ladder.
TEST(ChannelFilter, ActsOnASineAsItIsSet)
{
    // clang-format off
    const struct { const char* what; float type, cutoff, resonance; int hz; Response left, right; } cases[] = {
        {"lowpass",             0.0f,   0.5f, 0.0f, 1000, {-30.67,  104.5}, {-31.58,  104.5}},
        {"resonant lowpass",    0.0f,   0.5f, 0.8f,  700, {-19.62,  123.2}, {-21.01,  125.2}},
        {"higher lowpass",      0.49f,  0.7f, 0.5f, 2000, { -9.70,  175.8}, {-12.51,  177.3}},
        {"open lowpass",        0.0f,   1.0f, 0.0f, 5000, { -1.49,  -32.4}, { -2.40,  -32.4}},
        {"below the table",     0.0f,  -0.2f, 0.1f,   60, {-48.69,   57.3}, {-49.60,   57.4}},
        {"bandpass",            0.5f,   0.5f, 0.3f, 1000, {-23.86, -168.4}, {-24.78, -168.2}},
        {"resonant bandpass",   0.9f,  0.65f, 0.9f, 1500, { -7.12, -122.2}, {-11.60, -113.1}},
        {"above the table",     0.5f,   1.3f, 0.2f, 3000, {-25.78,   83.4}, {-25.86,   83.1}},
        {"highpass",            1.0f,   0.5f, 0.3f, 1000, {  0.06,   -3.5}, { -0.86,   -3.3}},
        {"resonant highpass",   1.0f,   0.3f, 0.8f,  300, { -0.11,   -4.0}, { -1.01,   -3.7}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        FilterRig rig;
        GrooveChannel& channel = *rig.channels[3];
        channel.sound.rate = kRate;
        channel.sound.params[slot::FilterType] = c.type;
        RenderAlone(channel, 0, kTempo);
        ChannelVoice& voice = *channel.voices[0];
        channel.activeVoices = 1;
        voice.resonance = c.resonance;
        std::fill_n(voice.cutoffFrames, kMaxRun, c.cutoff);
        std::fill_n(voice.gainFrames, kMaxRun, 2.0f);
        const Sound input = Sine(8192, c.hz);
        Sound sound(8192);
        for (int from = 0; from < 8192; from += kMaxRun) {
            std::copy_n(&input.left[from], kMaxRun, voice.left);
            for (int n = 0; n < kMaxRun; ++n) voice.right[n] = 4.0f * voice.left[n];
            for (float* mix : {rig.pool->ChannelLeft(3), rig.pool->ChannelRight(3)}) std::fill_n(mix, kMaxRun, 0.0f);
            FilterChannels(Pointers(rig.channels), *rig.pool, kMaxRun);
            std::copy_n(rig.pool->ChannelLeft(3), kMaxRun, &sound.left[from]);
            std::copy_n(rig.pool->ChannelRight(3), kMaxRun, &sound.right[from]);
        }
        const auto compare = [&](const std::vector<float>& out, double level, std::complex<double> expected) {
            const auto gain = Line(&out[4096], 4096, c.hz) / (level * Line(&input.left[4096], 4096, c.hz));
            EXPECT_NEAR(std::abs(gain / expected - 1.0), 0.0, 0.008) << gain;
        };
        compare(sound.left, 2.0, c.left);
        compare(sound.right, 8.0, c.right);
    }
}

/// Mix buffers and filter states.
std::vector<float> Results(const FilterRig& rig)
{
    std::vector<float> values;
    for (int c = 0; c < kChannels; ++c) {
        for (const float* mix : {rig.pool->ChannelLeft(c), rig.pool->ChannelRight(c)})
            values.insert(values.end(), mix, mix + kMaxRun);
        for (const auto& voice : rig.channels[c]->voices)
            for (const auto& side : voice->filterState) values.insert(values.end(), std::begin(side), std::end(side));
    }
    return values;
}

TEST(ChannelFilter, VoicesSideBySideGiveTheBitsOfEachAlone)
{
    std::vector<int> lengths = {31, 32, 33, 128, 512};
    for (int n = 0; n <= 17; ++n) lengths.push_back(n);
    for (int voices : {1, 2, 3, 5, 8, 11, 12, 13, 24, 27, 78})
        for (int frames : lengths) {
            FilterRig together, alone;
            for (int v = 0; v < voices; ++v) {
                const int c = v * 5 % kChannels;
                for (FilterRig* rig : {&together, &alone}) rig->Play(c, v / kChannels);
                FilterChannels(Pointers(alone.channels), *alone.pool, frames);
                alone.channels[c]->activeVoices = 0;
            }
            FilterChannels(Pointers(together.channels), *together.pool, frames);
            ASSERT_EQ(Results(alone), Results(together)) << voices << " voices, " << frames << " frames";
        }
}

} // namespace
} // namespace korvane
