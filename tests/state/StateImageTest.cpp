// The groove image: every byte's place, and what becomes of images that are not as they should be.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "state/Images.h"

namespace korvane {
namespace {

TEST(StateImage, EveryFieldHasItsPlace)
{
    // clang-format off
    struct Case { const char* what; std::function<void(GrooveEngine&)> set; int offset; Bytes bytes; };
    const Case cases[] = {
        {"selected channel", [](auto& e) { e.selectedChannel = 12; },  4, {12}},
        {"selected bar",     [](auto& e) { e.selectedBar = 7; },       5, {7}},
        {"pattern",          [](auto& e) { e.currentPattern = 6; },    6, {6}},
        {"effect",           [](auto& e) { e.selectedFx = 9; },        7, {9}},
        {"envelope",         [](auto& e) { e.envelopeNumber = 1; },    8, {1}},
        {"LFO",              [](auto& e) { e.lfoNumber = 1; },         9, {1}},
        {"last mute",        [](auto& e) { e.muted[12] = true; },     22, {1}},
        {"first play once",  [](auto& e) { e.playOnce[0] = true; },   23, {1}},
        {"shuffle",          [](auto& e) { e.shuffleAmount = 0.5f; }, 31, {0, 0, 0, 0x3f}},
        {"last EXT record",  [](auto& e) { e.extControls[4].value = 1.0f; e.extControls[4].channel = 12;
                                           e.extControls[4].param = 211; },
                                           83, {0, 0, 0x80, 0x3f, 12, 0, 0, 0, 211, 0, 0, 0}},
        {"last slot's path", [](auto& e) { e.Channel(0).sampleSlots[6].path.Set("C:\\k"); },
                                           kHeader + 4 + 4 + 6 * 512, {'C', ':', '\\', 'k', 0}},
        {"note length",      [](auto& e) { e.storedParams[1][3] = -2.0f; },
                                           kHeader + kFramedChannel + 4 + 3588 + 12, {0, 0, 0, 0xc0}},
        {"program path",     [](auto& e) { e.Channel(12).programPath.Set("D:\\p"); },
                                           kPatternsAt - 512, {'D', ':', '\\', 'p', 0}},
        {"bar 2 step 2",     [](auto& e) { e.patterns[7]->steps[12][17] = 0x81020304u; },
                                           kPatternsAt + 7 * kEmptyPattern + 8 + (12 * 128 + 17) * 6, {4, 3, 2, 0x81}},
    };
    // clang-format on
    GrooveEngine engine;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        engine.ResetGroove();
        for (auto& control : engine.extControls) control.value = 0.0f, control.channel = 0;
        Bytes expected = Saved(engine);
        ASSERT_EQ(expected.size(), 144407u);
        std::copy(c.bytes.begin(), c.bytes.end(), expected.begin() + c.offset);
        c.set(engine);
        EXPECT_TRUE(Saved(engine) == expected);
        EXPECT_TRUE(Load(engine, expected));
        EXPECT_TRUE(Saved(engine) == expected);
        engine.Channel(12).programPath.Set("");
    }
}

TEST(StateImage, SavesWhatItLoads)
{
    GrooveEngine engine, other;
    for (unsigned seed = 1; seed < 6; ++seed) {
        FillGroove(engine, seed);
        const Bytes image = Saved(engine);
        ASSERT_TRUE(Load(other, image));
        EXPECT_TRUE(Saved(other) == image) << seed;
        for (int c = 0; c < kChannels; ++c)
            for (const float value : other.Channel(c).params) ASSERT_TRUE(std::isfinite(value));
    }
}

TEST(StateImage, TakesWhatItCanOfADamagedImage)
{
    constexpr int kThird = kPatternsAt + 2 * kEmptyPattern;
    const auto marked = [](GrooveEngine& e, std::size_t p) { return e.patterns[p]->steps[0][0] == 9u; };
    const auto all = [&](GrooveEngine& e) { return marked(e, 0) && marked(e, 2) && marked(e, 7); };
    const auto allBut2 = [&](GrooveEngine& e) { return marked(e, 1) && !marked(e, 2) && marked(e, 3) && marked(e, 7); };
    const auto noPatterns = [&](GrooveEngine& e) { return !marked(e, 0) && e.storedParams[12][0] == 0.25f; };
    const auto cutPaths = [](Bytes& b) {
        for (int c = 12; c >= 0; --c) {
            const int at = kHeader + c * kFramedChannel;
            Put(b, at, 4436);
            b.erase(b.begin() + at + 4 + 4436, b.begin() + at + kFramedChannel);
        }
    };
    // clang-format off
    struct Case { const char* what; std::function<void(Bytes&)> damage; bool accepted; std::function<bool(GrooveEngine&)> holds; };
    const Case cases[] = {
        {"as it is",               [](Bytes&) {}, true, all},
        {"wrong tag",              [](Bytes& b) { b[0] = 'x'; }, false,
                                   [](auto& e) { return e.storedParams[0][0] == 0.125f; }},
        {"selections out of range", [](Bytes& b) { b[4] = 13; b[5] = 8; b[6] = 0xff; b[7] = 127; b[8] = 2; b[9] = 0x80; },
                                   true, [](auto& e) { return e.selectedChannel == 12 && e.selectedBar == 7 &&
                                         e.currentPattern == 0 && e.selectedFx == 9 && e.envelopeNumber == 1 &&
                                         e.lfoNumber == 0; }},
        {"EXT of no parameter",    [](Bytes& b) { Put(b, 43, 300); }, true,
                                   [](auto& e) { e.SetExtControl(0, 0.5f); return e.extControls[0].param == 300; }},
        {"EXT of no channel",      [](Bytes& b) { Put(b, 39, 13); Put(b, 43, 5); }, true,
                                   [](auto& e) { e.SetExtControl(0, 0.5f); return e.extControls[0].channel == 13; }},
        {"no program paths",       cutPaths, true, [&](auto& e) { return all(e) && e.Channel(12).programPath.Empty(); }},
        {"longer channel chunk",   [](Bytes& b) { Put(b, kHeader, 4957); b.insert(b.begin() + kHeader + kFramedChannel, 9, 1); },
                                   true, all},
        {"negative channel chunk", [](Bytes& b) { Put(b, kHeader, -4948); }, false, [&](auto& e) { return !marked(e, 0); }},
        {"endless channel chunk",  [](Bytes& b) { Put(b, kPatternsAt - kFramedChannel, INT32_MAX); }, false, noPatterns},
        {"wrong channel tag",      [](Bytes& b) { b[kHeader + 4] = 'x'; }, false,
                                   [](auto& e) { return e.storedParams[0][0] == 0.75f; }},
        {"wrong pattern tag",      [](Bytes& b) { b[kThird + 4] = 'x'; }, true, allBut2},
        {"pattern of three bytes", [](Bytes& b) { Put(b, kThird, 3); b.erase(b.begin() + kThird + 7, b.begin() + kThird + kEmptyPattern); },
                                   true, allBut2},
        {"negative pattern",       [](Bytes& b) { Put(b, kPatternsAt, INT32_MIN); }, false, noPatterns},
        {"endless pattern",        [](Bytes& b) { Put(b, kThird, INT32_MAX); }, false,
                                   [&](auto& e) { return marked(e, 2) && !marked(e, 3); }},
    };
    // clang-format on
    GrooveEngine engine;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        engine.ResetGroove();
        for (auto& pattern : engine.patterns) pattern->steps[0][0] = 9u;
        engine.storedParams[12][0] = 0.25f;
        Bytes image = Saved(engine);
        c.damage(image);
        engine.ResetGroove();
        engine.Channel(12).programPath.Set("");
        engine.storedParams[0][0] = 0.125f;
        EXPECT_EQ(Load(engine, image), c.accepted);
        EXPECT_TRUE(c.holds(engine));
    }
}

