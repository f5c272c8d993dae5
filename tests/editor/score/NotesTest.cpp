// Notes set by clicks, their lengths by the wheel, and what sounds under the hand.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

using NotesTest = ScoreRig;

// clang-format off
TEST_F(NotesTest, AClickTurnsANoteOver)
{
    Check({{"open 9 tap 0,0", "9.0:1"}, {"open 9 tap 0,0 tap 0,0", ""}, {"open 12 tap 127,23", "12.127:800000"},
           {"9.17:1 open 9 tap 17,13", "9.17:2001"}, {"9.17:1 open 9 tap 17,13 tap 17,13", "9.17:1|17-17,0-23|"},
           {"open 3 tap 4,7", "0.4:10"}, {"open 0 tap 20,0", "7.20:10"}, {"open 0 tap 20,0 tap 20,0", ""},
           {"open 3 tap 127,4", "3.127:8000"}, // a bit is its step's within the bar
           {"3.6:1 open 3 tap 6,4", "3.6:40|6-6,4-4|"}, {"3.6:1 open 3 tap 6,4 tap 6,4", ""}, // the first puts it right
           {"open 9 tap P37,154 tap P1060,489", "9.0:800000 9.127:1"},
           {"open 9 tap P36,200 tap P1061,200 tap P100,490 tap P100,5 tap L6,0.5", ""},
           {"9.9:1 open 9 band 8,8 12,2 tap 10,5", "9.9:1 9.10:20|8-12,2-8|"},
           {"open 9 pattern 4 channel 10 tap 70,1", "9.70:2"},
           // One that wanders changes nothing.
           {"open 9 drag 10,5 12,5", ""}, {"open 9 down 10,5 to 10,4 to 10,5 up", ""},
           {"open 3 down 10,5 to 10,-4 to 10,5 up", ""},
           {"9.10:20 open 9 down 10,5 to 12,5 to 10,5 up", "9.10:20|10-10,0-23|"},
           {"2.10:400 open 3 down 10,5 to 10,4 to 10,5 up", "2.10:400|10-10,5-5|"}});
}

TEST_F(NotesTest, APressActsOnTheCellUnderItWithoutAMoveBefore)
{
    Do("open 9 to 90,2");
    for (const Point p : {Place("10,5"), Place("B3")})
        for (const int kind : {mouse::LeftDown, mouse::LeftUp}) editor->MouseEvent(p.x, p.y + top, 0, kind);
    EXPECT_EQ(Text(), "9.10:20|48-63,0-23|");
}

TEST_F(NotesTest, TheWheelMovesTheStepsLengthOrElseTheChannels)
{
    Check({{"9.3:20 open 9 to 3,11 wheel 10", "9.3:20[3=0.25]"},
           {"9.3:20[3=0.9] open 9 to 3,5 wheel 10", "9.3:20[3=1]"},
           {"9.3:20[3=-0.9] open 9 to 3,5 wheel -10", "9.3:20[3=-1]"},
           {"9.3:20[3=0.25] open 9 to 3,5 wheel -10", "9.3:20"},
           {"3.3:8 open 3 to 3,7 wheel 2", "3.3:8[3=0.05]"}, // the editor's own channel, in any row
           {"9.3:1 open 9 pattern 4 to 3,0 wheel 2", "9.3:1[3=0.05]"}});
    for (const auto& [hands, length] : {std::pair{"open 9 to 4,5 wheel 10", 0.75f},
             {"10.3:1 open 9 to 3,5 wheel -30", 0.0f},
             {"open 9 to 3,5 wheel 30", 1.0f}, {"open 9 to P10,200 wheel 3 to L5,0.5 wheel 3", 0.5f}}) {
        Engine().storedParams[9][3] = 0.5f;
        Do(hands);
        EXPECT_FLOAT_EQ(Engine().storedParams[9][3], length) << hands;
        Do("close");
    }
}

TEST_F(NotesTest, APressedCellSoundsUntilTheHandGoesOnAndAKeyAlsoWhilePlaying)
{
    const auto sounding = [&](int channel) {
        Play(64);
        std::string notes;
        for (const auto& voice : Engine().Channel(channel).voices)
            if (voice->active && !voice->releasing) notes += std::to_string(voice->note) + ' ';
        return notes;
    };
    const std::tuple<std::string, const char*, int, const char*> rows[] = {
        {"down 5,7", "to 5,8", 9, "55 "}, {"down 5,7", "channel 11 up", 9, "55 "}, {"down 5,7", "close", 9, "55 "},
        {"down 5,7", "to 6,7", 0, "0 "}, {"down 5,2", "up", 5, "0 "}, {"9.5:80 down 5,7", "to 8,7", 9, "55 "},
        {"ctrl down 5,7", "to P600,520 ctrl", 9, "55 "},
        {"9.20:1 band 18,8 22,3 down 19,5", "up", 9, ""}, {"down K0", "up", 9, "48 "}, {"down K1", "to K2", 6, "0 "},
        {"down K0 to K23", "up", 9, "71 "}, {"down K1 to K2", "close", 5, "0 "}};
    for (const bool playing : {false, true})
        for (const auto& [press, end, channel, notes] : rows) {
            Do((playing ? "playing 1 open " : "open ") + std::string(channel < 8 ? "3 " : "9 ") + press);
            EXPECT_EQ(sounding(channel), playing && press.find('K') == std::string::npos ? "" : notes) << press;
            Do(end);
            EXPECT_EQ(sounding(channel), "") << press << end;
            Do(Score().IsOpen() ? "close up" : "up");
        }
}
// clang-format on

} // namespace
} // namespace korvane
