// The engine core's parameters, and notes that other threads ask for.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

#include "support/Stage.h"

namespace korvane {
namespace {

class EngineTest : public StageTest {
protected:
    GrooveEngine& engine = Engine();
};

// Which slot a parameter reaches depends on the selected page; which channels, on what is held.
TEST_F(EngineTest, ParametersFollowSelections)
{
    engine.envelopeNumber = std::int8_t{1};
    engine.SetChannelParameter(slot::EnvelopeAttack, 0.25f);
    EXPECT_EQ(engine.storedParams[8][slot::EnvelopeAttack + 1], 0.25f);
    EXPECT_EQ(engine.storedParams[8][slot::EnvelopeAttack], 0.0f);

    engine.SetFxButton(1, true);
    engine.SetFxButton(4, true);
    engine.channelHeld[2] = true;
    engine.SetChannelParameter(slot::FxX, 0.9f);
    for (int c : {2, 8}) {
        EXPECT_EQ(engine.storedParams[c][slot::FxX + 1], 0.9f);
        EXPECT_EQ(engine.storedParams[c][slot::FxX + 4], 0.9f);
        EXPECT_EQ(engine.storedParams[c][slot::FxX + 2], 0.5f);
        EXPECT_TRUE(engine.Channel(c).fxActive[1]);
    }
    EXPECT_FALSE(engine.Channel(3).fxActive[1]);
}

// While a step is edited, knobs write its locks and show stored value plus lock.
TEST_F(EngineTest, EditedStepTakesLocks)
{
    engine.SetChannelParameter(slot::FilterCutoff, 0.3f);
    engine.editStep = 5;
    engine.selectedBar = 2;
    engine.SetChannelParameter(slot::Panning, 1.0f);
    engine.SetChannelParameter(slot::FilterCutoff, 0.5f);
    engine.SetChannelParameter(slot::FilterResonance, 0.25f);
    EXPECT_EQ(engine.storedParams[8][slot::FilterCutoff], 0.3f);
    EXPECT_FLOAT_EQ(engine.Pattern().locks[8][2 * 16 + 5].Offset(slot::FilterCutoff), 0.2f);
    EXPECT_FLOAT_EQ(engine.GetChannelParameter(slot::FilterCutoff), 0.5f);
    engine.SetChannelParameter(slot::FilterCutoff, 0.3f);
    EXPECT_EQ(engine.Pattern().locks[8][2 * 16 + 5].Count(), 2);
    EXPECT_EQ(engine.GetChannelParameter(slot::Panning), 1.0f);
    EXPECT_EQ(engine.GetChannelParameter(slot::FilterResonance), 0.25f);
}

// Wild values stay in the stored block; what renders is finite.
TEST_F(EngineTest, WildParametersNeverReachTheVoices)
{
    for (float wild : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 1.0e30f}) {
        for (int n = 0; n < kChannelSlots; ++n) engine.SetChannelParameter(n, wild);
        engine.NoteOn(8, 60, 1.0f);
        Play(1024);
        for (const auto& output : out)
            for (float sample : output) ASSERT_TRUE(std::isfinite(sample));
    }
    engine.ResetSelectedChannel();
    engine.SetChannelParameter(slot::NoiseMix, 1.0f);
    for (int k = 0; k < kEffects; ++k) engine.SetChannelParameter(slot::FxGlue + k, 1.0f);
    engine.NoteOn(8, 60, 1.0f);
    Play(8192);
    for (float sample : Left(8)) ASSERT_TRUE(std::isfinite(sample));
    EXPECT_GT(Peak(Left(8)), 0.001f) << "recovered";
}

// Notes from outside a block reach the voices through the queue, none twice, none torn.
TEST(EngineThreads, NotesWaitForTheNextBlock)
{
    Shared<std::thread::id> blockThread;
    GrooveEngine engine(&blockThread);
    engine.ResetGroove();
    engine.ResetEngine(44100.0f);
    std::thread other([&engine] {
        for (int n = 0; n < 4; ++n) engine.NoteOn(8, 40 + n, 1.0f);
    });
    other.join();
    engine.NoteOn(8, 44, 1.0f);
    for (const auto& voice : engine.Channel(8).voices) EXPECT_FALSE(voice->active);
    blockThread = std::this_thread::get_id();
    engine.NoteOn(9, 40, 1.0f);
    EXPECT_TRUE(engine.Channel(9).voices[5]->active);
    float* nobody[28] = {};
    engine.RenderFrames(nobody, 1);
    int notes = 0;
    for (const auto& voice : engine.Channel(8).voices) notes += voice->active ? voice->note : 0;
    EXPECT_EQ(notes, 40 + 41 + 42 + 43 + 44);
}

} // namespace
} // namespace korvane
