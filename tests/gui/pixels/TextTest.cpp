// Text in the two faces, whatever their glyphs look like.
#include <gtest/gtest.h>

#include <climits>

#include "gui/pixels/BuiltInFonts.h"
#include "gui/pixels/Shown.h"

namespace korvane {
namespace {

/// What the record of a glyph makes of a buffer.
void Ink(CDrawBuffer& buffer, char character, int x, int y)
{
    const std::uint8_t* face = BuiltInFont(buffer.font);
    const std::uint8_t* record = face + face[2 * (character - '!') + 1] + 256 * face[2 * (character - '!') + 2];
    for (int k = 0; k < record[1]; ++k) {
        const int px = x + record[2 + 2 * k] % 16, py = y + record[2 + 2 * k] / 16;
        const std::uint32_t a = (buffer.textColor >> 24) * (255 - record[3 + 2 * k]) / 256;
        for (int byte = 0; byte < 3 && buffer.clip.Contains(px, py); ++byte) {
            auto& dst = reinterpret_cast<std::uint8_t*>(&PixelAt(buffer, px, py))[byte];
            dst = static_cast<std::uint8_t>(dst * (255 - a) / 256 + (buffer.textColor >> 8 * byte & 255) * a / 256);
        }
    }
}

TEST(Text, IsAsWideAsItsGlyphsAndSpaces)
{
    // clang-format off
    struct Case { std::string text; int font; Size size; };
    const Case cases[] = {
        {"A B", 0, {11, 6 + 1 + 4 + 5 + 1 - 1}}, {"A B", 1, {11, 8 + 4 + 7 - 1}},     {" ", 0, {11, 3}}, {"", 0, {}},
        {"!~", 0, {11, 3 + 1 + 7 + 1 - 1}},      {"\xC8\x7F\n", 0, {11, 3 * 5 - 1}},  {"A", 2, {}}, {"A", -1, {}},
        {std::string(1030, '!'), 0, {11, 1024 * 4 - 1}}, // what is longer is cut
    };
    // clang-format on
    Filled buffer(20, 30, 5);
    for (const Case& c : cases) {
        buffer.SetFont(c.font);
        EXPECT_EQ(buffer.DrawText(c.text.c_str(), 0, 0, 30, 20, align::Left, true), c.size) << c.text << c.font;
    }
    EXPECT_EQ(buffer.DrawText(nullptr, 0, 0, 30, 20, align::Left, false), Size{});
    EXPECT_EQ(Shown(buffer), Words(600, 5)); // measuring draws nothing
}

// Halves are cut toward zero; the wide face begins a pixel further left when it is aligned there.
TEST(Text, StandsWhereItIsAligned)
{
    // clang-format off
    struct Case { const char* what; std::string text; int font; Rect box; int alignment, top; std::vector<std::pair<char, int>> pens; };
    const Case cases[] = {
        {"left", "A B", 0, {10, 5, 30, 20}, align::Left, 9, {{'A', 10}, {'B', 21}}},
        {"centred", "A", 0, {10, 5, 20, 20}, align::Centre, 9, {{'A', 17}}}, {"right", "A", 0, {10, 5, 20, 20}, align::Right, 9, {{'A', 24}}},
        {"wide, left", "AB", 1, {10, 5, 20, 20}, 1, 9, {{'A', 9}, {'B', 17}}},
        {"wide, centred", "A", 1, {10, 5, 20, 20}, align::Centre, 9, {{'A', 16}}},
        {"wide, right", "A", 1, {10, 5, 20, 20}, align::Right, 9, {{'A', 23}}},
        {"in a box too small", "\xC8", 0, {10, 5, 1, 8}, align::Centre, 4, {{'?', 9}}},
        {"cut by the clip", "AAA", 0, {1, 1, 20, 5}, align::Left, -2, {{'A', 1}, {'A', 8}, {'A', 15}}},
        {"1024 characters", std::string(1030, '!'), 0, {6 - 4 * 1023, 5, 9, 20}, align::Left, 9, {{'!', 2}, {'!', 6}}},
        {"outside", "A", 0, {60, 5, 20, 20}, align::Left, 9, {}},
        {"wild", "A", 0, {INT_MAX, INT_MIN, INT_MIN, INT_MAX}, align::Right, 0, {}},
        {"as wild", "A", 0, {INT_MIN, INT_MAX, INT_MIN, INT_MAX}, align::Centre, 0, {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        Filled drawn(30, 60, 0), expected(30, 60, 0);
        for (Filled* buffer : {&drawn, &expected}) {
            buffer->Scatter();
            buffer->SetClipRect({2, 1, 50, 25});
            buffer->SetFont(c.font);
            buffer->SetTextColor(0xC0FF8001);
        }
        for (const auto& [character, x] : c.pens) Ink(expected, character, x, c.top);
        drawn.DrawText(c.text.c_str(), c.box.x, c.box.y, c.box.w, c.box.h, c.alignment, false);
        EXPECT_EQ(Shown(drawn), Shown(expected)) << c.what;
    }
}

} // namespace
} // namespace korvane
