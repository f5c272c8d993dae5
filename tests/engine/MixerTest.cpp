// The mixer strips, the outputs they reach, the meters, and the metronome.
#include <gtest/gtest.h>

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
        {"as it starts", 0.75f, 0.5f, 0.5f,  0.5f},  {"left",            0.75f, 0.0f, 1.0f,    0.0f},
        {"to the right", 0.75f, 0.75f, 0.25f, 0.75f}, {"right",           0.75f, 1.0f, 0.0f,    1.0f},
        {"20 dB more",   1.0f,  0.5f, 5.0f,  5.0f},  {"60 dB less",      0.0f,  0.5f, 0.0005f, 0.0005f},
        {"20 dB less",   0.5f,  0.0f, 0.1f,  0.0f},  {"beyond the edge", 0.75f, 2.0f, 0.0f,    1.0f},
    };
    // clang-format on
    PlayAll();
    for (const int c : {3, 8}) {
        GrooveChannel& channel = Engine().Channel(c);
        const float source = Peak(Left(c)) + Peak(Right(c)), neighbour = Peak(Left(c + 1));
        Select(c);
        for (const Case& row : cases) {
            SCOPED_TRACE(std::string(row.what) + ", channel " + std::to_string(c));
            Set({{Knob(slot::MixLevel), row.level}, {Knob(slot::Panning), row.pan}});
            Play(1500);
            channel.peakLeft = channel.peakRight = 0.0f;
            Play(64);
            EXPECT_NEAR(Peak(Left(c)) / source, row.left, 0.0002f + 0.001f * row.left);
            EXPECT_NEAR(Peak(Right(c)) / source, row.right, 0.0002f + 0.001f * row.right);
            EXPECT_NEAR(Peak(Left(c + 1)), neighbour, 1e-3f * neighbour);
            EXPECT_EQ(channel.peakLeft, Peak(Left(c)));
            EXPECT_EQ(channel.peakRight, Peak(Right(c)));
        }
        for (const std::size_t side : {0u, 1u}) {
            float sum = 0.0f;
            for (std::size_t n = 2 + side; n < out.size(); n += 2) sum += out[n].back();
            EXPECT_EQ(out[side].back(), sum);
        }
        Set({{Knob(slot::MixLevel), 0.75f}, {Knob(slot::Panning), 0.5f}});
        Play(1500);
        Play(48);
    }
}

// A gain moves by a hundredth of its way per frame, half of it in 69; that of a silent channel is there at once.
TEST_F(Mixer, GainsMoveSmoothlyWhileTheyAreHeard)
{
    PlayAll();
    const float before = Left(8).back();
    Set(Knob(slot::Panning), 1.0f);
    Play(69);
    EXPECT_NEAR(Left(8).back() / before, 0.5f, 0.005f);
    EXPECT_NEAR(Right(8).back() / before, 1.5f, 0.005f);
    Synth().Reset();
    Play(64);
    Set(Knob(slot::Panning), 0.0f);
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
        {"nothing",                   {},                                                        "#############"},
        {"one muted",                 {{param::Enable1 + 3, 0.0f}},                              "###.#########"},
        {"two muted",                 {{param::Enable1 + 12, 0.0f}},                             "###.########."},
        {"one heard again",           {{param::Enable1 + 3, 1.0f}},                              "############."},
        {"solo",                      {{param::Solo, 1.0f}},                                     "........#...."},
        {"solo of the selected",      {{param::Channel1 + 2, 1.0f}, {param::Channel1 + 2, 0.0f}}, "..#.........."},
        {"which is muted",            {{param::Enable1 + 2, 0.0f}},                              "............."},
        {"solo off",                  {{param::Solo, 0.0f}},                                     "##.#########."},
        {"by the modifier",           {{param::MuteSelected, 1.0f}, {param::MuteSelected, 0.0f}}, "############."},
        {"held ones by the modifier", {{param::Channel1, 1.0f}, {param::MuteSelected, 1.0f},
                                       {param::MuteSelected, 0.0f}, {param::Channel1, 0.0f}},    ".###########."},
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
    Select(12);
    Queue(0x90, kAnyKey, 127);
    Play(2500);
    EXPECT_GT(Left(12).back(), 0.001f) << "a mute does not keep a live note";
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

class Metronome : public StageTest {
protected:
    /// The square waves begun in the first hundredth of a second: 5 in a click on a beat, 10 in one on a bar.
    int Waves() const
    {
        int waves = 0;
        for (std::size_t n = 1; n < 480; ++n) waves += out[0][n] > 0.0f && out[0][n - 1] == 0.0f;
        return waves;
    }
};

// It counts one bar in and goes on, until the recording ends.
TEST_F(Metronome, ClicksOnBeatsOfARecordingFromStandstill)
{
    Set({{param::Record, 1.0f}, {param::Play, 1.0f}});
    for (int step = 0; step < 36; ++step) {
        SCOPED_TRACE(step);
        Play(kStep);
        EXPECT_EQ(out[0], out[1]);
        for (int c = 0; c < kChannels; ++c) ASSERT_EQ(Onset(Left(c)), -1);
        if (step % 4 != 0) {
            EXPECT_EQ(Onset(out[0]), -1);
            continue;
        }
        EXPECT_NEAR(Waves(), step % 16 == 0 ? 10 : 5, 1);
        EXPECT_NEAR(Peak(out[0]), 2.97f, step == 0 ? 0.0001f : 1.2f) << "a wave may begin in its silent half";
        const std::vector<float> tail(out[0].begin() + 1200, out[0].end());
        EXPECT_EQ(Onset(tail), -1) << "1 % less per frame";
        EXPECT_GT(Peak({out[0].begin() + 800, out[0].end()}), 0.0f);
    }
    Set(param::Record, 0.0f);
    Play(5 * kStep);
    EXPECT_EQ(Onset(out[0]), -1);
}

TEST_F(Metronome, IsSilentOtherwise)
{
    // clang-format off
    struct Case { const char* what; Writes writes; };
    const Case cases[] = {
        {"playing",                      {{param::Play, 1.0f}}},
        {"record begun while it played", {{param::Play, 1.0f}, {param::Record, 1.0f}}},
        {"armed, but stopped",           {{param::Record, 1.0f}}},
        {"editing",                      {{param::Record, 1.0f}, {param::Play, 1.0f}, {param::Edit, 1.0f}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        Set(c.writes);
        Play(5 * kStep);
        EXPECT_EQ(Onset(out[0]), -1) << c.what;
        Set({{param::Edit, 0.0f}, {param::Record, 0.0f}, {param::Play, 0.0f}});
    }
}

} // namespace
} // namespace korvane
