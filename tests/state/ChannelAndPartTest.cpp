// Channel chunks and part images.
#include <gtest/gtest.h>

#include "framework/ParameterTable.h"
#include "state/Images.h"

namespace korvane {
namespace {

// A chunk is read front to back: what stands before the cut is taken, the rest is the reset channel's.
TEST(ChannelChunk, EndsWhereItIsCut)
{
    // clang-format off
    struct Case { const char* what; int length; bool accepted; const char *firstPath, *lastPath;
                  float level, lastValue, workingLevel; const char* programPath; };
    const Case cases[] = {
        {"whole",             4948, true,  "D:\\0", "",    0.25f,  0.75f,  0.25f,  "D:\\program"},
        {"longer than it is", 5000, true,  "D:\\0", "",    0.25f,  0.75f,  0.25f,  "D:\\program"},
        {"cut program path",  4947, true,  "D:\\0", "",    0.25f,  0.75f,  0.25f,  ""},
        {"no program path",   4436, true,  "D:\\0", "",    0.25f,  0.75f,  0.25f,  ""},
        {"cut last value",    4435, false, "D:\\0", "",    0.25f,  0.0f,   0.75f,  ""},
        {"no values",         3588, false, "D:\\0", "",    0.0f,   0.0f,   0.75f,  ""},
        {"cut last path",     3587, false, "D:\\0", "",    0.75f,  0.5f,   0.75f,  ""},
        {"tag only",             4, false, "",      "",    0.75f,  0.5f,   0.75f,  ""},
        {"cut tag",              3, false, "old",   "old", 0.125f, 0.125f, 0.125f, "old"},
        {"negative length",     -1, false, "old",   "old", 0.125f, 0.125f, 0.125f, "old"},
    };
    // clang-format on
    GrooveEngine engine;
    engine.ResetGroove();
    engine.storedParams[2][0] = 0.25f, engine.storedParams[2][211] = 0.75f;
    engine.Channel(2).sampleSlots[0].path.Set("D:\\0");
    engine.Channel(2).programPath.Set("D:\\program");
    Bytes chunk(5000);
    ASSERT_EQ(engine.SaveChannelChunk(chunk.data(), 2), 4948);
    chunk[4 + 511] = 'x'; // the first path's field, filled to its end
    GrooveChannel& channel = engine.Channel(11);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        for (auto& value : engine.storedParams[11]) value = 0.125f;
        engine.RefreshChannel(11);
        for (auto& slot : channel.sampleSlots) slot.path.Set("old");
        channel.programPath.Set("old");
        EXPECT_EQ(engine.LoadChannelChunk(chunk.data(), c.length, 11), c.accepted);
        EXPECT_EQ(TextOf(channel.sampleSlots[0].path), c.firstPath);
        EXPECT_EQ(TextOf(channel.sampleSlots[6].path), c.lastPath);
        EXPECT_EQ(engine.storedParams[11][0], c.level);
        EXPECT_EQ(engine.storedParams[11][211], c.lastValue);
        EXPECT_EQ(channel.params[0], c.workingLevel);
        EXPECT_EQ(TextOf(channel.programPath), c.programPath);
    }
    EXPECT_FALSE(engine.LoadChannelChunk(chunk.data(), 4948, 13));
}

TEST(PartImage, MovesOneChannelIntoAnotherOfItsKind)
{
    GrooveEngine engine;
    FillGroove(engine, 3);
    engine.currentPattern = 4;
    engine.selectedChannel = 9;
    engine.Pattern().ClearChannel(9);
    engine.Pattern().steps[9][127] = 5u;
    for (int n = 0; n < 3; ++n) engine.Pattern().locks[9][127].Append(n, 0.5f);
    const Bytes part = SavedPart(engine);
    ASSERT_EQ(part.size(), 16u + 4948u + 4u + 128u * 6u + 18u);
    EXPECT_EQ(std::string(part.begin(), part.begin() + 4), "3StP");

    engine.selectedChannel = 11;
    Bytes expected = Saved(engine);
    std::copy_n(part.begin() + 8, 4948, expected.begin() + kHeader + 11 * kFramedChannel + 4);
    ASSERT_TRUE(engine.LoadPart(part.data(), static_cast<int>(part.size())));
    EXPECT_TRUE(SavedPart(engine) == part);
    const Bytes saved = Saved(engine);
    EXPECT_TRUE(std::equal(saved.begin(), saved.begin() + kPatternsAt, expected.begin()));
    engine.currentPattern = 5;
    EXPECT_FALSE(SavedPart(engine) == part);
}

TEST(PartImage, TakesWhatItCanOfADamagedPart)
{
    constexpr int kWhole = 16 + 4948 + 4 + 128 * 6, kSampler = 0x50744433;
    // clang-format off
    // An int32 is written into the part, at 0 its tag; the steps that are not taken over stay what they were.
    struct Case { const char* what; int at, value, length, channel; bool accepted; float noteLength; int steps; };
    const Case cases[] = {
        {"whole",                    0, kSampler, kWhole,     2, true,  0.75f,  128},
        {"other kind",               0, kSampler, kWhole,     8, false, 0.125f, 0},
        {"wrong tag",                0, 1,        kWhole,     2, false, 0.125f, 0},
        {"wrong channel tag",        8, 1,        kWhole,     2, false, 0.125f, 0},
        {"no sequence",              0, kSampler, 4956,       2, false, 0.25f,  0},
        {"short sequence",        4956, 3,        kWhole,     2, false, 0.25f,  0},
        {"negative sequence",     4956, -1,       kWhole,     2, false, 0.25f,  0},
        {"wrong sequence tag",    4960, 1,        kWhole,     2, false, 0.25f,  0},
        {"sequence of ten steps", 4956, 4 + 60,   kWhole,     2, false, 0.25f,  10},
        {"cut after a step",         0, kSampler, 4964 + 6,   2, false, 0.25f,  1},
        {"no note length",           0, kSampler, kWhole - 1, 2, false, 0.25f,  128},
    };
    // clang-format on
    GrooveEngine engine;
    engine.ResetGroove();
    engine.selectedChannel = 0;
    engine.storedParams[0][slot::NoteLength] = 0.25f;
    for (auto& word : engine.Pattern().steps[0]) word = 9u;
    Bytes part = SavedPart(engine);
    ASSERT_EQ(part.size(), static_cast<std::size_t>(kWhole));
    Put(part, kWhole - 4, 0.75f);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Bytes image(part.begin(), part.begin() + c.length);
        Put(image, c.at, c.value);
        engine.selectedChannel = c.channel;
        engine.storedParams[c.channel][slot::NoteLength] = 0.125f;
        for (auto& word : engine.Pattern().steps[c.channel]) word = 3u;
        EXPECT_EQ(engine.LoadPart(image.data(), c.length), c.accepted);
        EXPECT_EQ(engine.storedParams[c.channel][slot::NoteLength], c.noteLength);
        if (c.accepted) { EXPECT_EQ(engine.Channel(c.channel).params[slot::NoteLength], c.noteLength); }
        int taken = 0;
        for (const auto& word : engine.Pattern().steps[c.channel]) taken += word == 9u;
        EXPECT_EQ(taken, c.steps);
    }
}

} // namespace
} // namespace korvane
