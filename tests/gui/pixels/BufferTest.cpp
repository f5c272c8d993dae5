// Pixel buffers: memory, clips and copies; what is drawn into them; text, whatever its glyphs look like.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <tuple>

#include "gui/pixels/BuiltInFonts.h"
#include "gui/pixels/CDrawBuffer.h"
#include "gui/pixels/Mixing.h"

namespace korvane {
namespace {

using Words = std::vector<std::uint32_t>;

/// The top row first.
Words Shown(const CGraphicBuffer& buffer)
{
    Words words;
    for (int y = buffer.height - 1; y >= 0; --y)
        for (int x = 0; x < buffer.width; ++x) words.push_back(buffer.pixels[y * buffer.width + x]);
    return words;
}

struct Filled : CDrawBuffer {
    Filled(int rows, int columns, std::uint32_t word, bool withAlpha = false)
    {
        Create(rows, columns, withAlpha);
        std::fill_n(pixels.get(), rows * columns, word);
    }
    /// With words and opacities that are all unlike.
    Filled(int rows, int columns) : Filled(rows, columns, 0, true)
    {
        for (int n = 0; n < rows * columns; ++n) {
            pixels[n] = static_cast<std::uint32_t>(n + 1) * 2654435769u;
            alpha[n] = static_cast<std::uint8_t>(pixels[n] >> 16);
        }
    }
};

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
    const Rect whole{0, 0, 8, 6}, wild{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
    const Rect cases[][2] = {{{2, 1, 3, 4}, {2, 1, 3, 4}}, {{-2, -3, 5, 5}, {0, 0, 3, 2}},     {{8, 0, 1, 1}, whole},
                             {{7, 5, 9, 9}, {7, 5, 1, 1}}, {{5, 5, INT_MAX, 1}, {5, 5, 3, 1}}, {wild, whole}};
    for (const auto& [asked, clip] : cases) {
        Filled buffer(6, 8, 0);
        buffer.SetClipRect({1, 1, 1, 1});
        EXPECT_TRUE(buffer.SetClipRect(asked) != (clip == whole) && buffer.clip == clip) << asked.x;
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
        {"outside", {4, 4, 2, 2}, {0, 0}, false, {}, {}}, {"or so", {20, 4, 2, 2}, {4, 4}, false, {}, {}},
        {"wild", {INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {INT_MAX, INT_MIN}, false, {}, {}},
        {"a wild size", {5, 5, INT_MAX, INT_MAX}, {4, 4}, true, {5, 5, 4, 4}, {4, 4}},
    };
    // clang-format on
    Filled source(12, 12, 0), dest(12, 12, 0);
    source.SetClipRect({2, 3, 6, 5});
    dest.SetClipRect({2, 2, 8, 8});
    for (Case c : cases)
        EXPECT_TRUE(source.ClipBlit(&dest, c.asked, c.from) ? c.some && c.asked == c.to && c.from == c.source : !c.some)
            << c.what;
}

// A copy moves the whole word; a mix keeps the top byte and loses a 256th at full opacity.
TEST(Buffer, MixesByPlaneAndOpacity)
{
    const std::tuple<int, int, std::uint32_t> cases[] = {
        // of (255, 128, 0) over (64, 100, 128)
        {-1, 255, 0x77FF8000}, {-1, 0, 0x11406480},  {-1, 100, 0x118A6E4D},  {255, 255, 0x11FE7F00},
        {0, 255, 0x113F637F},  {255, 1, 0x113F637F}, {128, 255, 0x119F713F}, {128, 100, 0x11656966}}; // the last: 50
    for (const auto& [plane, opacity, result] : cases) {
        Filled source(1, 1, 0x77FF8000, plane >= 0), dest(1, 1, 0x11406480);
        CDrawBuffer empty;
        if (plane >= 0) source.alpha[0] = static_cast<std::uint8_t>(plane);
        for (CDrawBuffer* to : std::initializer_list<CDrawBuffer*>{&dest, &empty, nullptr})
            source.DrawBlended(to, {0, 0, 1, 1}, {0, 0}, static_cast<std::uint8_t>(opacity));
        empty.DrawBlended(&dest, {0, 0, 1, 1}, {0, 0}, static_cast<std::uint8_t>(opacity));
        EXPECT_EQ(dest.pixels[0], result) << plane << ' ' << opacity;
    }
}

TEST(Buffer, CopiesOntoItselfWhatWasThere)
{
    for (const int n : {0, 1, 2, 3})
        for (const Point way : {Point{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {2, 3}, {-2, 1}}) {
            Filled buffer(9, 11), expected(9, 11);
            if (n % 2 == 0) buffer.alpha.reset();
            for (Filled* dest : {&expected, &buffer})
                buffer.DrawBlended(dest, {3 + way.x, 3 + way.y, 6, 3}, {3, 3}, n < 2 ? 255 : 100);
            EXPECT_EQ(Shown(buffer), Shown(expected)) << n << ' ' << way.x << ' ' << way.y;
        }
}

TEST(Buffer, VectorFormsGiveTheBitsOfThePlainOnes)
{
    Filled source(1, 20);
    const std::uint32_t* pixels = source.pixels.get();
    for (int count = 0; count <= 17; ++count)
        for (int opacity = 0; opacity < 256; ++opacity) {
            const auto o = static_cast<std::uint8_t>(opacity);
            source.alpha[count] = o;
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

// Each begins with 3 x 3 pixels of one word; the top row stands first.
TEST(Draw, GivesThesePixels)
{
    constexpr int kMax = INT_MAX, kMin = INT_MIN;
    constexpr std::uint32_t k1 = 0x7F7F7F, k2 = 0xBEBEBE, kFull = 0xFE000005; // half white, once and twice
    const float nan = std::nanf("");
    using B = Filled;
    CBitmap bitmap(1);
    bitmap.Create(1, 1, false);
    bitmap.pixels[0] = 255;
    int x = -1;
    // clang-format off
    const auto fill = [](B& b, Color color) { b.fillColor = color, b.FillRect({1, 1, kMax, 1}); };
    const auto even = [](B& b, Color color) { b.FillGradient({1, 1, kMax, 1}, color, color, color, color); };
    const auto blue = [](B& b, Rect r) { b.FillGradient(r, 90 | kBlack, 110 | kBlack, 10 | kBlack, kBlack); };
    const auto frame = [](B& b, Rect r, int width) { b.frameColor = 0x80FFFFFF, b.frameWidth = width, b.DrawFrame(r); };
    const auto line = [](B& b, float x0, float y0, float x1, float y1) { b.DrawLine(0, x0, y0, x1, y1, true); };
    const auto shift = [](Words words) { for (std::uint32_t& word : words) word <<= 24; return words; };
    struct Case { const char* what; std::uint32_t word; std::function<void(B&)> draw; Words shown; };
    const Case cases[] = {
        {"opaque clears the top byte", 1 << 24, [&](B& b) { fill(b, 0xFF000000); }, shift({1, 1, 1, 1, 0, 0, 1, 1, 1})},
        {"an even gradient too", 7, [&](B& b) { even(b, 0xFF102030); }, {7, 7, 7, 7, 0x102030, 0x102030, 7, 7, 7}},
        {"48 * 128 + 128 * 127", 128, [&](B& b) { fill(b, 0x80000030); }, {128, 128, 128, 128, 87, 87, 128, 128, 128}},
        {"images by opacity", 0, [&](B& b) { for (const float o : {0.0f, 0.5f, 1.0f, nan, 9e30f, -5.0f})
            b.DrawBitmapBlended(&bitmap, {++x % 3, x / 3, 1, 1}, {0, 0}, o); }, {0, 127, 255, 0, 255, 0, 0, 0, 0}},
        {"invisible", 128, [&](B& b) { fill(b, 0x00FFFFFF); }, Words(9, 128)},
        // Left 0, 30, 60 from below, a third of 90 per row; right 10, 60, 110; at opacity 255 a value loses one.
        {"gradient", 7, [&](B& b) { blue(b, {0, 0, 3, 3}); }, {59, 84, 109, 29, 44, 59, 0, 4, 9}},
        {"cut it spans the same", 7, [&](B& b) { blue(b, {-1, -1, 3, 3}); }, {29, 44, 7, 0, 4, 7, 7, 7, 7}},
        {"of a row", 7, [&](B& b) { blue(b, {0, 1, 3, 1}); }, {7, 7, 7, 0, 4, 9, 7, 7, 7}},
        {"of a column", 7, [&](B& b) { blue(b, {1, 0, 1, 3}); }, {7, 59, 7, 7, 29, 7, 7, 0, 7}},
        {"wild", 7, [&](B& b) { blue(b, {2, 2, kMax, kMax}); blue(b, {0, 0, kMin, 3}); }, {7, 7, 7, 7, 7, 7, 7, 7, 0}},
        {"of opacity 0, 64, 128", 100, [](B& b) { b.FillGradient({0, 0, 3, 1}, 0, 0, 0x800000C8, 0x000000C8); },
            {99, 124, 149, 100, 100, 100, 100, 100, 100}},
        {"frame", 0, [&](B& b) { frame(b, {0, 0, 3, 3}, -5); }, {k1, k1, k1, k1, 0, k1, k1, k1, k1}},
        {"top and bottom meet", 0, [&](B& b) { frame(b, {0, 1, 3, 1}, 1); }, {0, 0, 0, k1, k2, k1, 0, 0, 0}},
        {"wild", 0, [&](B& b) { frame(b, {kMin, 1, kMax, 9}, kMax); frame(b, {kMax, 0, kMax, 1}, 1); }, Words(9)},
        // A pixel per step, spread over four by the eight bits behind the point; the last step begins before the end.
        {"lines", 5, [&](B& b) { line(b, 0, 0, 1, 0); line(b, 2, 0, 1, 0); line(b, 1, 2, 1, 0); },
            {kFull, 5, kFull, 5, kFull, 5, 5, kFull, 5}},
                {"between four, half a step", 0, [&](B& b) { line(b, 0.5f, 0.5f, 1.5f, 0.5f); line(b, 1, 2, 1.5f, 2); },
            shift({63, 63, 0, 63, 64, 0, 0, 254, 0})},
        {"far", 0, [&](B& b) { line(b, -1e9f, 0, 1e9f, 0); }, shift({254, 254, 254, 0, 0, 0, 0, 0, 0})},
        {"not at all", 0, [&](B& b) { line(b, 1, 1, 1, 1); line(b, -0.5f, 0, -0.25f, 2); line(b, 0, 3, 3, 3);
            line(b, -1e30f, 0, 1e30f, 0); line(b, nan, 0, 1, 1); line(b, 0, 0, INFINITY, 0); }, Words(9)},
        {"three of them", 0, [](B& b) { b.frameWidth = 3; for (const float end : {1.0f, std::nanf(""), 1e38f})
            b.DrawThickLine(0, 0, 1, end, 1, true); }, shift({211, 0, 0, 255, 0, 0, 211, 0, 0})}, // at 0.17, 1, 1.83
        // 254 * 128 >> 8 of 200 over 100: 149. Where another step has coloured a pixel already, it loses one.
        {"coloured", 100, [&](B& b) { line(b, 0, 0, 2, 0); b.DrawLine(Rgb(0, 0, 200, 128), 0, 0, 2, 0, false); },
            {149, 148, 99, 99, 98, 99, 100, 100, 100}},
    };
    // clang-format on
    for (const Case& c : cases) {
        Filled buffer(3, 3, c.word);
        c.draw(buffer);
        EXPECT_EQ(Shown(buffer), c.shown) << c.what;
    }
}

TEST(Draw, ClippedLinesArePartsOfWholeOnes)
{
    for (const auto& [x, y] : {std::pair{90.0f, 71.0f}, {7, -300}, {-3000, 9}, {30, -1e6f}, {60, 60}, {21, 21}}) {
        Filled whole(64, 64, 0), part(64, 64, 0);
        part.SetClipRect({20, 10, 15, 20});
        for (Filled* buffer : {&whole, &part})
            for (const float start : {-20.0f, 22.0f, 1e5f}) buffer->DrawLine(kWhite, start, 13, x, y, true);
        for (int n = 0; n < 64 * 64; ++n)
            ASSERT_EQ(part.pixels[n], part.clip.Contains(n % 64, 63 - n / 64) ? whole.pixels[n] : 0) << x << ' ' << n;
    }
}

/// What the record of a glyph makes of a buffer.
void Ink(CDrawBuffer& buffer, int character, int x, int y)
{
    const std::uint8_t* face = BuiltInFont(buffer.font);
    const std::uint8_t* record = face + face[2 * (character - '!') + 1] + 256 * face[2 * (character - '!') + 2];
    for (int k = 0; k < record[1]; ++k) {
        const int px = x + record[2 + 2 * k] % 16, py = y + record[2 + 2 * k] / 16;
        const std::uint32_t ink = buffer.textColor, a = (ink >> 24) * (255 - record[3 + 2 * k]) / 256;
        if (!buffer.clip.Contains(px, py)) continue;
        auto* pixel = reinterpret_cast<std::uint8_t*>(&buffer.pixels[(buffer.height - 1 - py) * buffer.width + px]);
        for (int byte = 0; byte < 3; ++byte)
            pixel[byte] = static_cast<std::uint8_t>(pixel[byte] * (255 - a) / 256 + (ink >> 8 * byte & 255) * a / 256);
    }
}

// Halves are cut toward zero; the wide face begins a pixel further left when it is aligned there.
TEST(Text, StandsWhereItIsAligned)
{
    // clang-format off
    struct Case { std::string text; int font; Rect box; int alignment; Size size; int top; std::vector<Point> inkAt; };
    const Case cases[] = {
        {"A B", 0, {10, 5, 30, 20}, 0, {11, 16}, 9, {{'A', 10}, {'B', 21}}}, // 6 + 1 + 4 + 5 + 1 - 1
        {"A B", 1, {10, 5, 20, 20}, 1, {11, 18}, 9, {{'A', 9}, {'B', 21}}},  // 8 + 4 + 7 - 1
        {"A", 0, {10, 5, 20, 20}, 2, {11, 6}, 9, {{'A', 17}}}, {"A", 0, {10, 5, 20, 20}, 3, {11, 6}, 9, {{'A', 24}}},
        {"A", 1, {10, 5, 20, 20}, 2, {11, 7}, 9, {{'A', 16}}}, {"A", 1, {10, 5, 20, 20}, 3, {11, 7}, 9, {{'A', 23}}},
        {"\xC8\n\x7F", 0, {10, 5, 11, 8}, 2, {11, 14}, 4, {{'?', 9}, {'?', 14}, {'?', 19}}}, // too small
        {"~AA", 0, {1, 1, 20, 5}, 0, {11, 21}, -2, {{'~', 1}, {'A', 9}, {'A', 16}}}, // cut by the clip
        {std::string(1030, '!'), 0, {6 - 4 * 1023, 5, 9, 20}, 0, {11, 1024 * 4 - 1}, 9, {{'!', 2}, {'!', 6}}},
        {"A", 0, {60, 5, 20, 20}, 0, {11, 6}, 9, {}}, {"A", 0, {INT_MAX, INT_MIN, INT_MIN, INT_MAX}, 3, {11, 6}, 0, {}},
        {" ", 0, {9, 9, 9, 9}, 0, {11, 3}, 0, {}},    {"A", 0, {INT_MIN, INT_MAX, INT_MIN, INT_MAX}, 2, {11, 6}, 0, {}},
        {"", 0, {9, 9, 9, 9}, 0, {}, 0, {}},        {"A", 2, {9, 9, 9, 9}, 0, {}, 0, {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        Filled drawn(30, 60), expected(30, 60);
        for (Filled* buffer : {&drawn, &expected}) {
            buffer->SetClipRect({2, 1, 50, 25});
            buffer->SetFont(c.font);
            buffer->SetTextColor(0xC0FF8001);
        }
        for (const bool measureOnly : {true, false}) {
            const auto& [x, y, w, h] = c.box;
            EXPECT_EQ(drawn.DrawText(c.text.c_str(), x, y, w, h, c.alignment, measureOnly), c.size) << c.text << c.font;
            for (const auto& [character, pen] : c.inkAt)
                if (!measureOnly) Ink(expected, character, pen, c.top);
            EXPECT_EQ(Shown(drawn), Shown(expected)) << c.text << c.font;
        }
    }
}

} // namespace
} // namespace korvane
