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
    Color mixed = 0;
    for (int shift = 0; shift < 24; shift += 8)
        mixed |= ((a >> shift & 255) * weight + (b >> shift & 255) * (255 - weight)) >> 8 << shift;
    return mixed;
}

struct Knob : CControlKnob {
    Knob(CBitmap& strip) : CControlKnob({10, 10, 10, 10}, 1) { bitmap = &strip; }
};

TEST(Knob, ShowsTheNearestFrame)
{
    struct Case {
        const char* what;
        float value;
        int steps;
        bool inverted;
        int frame; // of 5
    };
    const Case cases[] = {
        {"first", 0, 0, false, 0},           {"rounds down", 0.37f, 0, false, 1},
        {"rounds up", 0.375f, 0, false, 2},  {"last", 1, 0, false, 4},
        {"above", 7, 0, false, 4},           {"below", -7, 0, false, 0},
        {"inverted", 0.25f, 0, true, 3},     {"a step begins", 0.5f, 2, false, 2},
        {"a step ends", 0.99f, 2, false, 2}, {"step and invert", 0.6f, 2, true, 2},
    };
    for (const bool vertical : {true, false}) {
        Cells strip(vertical ? 1 : 5, vertical ? 5 : 1, 10, 10);
        for (const Case& c : cases) {
            SCOPED_TRACE(c.what);
            Editor editor;
            Knob knob(strip);
            knob.frameCount = 5;
            knob.verticalStrip = vertical;
            knob.steps = c.steps;
            knob.inverted = c.inverted;
            knob.value = c.value;
            EXPECT_EQ(editor.Drawn(&knob, 15, 15), Cell(c.frame + 1));
        }
    }
}

