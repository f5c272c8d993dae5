// Channel chunks and part images.
#include "state/Images.h"

namespace korvane {
namespace {

// A chunk is read front to back: what stands before the cut is taken, the rest is the reset channel's.
using ChannelChunk = ImageTest;
using PartImage = ImageTest;

TEST_F(ChannelChunk, EndsWhereItIsCut)
{
    constexpr int kLast = slot::Count - 1, kParams = 4 + 7 * 512;
    // clang-format off
    // Afterwards: first and last path, program's path, request; stored level and last value, working level.
    struct Case { const char* what; int length; bool accepted; std::vector<std::string> texts; std::vector<float> values; };
    const Case cases[] = {
        {"whole",             kChannelChunk,     true,  {"D:\\0", "D:\\6", "D:\\p", "D:\\0"}, {0.25f,  0.75f,  0.25f}},
        {"longer than it is", 5000,              true,  {"D:\\0", "D:\\6", "D:\\p", "D:\\0"}, {0.25f,  0.75f,  0.25f}},
        {"cut program path",  kChannelChunk - 1, true,  {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.25f,  0.75f,  0.25f}},
        {"no program path",   kShortChunk,       true,  {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.25f,  0.75f,  0.25f}},
        {"cut last value",    kShortChunk - 1,   false, {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.25f,  0.0f,   0.75f}},
        {"no values",         kParams,           false, {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.0f,   0.0f,   0.75f}},
        {"cut last path",     kParams - 1,       false, {"D:\\0", "",      "",      "D:\\0"}, {0.75f,  0.5f,   0.75f}},
        {"tag only",          4,                 false, {"",      "",      "",      ""},      {0.75f,  0.5f,   0.75f}},
        {"cut tag",           3,                 false, {"old",   "old",   "old",   "old"},   {0.125f, 0.125f, 0.125f}},
        {"negative length",   -1,                false, {"old",   "old",   "old",   "old"},   {0.125f, 0.125f, 0.125f}},
    };
    // clang-format on
    engine.storedParams[2][slot::MixLevel] = 0.25f, engine.storedParams[2][kLast] = 0.75f;
    GrooveChannel &source = engine.Channel(2), &channel = engine.Channel(11);
    source.sampleSlots[0].path.Set("D:\\0"), source.sampleSlots[6].path.Set("D:\\6"), source.programPath.Set("D:\\p");
    Bytes chunk(5000);
    ASSERT_EQ(engine.SaveChannelChunk(chunk.data(), 2), kChannelChunk);
    chunk[4 + 511] = 'x'; // the first path's field, filled to its end
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        for (auto& value : engine.storedParams[11]) value = 0.125f;
        engine.RefreshChannel(11);
        for (auto& sampleSlot : channel.sampleSlots) sampleSlot.path.Set("old"), sampleSlot.request.Post("old");
        channel.programPath.Set("old");
        EXPECT_EQ(engine.LoadChannelChunk(chunk.data(), c.length, 11), c.accepted);
        char requests[2][LoadRequest::kPathBytes] = {};
        for (const int n : {0, 1}) channel.sampleSlots[n].request.Take(requests[n]);
        if (c.accepted) { EXPECT_STREQ(requests[1], "!") << "an empty path clears the slot"; }
        EXPECT_EQ((std::vector<std::string>{TextOf(channel.sampleSlots[0].path), TextOf(channel.sampleSlots[6].path),
                                            TextOf(channel.programPath), requests[0]}),
                  c.texts);
        const auto& stored = engine.storedParams[11];
        EXPECT_EQ((std::vector<float>{stored[slot::MixLevel], stored[kLast], channel.params[slot::MixLevel]}),
                  c.values);
    }
    EXPECT_FALSE(engine.LoadChannelChunk(chunk.data(), kChannelChunk, 13));
}

TEST_F(PartImage, MovesOneChannelIntoAnotherOfItsKind)
{
    FillGroove(engine, 3);
    engine.currentPattern = 4, engine.selectedChannel = 9;
    const Bytes part = SavedPart(engine);
    EXPECT_EQ(std::string(part.begin(), part.begin() + 4), "3StP");
    engine.selectedChannel = 11;
    Bytes expected = Saved(engine);
    std::copy_n(part.begin() + 8, kChannelChunk, expected.begin() + kHeader + 11 * kFramedChannel + 4);
    ASSERT_TRUE(engine.LoadPart(part.data(), static_cast<int>(part.size())));
    EXPECT_TRUE(SavedPart(engine) == part);
    EXPECT_EQ(std::memcmp(Saved(engine).data(), expected.data(), kPatternsAt), 0);
    engine.currentPattern = 5;
    EXPECT_FALSE(SavedPart(engine) == part);
}

TEST_F(PartImage, TakesWhatItCanOfADamagedPart)
{
    constexpr int kSequence = 8 + kChannelChunk, kSteps0 = kSequence + 8, kWhole = kSteps0 + 128 * kRecord + 4;
    constexpr int kSampler = 0x50744433; // "3DtP"
    // clang-format off
    // An int32 is written into the part, at 0 its tag; the steps that are not taken over stay what they were.
    struct Case { const char* what; int at, value, length, channel; bool accepted; float noteLength; int steps; };
    const Case cases[] = {
        {"whole",             0,             kSampler, kWhole,    7, true,  0.75f,  128}, {"other kind", 0, kSampler, kWhole, 8, false, 0.125f, 0},
        {"wrong channel tag", 8,             1,        kWhole,    2, false, 0.125f, 0},   {"wrong tag",  0, 1,        kWhole, 2, false, 0.125f, 0},
        {"no sequence",       0,             kSampler, kSequence, 2, false, 0.25f,  0},   {"negative one", kSequence, -1, kWhole, 2, false, 0.25f, 0},
        {"wrong sequence tag", kSequence + 4, 1,       kWhole,    2, false, 0.25f,  0},   {"short sequence", kSequence, 3, kWhole, 2, false, 0.25f, 0},
        {"sequence of ten steps", kSequence, 4 + 10 * kRecord, kWhole,            2, false, 0.25f, 10},
        {"cut after a step",      0,         kSampler,         kSteps0 + kRecord, 2, false, 0.25f, 1},
        {"no note length",        0,         kSampler,         kWhole - 1,        2, false, 0.25f, 128},
    };
    // clang-format on
    engine.selectedChannel = 0, engine.storedParams[0][slot::NoteLength] = 0.25f;
    for (auto& word : engine.Pattern().steps[0]) word = 9u;
    Bytes part = SavedPart(engine);
    ASSERT_EQ(part.size(), static_cast<std::size_t>(kWhole));
    Put(part, kWhole - 4, 0.75f);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Bytes image(part.begin(), part.begin() + c.length);
        Put(image, c.at, c.value);
        engine.selectedChannel = c.channel;
        auto& params = engine.storedParams[c.channel];
        params[slot::NoteLength] = 0.125f;
        auto& steps = engine.Pattern().steps[c.channel];
        for (auto& word : steps) word = 3u;
        EXPECT_EQ(engine.LoadPart(image.data(), c.length), c.accepted);
        EXPECT_EQ((c.accepted ? engine.Channel(c.channel).params : params)[slot::NoteLength], c.noteLength);
        EXPECT_EQ(std::count(std::begin(steps), std::end(steps), 9u), c.steps);
    }
}

} // namespace
} // namespace korvane
