// Stutter: buttons into codes, codes into settings, the loop itself.
#include <gtest/gtest.h>

#include <tuple>

#include "engine/fx/FxSettings.h"
#include "engine/fx/Signals.h"
#include "engine/sequencer/StutterButtons.h"

namespace korvane {
namespace {

// Digits press buttons 1 to 5, letters a to e release them.
TEST(StutterButtons, TurnHoldsIntoCodes)
{
    // clang-format off
    const struct { const char *what, *presses; int code; } cases[] = {
        {"none",                          "",      0}, {"1/1",                         "1",    1},
        {"1/4",                           "5",     5}, {"the last one counts",         "13",   3},
        {"back to the one still held",    "13c",   1}, {"first let go",                "13a",  3},
        {"back to the latest still held", "1324d", 2}, {"all let go",                  "13ac", 0},
        {"1/4 turns 1/1",                 "15",    6}, {"in either order",             "52",   7},
        {"1/4 turns 1/2",                 "35",    8}, {"1/4 turns 3/8 into 1/8",      "45",   9},
        {"among three it counts alone",   "125",   5}, {"until one is let go",         "125b", 6},
        {"its partner let go",            "15a",   5}, {"pressed twice",               "112b", 1},
        {"no such button",                "1689",  1},
    };
    // clang-format on
    for (const auto& c : cases) {
        StutterButtons buttons;
        for (const char* p = c.presses; *p; ++p) *p < 'a' ? buttons.Press(*p - '1') : buttons.Release(*p - 'a');
        EXPECT_EQ(buttons.Code(), c.code) << c.what;
        buttons.Clear();
        EXPECT_EQ(buttons.Code(), 0) << c.what;
    }
}

TEST(SetStutter, SetsLengthAndDirection)
{
    // clang-format off
    const struct { int code; float beats; int reverse; } cases[] = {
        {1, 1.0f,  0}, {2, 0.75f, 0}, {3, 0.5f,   0}, {4,  0.375f, 0}, {5,  0.25f, 0}, {6, 1.0f, 1},
        {7, 0.75f, 1}, {8, 0.5f,  1}, {9, 0.125f, 0}, {-3, 0.5f,   0}, {-7, 0.75f, 1}};
    // clang-format on
    FXUnit unit(FxType::Stutter);
    for (const auto& c : cases)
        for (int wrong : {0, 10, -128}) {
            std::int8_t code = static_cast<std::int8_t>(c.code), none = static_cast<std::int8_t>(wrong);
            SetStutter(unit, none);
            EXPECT_EQ(unit.bypass, 1);
            SetStutter(unit, code);
            EXPECT_EQ(std::tuple(unit.lfoBeats, unit.reverse, unit.bypass), std::tuple(c.beats, c.reverse, 0))
                << c.code;
            EXPECT_EQ(code, std::abs(c.code));
        }
}

/// Slice of 6000 frames: 1/4 beat at 120 BPM.
constexpr int kSlice = 6000;

Sound Stuttered(const Sound& input, std::int8_t code, int offAt)
{
    Played unit(FxType::Stutter);
    Sound sound = input, before = Noise(9000, 0.1f);
    std::int8_t earlier = -2;
    SetStutter(unit, earlier);
    unit.Run(before);
    SetStutter(unit, code);
    unit.lfoBeats = 0.25f;
    unit.Run(sound, 0, offAt);
    unit.bypass = 1;
    unit.Run(sound, offAt);
    return sound;
}

// The first slice passes while it is recorded; then it repeats. The first 192 frames of a repeat come out of what
// followed the slice when it was recorded.
TEST(Stutter, LoopsTheFirstSliceBehindASeam)
{
    const Sound input = Noise(15 * kSlice);
    const Sound forwards = Stuttered(input, -1, 15 * kSlice), backwards = Stuttered(input, -6, 15 * kSlice);
    for (int n = 0; n < kSlice - 1; ++n) ASSERT_EQ(forwards.left[n], input.left[n]);
    for (int repeat : {2, 3, 13}) // the recording is full after 12 slices
        for (int n = 0; n < kSlice - 2; ++n) {
            const int at = repeat * kSlice + 1 + n; // the sum of 6000 steps stays just below 1
            const float fresh = std::min(static_cast<float>(n) / 192.0f, 1.0f), old = 1.0f - fresh;
            ASSERT_NEAR(forwards.left[at], fresh * input.left[n] + old * input.left[kSlice - 1 + n], 1e-3f) << at;
            ASSERT_NEAR(backwards.right[at], fresh * input.right[kSlice - n] + old * input.right[kSlice - 1 + n], 1e-3f)
                << at;
        }
}

// The loop comes in and goes by 1 % of the way per frame; released, the unit works for 202 frames or until it has
// faded.
TEST(Stutter, FadesIntoTheLoopAndBackToTheInput)
{
    Sound input(5 * kSlice, 0.5f);
    std::fill(input.left.begin() + kSlice, input.left.end(), 0.0f);
    const Sound sound = Stuttered(input, -1, 3 * kSlice);
    constexpr int kBehindTheSeam = 2 * kSlice + 200, kOff = 3 * kSlice + 300;
    EXPECT_NEAR(sound.left[kBehindTheSeam], 0.5f, 1e-4f);
    for (int n = 0; n < 192; ++n)
        ASSERT_NEAR(sound.left[kSlice + 1 + n], n / 192.0 * 0.5 * (1.0 - std::pow(0.99, n + 1)), 1e-3) << n;
    for (int n = 200; n < 900; ++n) ASSERT_NEAR(sound.left[3 * kSlice + n], 0.5 * std::pow(0.99, n + 1), 1e-3) << n;
    for (int n = kOff + 800; n < input.Frames(); ++n) ASSERT_EQ(sound.left[n], 0.0f) << n;
}

} // namespace
} // namespace korvane
