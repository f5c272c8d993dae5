// What gets selected, by bars, notes and rubber band, and where the hand carries it.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

using SelectionTest = ScoreRig;

TEST_F(SelectionTest, APressOnANoteSelectsItsColumnOrItsHit)
{
    Put("9.10:20 3.10:400");
    const struct {
        int channel, row, modifiers;
        Rect selected;
    } rows[] = {{9, 5, 0, {118, 154, 6, 336}},
                {3, 4, 0, {118, 154 + 3 * 28 + 1, 6, 26}},
                {9, 6, 0, {-1, -1, 0, 0}},
                {9, 5, modifier::Ctrl, {-1, -1, 0, 0}}};
    for (const auto& row : rows) {
        Edit(row.channel);
        window->HoldModifiers(row.modifiers);
        Down(Cell(10, row.row));
        EXPECT_EQ(State().selection.rect, row.selected) << row.channel;
        window->HoldModifiers(0);
        PanelRig::Press(mouse::RightDown);
        Up();
    }
}

TEST_F(SelectionTest, TheBarStripSelectsWholeBarsWithOrWithoutNotes)
{
    const struct {
        int channel, from;
        Point to;
        int first, last; // columns
    } rows[] = {{9, 2, Strip(2), 32, 47}, {9, 2, Strip(4), 32, 79},     {9, 2, Strip(0), 0, 47},
                {3, 7, Strip(0), 0, 127}, {9, 6, {1064, 300}, 96, 127}, {9, 1, {5, 300}, 0, 31}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first * 1000 + row.last);
        Edit(row.channel);
        Drag(Strip(row.from), row.to);
        const ScoreGrid& grid = drums ? kDrumGrid : kPianoRoll;
        EXPECT_EQ(State().selection.Columns(grid).first, row.first);
        EXPECT_EQ(State().selection.Columns(grid).last, row.last);
        EXPECT_EQ(State().selection.Rows(grid).first, 0);
        EXPECT_EQ(State().selection.Rows(grid).last, drums ? 7 : 23);
        To(Cell(60, 3)); // the hand is free again
        EXPECT_EQ(State().selection.Columns(grid).last, row.last);
        PanelRig::Click(5, 5, mouse::RightDown);
    }
    Edit(9);
    Tap(Strip(2));
    for (const Point p : {Lane(3, 0.5f), Key(3)}) Tap(p);
    EXPECT_TRUE(State().selection.Exists());
    Down(Cell(60, 3));
    EXPECT_FALSE(State().selection.Exists());
}

