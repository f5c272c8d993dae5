// What gets selected, by bars, notes and rubber band, and where the hand carries it.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

using SelectionTest = ScoreRig;

// clang-format off
TEST_F(SelectionTest, NotesAndBars)
{
    Check({{"9.10:20 open 9 down 10,5", "9.10:20|10-10,0-23|"}, {"9.10:20 open 9 down 10,6", "9.10:20"},
           {"9.10:20 open 9 ctrl down 10,5", "9.10:20"}, {"3.10:400 open 3 down 10,4", "3.10:400|10-10,4-4|"},
           {"open 9 tap B2", "|32-47,0-23|"}, {"open 3 tap P293,138", "|32-47,0-7|"},
           {"open 9 drag B2 B4", "|32-79,0-23|"}, {"open 9 drag B2 B0", "|0-47,0-23|"},
           {"open 3 drag B7 B0", "|0-127,0-7|"}, {"open 9 drag B6 P1064,300", "|96-127,0-23|"},
           {"open 9 drag B1 P5,300", "|0-31,0-23|"}, {"open 9 drag B1 B2 to 90,3", "|16-47,0-23|"},
           {"open 9 tap B2 tap L3,0.5 tap K3", "|32-47,0-23|"}, {"open 9 tap B2 down 60,3", ""}});
}

TEST_F(SelectionTest, ARubberBandStaysWhereItTouchesNotes)
{
    // Column 10 is 117..124; rows do not count in the piano roll.
    Check({{"open 9 down 10,5 to 14,8", "|10-14,5-8|"},
           {"9.10:20 open 9 drag P113,200 P150,180", "9.10:20|9-14,20-22|"},
           {"9.10:20 open 9 drag P150,200 P125,400", "9.10:20|10-14,6-20|"}, // touches
           {"9.10:20 open 9 drag P150,200 P126,400", "9.10:20"},
           {"9.10:20 open 9 drag P105,200 P117,400", "9.10:20|8-10,6-20|"},
           {"9.10:20 open 9 drag P105,200 P116,400", "9.10:20"}, {"10.10:20 open 9 drag P113,200 P150,180", "10.10:20"},
           {"9.10:20 open 9 ctrl drag 10,5 12,3", "9.10:20|10-12,3-5|"}, // begins on the note
           {"9.10:20 open 9 tap B0 drag 40,5 42,3", "9.10:20"},
           // A cell, 238..265.
           {"3.10:400 open 3 drag P113,230 P150,300", "3.10:400|9-14,2-5|"},
           {"3.10:400 open 3 drag P113,270 P150,300", "3.10:400"},
           {"3.10:400 open 3 drag P150,300 P113,266", "3.10:400|9-14,2-4|"},
           {"3.10:400 open 3 drag P150,300 P113,267", "3.10:400"}});
}

TEST_F(SelectionTest, TheHandCarriesIt)
{
    Check({// Columns are exchanged, locks too; other channels stay.
           {"3.10:400 9.10:20[12=0.25] 9.12:1[5=-0.5] 10.10:1 open 9 band 10,8 10,2 drag 10,5 12,5",
            "3.10:400 9.10:1[5=-0.5] 9.12:20[12=0.25] 10.10:1|10-10,2-8|"},
           {"9.10:2 9.11:4 9.12:8 open 9 band 10,8 11,1 drag 10,5 11,5", "9.10:8 9.11:2 9.12:4|10-11,1-8|"},
           {"9.9:8 9.10:2 9.11:4 open 9 band 10,8 11,1 drag 11,5 10,5", "9.9:2 9.10:4 9.11:8|10-11,1-8|"},
           {"9.10:20 open 9 drag 10,5 30,1", "9.30:2|10-10,0-23|"}, // a note in one gesture
           // Selected notes change rows, until one is at the edge.
           {"9.10:100020[3=0.5] 9.11:40 open 9 band 10,8 11,3 drag 10,7 11,10",
            "9.11:100100[3=0.5] 9.12:200|10-11,3-8|"},
           {"9.10:20 9.11:200000 open 9 band 10,23 11,2 drag 10,5 10,9", "9.10:80 9.11:800000|10-11,2-23|"},
           {"9.10:22 open 9 band 10,23 10,0 drag 10,5 10,2", "9.10:11|10-10,0-23|"},
           {"9.10:a0 open 9 band 10,6 10,4 drag 10,5 10,7", "9.10:80|10-10,4-6|"},
           // Columns stay on the grid, empty ones too.
           {"9.125:20 open 9 band 124,8 126,2 drag 125,5 127,5", "9.126:20|124-126,2-8|"},
           {"9.122:20 open 9 band 120,8 127,2 drag 121,5 124,5", "9.122:20|120-127,2-8|"},
           {"9.3:20 open 9 band 2,8 4,2 drag 4,5 0,5", "9.1:20|2-4,2-8|"},
           // Copies have no locks.
           {"9.10:100020[12=0.25] 9.11:4 open 9 band 10,8 11,2 ctrl drag 10,5 11,5",
            "9.10:100020[12=0.25] 9.11:24 9.12:4|10-11,2-8|"},
           {"9.10:20 9.12:1 open 9 band 10,8 10,2 ctrl drag 10,5 12,7", "9.10:20 9.12:81|10-10,2-8|"},
           {"2.10:400[12=0.25] 3.10:400 open 3 band 10,5 11,5 ctrl drag 11,5 15,5",
            "2.10:400[12=0.25] 2.14:4000 3.10:400|10-11,5-5|"},
           // Hits take the bit of their step; they change rows together or not at all.
           {"1.10:400 2.10:400[12=0.25] 3.13:2000 open 3 band 10,5 10,4 drag 10,5 13,5",
            "1.10:400 2.13:2000[12=0.25] 3.10:400|10-10,4-5|"},
           {"2.10:400 3.11:800 open 3 band 10,5 11,4 drag 10,5 10,3", "4.10:400 5.11:800|10-11,4-5|"},
           {"2.10:400 3.11:800 open 3 band 10,5 11,4 drag 11,4 13,7", "2.12:1000 3.13:2000|10-11,4-5|"},
           // Dropped outside of the grid.
           {"9.10:20 open 9 band 10,8 11,2 drag 10,5 20,-1", "9.10:20|10-11,2-8|"},
           {"9.10:20 open 9 band 10,8 11,2 drag 10,5 20,30", "9.10:20|10-11,2-8|"}});
}
// clang-format on

} // namespace
} // namespace korvane
