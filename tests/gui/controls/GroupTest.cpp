// Who of a group hears what.
#include <gtest/gtest.h>

#include "Editor.h"

namespace korvane::test {

/// Writes down what it hears.
struct Ear : CControl {
    Ear(Editor& hears, const char* called, Rect place, int number)
        : CControl(place, number), editor(hears), name(called)
    {
        editor.AddControl(this);
    }
    bool Say(const char* what, bool answer = true)
    {
        editor.Write(name + what);
        if (const auto hears = onHear) hears(); // a copy: it may end the control
        return answer;
    }
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
    bool OnFileDrop(const char*, int, int) override { return Say(":file", id == 1); }

    Editor& editor;
    std::string name;
    std::function<void()> onHear;
};

/// Three controls: b lies on a's right half, c is alone; under all lies a hidden one.
struct Stage {
    Editor editor;
    Ear* hidden = new Ear(editor, "hidden", {0, 0, 300, 200}, -1);
    Ear* b = new Ear(editor, "b", {20, 10, 10, 20}, 2);
    Ear* a = new Ear(editor, "a", {10, 10, 20, 20}, 1);
    Ear* c = new Ear(editor, "c", {50, 50, 20, 20}, 3);
    CControlGroup& group = *editor.GetMainGroup();

    Stage()
    {
        hidden->hidden = true;
        editor.Idle(), editor.Heard();
    }
};

TEST(Group, RoutesEvents)
{
    // clang-format off
    struct Case { char capture, focus; int type, x, y; const char* heard; }; // who has it; 0: none
    const Case cases[] = {
        {0,   0,   mouse::LeftDown,   20, 10, "b:left"},      {0,   0,   mouse::RightDown,  10, 29, "a:right"},
        {0,   0,   mouse::MiddleDown, 30, 10, ""},            {0,   0,   mouse::MiddleDown, 50, 50, "c:middle"},
        {0,   0,   mouse::LeftUp,     69, 69, "c:left-up"},   {0,   0,   mouse::RightUp,    69, 69, "c:right-up"},
        {0,   0,   mouse::MiddleUp,   69, 69, "c:middle-up"}, {0,   0,   mouse::Move,       15, 15, "a:move"},
        {'c', 'a', mouse::Move,       25, 15, "c:move"},      {0,   'c', mouse::LeftDown,   15, 15, "c:left"},
        {'a', 0,   mouse::Wheel,      0,  -1, "a:wheel-down"}, {'a', 'c', mouse::Wheel,     0,  1,  "c:wheel-up"},
        {0,   0,   mouse::Wheel,      0,  1,  "b:wheel-up a:wheel-up c:wheel-up"},
    };
    // clang-format on
    for (const Case& row : cases) {
        Stage s;
        const auto named = [&](char name) { return name == 'a' ? s.a : s.c; };
        if (row.focus) named(row.focus)->SetFocus(true);
        if (row.capture) named(row.capture)->CaptureMouse(false);
        s.editor.Mouse(row.type, row.x, row.y, modifier::Alt);
        EXPECT_EQ(s.editor.Heard(), row.heard);
    }
}

TEST(Group, TicksAndDrawsWhatIsSeen)
{
    Stage s;
    s.a->SetDirty(true);
    s.group.Tick(true, 55, 55);
    EXPECT_EQ(s.editor.Heard(), "b:tick a:tick a:draw c:enter c:tick");
    s.group.Tick(true, 15, 15);
    EXPECT_EQ(s.editor.Heard(), "b:tick a:enter a:tick c:leave c:tick");

    // With a focus, only that one; the others are drawn below it when the window is drawn anew.
    s.b->SetFocus(true);
    s.a->SetDirty(true);
    s.group.Tick(true, 25, 15);
    EXPECT_EQ(s.editor.Heard(), "b:enter b:tick");
    s.editor.SetDirty(true);
    s.editor.Idle();
    EXPECT_EQ(s.editor.Heard(), "a:draw c:draw b:tick b:draw");
}

// Which alone is offered files then.
TEST(Group, IsActiveWhileAControlHasTheFocus)
{
    for (const bool before : {false, true}) {
        Stage s;
        s.group.SetActive(before);
        s.a->SetFocus(true);
        s.c->SetFocus(true);
        EXPECT_TRUE(s.group.IsActive());
        EXPECT_FALSE(s.editor.DropFile("x", 0, 0));
        s.c->CaptureMouse(true);
        EXPECT_EQ(s.editor.RemoveControl(s.a), s.c);
        EXPECT_FALSE(s.editor.RemoveControl(s.c) || s.group.focus || s.editor.IsMouseCaptured());
        EXPECT_EQ(s.group.IsActive(), before);
    }
}

// Each way through the controls goes on behind one that ends, and ends with its group.
TEST(Group, SurvivesTheEndOfItsControls)
{
    const std::function<void(Editor&)> events[] = {
        [](Editor& editor) { editor.Mouse(mouse::Wheel, 0, 1); },
        [](Editor& editor) { editor.GetMainGroup()->Tick(true, 25, 15); },
        [](Editor& editor) { editor.CancelAll(); },
        [](Editor& editor) { editor.DropFile("x", 0, 0); },
    };
    for (const auto& event : events) {
        Stage itself, next, all;
        itself.b->onHear = [&] { itself.b->Delete(); };
        event(itself.editor);
        EXPECT_NE(itself.editor.Heard().find("a:"), std::string::npos);

        next.b->onHear = [&] { next.editor.FindControl(1) ? next.a->Delete() : void(); };
        event(next.editor);
        EXPECT_EQ(next.editor.Heard().find("a:"), std::string::npos);

        all.b->onHear = [&] { all.editor.Close(); };
        event(all.editor);
        EXPECT_FALSE(all.editor.GetMainGroup());
    }
}

} // namespace korvane::test
