// The mixer strips, the outputs they reach, the meters, and the metronome.
#include <gtest/gtest.h>

#include <limits>
#include <numeric>

#include "support/Stage.h"

namespace korvane {
namespace {

class Mixer : public StageTest {
protected:
    /// Every channel holds a note of the sequencer.
    void PlayAll()
    {
        for (int c = 0; c < kChannels; ++c) PutStep(c, 0);
        Synth().SetPlaying(true);
        Play(4000);
        Play(48);
    }
};

// Level spans 80 dB, pan is linear; main pair, direct pair and meters have the same of it.
TEST_F(Mixer, StripsShapeWhatIsHeard)
{
    // clang-format off
    struct Case { const char* what; float level, pan, left, right; };
    const Case cases[] = {
        {"to the right", 0.75f, 0.75f, 0.25f, 0.75f}, {"left",            0.75f, 0.0f, 1.0f,    0.0f},
        {"right",        0.75f, 1.0f,  0.0f,  1.0f},  {"beyond the edge", 0.75f, 2.0f, 0.0f,    1.0f},
        {"20 dB more",   1.0f,  0.5f,  5.0f,  5.0f},  {"60 dB less",      0.0f,  0.5f, 0.0005f, 0.0005f},
        {"20 dB less",   0.5f,  0.0f,  0.1f,  0.0f},  {"as it starts",    0.75f, 0.5f, 0.5f,    0.5f},
    };
    // clang-format on
    PlayAll();
    for (const int c : {3, 8}) {
        GrooveChannel& channel = Engine().Channel(c);
        const float source = 2.0f * Peak(Left(c)), neighbour = Peak(Left(c + 1));
        Select(c);
        for (const Case& row : cases) {
            SCOPED_TRACE(std::string(row.what) + ", channel " + std::to_string(c));
            Set({{ParamOf(slot::MixLevel), row.level}, {ParamOf(slot::Panning), row.pan}});
            Play(1500);
            channel.strip.peakLeft = channel.strip.peakRight = 0.0f;
            Play(64);
            EXPECT_NEAR(Peak(Left(c)) / source, row.left, 0.0002f + 0.001f * row.left);
            EXPECT_NEAR(Peak(Right(c)) / source, row.right, 0.0002f + 0.001f * row.right);
            EXPECT_NEAR(Peak(Left(c + 1)) / neighbour, 1.0f, 0.001f);
            EXPECT_EQ(channel.strip.peakLeft, Peak(Left(c)));
            EXPECT_EQ(channel.strip.peakRight, Peak(Right(c)));
            for (const std::size_t side : {0u, 1u}) {
                float sum = 0.0f;
                for (std::size_t n = 2 + side; n < out.size(); n += 2) sum += out[n].back();
                EXPECT_EQ(out[side].back(), sum);
            }
        }
    }
}

// A gain moves by a hundredth of its way per frame, half of it in 69; that of a silent channel is there at once.
TEST_F(Mixer, GainsMoveSmoothlyWhileTheyAreHeard)
{
    PlayAll();
    const float before = Left(8).back();
    Set(ParamOf(slot::Panning), 1.0f);
    Play(69);
    EXPECT_NEAR(Left(8).back() / before, 0.5f, 0.005f);
    EXPECT_NEAR(Right(8).back() / before, 1.5f, 0.005f);
    EXPECT_GE(Engine().Channel(8).strip.peakLeft, before) << "the meter keeps the loudest until it is read";
    Synth().Reset();
    Play(64);
    Set(ParamOf(slot::Panning), 0.0f);
    Play(64);
    Queue(0x90, kAnyKey, 127);
    Play(64);
    EXPECT_LT(Peak(Right(8)), 0.001f * Peak(Left(8)));
}

// Notes of the sequencer fall silent; mute flags outlast a solo.
TEST_F(Mixer, MuteAndSolo)
{
    // clang-format off
    struct Case { const char* what; Writes writes; const char* heard; };
    const Case cases[] = {
        {"nothing",                   {},                                                         "#############"},
        {"one muted",                 {{param::Enable1 + 3, 0.0f}},                               "###.#########"},
        {"another one",               {{param::Enable1 + 3, 1.0f}, {param::Enable1 + 12, 0.0f}},  "############."},
        {"solo",                      {{param::Solo, 1.0f}},                                      "........#...."},
        {"solo of the selected",      {{param::Channel1 + 2, 1.0f}, {param::Channel1 + 2, 0.0f}}, "..#.........."},
        {"which is muted",            {{param::Enable1 + 2, 0.0f}},                               "............."},
        {"solo off",                  {{param::Solo, 0.0f}},                                      "##.#########."},
        {"by the modifier",           {{param::MuteSelected, 1.0f}, {param::MuteSelected, 0.0f}}, "############."},
        {"held ones by the modifier", {{param::Channel1, 1.0f}, {param::MuteSelected, 1.0f},
                                       {param::MuteSelected, 0.0f}, {param::Channel1, 0.0f}},     ".###########."},
        {"which selects none",        {{param::Solo, 1.0f}},                                      "..#.........."},
    };
    // clang-format on
    PlayAll();
    for (const Case& c : cases) {
        Set(c.writes);
        Play(2500);
        Play(64);
        std::string heard;
        for (int n = 0; n < kChannels; ++n) heard += Peak(Left(n)) > 0.001f ? '#' : '.';
        EXPECT_EQ(heard, c.heard) << c.what;
    }
}

// The main pair is written anew in either mode; a direct pair only while its channel sounds.
TEST_F(Mixer, WritesWhereItSounds)
{
    PutStep(8, 0);
    Synth().SetPlaying(true);
    Play(4000);
    for (const bool replacing : {true, false}) {
        Play(64, 64, replacing, 0.5f);
        EXPECT_EQ(out[0], Left(8));
        EXPECT_EQ(out[1], Right(8));
        EXPECT_EQ(Left(3).back(), replacing ? 0.0f : 0.5f);
    }
}

// Whatever an image holds, what renders is bounded and what is heard is finite.
TEST_F(Mixer, WildImagesStayFinite)
{
    std::vector<int> all(kChannelSlots);
    std::iota(all.begin(), all.end(), 0);
    const std::pair<std::vector<int>, float> images[] = {
        {all, std::numeric_limits<float>::quiet_NaN()},
        {all, std::numeric_limits<float>::infinity()},
        {all, -1.0e30f},
        {{slot::LfoAmount, slot::NoiseMix, slot::AmpLevel, slot::MixLevel}, 1.0e9f}}; // each finite, a product not
    for (const auto& [settings, value] : images) {
        for (const int setting : {slot::NoiseMix, slot::LfoDestination}) Engine().storedParams[8][setting] = 1.0f;
        for (const int setting : settings) Engine().storedParams[8][setting] = value;
        Engine().RefreshChannel(8);
        for (const float rendered : Engine().Channel(8).sound.params) ASSERT_LE(std::fabs(rendered), 1000.0f) << value;
        Engine().NoteOn(8, 60, 1.0f);
        Play(8192);
        for (const auto& output : out)
            for (const float sample : output) ASSERT_TRUE(std::isfinite(sample)) << value;
        Engine().ResetSelectedChannel();
    }
}

// It counts one bar in, wherever the song stands, and goes on while that recording lasts: a bar's click is an octave
// above a beat's. A reset ends it.
TEST_F(Mixer, MetronomeClicksOnBeats)
{
    Synth().SetSampleRate(2 * kRate);
    Set(param::Record, 1.0f);
    Synth().songPosition = 2.625;
    Synth().SetPlaying(true);
    std::string clicks;
    for (int step = 0; step < 36; ++step) {
        Play(2 * kStep);
        EXPECT_EQ(out[0], out[1]);
        int waves = 0; // of the first hundredth of a second
        for (std::size_t n = 1; n < 960; ++n) waves += out[0][n] > 0.0f && out[0][n - 1] == 0.0f;
        clicks += ".bB?"[std::min(waves / 4, 3)];
        if (step > 0) continue;
        EXPECT_NEAR(Peak(out[0]), 2.97f, 0.0001f);
        EXPECT_NEAR(Peak({out[0].begin() + 300, out[0].end()}), 0.1456f, 0.001f) << "1 % less per frame";
        EXPECT_EQ(Onset({out[0].begin() + 1200, out[0].end()}), -1);
    }
    EXPECT_EQ(clicks, "B...b...b...b...B...b...b...b...B...");
    Play(100);
    Synth().Reset();
    Play(100);
    EXPECT_EQ(Onset(out[0]), -1);
}

} // namespace
} // namespace korvane
