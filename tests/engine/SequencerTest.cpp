// The step sequencer and its buttons.
#include <gtest/gtest.h>

#include "support/Stage.h"

namespace korvane {
namespace {

class Sequencer : public StageTest {
protected:
    /// Renders until the next regular tick has been taken.
    void NextStep() { Play(static_cast<int>(engine.samplesToNextStep) + 1); }
    Shared<std::uint32_t>& Step(int channel, int step, int pattern = 0)
    {
        return engine.patterns[static_cast<std::size_t>(pattern)]->steps[channel][step];
    }
    StepLockList& Locks(int channel, int step) { return engine.patterns[0]->locks[channel][step]; }
    void Click(int button) { engine.StepButton(button), engine.StepButtonRelease(button); }
    int Sounding(int channel) const { return korvane::Sounding(engine.Channel(channel)); }
    std::vector<int> Steps(int count)
    {
        std::vector<int> steps;
        for (; count > 0; --count) NextStep(), steps.push_back(engine.patternStep);
        return steps;
    }

    GrooveEngine& engine = Engine();
};

TEST_F(Sequencer, PatternsAreAsLongAsTheirLastBarAsks)
{
    for (const auto& [step, length] :
         {std::pair{0, 16}, {15, 16}, {16, 32}, {40, 64}, {63, 64}, {64, 128}, {127, 128}}) {
        Step(12, step) = 1u;
        engine.Pattern().UpdateLength();
        EXPECT_EQ(engine.Pattern().length, length);
    }
    engine.Pattern().Clear();
    EXPECT_EQ(engine.Pattern().length, 16);
}

// A chord stops the chord before; locks of no parameter are nobody's.
TEST_F(Sequencer, PlaysChords)
{
    Step(9, 0) = 0x91u, Step(9, 1) = 0x800000u;
    Locks(9, 0).Append(-4, 0.5f), Locks(9, 0).Append(400, 0.5f);
    engine.TogglePlay();
    NextStep();
    EXPECT_EQ(Sounding(9), 3);
    NextStep();
    EXPECT_EQ(Sounding(9), 1);
}

TEST_F(Sequencer, LoopsBarsAndReturnsFromPlayOnce)
{
    Step(0, 17) = 2u;   // pattern 0 has two bars
    Step(0, 0, 3) = 1u; // pattern 3 one
    engine.TogglePlay();
    EXPECT_EQ(Steps(3), (std::vector<int>{0, 1, 2}));
    engine.selectedBar = 1, engine.playBar = true;
    EXPECT_EQ(Steps(2), (std::vector<int>{19, 20}));
    engine.playBar = false;
    engine.playOnce[3] = true;
    engine.SelectPattern(3);
    EXPECT_EQ(engine.nextPattern, 0);
    EXPECT_EQ(Steps(11).back(), 15);
    EXPECT_EQ(engine.currentPattern, 3);
    EXPECT_EQ(Steps(1).front(), 16) << "back in pattern 0, where the song stands";
    EXPECT_EQ(engine.currentPattern, 0);
    EXPECT_EQ(Steps(15).back(), 31);
    engine.SelectPattern(3); // on its last step: one more tick before it may return
    EXPECT_EQ(engine.patternRepeats, 1);
    Steps(1);
    EXPECT_EQ(engine.currentPattern, 3);
    Steps(15);
    EXPECT_EQ(engine.currentPattern, 3);
    Steps(1);
    EXPECT_EQ(engine.currentPattern, 0);
}

// Edit mode: a sampler's steps go on, edited, off; a synth's step takes a chord; bars are marked.
TEST_F(Sequencer, EditsSteps)
{
    Select(0);
    engine.ToggleEdit();
    Click(5);
    EXPECT_EQ(Step(0, 5), 0x20u);
    EXPECT_EQ(engine.editStep, -1);
    Click(5);
    EXPECT_EQ(engine.editStep, 5);
    Locks(0, 5).Set(12, 0.5f);
    Click(5);
    EXPECT_EQ(Step(0, 5), 0u);
    EXPECT_EQ(Locks(0, 5).Count(), 0);
    EXPECT_EQ(engine.editStep, -1);
    Click(18);
    EXPECT_EQ(engine.selectedBar, 2);
    EXPECT_EQ(engine.selectedBarMark, 2);
    Click(18);
    EXPECT_EQ(engine.selectedBarMark, -1);
    EXPECT_EQ(engine.selectedBar, 2);

    Select(8);
    EXPECT_TRUE(engine.channelMarked[8]);
    Click(3);
    EXPECT_EQ(engine.editStep, 3);
    EXPECT_FALSE(engine.channelMarked[8]);
    Click(0), Click(7), Click(23), Click(7);
    EXPECT_EQ(Step(8, 2 * 16 + 3), 0x800001u);
    engine.Forward();
    EXPECT_EQ(engine.editStep, 4);
    engine.editStep = 15;
    engine.Forward();
    EXPECT_EQ(engine.editStep, 0);
    EXPECT_EQ(engine.selectedBar, 3);
    engine.Back();
    EXPECT_EQ(engine.editStep, 15);
    EXPECT_EQ(engine.selectedBar, 2);
    engine.ToggleEdit();
    EXPECT_EQ(engine.editStep, -1);
}

TEST_F(Sequencer, CopiesPastesAndClears)
{
    Step(8, 1) = 5u, Locks(8, 1).Set(3, 0.25f), Step(0, 1) = 2u, Step(2, 20) = 16u;
    engine.ToggleEdit();
    engine.editStep = 1;
    engine.Copy();
    engine.selectedBar = 4, engine.editStep = 7;
    engine.channelMarked[0] = engine.channelMarked[3] = true;
    engine.Paste();
    EXPECT_EQ(Step(8, 71), 5u);
    EXPECT_EQ(Locks(8, 71).Offset(3), 0.25f);
    EXPECT_EQ(Step(0, 71), 128u) << "a sampler's step has its own bit";
    EXPECT_EQ(Step(3, 71), 128u) << "on even when the copied one was not";
    EXPECT_EQ(engine.editStep, -1);
    engine.SelectPattern(5);
    engine.Paste();
    EXPECT_EQ(Step(2, 20, 5), 16u);
    EXPECT_EQ(engine.selectedPatternMark, -1);
    engine.selectedBar = 0, engine.Copy();
    Click(16 + 6);
    engine.Paste();
    EXPECT_EQ(Step(8, 97), 5u);
    engine.Clear();
    EXPECT_EQ(Step(8, 97), 0u);
    EXPECT_EQ(Step(8, 71), 5u);
    engine.channelMarked[8] = true;
    engine.Clear();
    EXPECT_EQ(Step(8, 71) + Step(8, 1), 0u);
    EXPECT_EQ(Step(0, 1), 2u);
}

TEST_F(Sequencer, NudgesHeldSteps)
{
    Select(1);
    Step(1, 0) = 1u, Step(1, 1) = 2u, Step(1, 2) = 4u, Step(1, 15) = 0x8000u, Locks(1, 1).Set(5, 0.5f);
    engine.stepHeld[1] = engine.stepHeld[2] = engine.stepHeld[15] = true;
    engine.Forward();
    EXPECT_EQ(Step(1, 2), 4u);
    EXPECT_EQ(Step(1, 3), 8u);
    EXPECT_EQ(Locks(1, 2).Offset(5), 0.5f);
    EXPECT_EQ(Step(1, 1), 0u);
    EXPECT_EQ(Step(1, 15), 0x8000u) << "the bar's edge holds it";
    engine.stepHeld[1] = engine.stepHeld[2] = engine.stepHeld[15] = false;
    engine.stepHeld[0] = true;
    engine.Back();
    EXPECT_EQ(Step(1, 0), 1u);
    engine.stepHeld[0] = false;
    engine.Forward();
    EXPECT_EQ(engine.selectedBar, 1) << "nothing held: the bar moves";
}

TEST_F(Sequencer, ChannelButtonsSelectHoldAndMute)
{
    Select(3);
    EXPECT_EQ(engine.selectedChannel, 3);
    engine.SetMuteModifier(true), engine.SetMuteModifier(false);
    EXPECT_TRUE(engine.muted[3]) << "the modifier alone mutes the selected channel";
    engine.ChannelPress(5);
    engine.SetMuteModifier(true), engine.SetMuteModifier(false);
    EXPECT_TRUE(engine.muted[5]);
    EXPECT_TRUE(engine.muted[3]);
    engine.ChannelRelease(5);
    EXPECT_EQ(engine.selectedChannel, 3) << "it was held to be muted";
    Select(5);
    EXPECT_EQ(engine.selectedChannel, 5);
    engine.SetFxButton(4, true);
    EXPECT_EQ(engine.selectedFx, 4);
    engine.SetFxButton(2, true);
    EXPECT_EQ(engine.selectedFx, 4);
    engine.SetFxButton(4, false), engine.SetFxButton(2, false);
    engine.SetFxPad(true);
    engine.ChannelPress(7);
    for (const int c : {5, 7}) EXPECT_TRUE(engine.Channel(c).fxActive[4]) << "selected or held";
    EXPECT_FALSE(engine.Channel(3).fxActive[4]);
    engine.SetStutterButton(2, true);
    for (const auto& [c, code] : {std::pair{5, -3}, {7, -3}, {3, 0}}) EXPECT_EQ(engine.stutterCode[c], code) << c;
    engine.ChannelRelease(7);
    for (const auto& [c, code] : {std::pair{5, 0}, {7, -3}})
        EXPECT_EQ(engine.stutterCode[c], code) << "selected: " << c;
}

// A press in the second half of a step belongs to the next one and is not played twice.
TEST_F(Sequencer, RecordsWhatIsPlayed)
{
    engine.TogglePlay();
    engine.ToggleRecord();
    Play(100);
    engine.StepButton(7);
    Play(4 * kStep);
    engine.StepButtonRelease(7);
    EXPECT_NEAR(Locks(8, 0).Offset(slot::NoteLength), 0.375f - 0.44444445f, 1e-3f) << "one beat";
    Play(4000);
    engine.StepButton(2);
    NextStep();
    EXPECT_EQ(Step(8, 5), 4u);
    EXPECT_EQ(Sounding(8), 1);
}

} // namespace
} // namespace korvane
