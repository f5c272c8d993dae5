// Sample layers: what reaches the voice's buffers, and when a voice is over.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "engine/LayerFilters.h"
#include "engine/SamplerVoice.h"
#include "voices/VoiceRig.h"

namespace korvane {
namespace {

constexpr double kScale = 0.005, kPi = 3.14159265358979;

struct PlainSection {
    double corner, q, sign; // sign −1 low-cut, 1 high-cut
    double x1 = 0, x2 = 0, y1 = 0, y2 = 0;

    double Step(double x)
    {
        const double w = 2 * kPi * corner / VoiceRig::kRate, c = std::cos(w), s = std::sin(w);
        const double b0 = (1 - sign * c) / (2 + s / q), a1 = -2 * q * c / (q + s), a2 = (q - s) / (q + s);
        const double y = b0 * (x + sign * 2 * x1 + x2) - a1 * y1 - a2 * y2;
        x2 = x1, x1 = x, y2 = y1, y1 = y;
        return y;
    }
};

/// A layer as its description reads, frame by frame, in double.
struct PlainLayer {
    double start = 0, increment = 1, gainLeft = 0.5, gainRight = 0.5;
    int delay = 0, hold = 0;
    bool reverse = false;
    double attackRate = 0.2, decayRate = 0;
    double loCut = 16, hiCut = 20171.07, q = 0.99;

