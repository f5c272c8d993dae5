// Which pixels controls draw.
#include <gtest/gtest.h>

#include "Editor.h"
#include "gui/controls/CControlSlider.h"
#include "gui/controls/CControlTab.h"

namespace korvane::test {

constexpr Color Cell(int number) { return 0x101010u * number; }

/// As images mix: (a * weight + b * (255 - weight)) >> 8, each byte.
Color Mixed(Color a, Color b, int weight)
{
    const auto byte = [=](int n) { return ((a >> n & 255) * weight + (b >> n & 255) * (255 - weight)) >> 8 << n; };
    return byte(0) | byte(8) | byte(16);
}

// The nearest frame; fading, the next one over it as far as the value lies beyond; a transparent one above the page.
TEST(Knob, ShowsTheNearestFrame)
{
    Cells column(1, 5, 10, 10), row(5, 1, 10, 10), clear(1, 5, 10, 10, 100);
    const auto over = [](int cell) { return Mixed(Cell(cell), kPage, 100); };
    // clang-format off
    struct Case { const char* what; CBitmap& strip; float value; int steps; bool inverted, fades; Color expected; };
    const Case cases[] = {
        {"rounds down",            column, 0.37f,  0, false, false, Cell(2)},
        {"rounds up",              row,    0.375f, 0, false, false, Cell(3)},
        {"above",                  row,    7,      0, false, false, Cell(5)},
        {"below",                  column, -7,     0, false, false, Cell(1)},
        {"inverted",               column, 0.25f,  0, true,  false, Cell(4)},
        {"a step ends",            column, 0.99f,  2, false, false, Cell(3)},
        {"fades",                  column, 0.1f,   0, false, true,  Mixed(Cell(2), Cell(1), 102)}, // round(0.4 * 255)
        {"before its frame",       column, 0.2f,   0, false, true,  Cell(2)},
        {"nothing behind it",      column, 1,      0, false, true,  Cell(5)},
        {"fades above the page",   clear,  0.1f,   0, false, true,  Mixed(over(2), over(1), 102)},
        {"on its frame, above it", clear,  0.5f,   0, false, true,  over(3)},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        auto* knob = editor.Add<CControlKnob>({10, 10, 10, 10}, c.value, &c.strip);
        knob->frameCount = 5;
        knob->verticalStrip = &c.strip != &row;
        knob->steps = c.steps;
        knob->inverted = c.inverted;
        knob->crossfade = c.fades;
        for (int again = 0; again < 2; ++again) knob->Draw(&editor.backBuffer);
        EXPECT_EQ(editor.At(15, 15), c.expected);
    }
}

// A knob goes part of the way on each tick; the light of a button needs four.
TEST(Ticks, MoveWhatIsShown)
{
    Editor editor;
    auto* knob = editor.Add<CControlKnob>({10, 10, 40, 40}, 0.5f);
    auto* led = editor.Add<CControlButton>({10, 60, 40, 40});
    knob->smoothing = 0.8f; // from 0.5 on
    led->mode = button::Led;
    knob->SetValue(1.0f);
    led->SetValue(1.0f);
    for (const auto& [shown, light] : {std::pair{0.9f, 0.25f}, {0.98f, 0.5f}, {0.996f, 0.75f}, {1.0f, 1.0f}}) {
        editor.Idle();
        EXPECT_NEAR(knob->shownValue, shown, 1e-5f); // 0.9992 is near enough
        EXPECT_FLOAT_EQ(led->fadeLevel, light);
    }
}

TEST(Button, ShowsItsState)
{
    const int cases[][4] = {{0, 0, 0, 0}, {0, 1, 0, 1}, {1, 0, 0, 0}, {1, 1, 1, 1},
                            {1, 1, 0, 2}, {1, 0, 1, 3}, {3, 0, 0, 0}, {3, 1, 1, 1}};
    for (const auto& [mode, value, pressed, frame] : cases) {
        Editor editor;
        Cells strip(2, 5, 10, 10);
        auto* shown = editor.Add<CControlButton>({10, 10, 10, 10}, static_cast<float>(value), &strip);
        shown->imageOffset = {10, 10}; // the second column, from the second row on
        shown->mode = mode;
        shown->pressed = pressed;
        editor.Idle();
        EXPECT_EQ(editor.At(15, 15), Cell(2 * (frame + 1) + 2)) << mode << value << pressed;
    }
}

TEST(Tab, ShowsTheSelectedOne)
{
    // clang-format off
    struct Case { const char* what; bool normal, reversed, shared, down; int mode, held; float value; int cells[4]; };
    const Case cases[] = {
        {"index",             false, false, false, false, 0, -1, 2.9f,  {1, 2, 7, 4}},
        {"0..1",              true,  false, false, false, 0, -1, 0.66f, {1, 2, 7, 4}},
        {"reversed",          true,  true,  false, false, 0, -1, 1.0f,  {5, 2, 3, 4}},
        {"shared, downward",  true,  false, true,  true,  0, -1, 1.0f,  {1, 1, 1, 5}},
        {"held",              false, false, false, false, 1, 1,  2.0f,  {1, 6, 11, 4}},
        {"selected and held", false, false, false, false, 1, 2,  2.0f,  {1, 2, 15, 4}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        Cells image(4, 4, 10, 10);
        auto* tab = editor.Add<CControlTab>({10, 10, 10, 10}, c.value, &image);
        tab->tabCount = 4, tab->tabWidth = tab->tabHeight = 10;
        tab->normalized = c.normal, tab->reversed = c.reversed, tab->sharedImage = c.shared, tab->vertical = c.down;
        tab->mode = c.mode, tab->pressedTab = c.held;
        editor.Idle();
        for (int n = 0; n < 4; ++n)
            EXPECT_EQ(editor.At(c.down ? 15 : 15 + 10 * n, c.down ? 15 + 10 * n : 15), Cell(c.cells[n])) << n;
    }
}

// Centred across the track; between two pixels on both. `end` is the colour of the last line along the track.
TEST(Slider, PlacesItsHandle)
{
    // clang-format off
    struct Case { bool downward, crossfade; float value; Rect handle; Color end; };
    const Case cases[] = {
        {false, false, 0,          {13, 18, 6, 4}, Cell(1)},
        {false, false, 1,          {47, 18, 6, 4}, Cell(1)}, // 34 of 40 pixels
        {true,  false, 0,          {27, 45, 6, 4}, Cell(1)},
        {true,  false, 1,          {27, 9, 6, 4},  Cell(1)}, // 36 of 40
        {false, true,  0.25f,      {21, 18, 7, 4}, Cell(1)}, // 8.5
        {true,  true,  0.75f / 36, {27, 44, 6, 5}, Mixed(Cell(1), 0, 128)}, // 35.25
    };
    // clang-format on
    for (const Case& c : cases) {
        Editor editor;
        Cells image(1, 1, 6, 4);
        auto* slider = editor.Add<CControlSlider>({0, 0, 100, 100}, c.value);
        slider->handle = &image;
        slider->track = c.downward ? Rect{20, 10, 20, 40} : Rect{10, 10, 40, 20};
        slider->handleOffset = {3, -1};
        slider->horizontalTrack = c.downward;
        slider->crossfade = c.crossfade;
        editor.Idle();
        const Rect& h = c.handle;
        const int end = c.downward ? h.y + h.h : h.x + h.w;
        EXPECT_EQ(editor.At(h.x, h.y), Cell(1));
        EXPECT_EQ(editor.At(h.x - 1, h.y) | editor.At(h.x, h.y - 1), 0u);
        EXPECT_EQ(c.downward ? editor.At(h.x, end - 1) : editor.At(end - 1, h.y), c.end);
        EXPECT_EQ(c.downward ? editor.At(h.x, end) : editor.At(end, h.y), 0u);
    }
}

// A text stays in its box, has a halo if it glows, and leaves the buffer as it was.
TEST(TextDisplay, WritesIntoItsBox)
{
    const auto inked = [](float glow, Rect box) {
        Editor editor;
        CControlTextDisplay label({10, 10, 60, 20}, 1);
        label.textRect = box;
        label.glow = glow;
        label.Draw(&editor.backBuffer);
        EXPECT_EQ(editor.backBuffer.GetTextColor(), kBlack);
        EXPECT_EQ(editor.backBuffer.GetClipRect(), (Rect{0, 0, 300, 200}));
        int count = 0;
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 300; ++x) count += editor.At(x, y) != (box.Contains(x, y) ? 0 : kPage);
        return count;
    };
    const int plain = inked(0.0f, {10, 10, 60, 20});
    EXPECT_GT(inked(0.5f, {10, 10, 60, 20}), plain);
    EXPECT_LE(inked(0.0f, {10, 10, 1, 20}), 20);
}

// "-100.00 %" is 52 pixels wide and 11 high.
TEST(Popup, OpensBelowTheKnobOrAboveIt)
{
    for (const auto& [y, popupY] : {Point{100, 144}, {129, 173}, {130, 104}}) { // 173 + 22 is 5 before the end
        Editor editor;
        auto* knob = editor.Add<CControlKnob>({100, y, 40, 40});
        knob->showValuePopup = true;
        editor.Idle();
        editor.Mouse(mouse::LeftDown, 120, y + 10);
        EXPECT_EQ(knob->popupRect, (Rect{93, popupY, 59, 22}));
        editor.Idle();
        EXPECT_EQ(editor.OnScreen(93, popupY), 0u);            // the frame
        EXPECT_EQ(editor.OnScreen(94, popupY + 1), 0xF9F9EBu); // the box
        editor.Mouse(mouse::LeftUp, 120, y + 10);
        editor.Idle();
        EXPECT_EQ(editor.OnScreen(94, popupY + 1), kPage);
    }
}

} // namespace korvane::test
