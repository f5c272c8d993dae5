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
    struct Case {
        const char* what;
        float start, detent;
        int modifiers;
        bool horizontal;
        std::vector<std::pair<Point, float>> moves; // from the press, and the value there
    };
    const Case cases[] = {
        {"up and down at once again", 0.5f, 0, 0, false, {{{0, -50}, 0.75f}, {{9, -250}, 1}, {{0, -90}, 0.95f}}},
        {"a full range in 200 pixels", 0, 0, 0, false, {{{0, -100}, 0.5f}, {{0, -200}, 1}}},
        {"fine with Ctrl", 0.5f, 0, modifier::Ctrl, false, {{{0, -100}, 0.6f}}},
        {"to the right", 0.5f, 0, 0, true, {{{40, 70}, 0.7f}, {{-300, 0}, 0}}},
        {"leaves the detent at once", 0.5f, 0.2f, 0, false, {{{0, -1}, 0.505f}, {{0, -11}, 0.555f}}},
        {"and downward", 0.5f, 0.2f, 0, false, {{{0, 1}, 0.495f}}},
        {"stays for 40 pixels", 0.55f, 0.2f, 0, false, {{{0, 10}, 0.5f}, {{0, 49}, 0.5f}, {{0, 60}, 0.45f}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Editor editor;
        editor.values[5] = c.start;
        auto* knob = editor.Add<CControlKnob>({10, 10, 40, 40});
        knob->centreDetent = c.detent;
        knob->horizontal = c.horizontal;
        EXPECT_FLOAT_EQ(knob->value, c.start);
        editor.Mouse(mouse::LeftDown, 20, 20, c.modifiers);
        EXPECT_TRUE(editor.Screen().pointerHidden);
        for (const auto& [moved, expected] : c.moves) {
            editor.Mouse(mouse::Move, 20 + moved.x, 20 + moved.y);
            EXPECT_NEAR(knob->value, expected, 1e-5f);
        }
    }
}

TEST(Drag, OfANumberTakesTwiceTheWay)
{
    Editor editor;
    auto* number = editor.Add<CControlNumber>({10, 10, 40, 16});
    editor.Mouse(mouse::LeftDown, 20, 20);
    editor.Mouse(mouse::Move, 20, -180);
    EXPECT_FLOAT_EQ(number->value, 0.5f);
}

enum class Kind { Number, SpringKnob, Slider, Button, Tab, ReversedTab, Label };

CControl* Make(Editor& editor, Kind kind, int mode)
{
    const Rect place{10, 10, 40, 40};
    if (kind == Kind::Number) return editor.Add<CControlNumber>(place);
    if (kind == Kind::Slider) {
        auto* slider = editor.Add<CControlSlider>(place);
        slider->jumpToClick = true;
        slider->horizontalTrack = mode == 1;
        return slider;
    }
    if (kind == Kind::SpringKnob) {
        auto* knob = editor.Add<CControlKnob>(place);
        knob->springBack = knob->showValuePopup = true;
        return knob;
    }
    if (kind == Kind::Label) {
        auto* label = editor.Add<CControlTextDisplay>(place);
        label->clickNotifies = mode != 0;
        return label;
    }
    if (kind == Kind::Button) {
        auto* made = editor.Add<CControlButton>(place);
        made->mode = mode;
        return made;
    }
    auto* tab = editor.Add<CControlTab>(place);
    tab->mode = mode;
    tab->tabCount = 4;
    tab->tabWidth = tab->tabHeight = 10;
    tab->reversed = kind == Kind::ReversedTab;
    tab->normalized = tab->vertical = tab->reversed;
    return tab;
}

// Values are told between the begin and the end of a gesture; a release counts wherever it is.
TEST(Gestures, AreToldInOrder)
{
    struct Case {
        const char* what;
        Kind kind;
        int mode;
        int press, modifiers;
        Point at, release;
        const char *pressed, *released;
    };
    const int L = mouse::LeftDown, R = mouse::RightDown;
    const Case cases[] = {
        {"number", Kind::Number, 0, L, 0, {20, 20}, {20, 20}, "begin", "end"},
        {"with Alt", Kind::Number, 0, L, modifier::Alt, {20, 20}, {20, 20}, "begin 0.25 end", ""},
        {"right", Kind::Number, 0, R, 0, {20, 20}, {20, 20}, "begin 0.25 end", ""},
        {"springs back", Kind::SpringKnob, 0, L, 0, {20, 20}, {20, 20}, "begin", "0.25 end"},
        {"jumps down the track", Kind::Slider, 1, L, 0, {20, 40}, {20, 20}, "0.25 begin", "end"},
        {"jumps along the track", Kind::Slider, 0, L, 0, {30, 20}, {20, 20}, "0.5 begin", "end"},
        {"toggle", Kind::Button, button::Toggle, L, 0, {20, 20}, {20, 20}, "begin 1 end", ""},
        {"LED", Kind::Button, button::Led, L, 0, {20, 20}, {20, 20}, "begin 1 end", ""},
        {"toggle, let go elsewhere", Kind::Button, button::ToggleOnPress, L, 0, {20, 20}, {200, 9}, "begin 1", "end"},
        {"momentary", Kind::Button, button::Momentary, L, 0, {20, 20}, {200, 9}, "1", "0"},
        {"tab", Kind::Tab, 0, L, 0, {35, 20}, {20, 20}, "2", ""},
        {"tab when let go", Kind::Tab, 1, L, 0, {49, 20}, {40, 49}, "", "3"},
        {"tab let go on another", Kind::Tab, 1, L, 0, {49, 20}, {20, 49}, "", ""},
        {"tab from 1 to 0, downward", Kind::ReversedTab, 0, L, 0, {20, 45}, {20, 20}, "0", ""},
        {"label", Kind::Label, 0, L, 0, {20, 20}, {20, 20}, "", ""},
        {"label that tells", Kind::Label, 1, L, 0, {20, 20}, {20, 20}, "0", ""},
        {"outside", Kind::Button, button::Toggle, L, 0, {50, 20}, {20, 20}, "", ""},
    };
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
        if (!captured || c.kind == Kind::Tab) continue;
        editor.Mouse(c.press, c.at.x, c.at.y);
        editor.Heard();
        editor.Screen().grabbed = false;
        editor.Idle();
        EXPECT_EQ(editor.Heard(), c.released);
        editor.CancelAll();
        EXPECT_EQ(editor.Heard(), "");
    }
}

