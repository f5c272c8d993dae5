// The channel filter: vector form against float form, and what the filter does.
#include <gtest/gtest.h>

#include <vector>

#include "engine/VoiceFilter.h"
#include "voices/VoiceRig.h"

namespace korvane {
namespace {

struct Mixer {
    std::unique_ptr<SamplePool> pool = std::make_unique<SamplePool>();
    RandomGenerator random;
    std::array<std::unique_ptr<GrooveChannel>, kChannels> channels;

    Mixer()
    {
        for (auto& channel : channels) channel = std::make_unique<GrooveChannel>(*pool, random);
    }

    float Value() { return static_cast<float>(random.Next()) * 0x1p-32f; }

    /// A voice in the middle of a note, with anything in its buffers and filter.
    void Play(int c, int v)
    {
        ChannelVoice& voice = *channels[c]->voices[v];
        voice.active = true;
        voice.resonance = Value();
        for (auto& side : voice.filterState)
            for (float& stage : side) stage = Value() - 0.5f;
        for (int n = 0; n < kMaxRun; ++n) {
            voice.left[n] = 4 * Value() - 2;
            voice.right[n] = 4 * Value() - 2;
            voice.cutoffFrames[n] = 1.4f * Value() - 0.2f; // beyond both ends as well
            voice.gainFrames[n] = 100 * Value();
        }
    }
};

std::vector<float> StateOf(const ChannelVoice& voice) { return {voice.filterState[0], voice.filterState[0] + 8}; }

/// The filter as it reads: one signal, one frame, one pass after the other.
void FilterPlainly(ChannelVoice& voice, int type, const CutoffPair* table, float* left, float* right, int frames)
{
    for (int side = 0; side < 2; ++side) {
        float* s = voice.filterState[side];
        for (int n = 0; n < frames; ++n) {
            int i = Truncate(voice.cutoffFrames[n] * 65536.0f);
            i = i < 0 ? 0 : i > 65535 ? 65535 : i;
            const float x = side ? voice.right[n] : voice.left[n], g = table[i].g, k = table[i].k;
            float u = 0;
            for (int pass = 0; pass < 4; ++pass) {
                u = x - s[3] * k * voice.resonance;
                u = u / (1.0f + 0.04f * (u * u));
                s[0] += (u - s[0]) * g;
                s[1] += (s[0] - s[1]) * g;
                s[2] += (s[1] - s[2]) * g;
                s[3] += (s[2] - s[3]) * g;
            }
            (side ? right : left)[n] += (type == 0 ? s[3] : type == 1 ? s[2] - s[3] : u - s[3]) * voice.gainFrames[n];
        }
    }
}

TEST(ChannelFilter, VectorsGiveTheBitsOfThePlainForm)
{
    std::vector<int> lengths = {31, 32, 33, 128, 512};
    for (int n = 0; n <= 17; ++n) lengths.push_back(n);
    for (int voices : {1, 2, 3, 5, 8, 11, 12, 13, 24, 27, 78}) {
        Mixer mixer;
        for (int v = 0; v < voices; ++v) mixer.Play(v * 5 % kChannels, v / kChannels);
        for (int c = 0; c < kChannels; ++c) mixer.channels[c]->filterType = c % 3;
        for (int frames : lengths) {
            std::vector<float> mixes[kChannels][2];
            std::vector<std::vector<float>> states;
            for (int c = 0; c < kChannels; ++c) {
                for (auto& mix : mixes[c]) mix.assign(kMaxRun, 0.25f);
                for (int n = 0; n < kMaxRun; ++n)
                    mixer.pool->ChannelLeft(c)[n] = mixer.pool->ChannelRight(c)[n] = 0.25f;
                for (auto& voice : mixer.channels[c]->voices) {
                    if (!voice->active) continue;
                    ChannelVoice plain = *voice;
                    auto& [left, right] = mixes[c];
                    FilterPlainly(plain, c % 3, mixer.pool->engineTable, left.data(), right.data(), frames);
                    states.push_back(StateOf(plain));
                }
            }
            FilterVoices(mixer.channels, *mixer.pool, frames);
            auto state = states.begin();
            for (int c = 0; c < kChannels; ++c) {
                const float* left = mixer.pool->ChannelLeft(c);
                const float* right = mixer.pool->ChannelRight(c);
                ASSERT_EQ(std::vector<float>(left, left + kMaxRun), mixes[c][0]) << voices << " voices, " << frames;
                ASSERT_EQ(std::vector<float>(right, right + kMaxRun), mixes[c][1]) << voices << " voices, " << frames;
                for (auto& voice : mixer.channels[c]->voices)
                    if (voice->active) { ASSERT_EQ(StateOf(*voice), *state++); }
            }
        }
    }
}

} // namespace
} // namespace korvane
