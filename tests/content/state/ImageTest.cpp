// Images of grooves, channels and parts: every byte's place, and what becomes of those that are not as they should be.
#include <functional>

#include "content/state/ChannelChunk.h"
#include "content/state/Images.h"
#include "content/state/PartImage.h"

namespace korvane {
namespace {

struct Image : testing::Test {
    Image() { engine.ResetGroove(); }
    GrooveEngine engine;
};

TEST_F(Image, EveryFieldHasItsPlace)
{
    constexpr int kStep = kPatternsAt + 7 * kEmptyPattern + 8 + (12 * kSteps + 17) * kRecord; // pattern 8, step 18
    constexpr int kLength = kHeader + kFramedChannel + 8 + 7 * 512 + 4 * slot::NoteLength;    // of channel 2
    const GrooveEngine& e = engine;
    // clang-format off
    struct Case { const char* what; int at; Bytes bytes; std::function<bool()> holds; };
    const Case cases[] = {
        {"channel",     4,  {12}, [&] { return e.selection.selectedChannel == 12; }},
        {"pattern", 6, {6}, [&] { return e.score.currentPattern == 6; }}, {"bar", 5, {7}, [&] { return e.selection.selectedBar == 7; }},
        {"effect",      7,  {9},  [&] { return e.selection.selectedFx == 9; }},
        {"envelope", 8, {1}, [&] { return e.selection.envelopeNumber == 1; }}, {"LFO", 9, {1}, [&] { return e.selection.lfoNumber == 1; }},
        {"last mute",   22, {1},  [&] { return e.mixer.muted[12] && !e.mixer.muted[11]; }},
        {"play once",   23, {1},  [&] { return e.score.playOnce[0] && !e.score.playOnce[1]; }},
        {"shuffle",     31, {0, 0, 0, 0x3f}, [&] { return e.clock.shuffleAmount == 0.5f; }},
        {"last EXT",    83, {0, 0, 0x80, 0x3f, 12, 0, 0, 0, 211, 0, 0, 0}, [&ext = engine.ext.extControls[4]] {
            return ext.value == 1.0f && ext.binding == ExtBinding{12, kChannelSlots - 1}; }},
        {"last path",   kHeader + 8 + 6 * 512, {'C', ':', '\\', 'k'}, [&] {
            return TextOf(e.Channel(0).sound.sampleSlots[6].path) == "C:\\k"; }},
        {"note length", kLength, {0, 0, 0, 0xc0}, [&] { return e.storedParams[1][slot::NoteLength] == -2.0f; }},
        {"program",     kPatternsAt - 512, {'D', ':', '\\', 'p'}, [&] {
            return TextOf(e.Channel(12).programPath) == "D:\\p"; }},
        {"step",        kStep, {4, 3, 2, 0x81}, [&] { return e.score.patterns[7]->steps[12][17] == 0x81020304u; }},
    };
    // clang-format on
    const Bytes empty = Saved(engine);
    ASSERT_EQ(empty.size(), 144407u);
    for (const Case& c : cases) {
        Bytes image = empty;
        std::copy(c.bytes.begin(), c.bytes.end(), image.begin() + c.at);
        EXPECT_EQ((std::pair{Load(engine, empty), c.holds()}), std::pair(true, false)) << c.what;
        EXPECT_EQ((std::array{Load(engine, image), c.holds(), Saved(engine) == image}), (std::array{true, true, true}))
            << c.what;
    }
}

TEST_F(Image, TakesWhatItCanOfADamagedImage)
{
    constexpr int kThird = kPatternsAt + 2 * kEmptyPattern, kLastChannel = kPatternsAt - kFramedChannel;
    // clang-format off
    // An int32 is written and `count` bytes taken out. Afterwards: first step of each pattern, levels of the first
    // and the last channel (they were 0.5 and 0.25).
    struct Case { const char* what; int at, value, cut, count; bool accepted; std::string steps; float first, last; };
    const Case cases[] = {
        {"wrong tag",         0,            'x',            0,                 0,   false, "........", 0.125f, 0.75f},
        {"no program path",   kLastChannel, kShortChunk,    kPatternsAt - 512, 512, true,  "99999999", 0.5f,   0.25f},
        {"negative channel",  kHeader,      -kChannelChunk, 0,                 0,   false, "........", 0.75f,  0.75f},
        {"endless channel",   kLastChannel, INT32_MAX,      0,                 0,   false, "........", 0.5f,   0.25f},
        {"wrong channel tag", kHeader + 4,  'x',            0,                 0,   false, "........", 0.75f,  0.75f},
        {"wrong pattern tag", kThird + 4,   'x',            0,                 0,   true,  "99.99999", 0.5f,   0.25f},
        {"three bytes",       kThird, 3, kThird + 7, kEmptyPattern - 7,             true,  "99.99999", 0.5f,   0.25f},
        {"negative pattern",  kPatternsAt,  INT32_MIN,      0,                 0,   false, "........", 0.5f,   0.25f},
        {"endless pattern",   kThird,       INT32_MAX,      0,                 0,   false, "999.....", 0.5f,   0.25f},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        engine.ResetGroove();
        for (auto& pattern : engine.score.patterns) pattern->steps[0][0] = 9u;
        engine.storedParams[0][slot::MixLevel] = 0.5f;
        engine.storedParams[12][slot::MixLevel] = 0.25f;
        Bytes image = Saved(engine);
        Put(image, c.at, c.value);
        image.erase(image.begin() + c.cut, image.begin() + c.cut + c.count);
        engine.ResetGroove();
        engine.storedParams[0][slot::MixLevel] = 0.125f;
        EXPECT_EQ(Load(engine, image), c.accepted);
        std::string steps;
        for (const auto& pattern : engine.score.patterns) steps += pattern->steps[0][0] == 9u ? '9' : '.';
        EXPECT_EQ(steps, c.steps);
        EXPECT_EQ(engine.storedParams[0][slot::MixLevel], c.first);
        EXPECT_EQ(engine.storedParams[12][slot::MixLevel], c.last);
    }
}

// Selections are brought into range; an assignment that leads nowhere stands and does nothing.
TEST_F(Image, TakesWildSelections)
{
    Bytes image = Saved(engine);
    std::copy_n("\x0d\x08\xff\x7f\x02\x80", 6, image.begin() + 4);
    // EXT 1: no such channel; EXT 2: no such parameter
    for (const auto& [at, value] : {std::pair{39, kChannels}, {43, slot::AmpDecay}, {51, 3}, {55, 300}})
        Put(image, at, value);
    ASSERT_TRUE(Load(engine, image));
    image = Saved(engine);
    EXPECT_EQ(Bytes(image.begin() + 4, image.begin() + 10), (Bytes{12, 7, 0, 9, 1, 0}));
    for (const int n : {0, 1}) engine.SetExtControl(n, 0.5f);
    const ExtBinding first = engine.ext.extControls[0].binding, second = engine.ext.extControls[1].binding;
    EXPECT_EQ((std::vector<int>{first.channel, second.param}), (std::vector{kChannels, 300}));
}

TEST_F(Image, KeepsTheLocksThatActOfAListTooLong)
{
    // clang-format off
    // Locks announced, there, and of these with an index that acts on nothing.
    struct Case { const char* what; int told, present, wild, kept; };
    const Case cases[] = {
        {"full", kChannelSlots, kChannelSlots, 5, kChannelSlots}, {"far too long", INT16_MAX, 400, 0, kChannelSlots},
        {"too long", 300, 300, 100, 200}, {"negative", -1, 0, 0, 0}, {"cut", 5, 2, 0, 5}, {"none", 0, 0, 0, 0},
    };
    // clang-format on
    const Bytes empty = Saved(engine);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Bytes image(static_cast<std::size_t>(kPatternsAt + 8 + (1 + c.present) * kRecord)); // and no more patterns
        std::copy_n(empty.begin(), kPatternsAt + 8, image.begin());
        Put(image, kPatternsAt, static_cast<int>(image.size()) - kPatternsAt - 4);
        Put(image, kPatternsAt + 12, static_cast<std::int16_t>(c.told));
        for (int n = 0; n < c.present; ++n) {
            Put(image, kPatternsAt + 14 + n * kRecord,
                static_cast<std::int16_t>(n < c.wild ? -1 - n : n % kChannelSlots));
            Put(image, kPatternsAt + 16 + n * kRecord, 0.5f);
        }
        EXPECT_FALSE(Load(engine, image));
        const StepLockList& locks = engine.score.patterns[0]->locks[0][0];
        ASSERT_EQ(locks.Count(), c.kept);
        for (int n = 0; n < locks.Count(); ++n) EXPECT_EQ(locks.At(n).offset, n < c.present ? 0.5f : 0.0f);
    }
}

// What is saved and loaded is saved again to the byte; whatever the bytes are, it stays so.
TEST_F(Image, SavesWhatItLoads)
{
    GrooveEngine other;
    std::mt19937 random(1);
    for (unsigned round = 0; round < 300; ++round) {
        FillGroove(engine, 1 + round / 60);
        Bytes image = Saved(engine);
        ASSERT_EQ((std::pair{Load(other, image), Saved(other) == image}), std::pair(true, true)) << round;
        for (int flips = 1 + static_cast<int>(random() % 8); flips > 0; --flips)
            image[random() % (round % 2 ? image.size() : kHeader + 4)] = static_cast<std::uint8_t>(random());
        Load(engine, image);
        image = Saved(engine);
        ASSERT_EQ((std::pair{Load(other, image), Saved(other) == image}), std::pair(true, true)) << round << ", wild";
    }
}

// A chunk is read front to back: what stands before the cut is taken, the rest is the reset channel's.
TEST_F(Image, AChannelEndsWhereItIsCut)
{
    constexpr int kLast = slot::Count - 1, kParams = 4 + 7 * 512;
    // clang-format off
    // Afterwards: first and last path, program's path, request; stored level and last value, working level.
    struct Case { const char* what; int size; bool taken; std::vector<std::string> texts; std::vector<float> values; };
    const Case cases[] = {
        {"whole",             kChannelChunk,     true,  {"D:\\0", "D:\\6", "D:\\p", "D:\\0"}, {0.25f,  0.75f,  0.25f}},
        {"cut program path",  kChannelChunk - 1, true,  {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.25f,  0.75f,  0.25f}},
        {"no program path",   kShortChunk,       true,  {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.25f,  0.75f,  0.25f}},
        {"cut last value",    kShortChunk - 1,   false, {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.25f,  0.0f,   0.75f}},
        {"no values",         kParams,           false, {"D:\\0", "D:\\6", "",      "D:\\0"}, {0.0f,   0.0f,   0.75f}},
        {"cut last path",     kParams - 1,       false, {"D:\\0", "",      "",      "D:\\0"}, {0.75f,  0.5f,   0.75f}},
        {"tag only",          4,                 false, {"",      "",      "",      "!"},     {0.75f,  0.5f,   0.75f}},
        {"cut tag",           3,                 false, {"old",   "old",   "old",   "old"},   {0.125f, 0.125f, 0.125f}},
        {"negative length",   -1,                false, {"old",   "old",   "old",   "old"},   {0.125f, 0.125f, 0.125f}},
    };
    // clang-format on
    engine.storedParams[2][slot::MixLevel] = 0.25f;
    engine.storedParams[2][kLast] = 0.75f;
    GrooveChannel &source = engine.Channel(2), &channel = engine.Channel(11);
    for (const int n : {0, 6}) source.sound.sampleSlots[n].path.Set((std::string("D:\\") + std::to_string(n)).c_str());
    source.programPath.Set("D:\\p");
    Bytes chunk(5000);
    ASSERT_EQ(SaveChannelChunk(engine, chunk.data(), 2), kChannelChunk);
    chunk[4 + 511] = 'x'; // the first path's field, filled to its end
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        for (auto& value : engine.storedParams[11]) value = 0.125f;
        engine.RefreshChannel(11);
        for (auto& sampleSlot : channel.sound.sampleSlots) sampleSlot.path.Set("old");
        for (auto& sampleSlot : channel.sound.sampleSlots) sampleSlot.request.Post("old");
        channel.programPath.Set("old");
        EXPECT_EQ(LoadChannelChunk(engine, chunk.data(), c.size, 11), c.taken);
        char requests[2][LoadRequest::kPathBytes] = {};
        for (const int n : {0, 1}) channel.sound.sampleSlots[n].request.Take(requests[n]);
        if (c.taken) { EXPECT_STREQ(requests[1], "!") << "an empty path clears the slot"; }
        EXPECT_EQ((std::vector<std::string>{TextOf(channel.sound.sampleSlots[0].path),
                                            TextOf(channel.sound.sampleSlots[6].path), TextOf(channel.programPath),
                                            requests[0]}),
                  c.texts);
        const auto& stored = engine.storedParams[11];
        EXPECT_EQ((std::vector<float>{stored[slot::MixLevel], stored[kLast], channel.sound.params[slot::MixLevel]}),
                  c.values);
    }
    EXPECT_FALSE(LoadChannelChunk(engine, chunk.data(), kChannelChunk, kChannels));
}

