// The transport as it is heard: host and buttons, step times, note lengths, locks, and effects that follow the steps.
#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include "engine/Transport.h"
#include "support/Stage.h"

namespace korvane {
namespace {

class Transport : public StageTest {
protected:
    void StartAt(double position)
    {
        Synth().Reset();
        Synth().songPosition = position;
        Synth().SetPlaying(true);
    }

    /// On a thread that is not the audio thread.
    template <class Act>
    static void Elsewhere(const Act& act)
    {
        std::thread(act).join();
    }

    /// The transport as it is, and as it is read back.
    std::string States()
    {
        const auto shown = [this](int parameter) { return Synth().GetParameter(parameter) != 0.0f; };
        const Clock& clock = Engine().clock;
        return {clock.playing ? 'p' : '.',      clock.recordMode ? 'r' : '.',     clock.editMode ? 'e' : '.',
                shown(param::Play) ? 'P' : '.', shown(param::Record) ? 'R' : '.', shown(param::Edit) ? 'E' : '.'};
    }
};

// What is left of playing, recording, the pattern's sound and the metronome's, in one letter each.
TEST_F(Transport, FollowsHostAndButtons)
{
    enum Host { Silent, Start, Stop };
    const Writes play{{param::Play, 1.0f}}, arm{{param::Record, 1.0f}},
        overdub{{param::Play, 1.0f}, {param::Record, 1.0f}}, fromStandstill{{param::Record, 1.0f}, {param::Play, 1.0f}};
    // clang-format off
    struct Case { const char* what; Writes before; Host host; Writes after; const char* left; };
    const Case cases[] = {
        {"start",               {},      Start,  {}, "P.S."}, {"stop",       play,    Stop,   {}, "...."},
        {"stop twice",          {},      Stop,   {}, "...."}, {"restart",    play,    Start,  {}, "P.S."},
        {"armed, then started", arm,     Start,  {}, "PR.M"}, {"armed",      arm,     Stop,   {}, ".R.."},
        {"recording, stop",     overdub, Stop,   {}, "...."}, {"to overdub", overdub, Silent, {}, "PRS."},
        {"recording, restart",  overdub, Start,  {}, "P.S."},
        {"recording no more",   overdub, Silent, {{param::Record, 0.0f}}, "P.S."},
        {"edit mode",           overdub, Silent, {{param::Edit, 1.0f}}, "P.S."},
        {"another pattern",     overdub, Silent, {{param::Pattern1 + 1, 1.0f}}, "P.S."},
        {"counting in, stop", fromStandstill, Stop, {}, "...."}, {"counting in", fromStandstill, Silent, {}, "PR.M"},
        {"from standstill",   fromStandstill, Silent, {{param::Record, 0.0f}}, "...."},
        {"the stop button",   fromStandstill, Silent, {{param::Play, 0.0f}}, "...."},
        {"editing",           fromStandstill, Silent, {{param::Edit, 1.0f}}, "P.S."},
    };
    // clang-format on
    PutStep(8, 0);
    for (const Case& c : cases) {
        Press(param::Pattern1);
        Set(c.before);
        Play(64);
        if (c.host != Silent) Synth().SetPlaying(c.host == Start);
        Set(c.after);
        const bool plays = Synth().GetParameter(param::Play) != 0.0f,
                   records = Synth().GetParameter(param::Record) != 0.0f;
        Play(3 * kStep);
        const bool sounds = std::fabs(Left(8).back()) > 1e-4f, clicks = out[0] != Left(8);
        const std::string left{plays ? 'P' : '.', records ? 'R' : '.', sounds ? 'S' : '.', clicks ? 'M' : '.'};
        EXPECT_EQ(left, c.left) << c.what;
        Set({{param::Edit, 0.0f}, {param::Record, 0.0f}, {param::Play, 0.0f}});
        Synth().Reset();
    }
}

// A start, or a restart, lands on the host's position; a step already begun is left to the next one. Shuffle delays odd
// steps by up to half a step, heard with the block that follows.
TEST_F(Transport, StepsComeInTime)
{
    constexpr int kBlock = 50;
    const int enable = ParamOf(slot::ShuffleEnable);
    // clang-format off
    struct Case { const char* what; double position; int step; Writes writes; int frame; };
    const Case cases[] = {
        {"the first",               0.0,   0,  {}, 0},       {"the second",                0.0,      1,  {}, kStep},
        {"on a step of the song",   2.5,   10, {}, 0},       {"less than a hundredth in",  2.502,    10, {}, 0},
        {"inside a step",           2.625, 11, {}, 3000},    {"a sixteenth in",            2.515625, 11, {}, 5625},
        {"late inside a step",      2.6875, 11, {}, 1500},   {"far away",                  1e9 + 0.25, 1, {}, 0},
        {"the pattern begins anew", 4.25,  1,  {}, 0},       {"nowhere",                   std::nan(""), 0, {}, 0},
        {"before zero",             -3.0,  0,  {}, 0},
        {"not for this one",        0.0,   1,  {{param::ShuffleAmount, 1.0f}}, kStep},
        {"all shuffle",             0.0,   1,  {{enable, 1.0f}}, 9000},
        {"which is for odd steps",  0.0,   2,  {}, 2 * kStep},
        {"half the shuffle",        0.0,   1,  {{param::ShuffleAmount, 0.5f}}, 7500},
        {"beyond its end",          0.0,   1,  {{param::ShuffleAmount, 7.0f}}, 9000},
        {"straight in a recording", 0.0,   1,  {{param::Play, 0.0f}, {param::Record, 1.0f}}, 17 * kStep},
        {"no shuffle",              0.0,   1,  {{param::ShuffleAmount, 0.0f}}, kStep},
        {"the bar that is looped",  4.25,  33, {{param::Forward, 1.0f}, {param::Forward, 0.0f},
                                                {param::Forward, 1.0f}, {param::PlayBar, 1.0f}}, 0},
    };
    // clang-format on
    for (const Case& c : cases) {
        Engine().score.Current().Clear();
        PutStep(8, c.step);
        Set(c.writes);
        StartAt(c.position);
        Play(c.frame + 2 * kBlock, kBlock);
        EXPECT_GE(Onset(Left(8)), c.frame) << c.what;
        EXPECT_LE(Onset(Left(8)), c.frame + (c.frame % kStep ? kBlock : 0)) << c.what;
    }
}

// Orders of another thread wait for the next block, in order, and are read back at once.
TEST_F(Transport, OrdersOfOtherThreadsWaitForTheNextBlock)
{
    // clang-format off
    struct Case { const char* what; Writes writes; const char *before, *after; };
    const Case cases[] = { // playing, recording, editing; capitals as read back
        {"start",              {{param::Play, 1.0f}},                        "...P..", "p..P.."},
        {"twice is once",      {{param::Play, 1.0f}, {param::Play, 1.0f}},   "p..P..", "p..P.."},
        {"stop and start",     {{param::Play, 0.0f}, {param::Play, 1.0f}},   "p..P..", "p..P.."},
        {"record",             {{param::Record, 1.0f}},                      "p..PR.", "pr.PR."},
        {"another pattern",    {{param::Pattern1 + 1, 1.0f}},                "pr.P..", "p..P.."},
        {"and before it is",   {{param::Record, 1.0f}, {param::Pattern1 + 2, 1.0f}}, "p..P..", "p..P.."},
        {"record, then edit",  {{param::Record, 1.0f}, {param::Edit, 1.0f}}, "p..P.E", "p.eP.E"},
        {"edit, then record",  {{param::Edit, 0.0f}, {param::Record, 1.0f}}, "p.ePR.", "pr.PR."},
        {"start and stop",     {{param::Play, 1.0f}, {param::Play, 0.0f}},   "pr....", "......"},
        {"more than it holds", Writes(99, {param::Play, 0.0f}),              "......", "......"},
        {"and one more",       {{param::Record, 1.0f}, {param::Play, 1.0f}}, "...PR.", "pr.PR."},
    };
    // clang-format on
    Play(64);
    for (const Case& c : cases) {
        Elsewhere([&] { Set(c.writes); });
        EXPECT_EQ(States(), c.before) << c.what;
        Play(64);
        EXPECT_EQ(States(), c.after) << c.what;
    }
    EXPECT_EQ(Engine().clock.countIn, kStepsPerBar - 1) << "recorded from standstill";
    Elsewhere([&] { Set(Writes(99, {param::Play, 0.0f})); });
    Elsewhere([&] { Set(param::Play, 1.0f); });
    Play(64);
    EXPECT_EQ(States(), "p..P..") << "of orders that found no room the last counts";
}

// Buttons of a thread whose orders wait go by the modes that these lead to.
TEST_F(Transport, ButtonsGoByTheModesThatAreOrdered)
{
    const Writes overdub{{param::Play, 1.0f}, {param::Record, 1.0f}};
    // clang-format off
    struct Case { const char* what; Writes before, orders; int edited; bool recorded; };
    const Case cases[] = {
        {"recording",           overdub,              {},                     -1, true},
        {"edit ends it",        overdub,              {{param::Edit, 1.0f}},  2,  false},
        {"stop ends it",        overdub,              {{param::Play, 0.0f}},  -1, false},
        {"another pattern too", overdub,              {{param::Pattern1 + 1, 1.0f}, {param::Pattern1, 1.0f}}, -1, false},
        {"record ends editing", {{param::Edit, 1.0f}}, {{param::Record, 1.0f}}, -1, false},
    };
    // clang-format on
    Play(64);
    for (const Case& c : cases) {
        Engine().score.Current().Clear();
        Set(c.before);
        Play(64);
        Elsewhere([&] {
            Set(c.orders);
            Press(param::Step1 + 2);
        });
        EXPECT_EQ(Engine().selection.editStep, c.edited) << c.what;
        EXPECT_EQ(Engine().score.Current().steps[8][0] != 0, c.recorded) << c.what;
        Play(64);
        Set({{param::Edit, 0.0f}, {param::Record, 0.0f}, {param::Play, 0.0f}});
        Play(64);
    }
}

// Nothing that comes between a start and its block loses it or moves it from the host's position.
TEST_F(Transport, StartsOfOtherThreadsAreKept)
{
    std::vector<std::uint8_t> state(static_cast<std::size_t>(Synth().GetBankChunk(nullptr)));
    Synth().GetBankChunk(state.data());
    const auto load = [&] { Synth().SetBankChunk(state.data(), static_cast<std::int32_t>(state.size())); };
    const auto loads = [&](const std::function<void()>& meanwhile) { // while the start is given
        Play(64);
        BeginLoad(Engine());
        Elsewhere([&] { Synth().SetPlaying(true); });
        meanwhile();
        const CSynthesizer::ProgramSwitch change(Synth());
        ServeBeforeLoad(Engine());
        Engine().ResetGroove();
        EndLoad(Engine());
    };
    // clang-format off
    struct Case { const char* what; std::function<void()> meanwhile; int step; };
    const Case cases[] = { // step of the song that plays next, 0 when stopped
        {"nothing",          [] {}, 10},
        {"a reset",          [&] { Synth().Reset(); }, 10},
        {"a program switch", [&] { Synth().SetProgram(0); }, 10},
        {"another rate",     [&] { Synth().SetSampleRate(kRate + 1); }, 10},
        {"a link's record",  [&] { Queue(0xB0, 20, 0); }, 10},
        {"a load after it",  load, 0},
        {"a load that it came into", [&] { loads([] {}); }, 10},
        {"and a block of it", [&] { loads([&] { Play(64); }); }, 10},
        {"and a block and a stop", [&] { loads([&] { Synth().SetPlaying(false); }); }, 0},
        {"a load around it", [&] {
            const CSynthesizer::ProgramSwitch loading(Synth());
            load();
            Elsewhere([&] { Synth().SetPlaying(true); });
        }, 10},
    };
    // clang-format on
    Queue(0xB0, 20, 0);
    Play(64);
    Set(param::Record, 0.0f);
    Synth().links.Link(true);
    for (const Case& c : cases) {
        Synth().SetPlaying(false);
        Play(64);
        Synth().songPosition = 2.5;
        Elsewhere([&] { Synth().SetPlaying(true); });
        c.meanwhile();
        Play(64);
        EXPECT_EQ(Engine().clock.playing ? Engine().clock.stepCounter - 1 : 0, c.step) << c.what;
    }
}

/// The sound comes again after `slice` frames, or one frame later, where the slice's phase may end.
bool Repeats(const std::vector<float>& sound, int slice)
{
    const auto from = sound.begin() + 300, to = sound.begin() + slice - 300; // between the fades
    const auto alike = [](float a, float b) { return std::fabs(a - b) < 0.05f; };
    return std::equal(from, to, from + slice, alike) || std::equal(from, to, from + slice + 1, alike);
}

// A stutter button takes the selected channel's sound from the next step on, until a stop.
TEST_F(Transport, StutterButtonsLoopFromTheNextStep)
{
    // clang-format off
    const std::pair<Writes, int> cases[] = { // presses, length of the loop in frames
        {{{param::Stutter1_1, 1.0f}}, 24000}, {{{param::Stutter3_4, 1.0f}}, 18000},
        {{{param::Stutter1_2, 1.0f}}, 12000}, {{{param::Stutter3_8, 1.0f}}, 9000},
        {{{param::Stutter3_8, 1.0f}, {param::Stutter1_4, 1.0f}}, 3000},
        {{{param::Stutter1_4, 1.0f}, {param::Stutter1_4, 0.0f}}, 0},
        {{{ParamOf(slot::FxBypassStutter), 1.0f}, {param::Stutter1_4, 1.0f}}, 0},
        {{{param::Stutter1_4, 1.0f}}, 6000},
    };
    // clang-format on
    for (const int c : {9, 8}) {
        Select(c);
        Set(ParamOf(slot::NoiseMix), 1.0f);
        PutStep(c, 0);
    }
    for (const int rate : {1, 2}) { // the last stutter sounds on while the rate changes
        Synth().SetSampleRate(rate * kRate);
        for (const auto& [presses, frames] : cases) {
            StartAt(0.0);
            Play(rate * kStep - 100);
            Set(presses);
            Play(100);
            Play(rate * 52000);
            int shortest = 0;
            for (const int slice : {24000, 18000, 12000, 9000, 6000, 3000})
                if (Repeats(Left(8), rate * slice)) shortest = slice;
            EXPECT_EQ(shortest, frames) << rate;
            EXPECT_FALSE(Repeats(Left(9), rate * 6000)) << "not selected";
            for (const auto& [parameter, value] : presses) Set(parameter, 0.0f);
        }
    }
    Synth().SetPlaying(false);
    Queue(0x90, kAnyKey, 127);
    Play(4 * kStep);
    Play(8 * kStep);
    EXPECT_FALSE(Repeats(Left(8), 2 * 6000)) << "stopped";
}

// An effect's LFO stands where the song stands, whatever went before.
TEST_F(Transport, EffectLfosFollowTheSong)
{
    Press(param::Fx1 + static_cast<int>(FxType::Panner));
    Set({{ParamOf(slot::FxGlue), 1.0f},
         {ParamOf(slot::FxLfoAmount), 1.0f},
         {ParamOf(slot::FxLfoRate), 1.0f}}); // eight beats, twice the pattern
    PutStep(9, 0);
    const auto after = [this](int idle, double position) {
        StartAt(position);
        Set(param::Play, 0.0f);
        Queue(0xB0, 123, 0);
        Queue(0x90, kAnyKey, 127);
        Play(idle);
        Set(param::Play, 1.0f);
        Play(kStep);
        return Right(8).back();
    };
    const float first = after(1000, 0.0);
    EXPECT_NEAR(after(40000, 0.0) / first, 1.0f, 0.01f);
    EXPECT_NEAR(after(40000, 16.0) / first, 1.0f, 0.01f) << "two periods on";
    EXPECT_GT(std::fabs(after(40000, 6.0) / first - 1.0f), 0.1f) << "three quarters of a period on";
}

// A press belongs to the nearer step, of the channel that it plays, with the time that it is held. It is not played
// twice.
TEST_F(Transport, RecordsOnTheNearerStep)
{
    constexpr int kShort = 1500, kCountIn = 16 * kShort; // frames, at 480 beats per minute
    // clang-format off
    struct Case { const char* what; bool standstill; int selected, frame, button, channel, step; std::uint32_t word; };
    const Case cases[] = {
        {"first half",  false, 8, 700, 7, 8, 0, 1u << 7}, {"a pad of nobody", false, 3, 800, 13, 3, 1, 1u << 1},
        {"second half", false, 8, 800, 7, 8, 1, 1u << 7}, {"a sampler", false, 0, 2 * kShort + 100, 14, 1, 2, 1u << 2},
        {"the end", false, 8, 15 * kShort + 800, 7, 8, 0, 1u << 7}, {"a bar button", false, 9, 100, 20, 9, 0, 1u << 20},
        {"in the count-in", true,  8, 8 * kShort + 800,  7,  8, 0, 1u << 7},
        {"a second bar",    true,  8, kCountIn + 16 * kShort + 100, 7, 8, 16, 1u << 7},
    };
    // clang-format on
    Synth().SetTempo(480.0);
    for (const Case& c : cases) {
        Engine().score.Current().Clear();
        Select(c.selected);
        Set(param::Record, c.standstill ? 1.0f : 0.0f);
        StartAt(0.0);
        Set(param::Record, 1.0f);
        Play(c.frame);
        GrooveChannel& channel = Engine().Channel(c.channel);
        const std::uint32_t before = channel.voiceCounter;
        Set(param::Step1 + c.button, 1.0f);
        Play(4 * kShort);
        Set(param::Step1 + c.button, 0.0f);
        EXPECT_EQ(channel.voiceCounter - before, 1u) << c.what;
        if (c.channel == 8) {
            EXPECT_NEAR(Engine().score.Current().locks[8][c.step].Offset(slot::NoteLength), 0.375f - 0.4444f, 1e-3f)
                << "a beat";
        }
        for (int n = 0; n < kChannels; ++n)
            for (int step = 0; step < kSteps; ++step)
                ASSERT_EQ(Engine().score.Current().steps[n][step], n == c.channel && step == c.step ? c.word : 0u)
                    << c.what;
        Set({{param::Record, 0.0f}, {param::Play, 0.0f}});
    }
}

} // namespace
} // namespace korvane