TEST(StateImage, LoadsTheStepsUpToACut)
{
    GrooveEngine engine;
    engine.ResetGroove();
    for (auto& word : engine.patterns[7]->steps[12]) word = 1u;
    const Bytes image = Saved(engine);
    constexpr int kLast = kEmptyGroove - kEmptyPattern, kWords = kEmptyGroove - 128 * 6;
    for (int cut = 0; cut < kEmptyGroove; cut += cut < 200 || cut > kWords - 9 ? 1 : 397) {
        for (auto& word : engine.patterns[7]->steps[12]) word = 0u;
        ASSERT_EQ(Load(engine, Bytes(image.begin(), image.begin() + cut)), cut >= kLast + 4) << cut;
        int loaded = 0;
        for (const auto& word : engine.patterns[7]->steps[12]) loaded += word != 0u;
        ASSERT_EQ(loaded, std::max(0, cut - kWords + 2) / 6) << cut;
    }
}

TEST(StateImage, KeepsTheLocksThatActOfAListTooLong)
{
    // clang-format off
    // Locks announced, there, and of these with an index that acts on nothing.
    struct Case { const char* what; int told, present, wild, kept; };
    const Case cases[] = {
        {"full",     212, 212, 5, 212}, {"too long", 300, 300, 100, 200}, {"far too long", 32767, 400, 0, 212},
        {"negative", -1,  0,   0, 0},   {"cut",      5,   2,   0,   5},   {"none",         0,     0,   0, 0},
    };
    // clang-format on
    GrooveEngine engine;
    engine.ResetGroove();
    const Bytes empty = Saved(engine);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Bytes image(empty.begin(), empty.begin() + kPatternsAt + 8); // then one record and no more patterns
        image.resize(image.size() + 6 + static_cast<std::size_t>(c.present) * 6);
        Put(image, kPatternsAt, static_cast<int>(image.size()) - kPatternsAt - 4);
        Put(image, kPatternsAt + 12, static_cast<std::int16_t>(c.told));
        for (int n = 0; n < c.present; ++n) {
            Put(image, kPatternsAt + 14 + n * 6, static_cast<std::int16_t>(n < c.wild ? -1 - n : n % 212));
            Put(image, kPatternsAt + 16 + n * 6, 0.5f);
        }
        EXPECT_FALSE(Load(engine, image));
        const StepLockList& locks = engine.patterns[0]->locks[0][0];
        ASSERT_EQ(locks.Count(), c.kept);
        for (int n = 0; n < locks.Count(); ++n) EXPECT_EQ(locks.At(n).offset, n < c.present ? 0.5f : 0.0f);
    }
}

// Whatever the bytes are, the engine stays one that saves and loads back what it saved.
TEST(StateImage, SurvivesFlippedBytes)
{
    GrooveEngine engine, other;
    FillGroove(engine, 7);
    const Bytes image = Saved(engine);
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        Bytes wild = image;
        for (int flips = 1 + static_cast<int>(random() % 8); flips > 0; --flips)
            wild[random() % (round % 2 ? wild.size() : kHeader + 4)] = static_cast<std::uint8_t>(random());
        Load(engine, wild);
        const Bytes saved = Saved(engine);
        ASSERT_TRUE(Load(other, saved)) << round;
        ASSERT_TRUE(Saved(other) == saved) << round;
    }
}

} // namespace
} // namespace korvane
