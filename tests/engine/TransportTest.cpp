// The transport as it is heard: host and buttons, step times, note lengths, locks, and effects that follow the steps.
#include <gtest/gtest.h>

#include <limits>

#include "support/Stage.h"

namespace korvane {
namespace {

class Transport : public StageTest {
protected:
    void StartAt(double position)
    {
        Synth().SetPlaying(false);
        Synth().Reset();
        Synth().songPosition = position;
        Synth().SetPlaying(true);
    }
};

TEST_F(Transport, FollowsHostAndButtons)
{
    enum Says { Nothing, Start, Stop };
    const Writes play{{param::Play, 1.0f}}, recordWhilePlaying{{param::Play, 1.0f}, {param::Record, 1.0f}},
        recordFromStandstill{{param::Record, 1.0f}, {param::Play, 1.0f}};
    // clang-format off
    struct Case { const char* what; Writes before; Says host; Writes after; float plays, records; bool heard; };
    const Case cases[] = {
        {"start",               {},                      Start, {}, 1, 0, true},  {"stop",       play, Stop,  {}, 0, 0, false},
        {"stop twice",          {},                      Stop,  {}, 0, 0, false}, {"restart",    play, Start, {}, 1, 0, true},
        {"armed, then started", {{param::Record, 1.0f}}, Start, {}, 1, 1, false},
        {"armed, then stopped", {{param::Record, 1.0f}}, Stop,  {}, 0, 1, false},
        {"recording, stop",     recordWhilePlaying,      Stop,  {}, 0, 0, false},
        {"recording, restart",  recordWhilePlaying,      Start, {}, 1, 0, true},
        {"counting in, stop",   recordFromStandstill,    Stop,  {}, 0, 0, false},
        {"record off",          recordWhilePlaying,      Nothing, {{param::Record, 0.0f}},       1, 0, true},
        {"from standstill",     recordFromStandstill,    Nothing, {{param::Record, 0.0f}},       0, 0, false},
        {"the stop button",     recordFromStandstill,    Nothing, {{param::Play, 0.0f}},         0, 0, false},
        {"edit mode",           recordWhilePlaying,      Nothing, {{param::Edit, 1.0f}},         1, 0, true},
        {"another pattern",     recordWhilePlaying,      Nothing, {{param::Pattern1 + 1, 1.0f}}, 1, 0, true},
    };
    // clang-format on
    PutStep(8, 0);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Press(param::Pattern1);
        Set(c.before);
        Play(64);
        if (c.host != Nothing) Synth().SetPlaying(c.host == Start);
        Set(c.after);
        EXPECT_EQ(Synth().GetParameter(param::Play), c.plays);
        EXPECT_EQ(Synth().GetParameter(param::Record), c.records);
        Play(3 * kStep);
        EXPECT_EQ(std::fabs(Left(8).back()) > 1e-4f, c.heard);
        Set({{param::Edit, 0.0f}, {param::Record, 0.0f}, {param::Play, 0.0f}});
        Synth().Reset();
    }
}

// A start lands on the host's position; a step already begun is left to the next one. Shuffle delays odd steps by up
// to half a step, heard with the block that follows.
TEST_F(Transport, StepsComeInTime)
{
    constexpr int kBlock = 50;
    const int enable = Knob(slot::ShuffleEnable);
    // clang-format off
    struct Case { const char* what; double position; int step; Writes writes; int frame; };
    const Case cases[] = {
        {"the first",                 0.0,   0,  {},                                             0},
        {"the second",                0.0,   1,  {},                                             kStep},
        {"on a step of the song",     2.5,   10, {},                                             0},
        {"inside a step",             2.625, 11, {},                                             3000},
        {"less than a hundredth in",  2.502, 10, {},                                             0},
        {"the pattern begins anew",   4.25,  1,  {},                                             0},
        {"before zero",               -3.0,  0,  {},                                             0},
        {"far away",                  1.0e9 + 0.25, 1, {},                                       0},
        {"nowhere",                   std::numeric_limits<double>::quiet_NaN(), 0, {},           0},
        {"shuffle, not on this one",  0.0,   1,  {{param::ShuffleAmount, 1.0f}},                 kStep},
        {"all shuffle",               0.0,   1,  {{enable, 1.0f}},                               9000},
        {"which is for odd steps",    0.0,   2,  {},                                             2 * kStep},
        {"half the shuffle",          0.0,   1,  {{param::ShuffleAmount, 0.5f}},                 7500},
        {"beyond its end",            0.0,   1,  {{param::ShuffleAmount, 7.0f}},                 9000},
        {"straight in a recording",   0.0,   1,  {{param::Record, 1.0f}},                        17 * kStep},
        {"no shuffle",                0.0,   1,  {{param::ShuffleAmount, 0.0f}},                 kStep},
        {"the bar that is looped",    4.25,  33, {{param::Forward, 1.0f}, {param::Forward, 0.0f},
                                                  {param::Forward, 1.0f}, {param::PlayBar, 1.0f}}, 0},
    };
    // clang-format on
    for (const Case& c : cases) {
        Engine().Pattern().Clear();
        PutStep(8, c.step);
        Synth().SetPlaying(false);
        Set(c.writes);
        StartAt(c.position);
        Play(c.frame + 2 * kBlock, kBlock);
        EXPECT_GE(Onset(Left(8)), c.frame) << c.what;
        EXPECT_LE(Onset(Left(8)), c.frame + (c.frame % kStep ? kBlock : 0)) << c.what;
    }
}

// A lock holds from its step to the channel's next one, and no longer than the sequencer plays. Shuffle plays nothing
// twice.
TEST_F(Transport, LocksEndWithTheNextStep)
{
    Set({{param::ShuffleAmount, 0.5f}, {Knob(slot::ShuffleEnable), 1.0f}});
    for (const int step : {0, 2, 4}) PutStep(8, step);
    for (const int step : {0, 4}) Engine().Pattern().locks[8][step].Set(slot::Panning, -0.5f);
    const auto rightShare = [this] { return Right(8).back() / (Left(8).back() + Right(8).back()); };
    StartAt(0.0);
    for (const float share : {0.0f, 0.0f, 0.5f, 0.5f, 0.0f}) {
        Play(kStep);
        EXPECT_NEAR(rightShare(), share, 0.001f);
    }
    EXPECT_EQ(Engine().Channel(8).voiceCounter, 3u);
    Set(Knob(slot::Panning), 1.0f);
    Play(1500);
    EXPECT_NEAR(rightShare(), 0.5f, 0.001f) << "the knob moves what the lock is an offset to";
    Set(param::Play, 0.0f);
    Queue(0x90, kAnyKey, 127);
    Play(1500);
    EXPECT_NEAR(rightShare(), 1.0f, 0.001f);
}

/// The sound comes again after `slice` frames, or one frame later, where the slice's phase may end.
bool Repeats(const std::vector<float>& sound, std::size_t slice)
{
    for (std::size_t at : {slice, slice + 1}) {
        double wrong = 0.0, all = 0.0;
        for (std::size_t n = 300; n + 300 < slice; ++n) {
            wrong += std::fabs(static_cast<double>(sound[at + n] - sound[n]));
            all += std::fabs(static_cast<double>(sound[n]));
        }
        if (wrong < 0.01 * all) return true;
    }
    return false;
}

// A stutter button takes the selected channel's sound from the next step on.
TEST_F(Transport, StutterButtonsLoopFromTheNextStep)
{
    // clang-format off
    struct Case { const char* what; Writes presses; std::size_t frames; };
    const Case cases[] = {
        {"1/1",                   {{param::Stutter1_1, 1.0f}},                                 24000},
        {"3/4",                   {{param::Stutter3_4, 1.0f}},                                 18000},
        {"1/2",                   {{param::Stutter1_2, 1.0f}},                                 12000},
        {"3/8",                   {{param::Stutter3_8, 1.0f}},                                 9000},
        {"1/4",                   {{param::Stutter1_4, 1.0f}},                                 6000},
        {"3/8 and 1/4 are 1/8",   {{param::Stutter3_8, 1.0f}, {param::Stutter1_4, 1.0f}},      3000},
        {"let go before",         {{param::Stutter1_4, 1.0f}, {param::Stutter1_4, 0.0f}},      0},
        {"on a channel without",  {{Knob(slot::FxBypassStutter), 1.0f}, {param::Stutter1_4, 1.0f}}, 0},
    };
    // clang-format on
    for (const int c : {9, 8}) {
        Select(c);
        Set(Knob(slot::NoiseMix), 1.0f);
        PutStep(c, 0);
    }
    for (const Case& c : cases) {
        StartAt(0.0);
        Play(kStep - 100);
        Set(c.presses);
        Play(100);
        Play(52000);
        std::size_t shortest = 0;
        for (const std::size_t frames : {24000u, 18000u, 12000u, 9000u, 6000u, 3000u})
            if (Repeats(Left(8), frames)) shortest = frames;
        EXPECT_EQ(shortest, c.frames) << c.what;
        EXPECT_FALSE(Repeats(Left(9), 6000)) << "not selected";
        for (const auto& [parameter, value] : c.presses) Set(parameter, 0.0f);
    }
}

// An effect's LFO stands where the song stands, whatever went before.
TEST_F(Transport, EffectLfosFollowTheSong)
{
    constexpr int kPanner = 8;
    Press(param::Fx1 + kPanner);
    Set({{Knob(slot::FxGlue), 1.0f}, {Knob(slot::FxLfoAmount), 1.0f}, {Knob(slot::FxLfoRate), 0.8f}}); // four beats
    PutStep(9, 0);
    const auto after = [this](int idle, double position) {
        StartAt(position);
        Set(param::Play, 0.0f);
        Queue(0xB0, 123, 0);
        Queue(0x90, kAnyKey, 127);
        Play(idle);
        Set(param::Play, 1.0f);
        Play(kStep);
        return Left(8).back();
    };
    const float first = after(1000, 0.0);
    EXPECT_NEAR(after(40000, 0.0) / first, 1.0f, 0.01f);
    EXPECT_NEAR(after(40000, 8.0) / first, 1.0f, 0.01f) << "two periods on";
    EXPECT_GT(std::fabs(after(40000, 1.0) / first - 1.0f), 0.1f) << "a quarter of a period on";
}

// A press belongs to the nearer step, of the channel that it plays.
TEST_F(Transport, RecordsOnTheNearerStep)
{
    constexpr int kShort = 1500, kCountIn = 16 * kShort; // frames, at 480 beats per minute
    // clang-format off
    struct Case { const char* what; bool standstill; int selected, frame, button, channel, step; std::uint32_t word; };
    const Case cases[] = {
        {"first half",            false, 8, 700,                            7,  8, 0,  1u << 7},
        {"second half",           false, 8, 800,                            7,  8, 1,  1u << 7},
        {"the pattern's end",     false, 8, 15 * kShort + 800,              7,  8, 0,  1u << 7},
        {"a bar button",          false, 9, 100,                            20, 9, 0,  1u << 20},
        {"a sampler's pad",       false, 0, 2 * kShort + 100,               14, 1, 2,  1u << 2},
        {"a pad of nobody",       false, 3, 800,                            13, 3, 1,  1u << 1},
        {"in the count-in",       true,  8, 8 * kShort + 800,               7,  8, 0,  1u << 7},
        {"a second bar",          true,  8, kCountIn + 16 * kShort + 100,   7,  8, 16, 1u << 7},
    };
    // clang-format on
    Synth().SetTempo(480.0);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Engine().Pattern().Clear();
        Select(c.selected);
        if (c.standstill) Set(param::Record, 1.0f);
        StartAt(0.0);
        if (!c.standstill) Set(param::Record, 1.0f);
        Play(c.frame);
        Press(param::Step1 + c.button);
        for (int n = 0; n < kChannels; ++n)
            for (int step = 0; step < kSteps; ++step)
                ASSERT_EQ(Engine().Pattern().steps[n][step], n == c.channel && step == c.step ? c.word : 0u)
                    << "channel " << n << ", step " << step;
        Set({{param::Record, 0.0f}, {param::Play, 0.0f}});
    }
}

} // namespace
} // namespace korvane
