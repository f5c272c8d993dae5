// The step sequencer and its buttons.
#include <gtest/gtest.h>

#include <map>

#include "engine/PanelButtons.h"
#include "engine/Transport.h"
#include "support/Stage.h"

namespace korvane {
namespace {

class Sequencer : public StageTest {
protected:
    using Steps = std::map<int, std::uint32_t>; // words that are not empty, by position

    Steps Notes(int channel, std::size_t pattern = 0)
    {
        Steps notes;
        for (int step = 0; step < kSteps; ++step)
            if (const std::uint32_t word = engine.score.patterns[pattern]->steps[channel][step]; word != 0)
                notes[step] = word;
        return notes;
    }
    void Put(int channel, const Steps& notes)
    {
        for (const auto& [step, word] : notes) engine.score.patterns[0]->steps[channel][step] = word;
    }
    StepLockList& Locks(int channel, int step) { return engine.score.patterns[0]->locks[channel][step]; }

    GrooveEngine& engine = Engine();
};

TEST_F(Sequencer, PatternsAreAsLongAsTheirLastBarAsks)
{
    for (const auto& [step, length] :
         {std::pair{0, 16}, {15, 16}, {16, 32}, {40, 64}, {63, 64}, {64, 128}, {127, 128}}) {
        Put(12, {{step, 1u}});
        engine.score.Current().UpdateLength();
        EXPECT_EQ(engine.score.Current().length, length);
    }
    Put(12, {{64, 0u}, {127, 0u}});
    {
        const GroovePattern::Moving moving(engine.score.Current());
        engine.score.Current().UpdateLength();
        EXPECT_EQ(engine.score.Current().length, 128);
    }
    engine.score.Current().UpdateLength();
    EXPECT_EQ(engine.score.Current().length, 64);
    engine.score.Current().Clear();
    EXPECT_EQ(engine.score.Current().length, 16);
}

TEST_F(Sequencer, LoopsBarsAndReturnsFromPlayOnce)
{
    const Writes second{{param::Pattern1 + 1, 1.0f}, {param::Pattern1 + 1, 0.0f}, {param::PlayOnce, 1.0f}};
    Writes held{{param::Back, 1.0f}, {param::PlayBar, 1.0f}};
    held.insert(held.end(), second.begin(), second.end());
    // clang-format off
    struct Case { const char* what; Writes writes; int steps, position, pattern; };
    const Case cases[] = {
        {"start",           {{param::Play, 1.0f}},    3, 2,  0}, {"bar 2",      {{param::PlayBar, 1.0f}}, 2,  20, 0},
        {"a pattern once",  {{param::PlayBar, 0.0f}}, 1, 5,  0}, {"of one bar", second,                   10, 15, 1},
        {"back in time",    {},                       1, 16, 0}, {"to its end", {},                       15, 31, 0},
        {"too late to end", second,                   1, 0,  1}, {"then next",  {},                       15, 15, 1},
        {"and back",        {},                       1, 16, 0}, {"to bar 2",   {},                       31, 15, 0},
        {"on its last step", second,                  1, 0,  1}, {"it is due",  {},                       15, 15, 1},
        {"then back",       {},                       1, 0,  0},
        {"held by a loop",  held,                     17, 1, 1},
    };
    // clang-format on
    Put(0, {{17, 2u}});
    engine.selection.selectedBar = 1;
    for (const Case& c : cases) {
        Set(c.writes);
        Play(c.steps * kStep);
        EXPECT_EQ(std::pair(+engine.clock.patternStep, +engine.score.currentPattern), std::pair(c.position, c.pattern))
            << c.what;
    }
}

// Edit mode: a sampler's steps go on, edited, off; a synth's step takes a chord; bars are marked.
TEST_F(Sequencer, EditsSteps)
{
    constexpr int kStep1 = param::Step1, kBar3 = param::Bar1 + 2;
    // clang-format off
    struct Case { const char* what; std::vector<int> presses; int edited, bar, mark; Steps notes; };
    const Case cases[] = {
        {"on",         {kStep1 + 5},    -1, 0, -1, {{5, 0x20u}}}, {"edited", {kStep1 + 5}, 5,  0, -1, {{5, 0x20u}}},
        {"off",        {kStep1 + 5},    -1, 0, -1, {}},           {"a bar",  {kBar3},      -1, 2, 2,  {}},
        {"its mark",   {kBar3},         -1, 2, -1, {}},
        {"of a synth", {param::Channel1 + 8, kStep1 + 3}, 3, 2, -1, {}},
        {"a chord",    {kStep1, kStep1 + 7, kStep1 + 23, kStep1 + 7}, 3, 2, -1, {{35, 0x800001u}}},
        {"next step",  {param::Forward},         4,  2, -1, {{35, 0x800001u}}},
        {"bar before", std::vector(5, +param::Back), 15, 1, -1, {{35, 0x800001u}}},
        {"next bar",   {param::Forward},         0,  2, -1, {{35, 0x800001u}}},
    };
    // clang-format on
    Select(0);
    Set(param::Edit, 1.0f);
    for (const Case& c : cases) {
        for (const int button : c.presses) Press(button);
        EXPECT_EQ((std::vector<int>{engine.selection.editStep, engine.selection.selectedBar,
                                    engine.selection.selectedBarMark}),
                  (std::vector<int>{c.edited, c.bar, c.mark}))
            << c.what;
        EXPECT_EQ(Notes(engine.selection.selectedChannel), c.notes) << c.what;
    }
    Set(param::Edit, 0.0f);
    EXPECT_EQ(engine.selection.editStep, -1);
}

// While a step is edited, knobs write its locks and show stored value plus lock; they hold until the next step's note.
TEST_F(Sequencer, EditedStepTakesLocks)
{
    constexpr int kPan = ParamOf(slot::Panning), kLevel = ParamOf(slot::MixLevel),
                  kCutoff = ParamOf(slot::FilterCutoff);
    Put(8, {{17, 1u}, {19, 1u}});
    engine.selection.editStep = 1;
    engine.selection.selectedBar = 1;
    Set({{kLevel, 0.5f}, {kPan, 0.25f}, {kCutoff, 0.5f}, {kPan, 1.0f}});
    EXPECT_FLOAT_EQ(Synth().GetParameter(kPan), 1.0f);
    Set(kCutoff, 1.0f); // as stored: no lock
    EXPECT_EQ(Locks(8, 17).Count(), 2);
    EXPECT_FLOAT_EQ(Locks(8, 17).Offset(slot::MixLevel), -0.25f);
    engine.selection.editStep = -1;
    EXPECT_EQ(Synth().GetParameter(kPan), 0.5f);
    Synth().SetPlaying(true);
    Play(19 * kStep);
    EXPECT_LT(Left(8).back(), 0.001f * Right(8).back());
    const float locked = Right(8).back();
    Play(kStep);
    EXPECT_NEAR(Left(8).back(), 5.0f * locked, 0.01f * locked);
    EXPECT_EQ(Right(8).back(), Left(8).back());
    Play(30 * kStep); // to the locked step again
    const auto pan = [this](std::size_t pattern, int step) {
        engine.HearStep(*engine.score.patterns[pattern], 8, step);
        return static_cast<float>(engine.Channel(8).sound.params[slot::Panning]);
    };
    engine.SetStepParameter(engine.score.Current(), 8, 17, slot::Panning, 0.25f);
    EXPECT_EQ(engine.StepParameter(engine.score.Current(), 8, 17, slot::Panning), 0.25f);
    EXPECT_EQ((std::vector{pan(0, 16), pan(1, 17), pan(0, 17)}), (std::vector{1.0f, 1.0f, 0.25f})) << "as it plays";
    Set({{param::Play, 0.0f}, {param::Play, 1.0f}});
    EXPECT_EQ(engine.Channel(8).sound.params[slot::Panning], 0.5f) << "a new start finds no lock of the last one";
}

// A lock per parameter fits into every step, beside full steps in the same bar, in the next one and on other channels.
TEST_F(Sequencer, EveryStepHoldsAllItsLocks)
{
    const std::pair<int, int> places[] = {{0, 0}, {0, 1}, {0, 15}, {0, 16}, {0, 127}, {1, 0}, {11, 127}, {12, 127}};
    const auto offset = [](int place, int n) { return 0.001f * static_cast<float>(1 + n + place); };
    for (int n = 0; n < kChannelSlots; ++n)
        for (const auto& [channel, step] : places) Locks(channel, step).Set(n, offset(100 * channel + step, n));
    for (const auto& [channel, step] : places) {
        EXPECT_FALSE(Locks(channel, step).Append(0, 0.5f));
        for (int n = 0; n < kChannelSlots; ++n)
            ASSERT_EQ(Locks(channel, step).Offset(n), offset(100 * channel + step, n)) << channel << ' ' << step;
    }
}

TEST_F(Sequencer, CopiesPastesAndClears)
{
    Put(8, {{1, 5u}});
    Put(0, {{1, 2u}});
    Put(2, {{20, 16u}});
    Locks(8, 1).Set(slot::NoteLength, 0.25f);
    SetEdit(engine, true);
    engine.selection.editStep = 1;
    engine.score.Copy(engine.selection);
    engine.selection.selectedBar = 4;
    engine.selection.editStep = 7;
    engine.selection.channelMarked[0] = engine.selection.channelMarked[3] = true;
    engine.score.Paste(engine.selection);
    EXPECT_EQ(Notes(8), (Steps{{1, 5u}, {71, 5u}}));
    EXPECT_EQ(Locks(8, 71).Offset(slot::NoteLength), 0.25f);
    EXPECT_EQ(Notes(0), (Steps{{1, 2u}, {71, 128u}})) << "a sampler's step has its own bit";
    EXPECT_EQ(Notes(3), (Steps{{71, 128u}})) << "on even when the copied one was not";
    SelectPattern(engine, 5);
    engine.score.Paste(engine.selection);
    EXPECT_EQ(Notes(2, 5), Notes(2));
    engine.selection.selectedBar = 0;
    engine.score.Copy(engine.selection);
    Press(param::Bar1 + 6);
    engine.selection.channelMarked[0] = true;
    engine.score.Paste(engine.selection);
    EXPECT_EQ(Notes(8), (Steps{{1, 5u}, {71, 5u}, {97, 5u}}));
    EXPECT_EQ(Notes(0), (Steps{{1, 2u}, {71, 128u}, {97, 2u}}));
    engine.score.Clear(engine.selection);
    EXPECT_EQ(Notes(8), (Steps{{1, 5u}, {71, 5u}}));
    engine.selection.channelMarked[8] = true;
    engine.score.Clear(engine.selection);
    EXPECT_EQ(Notes(8), Steps{});
    EXPECT_EQ(Locks(8, 71).Count(), 0);
    EXPECT_EQ(Notes(0), (Steps{{1, 2u}, {71, 128u}}));
    EXPECT_EQ(engine.score.Current().ClearNotes(0, 71, 3u), 128u);
    EXPECT_EQ(engine.score.Current().ClearNotes(0, 71, 131u), 0u);
}

TEST_F(Sequencer, NudgesHeldSteps)
{
    Select(1);
    Put(1, {{0, 1u}, {1, 2u}, {2, 4u}, {15, 0x8000u}});
    Locks(1, 1).Set(slot::NoteLength, 0.5f);
    for (const int held : {1, 2, 15}) engine.buttons.stepHeld[held] = true;
    Move(engine, +1);
    const Steps nudged{{0, 1u}, {2, 4u}, {3, 8u}, {15, 0x8000u}}; // the bar's edge holds the last
    EXPECT_EQ(Notes(1), nudged);
    EXPECT_EQ(Locks(1, 2).Offset(slot::NoteLength), 0.5f);
    for (const int held : {0, 1, 2, 15}) engine.buttons.stepHeld[held] = held == 0;
    Move(engine, -1);
    EXPECT_EQ(Notes(1), nudged);
    engine.buttons.stepHeld[0] = false;
    Move(engine, +1);
    EXPECT_EQ(engine.selection.selectedBar, 1) << "nothing held: the bar moves";
}

// Pad and stutter take the selected channel and every held one, the pad with the effect that was pressed first.
TEST_F(Sequencer, ButtonsReachSelectedAndHeldChannels)
{
    Select(5);
    Set({{param::Fx1 + 4, 1.0f}, {param::Fx1 + 2, 1.0f}, {param::Fx1 + 4, 0.0f}, {param::Fx1 + 2, 0.0f}});
    Set({{param::FxActivate, 1.0f}, {param::Channel1 + 7, 1.0f}, {param::Stutter1_2, 1.0f}});
    for (int c = 0; c < kChannels; ++c) {
        EXPECT_EQ(engine.Channel(c).fxActive[4], c == 5 || c == 7) << c;
        EXPECT_EQ(engine.buttons.stutterCode[c], c == 5 || c == 7 ? -3 : 0) << c;
    }
    Set(param::Channel1 + 7, 0.0f); // selects it
    EXPECT_EQ(std::pair(+engine.buttons.stutterCode[5], +engine.buttons.stutterCode[7]), std::pair(0, -3));
}

} // namespace
} // namespace korvane
