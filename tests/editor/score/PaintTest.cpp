// What the open score editor shows, pixel by pixel.
#include "editor/layout/Skin.h"
#include "support/ScoreRig.h"

namespace korvane {
namespace {

constexpr Color kOrange = 0xE06704, kYellow = 0xDFBA04, kPale = 0xF4F9A6, kBlueGrey = 0xB1B4E0;

struct PaintTest : ScoreRig {
    Color Shown(int x, int y)
    {
        Tick();
        return Pixel(x, y);
    }
    static bool Alike(Color a, Color b, int within)
    {
        for (const int n : {0, 8, 16})
            if (std::abs(static_cast<int>(a >> n & 255) - static_cast<int>(b >> n & 255)) > within) return false;
        return true;
    }
    /// Pixels of that colour.
    int Count(Color color, Rect part)
    {
        Tick();
        int count = 0;
        for (int n = 0; n < part.w * part.h; ++n)
            count += Alike(Pixel(part.x + n % part.w, part.y + n / part.w), color, 2);
        return count;
    }
    /// Whether `after` is `before` under that much of 255 of a colour.
    static testing::AssertionResult Covered(Color after, Color before, Color color, int opacity)
    {
        const Color expected = Mixed(color, before, opacity);
        if (Alike(after, expected, 1)) return testing::AssertionSuccess();
        return testing::AssertionFailure() << std::hex << after << " is not " << expected;
    }
};

TEST_F(PaintTest, NotesAreOrangeAndSelectedOnesYellow)
{
    Put("9.10:20 9.12:20 9.12:400 10.14:20");
    Edit(9);
    To({600, 520});
    const int x = 37 + 80, y = 154 + 18 * 14;
    for (const Point p : {Point{x, y}, Point{x + 6, y}, Point{x, y + 12}, Point{x + 6, y + 12}})
        EXPECT_EQ(Shown(p.x, p.y), kOrange);
    for (const Point p : {Point{x - 1, y}, Point{x + 7, y}, Point{x, y - 1}, Point{x, y + 13}, Point{x + 32, y}})
        EXPECT_NE(Shown(p.x, p.y), kOrange);
    Drag({x + 14, y - 5}, {x + 20, y + 5}, modifier::Ctrl);
    To({600, 520});
    EXPECT_EQ(Shown(x, y), kOrange);
    EXPECT_EQ(Shown(x + 16, y), kYellow);
    EXPECT_EQ(Shown(x + 16, y - 5 * 14), kOrange); // of another row
}

TEST_F(PaintTest, HitsAreDrawnInTheRowsOfTheirChannels)
{
    Put("0.10:400 7.12:1000 9.14:1");
    Edit(3);
    To({600, 400});
    const int empty = Count(kOrange, {37, 154, 1024, 224}) - Count(kOrange, {37 + 80, 154, 7, 27}) -
                      Count(kOrange, {37 + 96, 154 + 7 * 28, 7, 27});
    EXPECT_EQ(empty, 0);
    EXPECT_EQ(Shown(37 + 80, 154), kOrange);
    EXPECT_EQ(Shown(37 + 96 + 6, 154 + 7 * 28 + 26), kOrange);
}

TEST_F(PaintTest, ATailShowsHowLongANoteSounds)
{
    Put("9.10:20[3=0.125] 9.60:20[3=-0.25]");
    Engine().storedParams[9][3] = 0.375f; // one beat, 4 columns; with the locks 8 and 1
    Edit(9);
    To({600, 520});
    EXPECT_EQ(Count(kOrange, {37 + 88, 154 + 18 * 14, 200, 14}), 2 * 7 * 8);
    EXPECT_EQ(Count(kOrange, {37 + 61 * 8, 154 + 18 * 14, 200, 14}), 0);
}

TEST_F(PaintTest, WhatIsCarriedIsShownWhereItWouldGo)
{
    Put("9.10:20 9.12:20");
    Edit(9);
    Drag(Cell(10, 6), Cell(13, 4), modifier::Ctrl);
    const int x = 37 + 8 * 22 + 3, y = Cell(0, 8).y;
    Down(Cell(10, 5));
    const Color before = Shown(x, y);
    To(Cell(20, 8));
    EXPECT_TRUE(Covered(Shown(x, y), before, kYellow, 60));
    EXPECT_EQ(Text(), "9.10:20 9.12:20");
}

TEST_F(PaintTest, ThePlayedColumnIsRed)
{
    Edit(9);
    To({600, 520});
    const Point in{37 + 8 * 5 + 3, 300}, out{in.x + 8, 300};
    const Color before = Shown(in.x, in.y), beside = Shown(out.x, out.y), above = Shown(in.x, 150);
    Engine().clock.patternStep = std::uint8_t{5};
    EXPECT_EQ(Shown(in.x, in.y), before);
    Engine().clock.playing = true;
    EXPECT_TRUE(Covered(Shown(in.x, in.y), before, 0xFF0000, 50));
    EXPECT_EQ(Shown(out.x, out.y), beside);
    EXPECT_EQ(Shown(in.x, 150), above);
}

TEST_F(PaintTest, TheHoveredCellShowsWhatAClickWouldSet)
{
    Put("9.6:1");
    Edit(9);
    To({600, 520});
    const Point cell{37 + 8 * 5 + 3, 154 + 14 * 12 + 4}, other{cell.x, 480}, noted{cell.x + 8, 300};
    const Color before = Shown(cell.x, cell.y), column = Shown(other.x, other.y), note = Shown(noted.x, noted.y);
    To(Cell(5, 11));
    EXPECT_TRUE(Covered(Shown(other.x, other.y), column, kPale, 20));
    EXPECT_TRUE(Covered(Shown(cell.x, cell.y), Mixed(kPale, before, 20), kOrange, 60) ||
                Covered(Shown(cell.x, cell.y), Mixed(kOrange, before, 60), kPale, 20));
    To(Cell(6, 11));
    EXPECT_EQ(Shown(noted.x, noted.y), note);
}

TEST_F(PaintTest, TheHintNamesTheCellAndStaysOnThePage)
{
    const struct {
        const ScoreGrid& grid;
        int column, row;
        const char* text;
    } rows[] = {{kPianoRoll, 17, 13, "C#; Bar 2; Step 2"},    {kPianoRoll, 31, 6, "F#; Bar 2; Step 16"},
                {kPianoRoll, 0, 0, "C; Bar 1; Step 1"},       {kPianoRoll, 127, 23, "B; Bar 8; Step 16"},
                {kPianoRoll, 64, 22, "A#; Bar 5; Step 1"},    {kPianoRoll, 64, 5, "F; Bar 5; Step 1"},
                {kDrumGrid, 4, 5, "Sampler 3; Bar 1; Step 5"}};
    for (const auto& row : rows) {
        char text[64];
        ScoreHint(row.grid, row.column, row.row, text);
        EXPECT_STREQ(text, row.text);
    }
    Edit(9);
    To(Cell(16, 12));
    const Point at{37 + 17 * 8 + 12, 154 + 11 * 14 - 20};
    const int whole = Count(kPale, {at.x, at.y - 3, 200, 20});
    EXPECT_GT(whole, 40);
    EXPECT_EQ(Count(kPale, {0, 0, 1065, 549}), whole);
    To(Cell(112, 12)); // "Bar 8": as wide, about
    const int near = Count(kPale, {0, 0, 1065, 549});
    EXPECT_NEAR(near, whole, 12);
    To(Cell(127, 12));
    EXPECT_GT(Count(kPale, {0, 0, 1065, 549}), near); // "Step 16": a digit more
    To({600, 520});
    EXPECT_EQ(Count(kPale, {0, 0, 1065, 549}), 0);
}

TEST_F(PaintTest, TheLaneShowsItsParameterTheOwnValueAndABarForEachNote)
{
    Put("10.2:1"); // another channel's
    Engine().storedParams[9][12] = 0.75f;
    Edit(9, 92);
    To({600, 520});
    EXPECT_EQ(Count(kBlueGrey, {37, 42, 1024, 1}), 1024);
    EXPECT_EQ(Count(kBlueGrey, {0, 0, 1065, 138}), 1024);
    const Rect name{37, 10, 1024, 20};
    const int letters = Count(0xB1B47C, name);
    EXPECT_GT(letters, 20); // "Filter Cutoff"
    EXPECT_EQ(Count(0xB1B47C, {1041, 10, 20, 20}), 0);
    EXPECT_EQ(Count(0xB1B47C, {837, 10, 204, 20}), letters); // at the right
    const auto before = window->shown;
    Put("9.20:1[12=-0.5] 9.40:1[12=-0.75]");
    Tick();
    const auto height = [&](int x) {
        int rows = 0, last = 138;
        for (int y = 137; y >= 10; --y)
            if (Pixel(x, y) != (before[static_cast<std::size_t>((y + top) * 1065 + x)] & 0xFFFFFF)) ++rows, last = y;
        return rows == 138 - last ? rows : -1;
    };
    for (const int x : {37 + 160, 37 + 260, 37 + 319}) EXPECT_EQ(height(x), 32) << x; // up to the next note
    for (const int x : {37 + 159, 37 + 320, 1060}) EXPECT_EQ(height(x), 0) << x;
}

TEST_F(PaintTest, StripsAreMarked)
{
    Edit(3);
    To({600, 400});
    const Color key = Shown(3, 154 + 4 * 28 + 3), next = Shown(3, 154 + 5 * 28 + 3);
    PanelRig::Click(5, 5, mouse::RightDown);
    Edit(5);
    To({600, 400});
    EXPECT_TRUE(Covered(Shown(3, 154 + 5 * 28 + 3), next, kOrange, 50)); // its own channel
    Down({10, 154 + 4 * 28 + 14});
    EXPECT_TRUE(Covered(Shown(3, 154 + 4 * 28 + 3), key, 0xE07B18, 170)); // sounds
    Up();
    EXPECT_EQ(Shown(3, 154 + 4 * 28 + 3), key);
    To(Strip(2));
    const Rect bar{37 + 256, 138, 128, 16};
    EXPECT_EQ(Count(kBlueGrey, bar), 128 * 16 - 124 * 12);
    EXPECT_EQ(Count(kBlueGrey, {37, 138, 1024, 16}), 128 * 16 - 124 * 12);
}

TEST_F(PaintTest, ButtonsAreDimWhileTheyCannotActAndFlashWhenTheyDo)
{
    const CBitmap& image = *editor->FindBitmap(image::NoteEditorButtons);
    struct Look {
        int opacity[3], flash[3];
        bool playing;
    };
    const auto looks = [&](const Look& look) {
        CDrawBuffer page;
        page.Create(drums ? 436 : 549, 1065, false);
        page.DrawBitmap(editor->FindBitmap(drums ? image::DrumsEditor : image::ScoreEdit), {0, 0, 1065, page.height},
                        {});
        const int y = drums ? 387 : 500, columns[] = {149, 75, 3};
        for (int n = 0; n < 3; ++n) {
            const Rect place{30 + 100 * n, y, 69, 34};
            image.DrawBlended(&page, place, {columns[n], 6}, static_cast<std::uint8_t>(look.opacity[n]));
            image.DrawBlended(&page, place, {columns[n], 56}, static_cast<std::uint8_t>(look.flash[n]));
        }
        image.DrawBlended(&page, {330, y - 5, 69, 45}, {223, look.playing ? 49 : 0}, 255);
        int wrong = 0;
        for (int row = y - 9; row < y + 45; ++row)
            for (int x = 20; x < 420; ++x)
                wrong += Pixel(x, row) != (page.pixels[(page.height - 1 - row) * 1065 + x] & 0xFFFFFF);
        return wrong;
    };
    Put("9.0:1 3.0:1");
    Edit(9);
    Tap(Strip(0));
    Type('C');
    Tick();
    EXPECT_EQ(looks({{255, 255, 255}, {225, 0, 0}, false}), 0);
    for (int n = 0; n < 8; ++n) Tick();
    EXPECT_EQ(looks({{255, 255, 255}, {0, 0, 0}, false}), 0);
    Engine().clock.playing = true;
    Tap(Cell(100, 3)); // nothing is selected any more
    Type('V');
    To({600, 520});
    Tick();
    EXPECT_EQ(looks({{105, 105, 105}, {0, 0, 0}, true}), 0);
    PanelRig::Click(5, 5, mouse::RightDown);
    Edit(3);
    Tap(Strip(0));
    Type('V');
    Type('X');
    Tick();
    EXPECT_EQ(looks({{105, 105, 105}, {0, 0, 225}, true}), 0); // which took the selection with it
    Tap(Strip(0));
    Tick();
    EXPECT_EQ(looks({{255, 105, 255}, {0, 0, 195}, true}), 0); // of the other kind
}

} // namespace
} // namespace korvane