    std::array<std::vector<double>, 2> Run(const CWaveSample& sample, int frames) const
    {
        std::array<std::vector<double>, 2> out;
        for (int side = 0; side < 2; ++side) {
            PlainSection lo{loCut, q, -1}, hi{hiCut, q, 1};
            const float* data = sample.channelData[sample.numChannels == 2 ? side : 0].get();
            double position = start, level = 0, target = 5, rate = attackRate;
            int held = hold;
            for (int n = 0; n < frames; ++n) {
                out[side].push_back(0);
                if (n < delay || position >= sample.numFrames) continue;
                int i = static_cast<int>(position);
                double f = position - i;
                if (reverse) f = 1 - f, i = sample.numFrames - i;
                position += increment;
                level += (target - level) * rate;
                if (level > 1 && held-- > 0)
                    level = 1.00001;
                else if (level > 1)
                    level = 1, target = 0, rate = decayRate;
                const double x = (data[i] * (1 - f) + data[i + 1] * f) * (side ? gainRight : gainLeft);
                out[side].back() = hi.Step(lo.Step(x)) * level * level * kScale;
            }
        }
        return out;
    }
};

float Wobble(int c, int i) { return std::sin(0.02f * static_cast<float>(i + 40 * c)); }

TEST(SamplerVoice, PlaysALayerAsItIsSet)
{
    // clang-format off
    struct Case { const char* what; int channels; std::vector<VoiceRig::Value> values; PlainLayer plain; };
    const Case cases[] = {
        {"as it is",         1, {}, {}},
        {"stereo",           2, {}, {}},
        {"four octaves up",  1, {{slot::LayerPitch, 1.0f}}, {.increment = 16}},
        {"two octaves down", 2, {{slot::LayerPitch, 0.0f}}, {.increment = 0.25}},
        {"channel up in whole semitones", 1, {{slot::Pitch, 0.5f + 7.9f / 48}}, {.increment = 1.4983070769}},
        {"from the middle",  1, {{slot::LayerStart, 0.5f}}, {.start = 500}},
        {"backwards",        2, {{slot::LayerReverse, 1.0f}, {slot::LayerStart, 0.25f}}, {.start = 250, .reverse = true}},
        {"backwards between frames", 1, {{slot::LayerReverse, 1.0f}, {slot::LayerPitch, 0.25f}},
                                        {.increment = 0.7071067812, .reverse = true}},
        {"late",             1, {{slot::LayerDelay, 0.25f}}, {.delay = 43}},
        {"left, half level", 1, {{slot::LayerPan, 0}, {slot::LayerLevel, 0.25f}}, {.gainLeft = 0.25, .gainRight = 0}},
        {"upside down",      1, {{slot::LayerInvert, 1.0f}}, {.gainLeft = -0.5, .gainRight = -0.5}},
        {"filters",          2, {{slot::LayerLoCut, 0.5f}, {slot::LayerHiCut, 0.5f}, {slot::LayerBandwidth, 0.5f}},
                                {.loCut = 512, .hiCut = 2272.44, .q = 2.99}},
        {"attack, hold and decay", 1, {{slot::LayerAttack, 0.05f}, {slot::LayerHold, 0.05f}, {slot::LayerDecay, 0.1f}},
                                {.hold = 110, .attackRate = 8.82 / (0.03225 * 44100), .decayRate = 8.82 / (0.006 * 44100)}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        VoiceRig rig(true);
        rig.Set(c.values);
        const CWaveSample& sample = rig.GiveSample(0, 1000, c.channels, Wobble);
        const auto expected = c.plain.Run(sample, 500);
        rig.channel.NoteOn(48, 0, 1.0f);
        ChannelVoice& voice = rig.Last();
        for (int from = 0; from < 500; from += 25) { // runs of 25 frames: the state carries over
            TuneLayers(rig.channel, voice);
            RenderLayers(rig.channel, voice, 25);
            for (int n = 0; n < 25; ++n) {
                ASSERT_NEAR(voice.left[n], expected[0][from + n], 4e-3 * kScale) << from + n;
                ASSERT_NEAR(voice.right[n], expected[1][from + n], 4e-3 * kScale) << from + n;
            }
        }
    }
}

// The low-cut and the high-cut share a vector one frame apart; each must come out as if it ran alone.
TEST(SamplerVoice, FiltersAsOneSectionAfterTheOther)
{
    for (int frames : {0, 1, 2, 3, 4, 5, 7, 8, 11, 16, 17, 128}) {
        LayerFilters filters = {};
        Section<float> sections[4];
        for (int lane = 0; lane < 4; ++lane) {
            filters.b0[lane] = lane < 2 ? 0.7f : 0.2f;
            filters.a1[lane] = lane < 2 ? -1.2f : -0.9f;
            filters.a2[lane] = lane < 2 ? 0.45f : 0.3f;
            sections[lane] = {
                filters.b0[lane], filters.a1[lane], filters.a2[lane], lane < 2 ? -2.0f : 2.0f, 0.0f, 0.0f, 0.0f, 0.0f};
        }
        for (int run = 0; run < 3; ++run) {
            std::vector<float> stereo, expected;
            for (int i = 0; i < 2 * frames; ++i) {
                stereo.push_back(i % 11 == 0 ? 1e-10f : std::sin(0.7f * static_cast<float>(i + run)));
                expected.push_back(sections[2 + i % 2].Step(sections[i % 2].Step(stereo.back())));
            }
            FilterLayer(filters, stereo.data(), frames);
            ASSERT_EQ(stereo, expected) << frames << " frames, run " << run;
        }
        for (int lane = 0; lane < 4; ++lane) EXPECT_EQ(filters.y2[lane], sections[lane].y2) << frames;
    }
}

TEST(SamplerVoice, EndsWhenNoLayerCanPlay)
{
    const float wild = 1e30f;
    // clang-format off
    struct Case { const char* what; int frames; std::vector<VoiceRig::Value> values; bool plays; }; // -1: no sample
    const Case cases[] = {
        {"a sample",                    100, {}, true},
        {"no sample",                    -1, {}, false},
        {"a sample without frames",       0, {}, false},
        {"bypassed",                    100, {{slot::LayerBypass, 0.5f}}, false},
        {"still waiting",                10, {{slot::LayerDelay, 1.0f}},  true},
        {"starts at the end",           100, {{slot::LayerStart, 1.0f}},  false},
        {"starts far beyond",           100, {{slot::LayerStart, wild}},  false},
        {"runs far beyond at once",     100, {{slot::Pitch, wild}},       false},
        {"goes backwards from the end", 100, {{slot::LayerReverse, 1.0f}, {slot::LayerPitch, 1.0f}}, true},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        VoiceRig rig(true);
        rig.Set(c.values);
        if (c.frames >= 0) rig.GiveSample(0, c.frames, 1, Wobble);
        rig.channel.NoteOn(48, 0, 1.0f);
        rig.channel.Render(3, VoiceRig::kTempo);
        rig.channel.Render(0, VoiceRig::kTempo);
        EXPECT_EQ(rig.Last().active, c.plays);
        EXPECT_EQ(rig.channel.soundedThisBlock, c.plays);
        rig.Render(12000, 512);
        EXPECT_FALSE(rig.channel.soundedThisBlock && c.frames <= 100 && rig.Last().layers[0].position < c.frames);
        EXPECT_FALSE(rig.Last().active);
        EXPECT_EQ(rig.Last().gain, -1.0f);
    }
}

} // namespace
} // namespace korvane
