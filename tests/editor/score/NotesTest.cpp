// Notes set by clicks, their lengths by the wheel, and what sounds under the hand.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

using Notes = std::vector<int>;
using NotesTest = ScoreRig;

TEST_F(NotesTest, AClickSetsANoteAndASecondTakesItOut)
{
    const struct {
        int channel, column, row;
        const char *before, *once, *twice;
    } rows[] = {{9, 0, 0, "", "9.0:1", ""},
                {9, 17, 13, "9.17:1", "9.17:2001", "9.17:1"},
                {12, 127, 23, "", "12.127:800000", ""},
                {3, 4, 7, "", "0.4:10", ""},       // the top row is channel 0
                {3, 127, 4, "", "3.127:8000", ""}, // a bit is its step's within the bar
                {0, 20, 0, "", "7.20:10", ""},
                {3, 4, 4, "3.4:11", "3.4:1", "3.4:1"}, // a hit is any bit, its own goes
                {3, 6, 4, "3.6:1", "3.6:1", "3.6:1"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.before + std::string(" > ") + row.once);
        Empty();
        Put(row.before);
        Edit(row.channel);
        Tap(Cell(row.column, row.row));
        EXPECT_EQ(Text(), row.once);
        Tap(Cell(row.column, row.row));
        EXPECT_EQ(Text(), row.twice);
        EXPECT_EQ(State().selection.Exists(), *row.twice != 0); // of what is left
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(NotesTest, APressActsOnTheCellUnderItWithoutAMoveBefore)
{
    Edit(9);
    To(Cell(90, 2));
    const Point cell = Cell(10, 5);
    for (const int kind : {mouse::LeftDown, mouse::LeftUp}) editor->MouseEvent(cell.x, cell.y + top, 0, kind);
    EXPECT_EQ(Text(), "9.10:20");
    for (const int kind : {mouse::LeftDown, mouse::LeftUp}) editor->MouseEvent(Strip(3).x, Strip(3).y + top, 0, kind);
    EXPECT_EQ(State().selection.rect, (Rect{37 + 3 * 128 + 1, 155, 126, 334}));
}

TEST_F(NotesTest, AClickThatWandersChangesNothing)
{
    for (const int channel : {9, 3}) {
        for (const char* notes : {"", "2.10:400 9.10:20"}) { // both grids' row 5
            for (const Point away : {Point{12, 5}, Point{10, 4}, Point{10, -4}, Point{128, 5}}) {
                Empty();
                Put(notes);
                Edit(channel);
                Down(Cell(10, 5));
                To(Cell(away.x, away.y));
                To(Cell(10, 5));
                Up();
                EXPECT_EQ(Text(), notes) << channel << ' ' << away.x << ' ' << away.y;
                PanelRig::Click(5, 5, mouse::RightDown);
            }
        }
    }
}

TEST_F(NotesTest, NothingOutsideOfTheGridIsEdited)
{
    Edit(9);
    for (const Point p : {Point{36, 200}, Point{1061, 200}, Point{100, 490}, Point{100, 5}, Point{37, 153}}) {
        Tap(p);
        Wheel(1);
    }
    EXPECT_EQ(Text(), "");
    for (const Point p : {Point{37, 154}, Point{1060, 489}}) Tap(p); // its corners
    EXPECT_EQ(Text(), "9.0:800000 9.127:1");
}

TEST_F(NotesTest, TheWheelMovesTheStepsLengthOrElseTheChannels)
{
    const struct {
        int channel;
        const char* before;
        Point at; // column, row
        int notches;
        const char* after;
        float length; // of the channel, 0.5 before
    } rows[] = {{9, "9.3:20", {3, 11}, 10, "9.3:20[3=0.25]", 0.5f},
                {9, "9.3:20[3=0.9]", {3, 5}, 10, "9.3:20[3=1]", 0.5f},
                {9, "9.3:20[3=-0.9]", {3, 5}, -10, "9.3:20[3=-1]", 0.5f},
                {9, "9.3:20[3=0.25]", {3, 5}, -10, "9.3:20", 0.5f},
                {9, "9.3:20", {4, 5}, 10, "9.3:20", 0.75f},
                {9, "10.3:20", {3, 5}, 30, "10.3:20", 1.0f},
                {9, "", {3, 5}, -30, "", 0.0f},
                {3, "3.3:8", {3, 7}, 2, "3.3:8[3=0.05]", 0.5f}, // the editor's own channel, in any row
                {3, "2.3:8", {3, 5}, -2, "2.3:8", 0.45f}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.before);
        Empty();
        Put(row.before);
        Engine().storedParams[row.channel][3] = 0.5f;
        Edit(row.channel);
        To(Cell(row.at.x, row.at.y));
        Wheel(row.notches);
        EXPECT_EQ(Text(), row.after);
        EXPECT_NEAR(Engine().storedParams[row.channel][3], row.length, 1e-5f);
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(NotesTest, APressedCellSoundsUntilTheHandGoesOn)
{
    const struct {
        int channel, row, sounds, note;
    } rows[] = {{9, 7, 9, 55}, {3, 7, 0, 0}, {3, 2, 5, 0}};
    for (const auto& row : rows) {
        Edit(row.channel);
        for (const bool wanders : {false, true}) {
            Down(Cell(5, row.row));
            EXPECT_EQ(Sounding(row.sounds), Notes{row.note});
            if (wanders)
                To(Cell(5, row.row + (row.row < 7 ? 1 : -1)));
            else
                Engine().selection.selectedChannel = 11, Up(); // by MIDI; the note is still of its own channel
            EXPECT_EQ(Sounding(row.sounds), Notes{}) << row.channel << ' ' << row.row;
            Up();
            Engine().selection.selectedChannel = row.channel;
        }
        PanelRig::Click(5, 5, mouse::RightDown);
    }
    Edit(9);
    Put("9.20:1");
    Drag(Cell(18, 3), Cell(22, 8)); // selected
    Down(Cell(19, 5));
    EXPECT_EQ(Sounding(9), Notes{});
    Up();
    SetPlaying(true);
    Down(Cell(40, 5));
    EXPECT_EQ(Sounding(9), Notes{});
}

TEST_F(NotesTest, TheKeyStripPlaysRowsAndWritesNothing)
{
    for (const bool playing : {false, true}) {
        SetPlaying(playing);
        Edit(9);
        Down(Key(0));
        EXPECT_EQ(Sounding(9), Notes{48});
        To(Key(23));
        EXPECT_EQ(Sounding(9), Notes{71});
        Up();
        EXPECT_EQ(Sounding(9), Notes{});
        PanelRig::Click(5, 5, mouse::RightDown);
        Edit(3);
        Down(Key(1));
        EXPECT_EQ(Sounding(6), Notes{0});
        To(Key(2));
        EXPECT_EQ(Sounding(6), Notes{});
        EXPECT_EQ(Sounding(5), Notes{0});
        PanelRig::Press(mouse::RightDown); // closes it
        EXPECT_EQ(Sounding(5), Notes{});
        Press(mouse::LeftUp);
        EXPECT_EQ(Text(), "");
    }
}

TEST_F(NotesTest, WhatItEditsIsThePatternAndChannelOfItsOpening)
{
    Put("9.3:1 9.50:20", 0);
    Edit(9);
    Engine().score.currentPattern = 4;
    Engine().selection.selectedChannel = 10;
    Tap(Cell(70, 1));
    To(Cell(3, 0));
    Wheel(2);
    Drag(Cell(48, 3), Cell(52, 8)); // around the note at 50
    Type('X');
    EXPECT_EQ(Text(0), "9.3:1[3=0.05] 9.70:2");
    EXPECT_EQ(Text(4), "");
}

} // namespace
} // namespace korvane