TEST(Gestures, OfADisabledButtonDoNothing)
{
    for (int mode = 0; mode < 4; ++mode) {
        Editor editor;
        static_cast<CControlButton*>(Make(editor, Kind::Button, mode))->disabled = true;
        editor.Click(20, 20);
        EXPECT_EQ(editor.Heard(), "") << mode;
    }
}

// Whoever hears of a value may remove the control that tells it.
TEST(Gestures, SurviveTheEndOfTheirControl)
{
    for (const Kind kind : {Kind::Number, Kind::SpringKnob, Kind::Slider, Kind::Button, Kind::Tab})
        for (int mode = 0; mode < 4; ++mode)
            for (const bool close : {false, true}) {
                Editor editor;
                CControl* control = Make(editor, kind, mode);
                editor.onChange = [&](CControl* told) {
                    close ? editor.Close() : static_cast<void>(editor.RemoveControl(told));
                };
                editor.Mouse(mouse::LeftDown, 20, 20);
                if (!editor.told.empty() && editor.told != "begin") continue; // it is gone
                editor.Mouse(mouse::Move, 20, 5);
                if (editor.GetMainGroup() && editor.GetMainGroup()->controls == control)
                    editor.Mouse(mouse::LeftUp, 20, 20);
                EXPECT_FALSE(editor.IsMouseCaptured());
            }
}

// Values that are none, and places at the ends of int.
TEST(Controls, TakeWildNumbers)
{
    for (const Kind kind : {Kind::Number, Kind::SpringKnob, Kind::Slider, Kind::Button, Kind::Tab, Kind::ReversedTab})
        for (const Rect place : {Rect{10, 10, 40, 40}, Rect{INT32_MAX - 5, INT32_MIN, INT32_MAX, INT32_MAX},
                                 Rect{INT32_MIN, INT32_MAX, -1, INT32_MIN}}) {
            Editor editor;
            auto* control = static_cast<CControlTextDisplay*>(Make(editor, kind, 1));
            Cells image(4, 4, 10, 10, 128);
            control->bitmap = &image;
            control->rect = control->textRect = place;
            for (const float wild : {NAN, 1e30f, -1e30f, INFINITY}) {
                EXPECT_EQ(control->SetValue(wild), wild == wild) << wild;
                control->Draw(&editor.backBuffer);
                control->OnTick();
                control->OnLeftDown(place.x, place.y);
                control->OnMouseMove(INT32_MAX, INT32_MIN);
                control->Draw(&editor.backBuffer);
                control->OnLeftUp(INT32_MIN, INT32_MAX);
            }
        }
}

TEST(Controls, DoNothingAlone)
{
    CControlKnob knob({0, 0, 10, 10}, 3);
    char text[1024];
    knob.GetParameterName(text);
    EXPECT_STREQ(text, "undefined");
    EXPECT_EQ(knob.GetEditorSize(), (Size{100, 100}));
    EXPECT_EQ(knob.GetMousePosition(), (Point{-1, -1}));
    EXPECT_FALSE(knob.IsCapturing() || knob.GetWindow() || knob.GetDrawBuffer() || knob.IsCtrlDown());
    knob.showValuePopup = true;
    knob.OnLeftDown(1, 1);
    knob.OnLeftUp(1, 1);
    knob.SetFocus(true);
    knob.Redraw();
    knob.Draw(nullptr);
}

// The drawing of a knob goes part of the way on each tick, from the first value that it is given.
TEST(Knob, MovesSmoothly)
{
    Editor editor;
    editor.values[5] = 0.5f;
    auto* knob = editor.Add<CControlKnob>({10, 10, 40, 40});
    knob->smoothing = 0.8f;
    EXPECT_FLOAT_EQ(knob->shownValue, 0.5f);
    knob->SetValue(1.0f);
    for (const float shown : {0.9f, 0.98f, 0.996f, 0.9992f, 1.0f}) { // 0.9992 is near enough
        knob->SetDirty(false);
        knob->OnTick();
        EXPECT_NEAR(knob->shownValue, shown == 0.9992f ? 1.0f : shown, 1e-5f);
        EXPECT_EQ(knob->IsDirty(), shown != 1.0f);
    }
}

} // namespace korvane::test
