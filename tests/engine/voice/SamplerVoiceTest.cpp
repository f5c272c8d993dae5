// Sample layers: what reaches the voice's buffers, and when a voice is over.
#include <gtest/gtest.h>

#include "engine/voice/SamplerVoice.h"
#include "engine/voice/VoiceRig.h"

namespace korvane {
namespace {

// Left and right at three frames, by a model in double that was written from the rules.
TEST(SamplerVoice, PlaysALayerAsItIsSet)
{
    using namespace slot;
    constexpr int kFrames[] = {60, 300, 480};
    // clang-format off
    const struct { const char* what; int channels; VoiceRig::Values values; double expected[3][2]; } cases[] = {
        {"as it is",  1, {}, {{0.4448, 0.4448}, {-0.0720, -0.0720}, {-0.2341, -0.2341}}},
        {"stereo",    2, {}, {{0.4448, 0.3792}, {-0.0720, 0.3509}, {-0.2341, -0.5246}}},
        {"far up",    1, {{LayerPitch, 1}}, {{0.1699, 0.1699}, {0, 0}, {0, 0}}},
        {"far down",  2, {{LayerPitch, 0}}, {{0.1436, 0.3846}, {0.2227, -0.0112}, {-0.0929, -0.3574}}},
        {"semitones", 1, {{Pitch, 0.5f + 7.9f / 48}}, {{0.4484, 0.4484}, {0.1290, 0.1290}, {0.5007, 0.5007}}},
        {"halfway",   1, {{LayerStart, 0.5f}}, {{-0.4258, -0.4258}, {-0.2438, -0.2438}, {0.4705, 0.4705}}},
        {"backwards", 2, {{LayerReverse, 1}, {LayerStart, 0.25f}},
            {{0.4049, 0.4313}, {0.2994, -0.1341}, {-0.5008, -0.1763}}},
        {"slowly",    1, {{LayerReverse, 1}, {LayerPitch, 0.25f}},
            {{0.0918, 0.0918}, {0.1738, 0.1738}, {0.2025, 0.2025}}},
        {"late",      1, {{LayerDelay, 0.25f}}, {{0.1781, 0.1781}, {-0.4866, -0.4866}, {0.2218, 0.2218}}},
        {"left",      1, {{LayerPan, 0}, {LayerLevel, 0.25f}}, {{0.2224, 0}, {-0.0360, 0}, {-0.1171, 0}}},
        {"right",     1, {{LayerPan, 0.75f}, {LayerLevel, 0.7f}},
            {{0.4359, 1.3078}, {-0.0706, -0.2118}, {-0.2294, -0.6883}}},
        {"inverted",  1, {{LayerInvert, 1}}, {{-0.4448, -0.4448}, {0.0720, 0.0720}, {0.2341, 0.2341}}},
        {"filters",   2, {{LayerLoCut, 0.5f}, {LayerHiCut, 0.5f}, {LayerBandwidth, 0.5f}},
            {{-0.0649, -0.1032}, {0.0212, -0.0118}, {-0.0026, 0.0286}}},
        {"sharper",   1, {{LayerLoCut, 0.3f}, {LayerHiCut, 0.1f}, {LayerBandwidth, 0.8f}},
            {{0.4310, 0.4310}, {0.9824, 0.9824}, {-1.6475, -1.6475}}},
        {"envelope",  1, {{LayerAttack, 0.05f}, {LayerHold, 0.05f}, {LayerDecay, 0.1f}},
            {{0.4449, 0.4449}, {0, 0}, {0, 0}}},
    };
    // clang-format on
    for (int layer = 0; layer < kLayers; ++layer)
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << c.what << ", layer " << layer);
            VoiceRig rig(true);
            for (const auto& [base, value] : c.values) rig.Set({{base == slot::Pitch ? base : base + layer, value}});
            rig.GiveSample(layer, 1000, c.channels, Wobble);
            rig.channel.NoteOn(48, 0, 1.0f);
            const Sound sound = rig.Play(500);
            for (int n = 0; n < 3; ++n) {
                EXPECT_NEAR(sound.left[kFrames[n]] / 0.005, c.expected[n][0], 2e-3) << kFrames[n];
                EXPECT_NEAR(sound.right[kFrames[n]] / 0.005, c.expected[n][1], 2e-3) << kFrames[n];
            }
        }
}

TEST(SamplerVoice, EndsWhenNoLayerCanPlay)
{
    // clang-format off
    const struct { const char* what; int frames; VoiceRig::Values values; bool plays; } cases[] = { // -1: no sample
        {"a sample", 100, {}, true}, {"no sample", -1, {}, false}, {"a sample without frames", 0, {}, false},
        {"bypassed", 100, {{slot::LayerBypass, 0.5f}}, false}, {"still waiting", 10, {{slot::LayerDelay, 1.0f}}, true},
        {"starts at end", 100, {{slot::LayerStart, 1.0f}}, false}, {"far off", 100, {{slot::LayerStart, 1e30f}}, false},
        {"runs far beyond at once",     100, {{slot::Pitch, 1e30f}}, false},
        {"goes backwards from the end", 100, {{slot::LayerReverse, 1.0f}, {slot::LayerPitch, 1.0f}}, true},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        VoiceRig rig(true);
        rig.Set(c.values);
        if (c.frames >= 0) rig.GiveSample(0, c.frames, 1, Wobble);
        rig.channel.NoteOn(48, 0, 1.0f);
        RenderAlone(rig.channel, 3, VoiceRig::kTempo);
        RenderAlone(rig.channel, 0, VoiceRig::kTempo);
        EXPECT_EQ(rig.Last().active, c.plays);
        EXPECT_EQ(rig.channel.soundedThisBlock, c.plays);
        rig.Render(12000, 512);
        EXPECT_FALSE(rig.Last().active);
        EXPECT_EQ(rig.Last().gain, -1.0f);
    }
}

} // namespace
} // namespace korvane