// The next frame shows as far as the value lies beyond the nearest one; a transparent one shows the page below.
TEST(Knob, FadesBetweenFrames)
{
    Cells solid(1, 3, 10, 10), clear(1, 3, 10, 10, 100);
    struct Case {
        const char* what;
        CBitmap& strip;
        float value;
        Color expected;
    };
    const auto over = [](int cell) { return Mixed(Cell(cell), kPage, 100); };
    const Case cases[] = {
        {"between", solid, 0.2f, Mixed(Cell(2), Cell(1), 102)}, // round(0.4 * 255)
        {"before its frame", solid, 0.4f, Cell(2)},
        {"last", solid, 1.0f, Cell(3)},
        {"between, over the page", clear, 0.2f, Mixed(over(2), over(1), 102)},
        {"on its frame, over the page", clear, 0.5f, over(2)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        Knob* knob = new Knob(c.strip);
        editor.AddControl(knob);
        knob->frameCount = 3;
        knob->crossfade = true;
        knob->value = c.value;
        for (int again = 0; again < 2; ++again) EXPECT_EQ(editor.Drawn(knob, 15, 15), c.expected);
    }
}

TEST(Knob, PointsFromLowerLeftToLowerRight)
{
    struct Case {
        float value;
        int x, y; // 10 pixels from the centre
    };
    for (const Case& c : {Case{0, 23, 37}, Case{0.5f, 30, 20}, Case{1, 37, 37}}) {
        Editor editor;
        auto* knob = editor.Add<CControlKnob>({10, 10, 40, 40});
        knob->drawPointer = true;
        knob->pointerWidth = 3;
        knob->pointerColor = kWhite;
        knob->value = c.value;
        knob->Draw(&editor.backBuffer);
        int lit = 0;
        for (const Case& other : {Case{0, 23, 37}, Case{0.5f, 30, 20}, Case{1, 37, 37}})
            if ((editor.At(other.x, other.y) & 255) > 128) lit += other.value == c.value ? 1 : 100;
        EXPECT_EQ(lit, 1) << c.value;
    }
}

TEST(Button, ShowsItsState)
{
    struct Case {
        int mode;
        float value;
        bool pressed;
        int frame;
    };
    const Case cases[] = {
        {button::Toggle, 0, false, 0},       {button::Toggle, 1, false, 1},        {button::ToggleOnPress, 0, false, 0},
        {button::ToggleOnPress, 1, true, 1}, {button::ToggleOnPress, 1, false, 2}, {button::ToggleOnPress, 0, true, 3},
        {button::Momentary, 0, false, 0},    {button::Momentary, 1, true, 1},
    };
    for (const Case& c : cases) {
        Editor editor;
        Cells strip(2, 5, 10, 10);
        CControlButton made({10, 10, 10, 10}, 1);
        made.bitmap = &strip;
        made.imageOffset = {10, 10}; // the second column, from the second row on
        made.mode = c.mode;
        made.value = c.value;
        made.pressed = c.pressed;
        EXPECT_EQ(editor.Drawn(&made, 15, 15), Cell(2 * (c.frame + 1) + 2)) << c.mode << c.value << c.pressed;
    }
}

TEST(Button, FadesItsLightInFourTicks)
{
    Editor editor;
    Cells strip(1, 2, 10, 10);
    auto* led = editor.Add<CControlButton>({10, 10, 10, 10});
    led->mode = button::Led;
    led->bitmap = &strip;
    led->SetValue(1.0f);
    for (const float level : {0.25f, 0.5f, 0.75f, 1.0f, 1.0f}) {
        editor.Idle();
        EXPECT_FLOAT_EQ(led->fadeLevel, level);
    }
    EXPECT_EQ(editor.At(15, 15), Cell(2));
    led->SetValue(0.0f);
    editor.Idle();
    EXPECT_FLOAT_EQ(led->fadeLevel, 0.75f);
}

TEST(Tab, ShowsTheSelectedOne)
{
    struct Case {
        const char* what;
        bool normalized, reversed, shared, vertical;
        int mode, pressed;
        float value;
        int cells[4]; // by tab
    };
    const Case cases[] = {
        {"index", false, false, false, false, 0, -1, 2.9f, {1, 2, 7, 4}},
        {"0..1", true, false, false, false, 0, -1, 0.66f, {1, 2, 7, 4}},
        {"reversed", true, true, false, false, 0, -1, 1.0f, {5, 2, 3, 4}},
        {"shared, downward", true, false, true, true, 0, -1, 1.0f, {1, 1, 1, 5}},
        {"held", false, false, false, false, 1, 1, 2.0f, {1, 6, 11, 4}},
        {"selected and held", false, false, false, false, 1, 2, 2.0f, {1, 2, 15, 4}},
        {"none", false, false, false, false, 0, -1, 9.0f, {1, 2, 3, 4}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        Cells image(4, 4, 10, 10);
        CControlTab tab({10, 10, 40, 40}, 1);
        tab.bitmap = &image;
        tab.tabCount = 4;
        tab.tabWidth = tab.tabHeight = 10;
        tab.normalized = c.normalized, tab.reversed = c.reversed;
        tab.sharedImage = c.shared, tab.vertical = c.vertical;
        tab.mode = c.mode, tab.pressedTab = c.pressed, tab.value = c.value;
        tab.Draw(&editor.backBuffer);
        for (int n = 0; n < 4; ++n)
            EXPECT_EQ(editor.At(c.vertical ? 15 : 15 + 10 * n, c.vertical ? 15 + 10 * n : 15), Cell(c.cells[n])) << n;
    }
}

// The handle stands centred across the track, and along it as far as the value says.
TEST(Slider, PlacesItsHandle)
{
    struct Case {
        const char* what;
        bool downward, crossfade;
        float value;
        Rect handle; // where it is seen
        Color end;   // its last line along the track
    };
    const Color full = Cell(9);
    const Case cases[] = {
        {"left", false, false, 0, {13, 18, 6, 4}, full},
        {"right", false, false, 1, {47, 18, 6, 4}, full}, // 34 of 40 pixels
        {"bottom", true, false, 0, {27, 45, 6, 4}, full},
        {"top", true, false, 1, {27, 9, 6, 4}, full},                               // 36 of 40
        {"between", false, true, 0.25f, {21, 18, 7, 4}, full},                      // 8.5
        {"a quarter", true, true, 0.75f / 36, {27, 44, 6, 5}, Mixed(full, 0, 128)}, // 35.25
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        Cells image(1, 1, 6, 4);
        std::fill_n(image.pixels.get(), 24, full);
        CControlSlider slider({0, 0, 100, 100}, 1);
        slider.handle = &image;
        slider.track = c.downward ? Rect{20, 10, 20, 40} : Rect{10, 10, 40, 20};
        slider.handleOffset = {3, -1};
        slider.horizontalTrack = c.downward;
        slider.crossfade = c.crossfade;
        slider.value = c.value;
        slider.Draw(&editor.backBuffer);
        const Rect& h = c.handle;
        const int right = h.x + h.w - 1, bottom = h.y + h.h - 1;
        EXPECT_EQ(editor.At(h.x, h.y), full);
        EXPECT_EQ(c.downward ? editor.At(h.x, bottom) : editor.At(right, h.y), c.end);
        for (const Point out :
             {Point{h.x - 1, h.y}, Point{h.x, h.y - 1}, Point{right + 1, h.y}, Point{h.x, bottom + 1}})
            EXPECT_EQ(editor.At(out.x, out.y), 0u) << out.x << " " << out.y;
    }
}

// A text stays in its box, has a halo if it glows, and leaves the buffer as it was.
TEST(TextDisplay, WritesIntoItsBox)
{
    const auto inked = [](float glow, Rect box, int* outside) {
        Editor editor;
        CControlTextDisplay label({10, 10, 60, 20}, 1);
        label.SetText("WWW");
        label.textRect = box;
        label.glow = glow;
        editor.backBuffer.SetTextColor(0x12345678);
        editor.backBuffer.SetFont(1);
        label.Draw(&editor.backBuffer);
        EXPECT_EQ(editor.backBuffer.GetTextColor(), 0x12345678u);
        EXPECT_EQ(editor.backBuffer.GetFont(), 1);
        EXPECT_EQ(editor.backBuffer.GetClipRect(), (Rect{0, 0, 300, 200}));
        int count = 0;
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 300; ++x) {
                const Color color = editor.At(x, y);
                if (box.Contains(x, y))
                    count += color != 0;
                else
                    *outside += color != kPage;
            }
        return count;
    };
    int outside = 0;
    const int plain = inked(0.0f, {10, 10, 60, 20}, &outside);
    EXPECT_GT(plain, 0);
    EXPECT_GT(inked(0.5f, {10, 10, 60, 20}, &outside), plain);
    EXPECT_LT(inked(0.0f, {10, 10, 12, 20}, &outside), plain);
    EXPECT_EQ(outside, 0);
}

TEST(Number, ReadsItsValue)
{
    Editor editor;
    auto* number = editor.Add<CControlNumber>({10, 10, 60, 20});
    EXPECT_EQ(editor.Drawn(number, 11, 11), 0u);
    EXPECT_STREQ(number->text, "50");
    editor.Mouse(mouse::LeftDown, 20, 20);
    EXPECT_EQ(editor.Drawn(number, 11, 11), 0x646464u);
}

// "-100.00 %" is 52 pixels wide and 11 high.
TEST(Popup, OpensBelowTheKnobOrAboveIt)
{
    struct Case {
        int y, popupY;
    };
    for (const Case& c : {Case{100, 144}, Case{129, 173}, Case{130, 104}}) { // 173 + 22 is 5 before the end
        Editor editor;
        auto* knob = editor.Add<CControlKnob>({100, c.y, 40, 40});
        knob->showValuePopup = true;
        editor.Idle();
        editor.Mouse(mouse::LeftDown, 120, c.y + 10);
        EXPECT_EQ(knob->popupRect, (Rect{93, c.popupY, 59, 22}));
        editor.Idle();
        EXPECT_EQ(editor.At(93, c.popupY), 0u) << "frame";
        EXPECT_EQ(editor.At(94, c.popupY + 1), 0xF9F9EBu) << "panel";
        EXPECT_NE(editor.At(147, c.popupY + 18), kPage) << "shadow beside the box";
        EXPECT_EQ(editor.At(151, c.popupY), kPage) << "no shadow above its corner";
        EXPECT_FALSE(editor.IsDirty());
        editor.Mouse(mouse::LeftUp, 120, c.y + 10);
        EXPECT_FALSE(knob->popup);
        editor.Idle();
        EXPECT_EQ(editor.At(94, c.popupY + 1), kPage);
        EXPECT_EQ(editor.Screen().shown[(c.popupY + 1) * 300 + 94], kPage);
    }
}

} // namespace korvane::test
