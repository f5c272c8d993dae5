// The list that drops down: what it shows, where it opens and what is chosen.
#include <gtest/gtest.h>

#include "Editor.h"
#include "gui/controls/CControlDropDownList.h"

namespace korvane::test {

/// A list of all kinds of items; row 1 is a command, 4 and 6 are choices.
struct ListStage {
    Editor editor;
    CControlDropDownList* list;

    explicit ListStage(Rect place = {20, 20, 60, 16}, int choices = 0)
    {
        list = editor.Add<CControlDropDownList>(place);
        if (choices == 0) {
            list->AddItem("Groove", item::Heading);
            list->AddItem("Save", item::Command);
            list->AddItem("", item::Separator);
            list->AddItem("Library", item::Heading);
            list->AddItem("A wide name of a program");
            list->AddItem("Out of use").notSelectable = true;
            list->AddItem("B");
        }
        for (int n = 0; n < choices; ++n) list->AddItem("Choice");
        editor.Idle();
    }
    void ClickItem(int index)
    {
        const Rect row = list->GetItemRect(index);
        editor.Click(row.x + row.w / 2, row.y + row.h / 2);
    }
    void Open()
    {
        editor.Click(list->rect.x, list->rect.y);
        for (int tick = 0; tick < 4; ++tick) editor.Idle();
    }
};

TEST(DropDown, ReadsTheItemOfItsValue)
{
    struct Case {
        float value;
        bool showText;
        const char *closed, *text;
    };
    for (const Case& c : {Case{4, true, "", "A wide name of a program"}, Case{7, true, "", "<none>"},
                          Case{-1, true, "", "<none>"}, Case{6, true, "<user>", "<user>"}, Case{6, false, "x", ""}}) {
        ListStage s;
        s.list->SetValue(c.value);
        s.list->showText = c.showText;
        s.list->SetClosedText(c.closed);
        s.editor.Idle();
        EXPECT_STREQ(s.list->text, c.text);
    }
}

// A choice becomes the value; a command is told with its number and leaves the value; nothing else is heard of.
TEST(DropDown, TellsWhatIsChosen)
{
    struct Case {
        int row;
        const char* heard;
        float value;
    };
    for (const Case& c : {Case{0, "", 6}, Case{1, "1", 6}, Case{2, "", 6}, Case{3, "", 6}, Case{4, "4", 4},
                          Case{5, "", 6}, Case{6, "6", 6}, Case{7, "", 6}}) {
        SCOPED_TRACE(c.row);
        ListStage s;
        s.list->SetValue(6.0f);
        bool openWhenTold = false;
        s.editor.onChange = [&](CControl*) { openWhenTold = s.list->IsOpen() || s.editor.IsMouseCaptured(); };
        s.Open();
        EXPECT_TRUE(s.list->IsOpen() && s.list->IsCapturing() && s.editor.GetMainGroup()->focus == s.list);
        s.ClickItem(c.row);
        EXPECT_EQ(s.editor.Heard(), c.heard);
        EXPECT_FLOAT_EQ(s.list->value, c.value);
        EXPECT_FALSE(s.list->IsOpen() || openWhenTold || s.editor.activeGroup);
        EXPECT_TRUE(s.editor.IsDirty());
    }
}

TEST(DropDown, MayBeFilledAnewOrEndedByWhatIsChosen)
{
    for (const int row : {1, 4}) {
        ListStage s;
        s.editor.onChange = [&](CControl*) {
            s.list->ClearItems();
            s.list->AddItem("New");
            s.list->SetValue(0.0f);
        };
        s.Open();
        s.ClickItem(row);
        s.editor.Idle();
        EXPECT_STREQ(s.list->text, "New");

        ListStage ended;
        ended.editor.onChange = [&](CControl* told) { told->Delete(); };
        ended.Open();
        ended.ClickItem(row);
        EXPECT_FALSE(ended.editor.GetMainGroup()->controls);
    }
}

TEST(DropDown, ClosesWithoutAChoice)
{
    struct Case {
        const char* what;
        std::function<void(ListStage&)> act;
    };
    const Case cases[] = {
        {"press elsewhere", [](ListStage& s) { s.editor.Click(290, 190); }},
        {"right press", [](ListStage& s) { s.editor.Mouse(mouse::RightDown, 25, 45); }},
        {"lost mouse", [](ListStage& s) { s.editor.Screen().grabbed = false; }},
        {"hidden", [](ListStage& s) { s.list->hidden = true; }},
        {"emptied", [](ListStage& s) { s.list->ClearItems(); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ListStage s;
        s.Open();
        c.act(s);
        s.editor.Idle();
        EXPECT_FALSE(s.list->IsOpen() || s.editor.IsMouseCaptured() || s.editor.activeGroup);
        EXPECT_EQ(s.editor.Heard(), "");
    }
}

// Rows are 16 high. The list is as wide as its widest text, and stays in the editor.
TEST(DropDown, OpensWhereThereIsRoom)
{
    struct Case {
        const char* what;
        Rect place;
        int choices, x, y, height; // of the first row, and of what is seen of all
    };
    const Case cases[] = {
        {"below", {20, 20, 60, 16}, 5, 23, 39, 80},
        {"above", {20, 150, 60, 16}, 5, 23, 67, 80},
        {"neither", {20, 90, 60, 16}, 7, 23, 81, 112},
        {"at the right", {290, 20, 60, 16}, 5, 0, 39, 80},
        {"beyond the editor", {20, 90, 60, 16}, 50, 23, 7, 186},
        {"nowhere", {INT32_MAX, INT32_MAX, 1, 1}, 3, 0, 145, 48},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ListStage s(c.place, c.choices);
        s.list->OnLeftDown(0, 0);
        const Rect row = s.list->GetItemRect(0);
        EXPECT_EQ(row.x, c.x ? c.x : 293 - row.w);
        EXPECT_EQ(row.y, c.y);
        EXPECT_TRUE(s.list->ItemAt(row.x + 1, row.y + c.height - 1));
        EXPECT_FALSE(s.list->ItemAt(row.x + 1, row.y + c.height));
    }
}

// 50 rows of 16 in 186 pixels: the thumb is 43 high and has a way of 143.
TEST(DropDown, Scrolls)
{
    ListStage s({20, 90, 60, 16}, 50);
    s.Open();
    Rect thumb, bar;
    const auto thumbTop = [&] {
        s.list->GetScrollBarRects(thumb, bar);
        return thumb.y - bar.y;
    };
    EXPECT_EQ(thumbTop(), 0);
    EXPECT_EQ(thumb.h, 43);
    s.editor.Mouse(mouse::Wheel, 0, -2);
    EXPECT_EQ(thumbTop(), 30);
    EXPECT_EQ(s.list->GetItemRect(0).y, 7 - 129); // 30 / 143 of 614
    s.editor.Mouse(mouse::Wheel, 0, 9);
    EXPECT_EQ(thumbTop(), 0);
    s.editor.Mouse(mouse::LeftDown, thumb.x, thumb.y + 9);
    s.editor.Mouse(mouse::Move, 0, thumb.y + 9 + 100);
    EXPECT_EQ(thumbTop(), 100);
    s.editor.Mouse(mouse::Move, 0, 999);
    EXPECT_FLOAT_EQ(s.list->scroll, 1.0f);
    s.editor.Mouse(mouse::LeftUp, 0, 999);
    s.editor.Mouse(mouse::Move, 0, 20);
    EXPECT_FLOAT_EQ(s.list->scroll, 1.0f);
    s.editor.Click(bar.x, bar.y); // a page back
    EXPECT_NEAR(s.list->scroll, 1.0f - 186.0f / 614.0f, 1e-5f);
    EXPECT_TRUE(s.list->IsOpen());

    ListStage chosen({20, 90, 60, 16}, 50);
    chosen.list->SetValue(25.0f);
    chosen.Open(); // with the choice in the middle
    EXPECT_NEAR(chosen.list->GetItemRect(25).y, 92, 1);
}

// It fades in above the page, and neither a control that changes nor a window that is drawn anew covers it.
TEST(DropDown, LiesAboveEverything)
{
    struct Blinker : CControl {
        using CControl::CControl;
        void OnTick() override { dirty = true; }
        void Draw(CDrawBuffer* buffer) override
        {
            buffer->SetFillColor(Rgb(255, 0, 0));
            buffer->FillRect(rect);
        }
    };
    ListStage s;
    s.editor.Add<Blinker>({0, 40, 300, 100});
    s.editor.Idle();
    const Color red = 0xFF0000;
    const auto onScreen = [&](int x, int y) { return s.editor.Screen().shown[y * 300 + x]; };
    const Rect box = {20, 36, 0, 0};
    EXPECT_EQ(onScreen(25, 60), red);
    s.editor.Click(25, 25);
    s.editor.Idle();
    EXPECT_NE(onScreen(25, 60), red); // a quarter of the list
    EXPECT_GT(onScreen(25, 60) >> 16, 0xE0u);
    EXPECT_LT(onScreen(25, 60) & 255, 0x60u);
    for (const bool anew : {false, true}) {
        s.editor.SetDirty(anew);
        for (int tick = 0; tick < 3; ++tick) s.editor.Idle();
        EXPECT_GT(onScreen(25, 60) & 255, 0xC0u);
        EXPECT_EQ(onScreen(box.x, 60), s.list->look.frameColor & 0xFFFFFF);
        EXPECT_EQ(onScreen(290, 60), red);
        EXPECT_EQ(onScreen(290, 180), kPage);
    }
    const Rect row = s.list->GetItemRect(4);
    const Color plain = onScreen(row.x + 2, row.y + 8);
    s.editor.Mouse(mouse::Move, row.x + 2, row.y + 8);
    EXPECT_NE(onScreen(row.x + 2, row.y + 8), plain);
    EXPECT_EQ(s.list->hoverIndex, 4);
    s.editor.Click(0, 0);
    s.editor.Idle();
    EXPECT_EQ(onScreen(25, 60), red);
}

} // namespace korvane::test
