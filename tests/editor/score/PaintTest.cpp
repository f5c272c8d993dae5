// What the open score editor shows, pixel by pixel.
#include "editor/layout/Skin.h"
#include "support/ScoreRig.h"

namespace korvane {
namespace {

constexpr Color kOrange = 0xE06704, kYellow = 0xDFBA04, kPale = 0xF4F9A6, kBlueGrey = 0xB1B4E0, kGreen = 0xB1B47C,
                kAmber = 0xE07B18, kRed = 0xFF0000;
constexpr const char *kBand = "band 9,6 11,4 to P600,520", *kBars = "9.20:1[12=-0.5] 9.40:1[12=-0.75]";

struct PaintTest : ScoreRig {
    static bool Alike(Color a, Color b, int within)
    {
        const auto apart = [=](int n) {
            return std::abs(static_cast<int>(a >> n & 255) - static_cast<int>(b >> n & 255));
        };
        return std::max({apart(0), apart(8), apart(16)}) <= within;
    }
    static Color PixelOf(const CDrawBuffer& page, int x, int y)
    {
        return page.pixels[(page.height - 1 - y) * page.width + x] & 0xFFFFFF;
    }
    /// Pixels of that colour.
    int Count(Color color, Rect part)
    {
        int count = 0;
        for (int y = part.y; y < part.y + part.h; ++y)
            for (int x = part.x; x < part.x + part.w; ++x) count += Alike(Pixel(x, y), color, 2);
        return count;
    }
};

// clang-format off
TEST_F(PaintTest, WhatHandsDoIsShown)
{
    constexpr int kOther = -1; // changes somehow
    struct Look {
        const char* hands;
        int x, y;
        Color color;
        int opacity = 255; // over what was there before
    };
    const std::pair<const char*, std::vector<Look>> rows[] = {
        // A note in row 5 is 7 by 13 pixels at (117, 406) and sounds for a beat.
        {"open 9",
         {{"9.10:20", 117, 406, kOrange}, {"9.10:20", 123, 418, kOrange}, {"9.10:20", 116, 406, 0, 0},
          {"9.10:20", 124, 406, 0, 0}, {"9.10:20", 117, 405, 0, 0}, {"9.10:20", 117, 419, 0, 0},
          {"10.10:20", 117, 406, 0, 0}, {"9.10:20", 148, 412, kOrange}, {"9.10:20", 149, 412, 0, 0},
          {"9.10:20[3=0.125]", 180, 412, kOrange}, {"9.10:20[3=0.125]", 181, 412, 0, 0},
          {"9.10:20[3=-0.25]", 125, 412, 0, 0}, {"playing 1", 37, 300, kRed, 50}, {"playing 1", 45, 300, 0, 0},
          {"playing 1", 37, 150, 0, 0}, {"to 5,11", 80, 480, kPale, 20}, {"9.5:1 to 5,11", 80, 300, 0, 0},
          {"down K6", 3, 395, kAmber, 170}, {"to B2", 293, 138, kBlueGrey}, {"to B2", 419, 152, kBlueGrey},
          {"to B2", 295, 140, 0, 0}, {"to B2", 421, 153, 0, 0}}},
        {"9.10:420 open 9", {{kBand, 117, 406, kYellow}, {kBand, 117, 336, kOrange}}},
        {"open 3", {{"0.10:400", 117, 154, kOrange}, {"7.12:1000", 139, 376, kOrange}, {"9.12:1000", 139, 376, 0, 0},
                    {"down K6", 3, 185, kAmber, 170}}},
        {"9.10:20 9.12:20 open 9 band 10,6 13,4 down 10,5", {{"to 20,8", 216, 370, kYellow, 60}}}, // carried
        {"open 9 to 5,12", {{"to 5,11", 80, 326, kOrange, 60}}}, {"open 9 down 5,11", {{"to 9,5", 112, 480, 0, 0}}},
        {"open 5", {{"close open 3", 3, 241, kOrange, 50}}},
        // The channel's value is a line, those of notes are bars of 32 and 0 pixels up to the next note.
        {"on 92 open 9",
         {{"", 37, 42, kBlueGrey}, {"", 1060, 42, kBlueGrey}, {kBars, 197, 106, 0, kOther},
          {kBars, 356, 137, 0, kOther}, {kBars, 197, 105, 0, 0}, {kBars, 196, 137, 0, 0}, {kBars, 357, 137, 0, 0}}}};
    Engine().storedParams[9][3] = 0.375f;
    Engine().storedParams[9][12] = 0.75f;
    for (const auto& [open, looks] : rows)
        for (const Look& look : looks) {
            Pattern().Clear();
            Do(std::string("playing 0 ") + open);
            Tick();
            const Color before = Pixel(look.x, look.y);
            Do(look.hands);
            Tick();
            const Color after = Pixel(look.x, look.y), over = Mixed(look.color, before, look.opacity);
            EXPECT_TRUE(look.opacity > 0 ? Alike(after, over, 3) : (after == before) == (look.opacity == 0))
                << look.hands << ' ' << look.x << ' ' << look.y << std::hex << ' ' << before << ' ' << after;
            Do("close up");
        }
}

TEST_F(PaintTest, TheHintNamesTheCellAndStaysOnThePage)
{
    const std::tuple<const ScoreGrid&, int, int, const char*> rows[] = {
        {kPianoRoll, 17, 13, "C#; Bar 2; Step 2"}, {kPianoRoll, 31, 6, "F#; Bar 2; Step 16"},
        {kPianoRoll, 127, 23, "B; Bar 8; Step 16"}, {kDrumGrid, 4, 5, "Sampler 3; Bar 1; Step 5"}};
    for (const auto& [grid, column, row, words] : rows) {
        char text[64];
        ScoreHint(grid, column, row, text);
        EXPECT_STREQ(text, words);
    }
    const auto letters = [&](const char* hands, Rect part, Color color) {
        Do(hands), Tick();
        return Count(color, part);
    };
    const Rect page{0, 0, 1065, 549};
    const int whole = letters("on 92 open 9 to 16,12", {37 + 16 * 8 + 20, 154 + 11 * 14 - 24, 200, 24}, kPale);
    EXPECT_GT(whole, 40);
    EXPECT_EQ(letters("", page, kPale), whole);
    EXPECT_GT(letters("to 127,12", page, kPale), letters("to 112,12", page, kPale)); // "Step 16" against "Step 1"
    EXPECT_EQ(letters("to P600,520", page, kPale), 0);
    const int name = letters("", {961, 10, 80, 20}, kGreen); // "Filter Cutoff"
    EXPECT_GT(name, 20);
    EXPECT_EQ(letters("", page, kGreen), name);
    EXPECT_GT(letters("", {1033, 10, 8, 20}, kGreen), 0); // up to its end
}

TEST_F(PaintTest, ButtonsAreDimWhileTheyCannotActAndFlashWhenTheyDo)
{
    const std::tuple<const char*, int, std::array<int, 6>, int> rows[] = { // ticks; of each and its flash; play
        {"9.0:1 3.0:1 open 9 tap B0 type C", 1, {255, 225, 255, 0, 255, 0}, 0},
        {"", 8, {255, 0, 255, 0, 255, 0}, 0},
        {"playing 1 tap 100,3 type V to P600,520", 1, {105, 0, 105, 0, 105, 0}, 49}, // nothing is selected
        {"close open 3 tap B0 type X", 1, {105, 0, 105, 0, 105, 225}, 49},           // which took the selection along
        {"tap B0", 1, {255, 0, 105, 0, 255, 195}, 49}};                              // of the other kind
    const CBitmap& image = *editor->FindBitmap(image::NoteEditorButtons);
    for (const auto& [hands, ticks, opacity, playRow] : rows) {
        Do(hands);
        for (int n = 0; n < ticks; ++n) Tick();
        CDrawBuffer page;
        page.Create(kEditorSize.height - top, 1065, false);
        page.DrawBitmap(editor->FindBitmap(drums ? image::DrumsEditor : image::ScoreEdit), {0, 0, 1065, 549}, {});
        const int y = drums ? 387 : 500, columns[] = {149, 75, 3};
        for (std::size_t n = 0; n < 6; ++n)
            image.DrawBlended(&page, {30 + 100 * static_cast<int>(n / 2), y, 69, 34}, {columns[n / 2], n % 2 ? 56 : 6},
                              static_cast<std::uint8_t>(opacity[n]));
        image.DrawBlended(&page, {330, y - 5, 69, 45}, {223, playRow}, 255);
        int wrong = 0;
        for (int n = 0; n < 400 * 54; ++n)
            wrong += Pixel(20 + n % 400, y - 9 + n / 400) != PixelOf(page, 20 + n % 400, y - 9 + n / 400);
        EXPECT_EQ(wrong, 0) << hands;
    }
}
// clang-format on

} // namespace
} // namespace korvane
