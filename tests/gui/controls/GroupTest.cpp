// Who of a group hears what.
#include <gtest/gtest.h>

#include "Editor.h"

namespace korvane::test {

/// Writes down what it hears.
struct Ear : CControl {
    Ear(Editor& hears, const char* called, Rect place, int number = -1)
        : CControl(place, number), editor(hears), name(called)
    {
        editor.AddControl(this);
        dirty = false;
    }
    void Say(const char* what)
    {
        editor.Write(name + what);
        if (const auto hears = onHear) hears();
    }
    void OnLeftDown(int, int) override { Say(":left"); }
    void OnMiddleDown(int, int) override { Say(":middle"); }
    void OnRightDown(int, int) override { Say(":right"); }
    void OnLeftUp(int, int) override { Say(":left-up"); }
    void OnMiddleUp(int, int) override { Say(":middle-up"); }
    void OnRightUp(int, int) override { Say(":right-up"); }
    void OnMouseMove(int, int) override { Say(":move"); }
    void OnWheel(int, int notches) override { Say(notches > 0 ? ":wheel-up" : ":wheel-down"); }
    bool OnFileDrop(const char*, int, int) override
    {
        Say(":file");
        return takesFiles;
    }
    void OnHoverChanged() override { Say(hovered ? ":enter" : ":leave"); }
    void OnTick() override { Say(":tick"); }
    void Draw(CDrawBuffer*) override { Say(":draw"); }

    Editor& editor;
    std::string name;
    bool takesFiles = false;
    std::function<void()> onHear;
};

/// Three controls: b lies on a's right half, c is alone; under both lies a hidden one.
struct Stage {
    Editor editor;
    Ear* hidden = new Ear(editor, "hidden", {0, 0, 300, 200});
    Ear* b = new Ear(editor, "b", {20, 10, 10, 20}, 2);
    Ear* a = new Ear(editor, "a", {10, 10, 20, 20}, 1);
    Ear* c = new Ear(editor, "c", {50, 50, 20, 20}, 3);
    CControlGroup& group = *editor.GetMainGroup();

