// Parameters, transport and clock of the engine core.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <thread>
#include <vector>

#include "engine/GrooveEngine.h"
#include "framework/ParameterTable.h"

namespace korvane {
namespace {

struct EngineTest : testing::Test {
    GrooveEngine engine;
    std::array<std::vector<float>, 28> buffers;

    EngineTest()
    {
        engine.ResetGroove();
        engine.ResetEngine(44100.0f);
        for (auto& buffer : buffers) buffer.resize(kMaxRun);
    }

    void Render(int frames)
    {
        std::array<float*, 28> out;
        for (std::size_t n = 0; n < out.size(); ++n) out[n] = buffers[n].data();
        for (; frames > 0; frames -= 128) engine.RenderFrames(out.data(), std::min(frames, 128));
    }
};

// Which slot a parameter reaches depends on the selected page; which channels, on what is held.
TEST_F(EngineTest, ParametersFollowSelections)
{
    engine.envelopeNumber = std::int8_t{1};
    engine.SetChannelParameter(slot::EnvelopeAttack, 0.25f);
    EXPECT_EQ(engine.storedParams[8][21], 0.25f);
    EXPECT_EQ(engine.storedParams[8][20], 0.0f);

    engine.SetFxButton(1, true);
    engine.SetFxButton(4, true);
    engine.channelHeld[2] = true;
    engine.SetChannelParameter(slot::FxX, 0.9f);
    for (int c : {2, 8}) {
        EXPECT_EQ(engine.storedParams[c][118], 0.9f);
        EXPECT_EQ(engine.storedParams[c][121], 0.9f);
        EXPECT_EQ(engine.storedParams[c][119], 0.5f);
        EXPECT_TRUE(engine.Channel(c).fxActive[1]);
    }
    EXPECT_FALSE(engine.Channel(3).fxActive[1]);

    for (float expected : {0.5f, 1.0f, 0.0f}) {
        engine.CycleSwitch(slot::FilterType);
        EXPECT_EQ(engine.GetChannelParameter(slot::FilterType), expected);
    }
}

// While a step is edited, knobs write its locks and show stored value plus lock.
TEST_F(EngineTest, EditedStepTakesLocks)
{
    engine.SetChannelParameter(slot::FilterCutoff, 0.3f);
    engine.editStep = 5;
    engine.selectedBar = 2;
    engine.SetChannelParameter(slot::FilterCutoff, 0.5f);
    EXPECT_EQ(engine.storedParams[8][slot::FilterCutoff], 0.3f);
    EXPECT_FLOAT_EQ(engine.Pattern().locks[8][2 * 16 + 5].Offset(slot::FilterCutoff), 0.2f);
    EXPECT_FLOAT_EQ(engine.GetChannelParameter(slot::FilterCutoff), 0.5f);
    engine.SetChannelParameter(slot::FilterCutoff, 0.3f);
    EXPECT_EQ(engine.Pattern().locks[8][2 * 16 + 5].Count(), 0);
}

TEST_F(EngineTest, ExtControlsLearnAndDrive)
{
    engine.SetExtControl(3, 0.1f);
    engine.extLearn = true;
    engine.SetChannelParameter(slot::FilterResonance, 0.7f);
    EXPECT_FALSE(engine.extLearn);
    EXPECT_EQ(engine.extControls[3].value, 0.7f);
    engine.selectedChannel = 0;
    engine.SetExtControl(3, 2.0f);
    EXPECT_EQ(engine.storedParams[8][slot::FilterResonance], 1.0f);
    EXPECT_EQ(engine.Channel(8).params[slot::FilterResonance], 1.0f);
}

// A start lands on the host's position; a step already begun is left to the next one.
TEST_F(EngineTest, StartFollowsTheHostPosition)
{
    // clang-format off
    struct Case { const char* what; double position; int counter; double frames; };
    const Case cases[] = {
        {"on a step",     2.5, 10, 0.0},
        {"inside a step", 2.6, 11, 0.6 * 5512.5},
        {"before zero",  -3.0, 0,  0.0},
        {"far away",      1.0e9 + 0.25, (4000000001LL) % 128, 0.0},
        {"nowhere",       std::numeric_limits<double>::quiet_NaN(), 0, 0.0},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        engine.hostPosition = c.position;
        engine.TogglePlay();
        EXPECT_EQ(engine.stepCounter, c.counter);
        EXPECT_NEAR(engine.samplesToNextStep, c.frames, 1.0e-6);
        engine.TogglePlay();
    }
}

// Sixteen silent steps with clicks on every fourth, then step 0.
TEST_F(EngineTest, RecordingFromStandstillCountsIn)
{
    engine.ToggleRecord();
    engine.TogglePlay();
    EXPECT_EQ(engine.countIn, 16);
    std::vector<int> clicks;
    for (int step = 0; step < 16; ++step) {
        Render(1);
        if (engine.clickLevel > 2.9f) clicks.push_back(step);
        EXPECT_EQ(engine.patternStep, 0);
        while (engine.samplesToNextStep >= 1.0) Render(1);
    }
    EXPECT_EQ(clicks, (std::vector<int>{0, 4, 8, 12}));
    Render(128);
    EXPECT_EQ(engine.countIn, -1);
    engine.TogglePlay();
    EXPECT_FALSE(engine.recordMode);
}

// Wild values stay in the stored block; what renders is finite.
TEST_F(EngineTest, WildParametersNeverReachTheVoices)
{
    for (float wild : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 1.0e30f}) {
        for (int n = 0; n < kChannelSlots; ++n) engine.SetChannelParameter(n, wild);
        engine.NoteOn(8, 60, 1.0f);
        Render(1024);
        for (const auto& buffer : buffers)
            for (float sample : buffer) ASSERT_TRUE(std::isfinite(sample));
    }
    engine.ResetSelectedChannel();
    engine.SetChannelParameter(slot::NoiseMix, 1.0f);
    for (int k = 0; k < kEffects; ++k) engine.SetChannelParameter(slot::FxGlue + k, 1.0f);
    engine.NoteOn(8, 60, 1.0f);
    Render(8192);
    const auto& sound = buffers[2 + 2 * 8]; // the last 128 frames of it
    EXPECT_TRUE(std::all_of(sound.begin(), sound.end(), [](float x) { return std::isfinite(x); }));
    EXPECT_TRUE(std::any_of(sound.begin(), sound.end(), [](float x) { return std::fabs(x) > 0.001f; })) << "recovered";
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
