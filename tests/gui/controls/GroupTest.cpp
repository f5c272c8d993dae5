// Who of a group hears what.
#include <gtest/gtest.h>

#include "support/EditorRig.h"

namespace korvane::test {

/// Writes down what it hears.
struct Ear : CControl {
    Ear(Log& lines, const char* called, Rect place, int number) : CControl(place, number), log(lines), name(called) {}
    void Say(const char* what) { log.push_back(name + what); }
    void OnLeftDown(int, int) override { Say(":left"); }
    void OnMiddleDown(int, int) override { Say(":middle"); }
    void OnRightDown(int, int) override { Say(":right"); }
    void OnLeftUp(int, int) override { Say(":left-up"); }
    void OnMiddleUp(int, int) override { Say(":middle-up"); }
    void OnRightUp(int, int) override { Say(":right-up"); }
    void OnMouseMove(int, int) override { Say(":move"); }
    void OnWheel(int, int notches) override { Say(notches > 0 ? ":wheel-up" : ":wheel-down"); }
    void OnHoverChanged() override { Say(hovered ? ":enter" : ":leave"); }
    void OnTick() override { Say(":tick"); }
    void Draw(CDrawBuffer*) override { Say(":draw"); }
    bool OnFileDrop(const char*, int, int) override { return Say(":file"), id == 1; }

    Log& log;
    std::string name;
};

/// Three controls: b lies on a's right half, c is alone; under all lies a hidden one.
struct GroupTest : testing::Test, ControlRig {
    Ear* hidden = new Ear(log, "hidden", {0, 0, 300, 200}, -1);
    Ear* b = new Ear(log, "b", {20, 10, 10, 20}, 2);
    Ear* a = new Ear(log, "a", {10, 10, 20, 20}, 1);
    Ear* c = new Ear(log, "c", {50, 50, 20, 20}, 3);
    CControlGroup& group = *editor->GetMainGroup();

    GroupTest()
    {
        for (Ear* ear : {hidden, b, a, c}) editor->AddControl(ear);
        hidden->hidden = true, Tick(), Heard();
    }
};

TEST_F(GroupTest, RoutesEvents)
{
    // clang-format off
    struct Case { Ear *capture, *focus; int type, x, y; Log heard; }; // who has it
    const Case cases[] = {
        {0, 0, mouse::LeftDown,   20, 10, {"b:left"}},      {0, 0, mouse::RightDown,  10, 29, {"a:right"}},
        {0, 0, mouse::MiddleDown, 30, 10, {}},              {0, 0, mouse::MiddleDown, 50, 50, {"c:middle"}},
        {0, 0, mouse::LeftUp,     69, 69, {"c:left-up"}},   {0, 0, mouse::RightUp,    69, 69, {"c:right-up"}},
        {0, 0, mouse::MiddleUp,   69, 69, {"c:middle-up"}}, {0, 0, mouse::Move,       15, 15, {"a:move"}},
        {c, a, mouse::Move,       25, 15, {"c:move"}},      {0, c, mouse::LeftDown,   15, 15, {"c:left"}},
        {a, 0, mouse::Wheel,      0,  -1, {"a:wheel-down"}}, {a, c, mouse::Wheel,     0,  1,  {"c:wheel-up"}},
        {0, 0, mouse::Wheel,      0,  1,  {"b:wheel-up", "a:wheel-up", "c:wheel-up"}},
    };
    // clang-format on
    for (const Case& row : cases) {
        if (row.focus) row.focus->SetFocus(true);
        if (row.capture) row.capture->CaptureMouse(false);
        Mouse(row.type, row.x, row.y);
        EXPECT_EQ(Heard(), row.heard);
        group.Release(), group.SetFocusControl(nullptr);
    }
    for (int bits = 0; bits < 8; ++bits)
        EXPECT_EQ((Mouse(mouse::Move, 0, 0, bits), a->IsCtrlDown() + 2 * a->IsShiftDown() + 4 * a->IsAltDown()), bits);
}

TEST_F(GroupTest, TicksAndDrawsWhatIsSeen)
{
    a->SetDirty(true), hidden->Redraw();
    group.Tick(true, 55, 55);
    EXPECT_EQ(Heard(), (Log{"b:tick", "a:tick", "a:draw", "c:enter", "c:tick"}));
    group.Tick(true, 15, 15);
    EXPECT_EQ(Heard(), (Log{"b:tick", "a:enter", "a:tick", "c:leave", "c:tick"}));
    a->hidden = true, group.Tick(false, 15, 15);
    EXPECT_FALSE(a->hovered) << "it may be shown when the pointer has left";
    a->hidden = false;

    // With a focus, only that one; the others are drawn below it when the window is drawn anew.
    b->SetFocus(true), a->SetDirty(true), Heard();
    group.Tick(true, 25, 15);
    EXPECT_EQ(Heard(), (Log{"b:enter", "b:tick"}));
    editor->SetDirty(true), Tick();
    EXPECT_EQ(Heard(), (Log{"a:draw", "c:draw", "b:tick", "b:draw"}));
}

// Which alone is offered files then.
TEST_F(GroupTest, IsActiveWhileAControlHasTheFocus)
{
    auto* other = new CControlGroup(editor.get(), 7);
    editor->AddGroup(other);
    CControlGroup* const all[] = {nullptr, &group, other};
    for (CControlGroup* before : all)
        for (CControlGroup* meanwhile : all) { // whoever becomes active stays so
            editor->SetActiveGroup(before);
            a->SetFocus(true), c->SetFocus(true);
            EXPECT_TRUE(group.IsActive() && !editor->DropFile("x", 0, 0));
            editor->SetActiveGroup(meanwhile);
            a->SetFocus(false);
            EXPECT_EQ(editor->activeGroup, meanwhile == &group && before != &group ? nullptr : meanwhile);
        }
}

TEST_F(GroupTest, OwnsItsControls)
{
    for (Ear* known : {a, c, b}) group.AddControl(known);
    group.AddControl(nullptr);
    EXPECT_TRUE(group.GetControlByIndex(3) == c && group.FindControlById(1) == a);
    EXPECT_FALSE(group.GetControlByIndex(4) || group.GetControlByIndex(-1));
    engine.SetParameter(3, 0.5f), group.RefreshValues();
    EXPECT_EQ(c->value, 0.5f);
    c->CaptureMouse(true), c->SetFocus(true);
    EXPECT_EQ(editor->RemoveControl(a), c);
    EXPECT_FALSE(editor->RemoveControl(c) || group.focus || editor->IsMouseCaptured() || group.IsActive());
}

TEST(Control, AnswersWithoutAGroup)
{
    CControl alone({}, 1);
    char text[1024];
    alone.GetParameterDisplay(text);
    EXPECT_STREQ(text, "undefined");
    EXPECT_TRUE(alone.GetEditorSize() == (Size{100, 100}) && alone.GetMousePosition() == (Point{-1, -1}));
}

} // namespace korvane::test
