// Rectangles, gradients, frames and lines.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "gui/pixels/Shown.h"

namespace korvane {
namespace {

TEST(Draw, FillsByTheAlphaOfItsColour)
{
    // Opaque clears the top byte; (16, 32, 48) * 128 + 128 * 127
    for (const auto& [color, inside] :
         {std::pair{0xFF102030u, 0x00102030u}, {0x102030, 0x99808080}, {0x80102030, 0x99474F57}})
        for (const bool gradient : {false, true}) { // one of four equal colours is no gradient
            Filled buffer(3, 4, 0x99808080);
            buffer.SetClipRect({0, 0, 3, 3});
            buffer.SetFillColor(gradient ? kWhite : color);
            const Color corners[] = {color, color, color, color};
            buffer.FillRectOrGradient({1, 1, INT_MAX, 1}, gradient ? corners : nullptr);
            Words expected(12, 0x99808080);
            expected[5] = expected[6] = inside;
            EXPECT_EQ(Shown(buffer), expected) << color;
            EXPECT_EQ(buffer.GetFillColor(), gradient ? kWhite : color);
        }
}

// The left edge climbs by a third of the way per row and does not arrive, the right one by half of it; at opacity 255 a
// value loses one. What is cut off does not move the colours.
TEST(Draw, GradientsSpanTheRectangleThatWasAskedFor)
{
    // clang-format off
    struct Case { const char* what; Rect rect; Words shown; };
    const Case cases[] = {
        {"whole", {0, 0, 3, 3}, {59, 84, 109, 29, 44, 59, 0, 4, 9}},
        {"cut", {-1, -1, 3, 3}, {29, 44, 7, 0, 4, 7, 7, 7, 7}}, {"wild", {2, 2, INT_MAX, INT_MAX}, {7, 7, 7, 7, 7, 7, 7, 7, 0}},
        {"a row", {0, 1, 3, 1}, {7, 7, 7, 0, 4, 9, 7, 7, 7}},   {"a column", {1, 0, 1, 3}, {7, 59, 7, 7, 29, 7, 7, 0, 7}},
        {"outside", {3, 0, 3, 3}, Words(9, 7)},                 {"empty", {0, 0, -3, INT_MIN}, Words(9, 7)},
    };
    // clang-format on
    for (const Case& c : cases) {
        Filled buffer(3, 3, 7);
        buffer.FillGradient(c.rect, Rgb(0, 0, 90), Rgb(0, 0, 110), Rgb(0, 0, 10), Rgb(0, 0, 0));
        EXPECT_EQ(Shown(buffer), c.shown) << c.what;
    }
    Filled buffer(1, 3, 0xAA640000); // 0, 64, 128 of red 200 over 100: 99, 124, 149
    buffer.FillGradient({0, 0, 3, 1}, kWhite, kWhite, Rgb(200, 0, 0, 128), Rgb(200, 0, 0, 0));
    EXPECT_EQ(Shown(buffer), (Words{0xAA630000, 0xAA7C0000, 0xAA950000}));
}

// Half opaque white over black: 127 where the frame covers once, 190 where twice.
TEST(Draw, FramesStandInsideTheirRectangle)
{
    // clang-format off
    struct Case { const char* what; Rect rect; int width; std::string shown; };
    const Case cases[] = {
        {"one pixel", {1, 1, 4, 3}, -5, "...... .1111. .1..1. .1111."}, {"sides meet", {1, 0, 3, 3}, 2, ".121.. .121.. .121.. ......"},
        {"top and bottom meet", {0, 0, 6, 3}, 2, "111111 112211 111111 ......"},
        {"wild", {INT_MIN, 3, INT_MAX, INT_MAX}, INT_MAX, "...... ...... ...... ......"},
        {"wider than wide", {2, 1, 2, 2}, INT_MAX, "...... 112211 112211 ......"},
    };
    // clang-format on
    for (const Case& c : cases) {
        Filled buffer(4, 6, 0);
        buffer.SetFrameColor(WithAlpha(kWhite, 128));
        buffer.SetFrameWidth(c.width);
        buffer.DrawFrame(c.rect);
        std::string shown;
        for (const std::uint32_t word : Shown(buffer)) {
            if (shown.size() % 7 == 6) shown += ' ';
            shown += word == 0 ? '.' : word == 0x7F7F7F ? '1' : word == 0xBEBEBE ? '2' : '?';
        }
        EXPECT_EQ(shown, c.shown) << c.what;
        EXPECT_EQ(std::pair(buffer.GetFrameWidth(), buffer.GetFillColor()), std::pair(std::max(1, c.width), 0u));
    }
}

TEST(Draw, BitmapsTakeAnOpacityFromZeroToOne)
{
    CBitmap bitmap(1);
    bitmap.Create(1, 1, false);
    bitmap.pixels[0] = 255;
    for (const auto& [opacity, blue] :
         {std::pair{0.0f, 0u}, {1.0f, 255}, {0.5f, 127}, {-3.0f, 0}, {9e30f, 255}, {std::nanf(""), 0}}) {
        Filled buffer(1, 1, 0);
        buffer.DrawBitmapBlended(nullptr, {0, 0, 1, 1}, {0, 0}, opacity);
        buffer.DrawBitmapBlended(&bitmap, {0, 0, 1, 1}, {0, 0}, opacity);
        EXPECT_EQ(buffer.pixels[0], blue) << opacity;
    }
}

// One pixel per step, spread over four by the eight bits behind the point; the last step begins before the end.
TEST(Draw, LinesGatherTheirCoverageInTheTopByte)
{
    const float nan = std::nanf(""), infinite = std::numeric_limits<float>::infinity();
    // clang-format off
    struct Case { const char* what; float x0, y0, x1, y1; Words coverage; }; // of 3 x 3 pixels
    const Case cases[] = {
        {"rightwards", 0, 1, 2, 1, {0, 0, 0, 254, 254, 0, 0, 0, 0}},  {"leftwards", 2, 1, 0, 1, {0, 0, 0, 0, 254, 254, 0, 0, 0}},
        {"upwards", 0, 2, 0, 0, {0, 0, 0, 254, 0, 0, 254, 0, 0}},     {"from outside", -2, 0, 1, 0, {254, 0, 0, 0, 0, 0, 0, 0, 0}},
        {"between four", 1.5f, 0.5f, 2.5f, 0.5f, {0, 63, 63, 0, 63, 64, 0, 0, 0}},
        {"half a step", 1, 1, 1.5f, 1, {0, 0, 0, 0, 254, 0, 0, 0, 0}}, {"far", -1e9f, 0, 1e9f, 0, {254, 254, 254, 0, 0, 0, 0, 0, 0}},
        {"no length", 1, 1, 1, 1, Words(9)},                          {"left", -0.5f, 0, -0.25f, 2, Words(9)},
        {"below", 0, 3, 4, 3, Words(9)},                              {"too far", -1e30f, 0, 1e30f, 0, Words(9)},
        {"no number", nan, 0, 1, 1, Words(9)},                        {"no end", 0, 0, infinite, 0, Words(9)},
    };
    // clang-format on
    for (const Case& c : cases) {
        Filled buffer(3, 3, 0x123456);
        buffer.DrawLine(kWhite, c.x0, c.y0, c.x1, c.y1, true);
        Words expected;
        for (const std::uint32_t coverage : c.coverage) expected.push_back(coverage << 24 | 0x123456);
        EXPECT_EQ(Shown(buffer), expected) << c.what;
    }
}

// (254 * 128) >> 8 = 127 of 200 over 100: 149. Where another step has coloured a pixel already, it loses one.
TEST(Draw, LinesColourWhatTheyGathered)
{
    Filled buffer(1, 4, 100);
    buffer.DrawLine(0, 1, 0, 3, 0, true);
    buffer.DrawLine(Rgb(0, 0, 200, 128), 1, 0, 3, 0, false);
    EXPECT_EQ(Shown(buffer), (Words{100, 149, 148, 99}));
}

TEST(Draw, ClippedLinesArePartsOfWholeOnes)
{
    const float ends[][4] = {
        {-20, 3, 90, 71}, {5, 60, 7, -300}, {40, 9, -3000, 9}, {31, -1e6f, 30, 1e6f}, {22, 12, 60, 60}};
    const Rect clip{20, 10, 15, 20};
    for (const auto& [x0, y0, x1, y1] : ends) {
        Filled whole(64, 64, 0), part(64, 64, 0);
        part.SetClipRect(clip);
        for (CDrawBuffer* buffer : {&whole, &part}) buffer->DrawLine(kWhite, x0, y0, x1, y1, true);
        for (int n = 0; n < 64 * 64; ++n)
            ASSERT_EQ(PixelAt(part, n % 64, n / 64), clip.Contains(n % 64, n / 64) ? PixelAt(whole, n % 64, n / 64) : 0)
                << n;
    }
}

// Three at 2.17, 3 and 3.83; 42 + 254 + 42 is 255.
TEST(Draw, ThickLinesAreLinesSideBySide)
{
    Filled buffer(7, 1, 0);
    buffer.SetFrameWidth(3);
    for (const float end : {1.0f, std::nanf(""), 1e38f}) buffer.DrawThickLine(kWhite, 0, 3, end, 3, true);
    EXPECT_EQ(Shown(buffer), (Words{0, 0, 211u << 24, 255u << 24, 211u << 24, 0, 0}));
}

} // namespace
} // namespace korvane
