// What presses and drags do to values, and what engine and host hear of them.
#include <gtest/gtest.h>

#include <cmath>

#include "gui/controls/CControlSlider.h"
#include "gui/controls/CControlTab.h"
#include "support/EditorRig.h"

namespace korvane::test {

// The value goes by the distance from the press; the dead zone swallows the centre.
TEST(Drag, FollowsItsLaw)
{
    // clang-format off
    using Moves = std::vector<std::pair<Point, float>>; // from the press, and the value there
    struct Case { const char* what; float start, detent; int modifiers; bool horizontal; Moves moves; };
    const Case cases[] = {
        {"up and down at once again", 0.5f,  0,    0,              false, {{{9, -250}, 1}, {{0, -90}, 0.95f}}},
        {"fine with Ctrl",            0.5f,  0,    modifier::Ctrl, false, {{{0, -100}, 0.6f}}},
        {"to the right",              0.5f,  0,    0,              true,  {{{40, 70}, 0.7f}, {{-300, 0}, 0}}},
        {"leaves the detent at once", 0.5f,  0.2f, 0,              false, {{{0, -1}, 0.505f}, {{0, -11}, 0.555f}}},
        {"stays for 40 pixels",       0.55f, 0.2f, 0,              false, {{{0, 49}, 0.5f}, {{0, 60}, 0.45f}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ControlRig rig;
        auto* knob = rig.Add<CControlKnob>({10, 10, 40, 40}, c.start);
        knob->centreDetent = c.detent, knob->horizontal = c.horizontal;
        rig.Mouse(mouse::LeftDown, 20, 20, c.modifiers);
        for (const auto& [moved, expected] : c.moves) {
            rig.Mouse(mouse::Move, 20 + moved.x, 20 + moved.y);
            EXPECT_NEAR(knob->value, expected, 1e-5f);
        }
    }
}

enum Kind { Number, Spring, Slider, Label, Button, Tab, Reversed };

/// mode  of a button; -1: it is disabled
CControlTextDisplay* Make(ControlRig& rig, Kind kind, int mode)
{
    const Rect place{10, 10, 40, 40};
    if (kind == Number) return rig.Add<CControlNumber>(place);
    if (kind == Label) {
        auto* label = rig.Add<CControlTextDisplay>(place);
        return label->clickNotifies = mode == 1, label;
    }
    if (kind == Slider || kind == Spring) {
        auto* slider = rig.Add<CControlSlider>(place);
        slider->horizontalTrack = mode == 1, slider->jumpToClick = kind == Slider;
        slider->springBack = slider->showValuePopup = kind == Spring;
        return slider;
    }
    auto* made = kind == Button ? rig.Add<CControlButton>(place) : rig.Add<CControlTab>(place);
    made->disabled = mode < 0, made->mode = std::max(mode, 0);
    if (kind == Button) return made;
    auto* tab = static_cast<CControlTab*>(made);
    tab->tabCount = 4, tab->tabWidth = tab->tabHeight = 10;
    tab->reversed = tab->normalized = tab->vertical = kind == Reversed;
    return tab;
}

// Values are told between the begin and the end of a gesture; a release counts wherever it is, and what nobody can go
// on with ends as if it were let go.
TEST(Gestures, AreToldInOrder)
{
    // clang-format off
    struct Case {
        const char* what; Kind kind; int mode, press, modifiers; Point at, release; Log pressed, released;
    };
    const int L = mouse::LeftDown, R = mouse::RightDown, Alt = modifier::Alt;
    const auto told = [](const char* value) { return std::string("automate 100 ") + value; };
    const std::string begin = "begin 100 0", end = "end 100 0", reset = told("0.1"), one = told("1"), zero = told("0");
    const Case cases[] = {
        {"number",               Number,   0,  L, 0,   {20, 20}, {20, 20}, {begin},             {end}},
        {"with Alt",             Number,   0,  L, Alt, {20, 20}, {20, 20}, {begin, reset, end}, {}},
        {"right",                Number,   0,  R, 0,   {20, 20}, {20, 20}, {begin, reset, end}, {}},
        {"springs back",         Spring,   0,  L, 0,   {20, 20}, {20, 20}, {begin},             {reset, end}},
        {"jumps up the track",   Slider,   1,  L, 0,   {20, 40}, {20, 20}, {told("0.25"), begin}, {end}},
        {"jumps along a track",  Slider,   0,  L, 0,   {30, 20}, {20, 20}, {told("0.5"), begin}, {end}},
        {"label",                Label,    0,  L, 0,   {20, 20}, {20, 20}, {},                  {}},
        {"label that tells",     Label,    1,  L, 0,   {20, 20}, {20, 20}, {zero},              {}},
        {"toggle",               Button,   0,  L, 0,   {20, 20}, {20, 20}, {begin, one, end},   {}},
        {"let go elsewhere",     Button,   1,  L, 0,   {20, 20}, {200, 9}, {begin, one},        {end}},
        {"momentary",            Button,   3,  L, 0,   {20, 20}, {200, 9}, {one},               {zero}},
        {"disabled",             Button,   -1, L, 0,   {20, 20}, {20, 20}, {},                  {}},
        {"tab",                  Tab,      0,  L, 0,   {35, 20}, {20, 20}, {told("2")},         {}},
        {"disabled tab",         Tab,      -1, L, 0,   {35, 20}, {20, 20}, {},                  {}},
        {"tab when let go",      Tab,      1,  L, 0,   {49, 20}, {40, 49}, {},                  {told("3")}},
        {"tab let go elsewhere", Tab,      1,  L, 0,   {49, 20}, {20, 49}, {},                  {}},
        {"last tab of 1 to 0",   Reversed, 0,  L, 0,   {20, 45}, {20, 20}, {zero},              {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        for (int ending = 0; ending < 4; ++ending) {
            ControlRig rig;
            CControl* control = Make(rig, c.kind, c.mode);
            rig.Mouse(c.press, c.at.x, c.at.y, c.modifiers);
            EXPECT_EQ(rig.Heard(), c.pressed);
            EXPECT_EQ(rig.window->pointerHidden, rig.editor->IsMouseCaptured() && c.kind <= Slider);
            if (ending == 0) rig.Mouse(c.press == L ? mouse::LeftUp : mouse::RightUp, c.release.x, c.release.y);
            if (ending == 1) rig.window->grabbed = false; // somebody else takes the mouse
            if (ending == 2) control->hidden = true;
            if (ending == 3) rig.editor->GetMainGroup()->SetActive(true); // takes it from all that hold it
            rig.Tick();
            EXPECT_EQ(rig.Heard(), ending > 0 && c.kind == Tab ? Log{} : c.released) << ending;
            rig.editor->CancelAll();
            EXPECT_TRUE(rig.Heard().empty() && !rig.editor->IsMouseCaptured()) << ending;
        }
    }
}

TEST(Knob, SpringsBackOnceWhateverItsHearerCancels)
{
    ControlRig rig;
    Make(rig, Spring, 0);
    rig.editor->onChange = [&](CControl*) { rig.editor->SetActiveGroup(nullptr); };
    rig.Mouse(mouse::LeftDown, 20, 20);
    rig.Mouse(mouse::Move, 20, 10);
    const Log heard = rig.Heard();
    EXPECT_EQ(heard.back(), "end 100 0");
    EXPECT_EQ(std::count(heard.begin(), heard.end(), heard.back()), 1);
}

// Values that are none, and places at the ends of int.
TEST(Controls, TakeWildNumbers)
{
    const Rect places[] = {{10, 10, 40, 40}, {INT32_MAX - 5, INT32_MIN, INT32_MAX, INT32_MAX}, {INT32_MIN, 9, -1, -1}};
    for (const Kind kind : {Number, Spring, Slider, Button, Tab, Reversed})
        for (const float wild : {NAN, 1e30f, -1e30f, INFINITY})
            for (const Rect place : places) {
                ControlRig rig;
                Cells image(4, 4, 10, 10, 128);
                auto* control = Make(rig, kind, 1);
                control->bitmap = &image, control->rect = control->textRect = place;
                EXPECT_EQ(control->SetValue(wild), wild == wild) << wild;
                control->OnLeftDown(place.x, place.y), control->OnMouseMove(INT32_MAX, INT32_MIN);
                control->OnTick(), control->Draw(&rig.editor->backBuffer);
                control->OnLeftUp(INT32_MIN, INT32_MAX);
            }
}

} // namespace korvane::test
