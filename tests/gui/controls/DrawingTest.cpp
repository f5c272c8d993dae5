// Which pixels controls draw.
#include <gtest/gtest.h>

#include "gui/controls/CControlSlider.h"
#include "gui/controls/CControlTab.h"
#include "support/EditorRig.h"

namespace korvane::test {

// The nearest frame; fading, the next one over it as far as the value lies beyond; a transparent one above the page.
TEST(Knob, ShowsTheNearestFrame)
{
    Cells column(1, 5, 10, 10), row(5, 1, 10, 10), clear(1, 5, 10, 10, 100);
    const auto over = [](int cell) { return Mixed(Cell(cell), kPage, 100); };
    // clang-format off
    struct Case { CBitmap& strip; float value; int steps; bool inverted, fades; Color expected; };
    const Case cases[] = {
        {column, 0.37f, 0, false, false, Cell(2)}, {row,    0.375f, 0, false, false, Cell(3)}, // rounded
        {column, -7,    0, false, false, Cell(1)}, {row,    7,      0, false, false, Cell(5)}, // no such value
        {column, 0.25f, 0, true,  false, Cell(4)}, {column, 0.99f,  2, false, false, Cell(3)}, // inverted, a step
        {column, 0.1f,  0, false, true,  Mixed(Cell(2), Cell(1), 102)}, // round(0.4 * 255)
        {column, 0.2f,  0, false, true,  Cell(2)}, {column, 1,      0, false, true,  Cell(5)}, // not before, nor behind
        {clear,  0.1f,  0, false, true,  Mixed(over(2), over(1), 102)}, {clear, 0.5f, 0, false, true, over(3)},
    };
    // clang-format on
    for (const Case& c : cases) {
        ControlRig rig;
        auto* knob = rig.Add<CControlKnob>({10, 10, 10, 10}, c.value, &c.strip);
        knob->frameCount = 5, knob->verticalStrip = &c.strip != &row;
        knob->steps = c.steps, knob->inverted = c.inverted, knob->crossfade = c.fades;
        for (int again = 0; again < 2; ++again) knob->Draw(&rig.editor->backBuffer);
        EXPECT_EQ(rig.At(15, 15), c.expected) << &c - cases;
    }
}

// A knob goes part of the way on each tick; the light of a button needs four.
TEST(Ticks, MoveWhatIsShown)
{
    ControlRig rig;
    auto* knob = rig.Add<CControlKnob>({10, 10, 40, 40}, 0.5f);
    Cells strip(1, 2, 40, 40);
    auto* led = rig.Add<CControlButton>({10, 60, 40, 40}, 0, &strip);
    knob->smoothing = 0.8f, led->mode = button::Led;
    knob->SetValue(1.0f), led->SetValue(1.0f);
    for (const auto& [shown, light] : {std::pair{0.9f, 0.25f}, {0.98f, 0.5f}, {0.996f, 0.75f}, {1.0f, 1.0f}}) {
        rig.Tick();
        EXPECT_NEAR(knob->shownValue, shown, 1e-5f); // 0.9992 is near enough
        EXPECT_FLOAT_EQ(led->fadeLevel, light);
        EXPECT_TRUE(light > 0.25f || rig.At(30, 80) == Mixed(Cell(2), Mixed(Cell(1), kPage, 191), 64));
    }
}

TEST(Button, ShowsItsState)
{
    const int cases[][4] = {{0, 0, 0, 0}, {0, 1, 0, 1}, {1, 1, 1, 1}, {1, 1, 0, 2}, {1, 0, 1, 3}, {3, 1, 1, 1}};
    for (const auto& [mode, value, pressed, frame] : cases) {
        ControlRig rig;
        Cells strip(2, 5, 10, 10);
        auto* shown = rig.Add<CControlButton>({10, 10, 10, 10}, static_cast<float>(value), &strip);
        shown->imageOffset = {10, 10}; // the second column, from the second row on
        shown->mode = mode, shown->pressed = pressed;
        rig.Tick();
        EXPECT_EQ(rig.At(15, 15), Cell(2 * (frame + 1) + 2)) << mode << value << pressed;
    }
}

TEST(Tab, ShowsTheSelectedOne)
{
    // clang-format off
    struct Case { int normal, reversed, shared, down, mode, held; float value; int cells[4]; };
    const Case cases[] = {
        {0, 0, 0, 0, 0, -1, 2.9f, {1, 2, 7, 4}}, {1, 0, 0, 0, 0, -1, 0.66f, {1, 2, 7, 4}}, // an index, a part of 1
        {1, 1, 0, 0, 0, -1, 1,    {5, 2, 3, 4}}, {1, 0, 1, 1, 0, -1, 1,     {1, 1, 1, 5}},
        {0, 0, 0, 0, 1, 1,  2,   {1, 6, 11, 4}}, {0, 0, 0, 0, 1, 2,  2,    {1, 2, 15, 4}}, // held; and selected
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        ControlRig rig;
        Cells image(4, 4, 10, 10);
        auto* tab = rig.Add<CControlTab>({10, 10, 10, 10}, c.value, &image);
        tab->tabCount = 4, tab->tabWidth = tab->tabHeight = 10;
        tab->normalized = c.normal, tab->reversed = c.reversed, tab->sharedImage = c.shared, tab->vertical = c.down;
        tab->mode = c.mode, tab->pressedTab = c.held;
        rig.Tick();
        for (int n = 0; n < 4; ++n)
            EXPECT_EQ(rig.At(c.down ? 15 : 15 + 10 * n, c.down ? 15 + 10 * n : 15), Cell(c.cells[n])) << n;
    }
}

// Centred across the track; between two pixels on both. `end` is the colour of the last line along the track.
TEST(Slider, PlacesItsHandle)
{
    // clang-format off
    struct Case { int downward, crossfade; float value; Rect handle; Color end; };
    const Case cases[] = {
        {0, 0, 1,     {47, 18, 6, 4}, Cell(1)}, {1, 0, 1,          {27, 9, 6, 4},  Cell(1)}, // 34 and 36 of 40 pixels
        {0, 1, 0.25f, {21, 18, 7, 4}, Cell(1)}, {1, 1, 0.75f / 36, {27, 44, 6, 5}, Mixed(Cell(1), 0, 128)},
    };
    // clang-format on
    for (const Case& c : cases) {
        ControlRig rig;
        Cells image(1, 1, 6, 4);
        auto* slider = rig.Add<CControlSlider>({0, 0, 100, 100}, c.value);
        slider->track = c.downward ? Rect{20, 10, 20, 40} : Rect{10, 10, 40, 20};
        slider->handle = &image, slider->handleOffset = {3, -1};
        slider->horizontalTrack = c.downward, slider->crossfade = c.crossfade;
        rig.Tick();
        const Rect& h = c.handle;
        const int end = c.downward ? h.y + h.h : h.x + h.w;
        EXPECT_EQ(rig.At(h.x, h.y) | rig.At(h.x - 1, h.y) | rig.At(h.x, h.y - 1), Cell(1));
        EXPECT_EQ(c.downward ? rig.At(h.x, end - 1) : rig.At(end - 1, h.y), c.end);
        EXPECT_EQ(c.downward ? rig.At(h.x, end) : rig.At(end, h.y), 0u);
    }
}

TEST(Image, ShowsThePageBehindIt)
{
    ControlRig rig;
    Cells image(1, 2, 40, 40, 100);
    auto* tab = rig.Add<CControlTab>({0, 10, 40, 40}, 0, &image);
    tab->tabCount = 1, tab->tabWidth = tab->tabHeight = 40; // the chosen one
    rig.Add<CControlTextDisplay>({50, 10, 40, 40}, 0, &image);
    rig.Add<CControlSlider>({100, 10, 40, 40}, 0, &image);
    rig.Add<CControlButton>({150, 10, 40, 40}, 0, &image);
    for (CControl* shown = tab; shown; shown = shown->next)
        for (int again = 0; again < 2; ++again) shown->Draw(&rig.editor->backBuffer);
    for (int n = 0; n < 4; ++n) EXPECT_EQ(rig.At(50 * n + 2, 12), Mixed(Cell(n == 0 ? 2 : 1), kPage, 100)) << n;
}

// At 16 of the pointer's 17 pixels from the centre, (30, 30); a shadow is 2 pixels longer.
TEST(Knob, PointsToItsValue)
{
    // clang-format off
    struct Case { float value, sweep, offset; bool shadow; Point end; };
    const Case cases[] = {
        {0, 4.712389f, 0, false, {19, 41}}, {0.5f, 4.712389f, 0,         false, {30, 14}}, // lower left, top
        {1, 4.712389f, 0, false, {41, 41}}, {0.5f, 4.712389f, 1.570796f, false, {14, 30}}, // lower right, turned left
        {0, 3.141593f, 0, false, {14, 30}}, {0.5f, 4.712389f, 0,         true,  {30, 14}}, // of a half circle
    };
    // clang-format on
    for (const Case& c : cases) {
        ControlRig rig;
        auto* knob = rig.Add<CControlKnob>({10, 10, 40, 40}, c.value);
        knob->sweep = c.sweep, knob->angleOffset = c.offset, knob->pointerShadow = c.shadow;
        knob->drawPointer = true, knob->pointerWidth = 3, knob->pointerRadius = 17, knob->pointerColor = kWhite;
        knob->pointerShadowColor = Rgb(0, 0, 255);
        rig.Tick();
        for (const auto& [x, y] : {Point{19, 41}, {30, 14}, {41, 41}, {14, 30}})
            EXPECT_EQ(rig.At(x, y) >> 23, (c.end == Point{x, y})) << &c - cases;
        EXPECT_EQ(rig.At(30, 12) > 0, c.shadow);
    }
}

// A text stays in its box, has a halo to all sides if it glows, and leaves the buffer as it was.
TEST(TextDisplay, WritesIntoItsBox)
{
    const auto inked = [](float glow) {
        ControlRig rig;
        CControlTextDisplay label({10, 10, 60, 20}, 1);
        CDrawBuffer& page = rig.editor->backBuffer;
        label.glow = glow, label.Draw(&page);
        EXPECT_TRUE(page.GetTextColor() == kBlack && page.GetClipRect() == (Rect{0, 0, 300, 200}));
        std::vector<bool> ink;
        for (int n = 0; n < 300 * 200; ++n) ink.push_back(rig.At(n % 300, n / 300) % 0x1000000 > kPage);
        return ink;
    };
    const std::vector<bool> plain = inked(0.0f), glowing = inked(0.9f);
    EXPECT_GT(std::count(plain.begin(), plain.end(), true), 50);
    for (std::size_t n = 0; n < plain.size(); ++n)
        EXPECT_TRUE(!plain[n] || (glowing[n - 1] && glowing[n + 1] && glowing[n - 300] && glowing[n + 300])) << n;
}

// Green is plain, blue below the pointer, red on or dragged. The box is too small for the text.
TEST(TextDisplay, HasTheColoursOfItsState)
{
    // clang-format off
    struct Case { int kind; bool hovered, on; Color ink, ground; };
    const Case cases[] = {
        {0, false, false, 0x008000, 0}, {0, true,  false, 0x000080, 0}, {1, false, false, 0x008000, 0},
        {1, false, true,  0x800000, 0}, {1, true,  true,  0x000080, 0}, {2, false, false, 0x008000, 0},
        {2, false, true,  0x800000, 0x646464}, // label, button, number
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        ControlRig rig;
        auto* button = rig.Add<CControlButton>({10, 10, 40, 40}, c.on);
        auto* number = rig.Add<CControlNumber>({10, 10, 40, 40});
        CControlTextDisplay* const all[] = {rig.Add<CControlTextDisplay>({10, 10, 40, 40}), button, number};
        CControlTextDisplay* const shown = all[c.kind];
        button->drawText = true;
        if (shown == number && c.on) number->OnLeftDown(20, 20);
        shown->textRect = {14, 10, 32, 40};
        shown->textColor = Rgb(0, 255, 0), shown->hoverTextColor = Rgb(0, 0, 255), shown->hoverHighlight = true;
        shown->hovered = c.hovered, shown->Draw(&rig.editor->backBuffer);
        Color inside = 0, outside = 0;
        for (int n = 0; n < 300 * 200; ++n)
            (shown->textRect.Contains(n % 300, n / 300) ? inside : outside) |= rig.At(n % 300, n / 300) & 0x808080;
        EXPECT_TRUE(inside == c.ink && outside == 0) << inside << " " << outside;
        EXPECT_EQ(rig.At(14, 10), c.ground);
        EXPECT_EQ(std::string(number->text) == "display 100", shown == number);
    }
}

TEST(Text, BeginsInsideItsBoxWhenItIsTooWide)
{
    const auto draw = [](const char* text, bool beginsInside, int alignment) {
        CControlTextDisplay box({0, 0, 60, 20}, -1);
        box.SetText(text), box.beginsInside = beginsInside, box.align = alignment;
        CDrawBuffer page;
        page.Create(20, 60, false), box.Draw(&page);
        return std::vector(page.pixels.get(), page.pixels.get() + 60 * 20);
    };
    EXPECT_EQ(draw("wider than its box", true, align::Centre), draw("wider than its box", false, align::Left));
    EXPECT_EQ(draw("short", true, align::Centre), draw("short", false, align::Centre));
}

// "-100.00 %" is 52 pixels wide and 11 high; what is longer is cut. Nothing covers it.
TEST(Popup, OpensBelowTheKnobOrAboveIt)
{
    for (const auto& [y, popupY] : {Point{100, 144}, {129, 173}, {130, 104}}) { // 173 + 22 is 5 before the end
        ControlRig rig;
        auto* knob = rig.Add<CControlKnob>({100, y, 40, 40});
        rig.Add<Blinker>({0, 0, 300, 200})->backgroundColor = Rgb(0x10, 0x20, 0x30);
        knob->showValuePopup = true, knob->popupBottomColor = Rgb(249, 249, 0);
        rig.Tick(), rig.Mouse(mouse::LeftDown, 120, y + 10);
        EXPECT_EQ(knob->popupRect, (Rect{93, popupY, 59, 22}));
        rig.Tick(), rig.Tick();
        EXPECT_EQ(rig.OnScreen(93, popupY), 0u);                                                    // the frame
        EXPECT_GT(rig.OnScreen(94, popupY + 1) & 255, (rig.OnScreen(94, popupY + 15) & 255) + 128); // less blue below
        for (int n = 0; n < 300 * 200; ++n)
            EXPECT_TRUE(knob->popupRect.Contains(n % 300, n / 300) || knob->rect.Contains(n % 300, n / 300) ||
                        rig.OnScreen(n % 300, n / 300) == kPage);
        rig.Mouse(mouse::LeftUp, 120, y + 10), rig.Tick();
        EXPECT_EQ(rig.OnScreen(94, popupY + 1), kPage);
    }
}

} // namespace korvane::test
