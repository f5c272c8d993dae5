// What presses and drags do to values, and what engine and host hear of them.
#include <gtest/gtest.h>

#include <cmath>

#include "Editor.h"
#include "gui/controls/CControlSlider.h"
#include "gui/controls/CControlTab.h"

namespace korvane::test {

// The value goes by the distance from the press; the dead zone swallows the centre.
TEST(Drag, FollowsItsLaw)
{
    // clang-format off
    using Moves = std::vector<std::pair<Point, float>>; // from the press, and the value there
    struct Case { const char* what; float start, detent; int modifiers; bool horizontal; Moves moves; };
    const Case cases[] = {
        {"up and down at once again", 0.5f,  0,    0,              false, {{{9, -250}, 1}, {{0, -90}, 0.95f}}},
        {"a full range in 200",       0,     0,    0,              false, {{{0, -100}, 0.5f}, {{0, -200}, 1}}},
        {"fine with Ctrl",            0.5f,  0,    modifier::Ctrl, false, {{{0, -100}, 0.6f}}},
        {"to the right",              0.5f,  0,    0,              true,  {{{40, 70}, 0.7f}, {{-300, 0}, 0}}},
        {"leaves the detent at once", 0.5f,  0.2f, 0,              false, {{{0, -1}, 0.505f}, {{0, -11}, 0.555f}}},
        {"stays for 40 pixels",       0.55f, 0.2f, 0,              false, {{{0, 49}, 0.5f}, {{0, 60}, 0.45f}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        auto* knob = editor.Add<CControlKnob>({10, 10, 40, 40}, c.start);
        knob->centreDetent = c.detent;
        knob->horizontal = c.horizontal;
        editor.Mouse(mouse::LeftDown, 20, 20, c.modifiers);
        for (const auto& [moved, expected] : c.moves) {
            editor.Mouse(mouse::Move, 20 + moved.x, 20 + moved.y);
            EXPECT_NEAR(knob->value, expected, 1e-5f);
        }
    }
}

enum class Kind { Number, Spring, Slider, Button, Tab, Reversed };

CControl* Make(Editor& editor, Kind kind, int mode)
{
    const Rect place{10, 10, 40, 40};
    if (kind == Kind::Number) return editor.Add<CControlNumber>(place);
    if (kind == Kind::Slider || kind == Kind::Spring) {
        auto* slider = editor.Add<CControlSlider>(place);
        slider->horizontalTrack = mode == 1;
        slider->jumpToClick = kind == Kind::Slider;
        slider->springBack = slider->showValuePopup = kind == Kind::Spring;
        return slider;
    }
    auto* made = kind == Kind::Button ? editor.Add<CControlButton>(place) : editor.Add<CControlTab>(place);
    made->mode = mode;
    if (kind == Kind::Button) return made;
    auto* tab = static_cast<CControlTab*>(made);
    tab->tabCount = 4;
    tab->tabWidth = tab->tabHeight = 10;
    tab->reversed = tab->normalized = tab->vertical = kind == Kind::Reversed;
    return tab;
}

// Values are told between the begin and the end of a gesture; a release counts wherever it is.
TEST(Gestures, AreToldInOrder)
{
    // clang-format off
    struct Case {
        const char* what; Kind kind; int mode, press, modifiers; Point at, release; const char *pressed, *released;
    };
    using enum Kind;
    const int L = mouse::LeftDown, R = mouse::RightDown;
    const Case cases[] = {
        {"number",               Number,      0, L, 0,             {20, 20}, {20, 20}, "begin",          "end"},
        {"with Alt",             Number,      0, L, modifier::Alt, {20, 20}, {20, 20}, "begin 0.25 end", ""},
        {"right",                Number,      0, R, 0,             {20, 20}, {20, 20}, "begin 0.25 end", ""},
        {"springs back",         Spring,      0, L, 0,             {20, 20}, {20, 20}, "begin",          "0.25 end"},
        {"jumps up the track",   Slider,      1, L, 0,             {20, 40}, {20, 20}, "0.25 begin",     "end"},
        {"jumps along a track",  Slider,      0, L, 0,             {30, 20}, {20, 20}, "0.5 begin",      "end"},
        {"toggle",               Button,      0, L, 0,             {20, 20}, {20, 20}, "begin 1 end",    ""},
        {"let go elsewhere",     Button,      1, L, 0,             {20, 20}, {200, 9}, "begin 1",        "end"},
        {"momentary",            Button,      3, L, 0,             {20, 20}, {200, 9}, "1",              "0"},
        {"tab",                  Tab,         0, L, 0,             {35, 20}, {20, 20}, "2",              ""},
        {"tab when let go",      Tab,         1, L, 0,             {49, 20}, {40, 49}, "",               "3"},
        {"tab let go elsewhere", Tab,         1, L, 0,             {49, 20}, {20, 49}, "",               ""},
        {"last tab of 1 to 0",   Reversed,    0, L, 0,             {20, 45}, {20, 20}, "0",              ""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        Make(editor, c.kind, c.mode);
        editor.Mouse(c.press, c.at.x, c.at.y, c.modifiers);
        EXPECT_EQ(editor.Heard(), c.pressed);
        const bool captured = editor.IsMouseCaptured();
        editor.Mouse(c.press == L ? mouse::LeftUp : mouse::RightUp, c.release.x, c.release.y);
        EXPECT_EQ(editor.Heard(), c.released);
        EXPECT_FALSE(editor.IsMouseCaptured());

        // A mouse that somebody else takes ends the gesture, and only one that is under way.
        if (!captured) continue;
        editor.Mouse(c.press, c.at.x, c.at.y);
        editor.Heard();
        editor.Screen().grabbed = false;
        editor.Idle();
        EXPECT_EQ(editor.Heard(), c.kind == Kind::Tab ? "" : c.released);
        editor.CancelAll();
        EXPECT_EQ(editor.Heard(), "");
    }
}

// Whoever hears of a value may remove the control that tells it, or close the window.
TEST(Gestures, SurviveTheEndOfTheirControl)
{
    for (const Kind kind : {Kind::Number, Kind::Spring, Kind::Slider, Kind::Button, Kind::Tab})
        for (int mode = 0; mode < 4; ++mode)
            for (const bool closes : {false, true}) {
                Editor editor;
                Make(editor, kind, mode);
                editor.onChange = [&](CControl* told) { closes ? editor.Close() : told->Delete(); };
                editor.Mouse(mouse::LeftDown, 20, 20);
                editor.Mouse(mouse::Move, 20, 5);
                editor.Mouse(mouse::LeftUp, 20, 20);
                EXPECT_FALSE(editor.IsMouseCaptured());
                EXPECT_FALSE(editor.GetMainGroup() && editor.GetMainGroup()->controls) << mode;
            }
}

// Values that are none, and places at the ends of int.
TEST(Controls, TakeWildNumbers)
{
    for (const Kind kind : {Kind::Number, Kind::Spring, Kind::Slider, Kind::Button, Kind::Tab, Kind::Reversed})
        for (const Rect place : {Rect{10, 10, 40, 40}, Rect{INT32_MAX - 5, INT32_MIN, INT32_MAX, INT32_MAX},
                                 Rect{INT32_MIN, INT32_MAX, -1, INT32_MIN}}) {
            Editor editor;
            Cells image(4, 4, 10, 10, 128);
            auto* control = static_cast<CControlTextDisplay*>(Make(editor, kind, 1));
            control->bitmap = &image;
            control->rect = control->textRect = place;
            for (const float wild : {NAN, 1e30f, -1e30f, INFINITY}) {
                EXPECT_EQ(control->SetValue(wild), wild == wild) << wild;
                control->OnLeftDown(place.x, place.y);
                control->OnMouseMove(INT32_MAX, INT32_MIN);
                control->OnTick();
                control->Draw(&editor.backBuffer);
                control->OnLeftUp(INT32_MIN, INT32_MAX);
            }
        }
}

} // namespace korvane::test