    Stage()
    {
        hidden->hidden = true;
        editor.Idle();
        editor.Heard();
    }
};

TEST(Group, RoutesEvents)
{
    struct Case {
        const char* what;
        char capture, focus;
        int type, x, y;
        const char* heard;
    };
    const Case cases[] = {
        {"first", 0, 0, mouse::LeftDown, 20, 10, "b:left"},
        {"left edge", 0, 0, mouse::RightDown, 10, 29, "a:right"},
        {"right edge", 0, 0, mouse::MiddleDown, 30, 10, ""},
        {"middle", 0, 0, mouse::MiddleDown, 50, 50, "c:middle"},
        {"up", 0, 0, mouse::LeftUp, 69, 69, "c:left-up"},
        {"others up", 0, 0, mouse::RightUp, 69, 69, "c:right-up"},
        {"middle up", 0, 0, mouse::MiddleUp, 69, 69, "c:middle-up"},
        {"move", 0, 0, mouse::Move, 15, 15, "a:move"},
        {"nothing", 0, 0, 8, 15, 15, ""},
        {"capture", 'c', 0, mouse::Move, 15, 15, "c:move"},
        {"capture before focus", 'c', 'a', mouse::Move, 25, 15, "c:move"},
        {"focus", 0, 'c', mouse::LeftDown, 15, 15, "c:left"},
        {"wheel", 0, 0, mouse::Wheel, 0, 1, "b:wheel-up a:wheel-up c:wheel-up"},
        {"wheel to the capture", 'a', 0, mouse::Wheel, 0, -1, "a:wheel-down"},
        {"wheel to the focus", 'a', 'c', mouse::Wheel, 0, 1, "c:wheel-up"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.what);
        Stage s;
        const auto named = [&](char name) { return name == 'a' ? s.a : s.c; };
        if (row.focus) named(row.focus)->SetFocus(true);
        if (row.capture) named(row.capture)->CaptureMouse(false);
        s.editor.MouseEvent(row.x, row.y, modifier::Alt, row.type);
        EXPECT_EQ(s.editor.Heard(), row.heard);
        EXPECT_TRUE(s.a->IsAltDown() && !s.a->IsCtrlDown() && !s.a->IsShiftDown());
    }
}

TEST(Group, OffersFilesUntilOneIsTaken)
{
    Stage s;
    s.a->takesFiles = true;
    EXPECT_TRUE(s.editor.DropFile("x", 0, 0));
    EXPECT_EQ(s.editor.Heard(), "b:file a:file");
    s.c->SetFocus(true);
    EXPECT_FALSE(s.editor.DropFile("x", 0, 0));
    EXPECT_EQ(s.editor.Heard(), "c:file");
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

    // What is hidden gives up.
    s.b->hidden = true;
    s.group.Tick(false, 0, 0);
    EXPECT_EQ(s.editor.Heard(), "b:left-up b:right-up b:middle-up");
}

TEST(Group, IsActiveWhileAControlHasTheFocus)
{
    for (const bool before : {false, true}) {
        Stage s;
        s.group.SetActive(before);
        s.a->SetFocus(true);
        s.c->SetFocus(true);
        EXPECT_TRUE(s.group.IsActive());
        s.editor.RemoveControl(s.c);
        EXPECT_FALSE(s.group.focus);
        EXPECT_EQ(s.group.IsActive(), before);
    }
}

TEST(Group, KeepsItsControlsInOrder)
{
    Stage s;
    s.editor.values = {{1, 0.5f}, {9, 0.75f}};
    EXPECT_EQ(s.editor.FindControl(3), s.c);
    s.editor.AddControl(s.a);
    s.editor.AddControl(nullptr);
    EXPECT_EQ(s.group.GetControlByIndex(3), s.c);
    EXPECT_FALSE(s.group.GetControlByIndex(4) || s.group.GetControlByIndex(-1));
    EXPECT_FLOAT_EQ((new Ear(s.editor, "new", {}, 9))->value, 0.75f);
    s.group.RefreshValues();
    EXPECT_FLOAT_EQ(s.a->value, 0.5f);
    s.a->CaptureMouse(true);
    EXPECT_EQ(s.group.RemoveControl(s.a), s.c);
    EXPECT_FALSE(s.editor.IsMouseCaptured() || s.group.capture);
    EXPECT_TRUE(s.editor.IsDirty());
    CControl stranger({}, 0);
    EXPECT_FALSE(s.group.RemoveControl(&stranger));
    s.c->CaptureMouse(false);
    s.group.Clear();
    EXPECT_FALSE(s.editor.IsMouseCaptured() || s.group.controls);
}

// Each of the loops goes on behind a control that ends, and ends with its group.
TEST(Group, SurvivesTheEndOfItsControls)
{
    enum Event { WheelEvent, FileEvent, TickEvent, CancelEvent, PressEvent };
    const auto run = [](Editor& editor, int event) {
        if (event == WheelEvent) editor.MouseEvent(0, 1, 0, mouse::Wheel);
        if (event == FileEvent) editor.DropFile("x", 0, 0);
        if (event == TickEvent) editor.GetMainGroup()->Tick(true, 25, 15);
        if (event == CancelEvent) editor.CancelAll();
        if (event == PressEvent) editor.MouseEvent(25, 15, 0, mouse::LeftDown);
    };
    for (int event = WheelEvent; event <= PressEvent; ++event) {
        SCOPED_TRACE(event);
        Stage itself;
        itself.b->onHear = [&] { itself.b->Delete(); };
        if (event != CancelEvent) run(itself.editor, event); // goes on with three calls
        EXPECT_EQ(itself.editor.Heard().find("c:") != std::string::npos, event < CancelEvent);

        Stage next;
        next.b->onHear = [&] {
            next.b->onHear = nullptr;
            next.a->Delete();
        };
        run(next.editor, event);
        EXPECT_EQ(next.editor.Heard().find("a:"), std::string::npos);

        Stage all;
        all.b->onHear = [&] { all.editor.Close(); };
        if (event != CancelEvent) run(all.editor, event);
        EXPECT_FALSE(all.editor.GetMainGroup() && event != CancelEvent);
    }
}

} // namespace korvane::test