TEST_F(Image, APartMovesIntoAChannelOfItsKind)
{
    FillGroove(engine, 3);
    engine.score.currentPattern = 4;
    engine.selection.selectedChannel = 9;
    const Bytes part = SavedPart(engine);
    EXPECT_EQ(std::string(part.begin(), part.begin() + 4), "3StP");
    engine.selection.selectedChannel = 11;
    Bytes expected = Saved(engine);
    std::copy_n(part.begin() + 8, kChannelChunk, expected.begin() + kHeader + 11 * kFramedChannel + 4);
    ASSERT_TRUE(LoadPart(engine, part.data(), static_cast<int>(part.size())));
    EXPECT_TRUE(SavedPart(engine) == part);
    EXPECT_EQ(std::memcmp(Saved(engine).data(), expected.data(), kPatternsAt), 0);
    engine.score.currentPattern = 5;
    EXPECT_FALSE(SavedPart(engine) == part);
}

TEST_F(Image, TakesWhatItCanOfADamagedPart)
{
    constexpr int kTag = 8 + kChannelChunk + 4, kSteps0 = kTag + 4, kWhole = kSteps0 + kSteps * kRecord + 4;
    constexpr int kSampler = 0x50744433; // "3DtP"
    // clang-format off
    // An int32 is written into the part, at 0 its tag; the steps that are not taken over stay what they were.
    struct Case { const char* what; int at, value, length, channel; bool accepted; float noteLength; int steps; };
    const Case cases[] = {
        {"whole", 0, kSampler, kWhole, 7, true, 0.75f, kSteps}, {"synth", 0, kSampler, kWhole, 8, false, 0.125f, 0},
        {"wrong tag", 0, 1, kWhole, 2, false, 0.125f, 0}, {"wrong channel tag", 8, 1, kWhole, 2, false, 0.125f, 0},
        {"none", 0, kSampler, kTag - 4, 2, false, 0.25f, 0}, {"wrong one", kTag, 1, kWhole, 2, false, 0.25f, 0},
        {"short", kTag - 4, 3, kWhole, 2, false, 0.25f, 0}, {"negative", kTag - 4, -1, kWhole, 2, false, 0.25f, 0},
        {"ten steps",        kTag - 4, 4 + 10 * kRecord, kWhole, 2, false, 0.25f, 10},
        {"cut after a step", 0, kSampler, kSteps0 + kRecord,     2, false, 0.25f, 1},
        {"no note length",   0, kSampler, kWhole - 1,            2, false, 0.25f, kSteps},
    };
    // clang-format on
    engine.selection.selectedChannel = 0;
    engine.storedParams[0][slot::NoteLength] = 0.25f;
    for (auto& word : engine.score.Current().steps[0]) word = 9u;
    Bytes part = SavedPart(engine);
    ASSERT_EQ(part.size(), static_cast<std::size_t>(kWhole));
    Put(part, kWhole - 4, 0.75f);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Bytes image(part.begin(), part.begin() + c.length);
        Put(image, c.at, c.value);
        engine.selection.selectedChannel = c.channel;
        auto& params = engine.storedParams[c.channel];
        params[slot::NoteLength] = 0.125f;
        auto& steps = engine.score.Current().steps[c.channel];
        for (auto& word : steps) word = 3u;
        EXPECT_EQ(LoadPart(engine, image.data(), c.length), c.accepted);
        const float heard = engine.Channel(c.channel).sound.params[slot::NoteLength], stored = params[slot::NoteLength];
        EXPECT_EQ(c.accepted ? heard : stored, c.noteLength);
        EXPECT_EQ(std::count(std::begin(steps), std::end(steps), 9u), c.steps);
    }
}

} // namespace
} // namespace korvane
