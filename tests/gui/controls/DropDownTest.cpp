// The list that drops down: what it shows, where it opens and what is chosen.
#include <gtest/gtest.h>

#include "Editor.h"
#include "gui/controls/CControlDropDownList.h"

namespace korvane::test {

/// A list of choices; one of six items has all kinds of them.
struct ListStage {
    Editor editor;
    CControlDropDownList* list;

    explicit ListStage(Rect place = {20, 20, 60, 16}, int choices = 6)
    {
        list = editor.Add<CControlDropDownList>(place);
        const std::uint8_t kinds[] = {item::Heading, item::Command, item::Separator, item::Choice};
        for (int n = 0; n < choices; ++n) list->AddItem("Choice", kinds[choices == 6 ? std::min(n, 3) : 3]);
        if (choices == 6) list->items.At(4)->notSelectable = true;
        editor.Idle();
    }
    void ClickItem(int index) { editor.Click(list->GetItemRect(index).x, list->GetItemRect(index).y); }
    void Open() { editor.Click(list->rect.x, list->rect.y); }
    bool HoldsNothing() { return !list->IsOpen() && !editor.IsMouseCaptured() && !editor.activeGroup; }
};

TEST(DropDown, ReadsTheItemOfItsValue)
{
    ListStage s;
    const auto read = [&](float value) { return s.list->SetValue(value), s.editor.Idle(), s.list->text; };
    EXPECT_STREQ(read(3), "Choice");
    EXPECT_STREQ(read(6), "<none>");
    s.list->SetClosedText("<user>");
    EXPECT_STREQ(read(5), "<user>");
    s.list->showText = false;
    EXPECT_STREQ(read(1), "");
}

// A choice becomes the value; a command is told with its number and leaves the value; nothing else is heard of. Whoever
// hears of it may fill the list anew and even end it.
TEST(DropDown, TellsWhatIsChosen)
{
    const std::pair<const char*, float> rows[] = {{"", 5}, {"1", 5}, {"", 5}, {"3", 3}, {"", 5}, {"5", 5}};
    for (int row = 0; row < 6; ++row) {
        SCOPED_TRACE(row);
        ListStage s;
        s.list->SetValue(5.0f);
        bool free = true;
        s.editor.onChange = [&](CControl*) { free = s.HoldsNothing(); };
        s.Open();
        EXPECT_TRUE(s.list->IsOpen() && s.list->IsCapturing() && s.editor.GetMainGroup()->focus == s.list);
        s.ClickItem(row);
        EXPECT_EQ(s.editor.Heard(), rows[row].first);
        EXPECT_FLOAT_EQ(s.list->value, rows[row].second);
        EXPECT_TRUE(free && s.HoldsNothing() && s.editor.IsDirty());
        s.editor.onChange = [&](CControl*) {
            s.list->ClearItems();
            s.list->Delete();
        };
        s.Open();
        s.ClickItem(row);
        EXPECT_EQ(!s.editor.GetMainGroup()->controls, *rows[row].first != 0);
    }
}

TEST(DropDown, ClosesWithoutAChoice)
{
    const std::function<void(ListStage&)> acts[] = {
        [](ListStage& s) { s.editor.Click(290, 190); },
        [](ListStage& s) { s.editor.Mouse(mouse::RightDown, 25, 45); },
        [](ListStage& s) { s.editor.Screen().grabbed = false; }, // somebody else has the mouse
        [](ListStage& s) { s.list->hidden = true; },
        [](ListStage& s) { s.list->ClearItems(); },
    };
    for (const auto& act : acts) {
        ListStage s;
        s.Open();
        act(s);
        s.editor.Idle();
        EXPECT_TRUE(s.HoldsNothing()) << &act - acts;
        EXPECT_EQ(s.editor.Heard(), "");
    }
}

// Rows are 16 high; x 0 stands for the editor's right edge.
TEST(DropDown, OpensWhereThereIsRoom)
{
    // clang-format off
    struct Case { const char* what; Rect place; int choices, x, y, height; }; // the first row's corner; of all rows
    const Case cases[] = {
        {"above",             {20, 150, 60, 16},            5,  23, 67,  80},
        {"neither",           {20, 90, 60, 16},             7,  23, 81,  112},
        {"at the right",      {290, 20, 60, 16},            5,  0,  39,  80},
        {"beyond the editor", {20, 90, 60, 16},             50, 23, 7,   186},
        {"nowhere",           {INT32_MAX, INT32_MAX, 1, 1}, 3,  0,  145, 48},
    };
    // clang-format on
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

// 50 rows of 16 in 186 pixels: 614 are hidden, the thumb is 43 high and has a way of 143.
TEST(DropDown, Scrolls)
{
    ListStage s({20, 90, 60, 16}, 50);
    s.list->SetValue(25.0f);
    s.Open(); // with the choice in the middle
    EXPECT_NEAR(s.list->GetItemRect(25).y, 92, 1);
    Rect thumb, bar;
    const auto thumbTop = [&] { return s.list->GetScrollBarRects(thumb, bar), thumb.y - bar.y; };
    s.editor.Mouse(mouse::Wheel, 0, 9);
    s.editor.Mouse(mouse::Wheel, 0, -2);
    EXPECT_EQ(thumbTop(), 30);
    EXPECT_EQ(s.list->GetItemRect(0).y, 7 - 129); // 30 / 143 of 614
    s.editor.Mouse(mouse::LeftDown, thumb.x, thumb.y + 42);
    s.editor.Mouse(mouse::Move, 0, thumb.y + 42 + 100);
    EXPECT_EQ(thumbTop(), 130);
    s.editor.Mouse(mouse::Move, 0, 999);
    s.editor.Mouse(mouse::LeftUp, 0, 999);
    s.editor.Mouse(mouse::Move, 0, 20);
    EXPECT_EQ(thumbTop(), 143);
    s.editor.Click(bar.x, bar.y);
    EXPECT_EQ(thumbTop(), 100); // a page back: 186 of 614
}

// It fades in above the page, and neither a control that changes nor a window that is drawn anew covers it.
TEST(DropDown, LiesAboveEverything)
{
    struct Blinker : CControlTextDisplay {
        using CControlTextDisplay::CControlTextDisplay;
        void OnTick() override { dirty = true; }
    };
    ListStage s;
    s.editor.Add<Blinker>({0, 40, 300, 100})->backgroundColor = Rgb(255, 0, 0);
    s.editor.Idle();
    s.editor.Click(25, 25);
    for (const Color blue : {0x3Cu, 0x78u, 0xB4u, 0xF0u}) { // of the list, about
        s.editor.SetDirty(blue == 0xF0);
        s.editor.Idle();
        EXPECT_NEAR(s.editor.OnScreen(25, 60) & 255, blue, 16);
        EXPECT_EQ(s.editor.OnScreen(290, 60), 0xFF0000u);
    }
    const Rect row = s.list->GetItemRect(3);
    s.editor.Mouse(mouse::Move, row.x + 2, row.y);
    EXPECT_NEAR(s.editor.OnScreen(row.x + 2, row.y) & 255, s.list->look.hoverTopColor & 255, 8);
}

} // namespace korvane::test
