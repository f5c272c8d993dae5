// Pixel buffers: memory, clip rectangles, copies.
#include <gtest/gtest.h>

#include <climits>

#include "gui/pixels/Mixing.h"
#include "gui/pixels/Shown.h"

namespace korvane {
namespace {

TEST(Buffer, KeepsWhatItHasAtItsOwnSize)
{
    Filled buffer(2, 3, 7);
    EXPECT_TRUE(buffer.Create(2, 3, true));
    EXPECT_EQ(std::pair(Shown(buffer), buffer.HasAlpha()), std::pair(Words(6, 7), false));
    EXPECT_FALSE(buffer.Create(0, 3, false) || buffer.Create(2, -3, false));
    EXPECT_EQ(buffer.GetSize(), (Size{2, 3}));
    EXPECT_TRUE(buffer.Create(3, 2, true));
    EXPECT_EQ(std::pair(Shown(buffer), buffer.HasAlpha()), std::pair(Words(6, 0), true));
    EXPECT_FALSE(buffer.Create(INT_MAX, INT_MAX, false) || buffer.IsValid() || buffer.HasAlpha());
}

TEST(Buffer, TheClipStaysInside)
{
    // clang-format off
    struct Case { Rect asked; bool some; Rect clip; };
    const Case cases[] = {
        {{2, 1, 3, 4}, true, {2, 1, 3, 4}},   {{-2, -3, 5, 5}, true, {0, 0, 3, 2}},
        {{7, 5, 9, 9}, true, {7, 5, 1, 1}},   {{8, 0, 1, 1}, false, {0, 0, 8, 6}},
        {{3, 3, 0, 2}, false, {0, 0, 8, 6}},  {{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, false, {0, 0, 8, 6}},
        {{-3, 0, 3, 2}, false, {0, 0, 8, 6}}, {{5, 5, INT_MAX, INT_MAX}, true, {5, 5, 3, 1}},
    };
    // clang-format on
    Filled buffer(6, 8, 0);
    for (const Case& c : cases) {
        buffer.SetClipRect({1, 1, 1, 1});
        EXPECT_TRUE(buffer.SetClipRect(c.asked) == c.some && buffer.clip == c.clip) << &c - cases;
    }
}

// What the source cuts off shrinks a copy at its far side; what the destination cuts off moves the source.
TEST(Buffer, CutsCopiesToBothClips)
{
    // clang-format off
    struct Case { const char* what; Rect asked; Point from; bool some; Rect to; Point source; };
    const Case cases[] = {
        {"left of and above the destination", {1, 0, 4, 4}, {3, 3}, true, {2, 2, 3, 2}, {4, 5}},
        {"left of and above the source", {4, 4, 4, 4}, {1, 0}, true, {4, 4, 3, 1}, {2, 3}},
        {"right of both", {8, 8, 9, 9}, {5, 5}, true, {8, 8, 2, 2}, {5, 5}},
        {"nothing of the source", {4, 4, 2, 2}, {0, 0}, false, {}, {}},
        {"nothing of the destination", {20, 4, 2, 2}, {4, 4}, false, {}, {}},
        {"wild", {INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {INT_MAX, INT_MIN}, false, {}, {}},
        {"a wild size", {5, 5, INT_MAX, INT_MAX}, {4, 4}, true, {5, 5, 4, 4}, {4, 4}},
    };
    // clang-format on
    Filled source(12, 12, 0), dest(12, 12, 0);
    source.SetClipRect({2, 3, 6, 5});
    dest.SetClipRect({2, 2, 8, 8});
    for (Case c : cases) {
        EXPECT_EQ(source.ClipBlit(&dest, c.asked, c.from), c.some) << c.what;
        EXPECT_TRUE(!c.some || (c.asked == c.to && c.from == c.source)) << c.what;
    }
}

// A copy moves the whole word; a mix keeps the top byte and loses a 256th at full opacity.
TEST(Buffer, MixesByPlaneAndOpacity)
{
    // clang-format off
    struct Case { int plane, opacity; std::uint32_t result; };
    const Case cases[] = { // of (255, 128, 0) over (64, 100, 128)
        {-1, 255, 0x77FF8000}, {-1, 0, 0x11406480},   {-1, 100, 0x118A6E4D},  {255, 255, 0x11FE7F00},
        {0, 255, 0x113F637F},  {255, 1, 0x113F637F},  {128, 255, 0x119F713F}, {128, 100, 0x11656966}, // the last: 50
    };
    // clang-format on
    for (const auto& [plane, opacity, result] : cases) {
        Filled source(1, 1, 0x77FF8000, plane >= 0), dest(1, 1, 0x11406480);
        if (plane >= 0) source.alpha[0] = static_cast<std::uint8_t>(plane);
        source.DrawBlended(&dest, {0, 0, 1, 1}, {0, 0}, static_cast<std::uint8_t>(opacity));
        EXPECT_EQ(dest.pixels[0], result) << plane << ' ' << opacity;
        CDrawBuffer empty;
        source.DrawBlended(nullptr, {0, 0, 1, 1}, {0, 0}, static_cast<std::uint8_t>(opacity));
        source.DrawBlended(&empty, {0, 0, 1, 1}, {0, 0}, static_cast<std::uint8_t>(opacity));
        empty.DrawBlended(&dest, {0, 0, 1, 1}, {0, 0}, static_cast<std::uint8_t>(opacity));
        EXPECT_EQ(dest.pixels[0], result);
    }
}

TEST(Buffer, CopiesOntoItselfWhatWasThere)
{
    for (const bool withAlpha : {false, true})
        for (const std::uint8_t opacity : {100, 255})
            for (const Point way : {Point{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {2, 3}, {-2, 1}}) {
                Filled buffer(9, 11, 0, withAlpha), expected(9, 11, 0);
                buffer.Scatter();
                expected.Scatter();
                const Rect to{3 + way.x, 3 + way.y, 6, 3};
                buffer.DrawBlended(&expected, to, {3, 3}, opacity);
                buffer.DrawBlended(&buffer, to, {3, 3}, opacity);
                EXPECT_EQ(Shown(buffer), Shown(expected)) << withAlpha << ' ' << way.x << ' ' << way.y;
            }
}

TEST(Buffer, VectorFormsGiveTheBitsOfThePlainOnes)
{
    Filled source(1, 20, 0, true);
    source.Scatter();
    const std::uint32_t* pixels = source.pixels.get();
    for (int count = 0; count <= 17; ++count)
        for (int opacity = 0; opacity < 256; ++opacity) {
            const auto o = source.alpha[count] = static_cast<std::uint8_t>(opacity);
            const mixing::Channels first{opacity << 16, 255 << 16, 0, (255 - opacity) << 16};
            const mixing::Channels step{(128 - opacity) * 3855, -983040, 12345, (opacity - 128) * 7710};
            Words vector(18, 0xA5FF0180), plain = vector;
            const auto mix = [&](auto from, auto by) {
                mixing::MixRow(vector.data(), count, from, by);
                mixing::MixRowPlain(plain.data(), 0, count, from, by);
            };
            mix(mixing::Pixels{pixels}, mixing::Even{o});
            mix(mixing::OneColor{pixels[0]}, mixing::Even{o});
            mix(mixing::Pixels{pixels + 1}, mixing::Plane{&source.alpha[1]});
            mix(mixing::Pixels{pixels + 2}, mixing::FaintPlane{&source.alpha[1], o});
            mixing::MixGradient(vector.data(), count, first, step);
            mixing::MixGradientPlain(plain.data(), count, first, step);
            ASSERT_EQ(vector, plain) << count << " pixels at " << opacity;
        }
}

} // namespace
} // namespace korvane
