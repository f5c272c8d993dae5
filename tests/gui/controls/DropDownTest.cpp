// The list that drops down: what it shows, where it opens and what is chosen.
#include <gtest/gtest.h>

#include <cstring>

#include "gui/controls/CControlDropDownList.h"
#include "support/EditorRig.h"

namespace korvane::test {

/// A list of choices; one of six items has all kinds of them.
struct ListRig : ControlRig {
    CControlDropDownList* list;

    explicit ListRig(Rect place = {20, 20, 60, 16}, int choices = 6)
    {
        list = Add<CControlDropDownList>(place);
        const std::uint8_t kinds[] = {item::Heading, item::Command, item::Separator, item::Choice};
        for (int n = 0; n < choices; ++n) list->AddItem("Choice", kinds[choices == 6 ? std::min(n, 3) : 3]);
        if (choices == 6) list->items.At(4)->notSelectable = true;
        Tick();
    }
    void ClickItem(int index) { Click(list->GetItemRect(index).x, list->GetItemRect(index).y); }
    void Open() { Click(list->rect.x, list->rect.y); }
    bool HoldsNothing() { return !list->IsOpen() && !editor->IsMouseCaptured() && !editor->activeGroup; }
};

TEST(DropDown, ReadsTheItemOfItsValue)
{
    ListRig s;
    const auto read = [&](float value) { return s.list->SetValue(value), s.Tick(), std::string(s.list->text); };
    EXPECT_EQ(read(3) + read(5.9f) + read(6) + read(-0.5f), "ChoiceChoice<none><none>");
    EXPECT_EQ((s.list->SetClosedText("<user>"), read(5)), "<user>");
    EXPECT_EQ((s.list->showText = false, read(1)), "");
}

// A choice becomes the value; a command is told with its number and leaves the value, whatever becomes of it meanwhile;
// nothing else is heard of. Whoever hears of it may fill the list anew.
TEST(DropDown, TellsWhatIsChosen)
{
    const std::pair<Log, float> rows[] = {{{}, 5}, {{"automate 100 1"}, 5}, {{}, 5}, {{"automate 100 3"}, 3},
                                          {{}, 5}, {{"automate 100 5"}, 5}};
    for (int row = 0; row < 6; ++row) {
        SCOPED_TRACE(row);
        ListRig s;
        bool free = true;
        s.editor->onChange = [&](CControl*) {
            free = s.HoldsNothing();
            s.list->ClearItems(), s.list->AddItem("anew");
            if (row == 1) s.list->SetValue(0.0f);
        };
        s.list->SetValue(5), s.Open();
        EXPECT_TRUE(s.list->IsOpen() && s.list->IsCapturing() && !s.editor->activeGroup);
        s.ClickItem(row);
        EXPECT_EQ(s.Heard(), rows[row].first);
        EXPECT_FLOAT_EQ(s.list->value, rows[row].second);
        EXPECT_TRUE(free && s.HoldsNothing() && s.editor->IsDirty());
    }
}

// Which shows in the width of the row, 16 pixels more than the text.
TEST(DropDown, WritesWhatStandsOutInItsFace)
{
    // clang-format off
    struct Case { std::uint8_t kind; bool marked; float value; int font; };
    const Case cases[] = {
        {item::Choice, true,  1,    1}, {item::Choice, false, 0,     1}, {item::Heading, false, 1, 1},
        {item::Choice, false, 0.7f, 1}, {item::Choice, false, -0.5f, 0}, {item::Command, false, 0, 0},
    };
    // clang-format on
    for (const Case& c : cases) {
        ListRig s({20, 20, 60, 16}, 0);
        s.list->AddItem("WWWWiiii", c.kind).marked = c.marked;
        s.list->look.headingFont = 1;
        s.list->SetValue(c.value), s.Open();
        s.editor->backBuffer.SetFont(c.font);
        const Size text = s.editor->backBuffer.DrawText("WWWWiiii", 0, 0, 0, 0, align::Left, true);
        EXPECT_EQ(s.list->GetItemRect(0).w, text.width + 16) << &c - cases;
    }
}

TEST(DropDown, ClosesWithoutAChoice)
{
    for (int act = 0; act < 6; ++act) {
        ListRig s;
        const Color page = s.OnScreen(25, 60);
        s.Open();
        if (act == 0) s.Click(290, 190);
        if (act == 1) s.Mouse(mouse::RightDown, 25, 45);
        if (act == 2) s.Mouse(mouse::MiddleDown, 25, 45);
        if (act == 3) s.window->grabbed = false; // somebody else has the mouse
        if (act == 4) s.list->hidden = true;
        if (act == 5) s.list->ClearItems();
        s.Tick();
        EXPECT_TRUE(s.HoldsNothing() && s.Heard().empty()) << act;
        s.Tick();
        EXPECT_EQ(s.OnScreen(25, 60), page) << act;
    }
}

// Rows are 16 high; x 0 stands for the editor's right edge.
TEST(DropDown, OpensWhereThereIsRoom)
{
    // clang-format off
    struct Case { Rect place; int choices; Point at; int height; }; // the first row's corner; of all rows
    const Case cases[] = {
        {{20, 150, 60, 16}, 5, {23, 67}, 80},  {{20, 90, 60, 16}, 7,  {23, 81}, 112}, // above, where neither has room
        {{290, 20, 60, 16}, 5, {0, 39},  80},  {{20, 90, 60, 16}, 50, {23, 7},  186}, // at the right, as high as all
        {{INT32_MAX, INT32_MAX, 1, 1}, 3, {0, 145}, 48},
    };
    // clang-format on
    for (const Case& c : cases) {
        ListRig s(c.place, c.choices);
        s.list->OnLeftDown(0, 0);
        const Rect row = s.list->GetItemRect(0);
        EXPECT_EQ((Point{row.x, row.y}), (Point{c.at.x ? c.at.x : 293 - row.w, c.at.y}));
        EXPECT_TRUE(s.list->ItemAt(row.x + 1, row.y + c.height - 1) && !s.list->ItemAt(row.x + 1, row.y + c.height));
    }
}

// 50 rows of 16 in 186 pixels: 614 are hidden, the thumb is 43 high and has a way of 143.
TEST(DropDown, Scrolls)
{
    ListRig s({20, 90, 60, 16}, 50);
    std::memset(s.list->items.At(9)->text, 'W', 200);
    s.list->SetValue(25), s.Open(); // with the choice in the middle
    EXPECT_NEAR(s.list->GetItemRect(25).y, 92, 1);
    Rect thumb, bar;
    const auto thumbTop = [&] { return s.list->GetScrollBarRects(thumb, bar), thumb.y - bar.y; };
    s.Mouse(mouse::Wheel, 0, 9), s.Mouse(mouse::Wheel, 0, -2);
    EXPECT_EQ(thumbTop(), 30);
    EXPECT_EQ(s.list->GetItemRect(0).y, 7 - 129); // 30 / 143 of 614
    s.Mouse(mouse::LeftDown, thumb.x, thumb.y + 42), s.Mouse(mouse::Move, 0, thumb.y + 42 + 100);
    EXPECT_EQ(thumbTop(), 130);
    s.Mouse(mouse::Move, 0, 999), s.Mouse(mouse::LeftUp, 0, 999), s.Mouse(mouse::Move, 0, 20);
    EXPECT_EQ(thumbTop(), 143);
    s.Click(bar.x, bar.y);
    EXPECT_EQ(thumbTop(), 100); // a page back: 186 of 614
    EXPECT_EQ(bar.x + bar.w, 300 - 4 - 3) << "what is too wide ends at the margin of the editor";
}

// It fades in above the page, and neither a control that changes nor a window that is drawn anew covers it.
TEST(DropDown, LiesAboveEverything)
{
    ListRig s;
    auto* blinker = new Blinker({0, 40, 300, 100}, -1);
    auto* page = new CControlGroup(s.editor.get(), 7); // after the list's
    s.editor->AddGroup(page), page->AddControl(blinker);
    blinker->backgroundColor = Rgb(255, 0, 0);
    s.Tick(), s.Click(25, 25), blinker->ticks = 0;
    for (const Color blue : {0x3Cu, 0x78u, 0xB4u, 0xF0u, 0xF1u}) { // of the list, about
        s.editor->SetDirty(blue == 0xF0);
        s.window->copies.clear(), s.Tick();
        EXPECT_NEAR(s.OnScreen(25, 60) & 255, blue, 16);
        EXPECT_EQ(s.OnScreen(290, 60), 0xFF0000u);
        EXPECT_EQ(s.window->copies.size(), 1u) << "nothing flickers";
    }
    EXPECT_EQ(blinker->ticks, 5);
    const Rect row = s.list->GetItemRect(3);
    const Color shadow = s.OnScreen(row.x + row.w + 5, row.y);
    s.Mouse(mouse::Move, row.x + 2, row.y);
    EXPECT_NEAR(s.OnScreen(row.x + 2, row.y) & 255, s.list->look.hoverTopColor & 255, 8);
    EXPECT_EQ(s.OnScreen(row.x + row.w + 5, row.y), shadow);
}

} // namespace korvane::test