TEST_F(SelectionTest, ARubberBandStaysWhereItTouchesNotes)
{
    const struct {
        int channel;
        const char* notes;
        Point from, to; // pixels
        int modifiers;
        bool stays;
    } rows[] = {{9, "9.10:20", {113, 200}, {150, 180}, 0, true}, // column 10 is 117..124; rows do not count
                {9, "9.10:20", {150, 200}, {118, 400}, 0, true},
                {9, "9.10:20", {150, 200}, {125, 400}, 0, true}, // touches
                {9, "9.10:20", {150, 200}, {126, 400}, 0, false},
                {9, "9.10:20", {105, 200}, {117, 400}, 0, true},
                {9, "9.10:20", {105, 200}, {116, 400}, 0, false},
                {9, "10.10:20", {113, 200}, {150, 180}, 0, false},
                {9, "9.10:20", {118, 410}, {150, 450}, modifier::Ctrl, true}, // begins on the note
                {3, "3.10:400", {113, 230}, {150, 300}, 0, true},             // its cell: 238..265
                {3, "3.10:400", {113, 270}, {150, 300}, 0, false},
                {3, "3.10:400", {150, 300}, {113, 266}, 0, true}, // touches
                {3, "3.10:400", {150, 300}, {113, 267}, 0, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.channel << ' ' << row.to.x << ' ' << row.to.y);
        Empty();
        Put(row.notes);
        Edit(row.channel);
        window->HoldModifiers(row.modifiers);
        Down(row.from);
        To(row.to);
        EXPECT_EQ(State().selection.rect, (Rect{std::min(row.from.x, row.to.x), std::min(row.from.y, row.to.y),
                                                std::abs(row.to.x - row.from.x), std::abs(row.to.y - row.from.y)}));
        Up();
        window->HoldModifiers(0);
        EXPECT_EQ(State().selection.Exists(), row.stays);
        EXPECT_EQ(Text(), row.notes);
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(SelectionTest, TheHandCarriesWhatIsSelected)
{
    const struct {
        const char* what;
        int channel;
        Point first, last, grip, drop; // cells: of the rubber band, of the hand
        int modifiers;
        const char *before, *after;
    } rows[] = {
        {"exchanged, locks too",
         9,
         {10, 8},
         {10, 2},
         {10, 5},
         {12, 5},
         0,
         "9.10:20[12=0.25] 9.12:1[5=-0.5]",
         "9.10:1[5=-0.5] 9.12:20[12=0.25]"},
        {"to the right from the right",
         9,
         {10, 8},
         {11, 2},
         {10, 5},
         {11, 5},
         0,
         "9.10:2 9.11:4 9.12:8",
         "9.10:8 9.11:2 9.12:4"},
        {"to the left from the left",
         9,
         {10, 8},
         {11, 2},
         {11, 5},
         {10, 5},
         0,
         "9.9:8 9.10:2 9.11:4",
         "9.9:2 9.10:4 9.11:8"},
        {"other channels stay",
         9,
         {10, 8},
         {10, 2},
         {10, 5},
         {12, 5},
         0,
         "3.10:400 9.10:20 10.10:1",
         "3.10:400 9.12:20 10.10:1"},
        {"rows of what is selected",
         9,
         {10, 8},
         {11, 3},
         {10, 7},
         {11, 10},
         0,
         "9.10:100020[3=0.5] 9.11:40",
         "9.11:100100[3=0.5] 9.12:200"},
        {"no row above the last",
         9,
         {10, 23},
         {11, 2},
         {10, 5},
         {10, 9},
         0,
         "9.10:20 9.11:200000",
         "9.10:80 9.11:800000"},
        {"no row below the first", 9, {10, 23}, {10, 0}, {10, 5}, {10, 2}, 0, "9.10:22", "9.10:11"},
        {"onto another note", 9, {10, 6}, {10, 4}, {10, 5}, {10, 7}, 0, "9.10:a0", "9.10:80"},
        {"shortened on the right", 9, {124, 8}, {126, 2}, {125, 5}, {127, 5}, 0, "9.125:20", "9.126:20"},
        {"empty columns count", 9, {120, 8}, {127, 2}, {121, 5}, {124, 5}, 0, "9.122:20", "9.122:20"},
        {"shortened on the left", 9, {2, 8}, {4, 2}, {4, 5}, {0, 5}, 0, "9.3:20", "9.1:20"},
        {"copied without locks",
         9,
         {10, 8},
         {11, 2},
         {10, 5},
         {11, 5},
         modifier::Ctrl,
         "9.10:100020[12=0.25] 9.11:4",
         "9.10:100020[12=0.25] 9.11:24 9.12:4"},
        {"copied to other rows",
         9,
         {10, 8},
         {10, 2},
         {10, 5},
         {12, 7},
         modifier::Ctrl,
         "9.10:20 9.12:1",
         "9.10:20 9.12:81"},
        {"hits take their bits along",
         3,
         {10, 5},
         {10, 4},
         {10, 5},
         {13, 5},
         0,
         "1.10:400 2.10:400[12=0.25] 3.13:2000",
         "1.10:400 2.13:2000[12=0.25] 3.10:400"},
        {"hits change rows", 3, {10, 5}, {11, 4}, {10, 5}, {10, 3}, 0, "2.10:400 3.11:800", "4.10:400 5.11:800"},
        {"all hits or none change rows",
         3,
         {10, 7},
         {11, 5},
         {11, 6},
         {13, 7},
         0,
         "0.10:400 1.11:800",
         "0.12:1000 1.13:2000"},
        {"hits copied",
         3,
         {10, 5},
         {11, 5},
         {11, 5},
         {15, 5},
         modifier::Ctrl,
         "2.10:400[12=0.25] 3.10:400",
         "2.10:400[12=0.25] 2.14:4000 3.10:400"},
        {"dropped outside", 9, {10, 8}, {11, 2}, {10, 5}, {20, -1}, 0, "9.10:20", "9.10:20"},
        {"dropped on the lane", 9, {10, 8}, {11, 2}, {10, 5}, {20, 30}, 0, "9.10:20", "9.10:20"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Empty();
        Put(row.before);
        Edit(row.channel);
        const Point last = Cell(row.last.x, row.last.y);
        Drag(Cell(row.first.x, row.first.y), {last.x + 1, last.y + 3}, modifier::Ctrl);
        const Rect selected = State().selection.rect;
        Drag(Cell(row.grip.x, row.grip.y), Cell(row.drop.x, row.drop.y), row.modifiers);
        EXPECT_EQ(Text(), row.after);
        EXPECT_EQ(State().selection.rect, selected); // it stays where it was
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(SelectionTest, ANoteIsCarriedInOneGesture)
{
    Put("9.10:20 2.10:400");
    Edit(9);
    Drag(Cell(10, 5), Cell(30, 1));
    PanelRig::Click(5, 5, mouse::RightDown);
    Edit(3);
    Drag(Cell(10, 5), Cell(31, 7));
    EXPECT_EQ(Text(), "0.31:8000 9.30:2");
}

} // namespace
} // namespace korvane
