// Copy, paste and clear, by buttons and keys.
#include "editor/score/ScoreClipboard.h"
#include "support/ScoreRig.h"

namespace korvane {
namespace {

using ClipboardTest = ScoreRig;

// clang-format off
TEST_F(ClipboardTest, ColumnsGoIntoTheSelectedOnesUntilEitherEnds)
{
    Check({{"9.0:1 9.2:24[12=0.25] 9.40:1[5=0.5] open 9 tap B0 type C tap B2 type V", // rests too
            "9.0:1 9.2:24[12=0.25] 9.32:1 9.34:24[12=0.25]|32-47,0-23|"},
           {"9.0:801 9.33:800000 open 9 band 0,3 1,0 type C band 32,22 33,20 type V", "9.0:801 9.32:801|32-33,20-22|"},
           {"9.0:1 9.33:8 9.34:8 open 9 band 0,3 1,0 type C band 32,3 40,0 type V", "9.0:1 9.32:1 9.34:8|32-40,0-3|"},
           {"9.0:1 9.1:2 9.2:4 9.33:1 open 9 band 0,3 7,0 type C band 32,3 33,0 type V",
            "9.0:1 9.1:2 9.2:4 9.32:1 9.33:2|32-33,0-3|"},
           {"9.0:1[0=0.5] 11.0:2 11.33:1 open 9 band 0,3 1,0 type C close open 11 band 32,3 33,0 type V",
            "9.0:1[0=0.5] 11.0:2 11.32:1[0=0.5]|32-33,0-3|"},
           // Selected rows of hits, their bits as they are.
           {"2.0:1[12=0.25] 3.1:2 3.13:200 4.0:1 4.13:200 open 3 tap B0 type C close open 5 band 13,5 14,4 type V",
            "2.0:1[12=0.25] 2.13:1[12=0.25] 3.1:2 3.14:2 4.0:1 4.13:200|13-14,4-5|"},
           {"3.32:1 9.0:1 open 9 tap B0 type C close open 3 tap B2 type V", "3.32:1 9.0:1|32-47,0-7|"},
           {"3.0:1 9.32:1 open 3 tap B0 type C close open 9 tap B2 type V", "3.0:1 9.32:1|32-47,0-23|"},
           // From and to the pattern that plays; clearing in that of the opening.
           {"9.0:1 5/9.0:2 5/9.33:1 open 9 tap B0 pattern 5 type C tap B2 type V",
            "9.0:1 5/9.0:2 5/9.32:2|32-47,0-23|"},
           {"9.0:1 5/9.0:2 open 9 tap B0 pattern 5 type X", "5/9.0:2"}});
}

TEST_F(ClipboardTest, ClearTakesOutNotesAndThenTheLocksOfEmptyColumns)
{
    Check({{"9.10:100028[12=0.25] 9.12:8[5=0.5] 9.13:8 open 9 band 10,8 12,3 type X", "9.10:100000[12=0.25] 9.13:8"},
           {"9.10:8 9.100:0[5=0.5] 10.100:0[5=0.5] open 9 band 10,8 12,3 type X", "10.100:0[5=0.5]"},
           {"1.10:400 2.10:400 3.11:800[5=0.5] 4.11:800 open 3 band 10,5 11,4 type X", "1.10:400 4.11:800"},
           {"3.4:11 3.5:1 open 3 band 4,4 5,4 type X", "3.4:1 3.5:1"}, // their own bits
           {"2.10:400[5=0.5] 3.11:800 open 3 band 10,5 11,5 type X", "2.10:0[5=0.5] 3.11:800"}}); // its channel's locks
    for (int c = 0; c < kSteps; ++c) Put("9." + std::to_string(c) + ":3");
    Do("open 9 band 10,0 10,0 type X");
    EXPECT_TRUE(Score().state.selection.Exists()); // no column is empty
}

TEST_F(ClipboardTest, ItIsOneForAllEditors)
{
    Do("9.0:1[12=0.25] open 9 tap B0 type C");
    editor->Close();
    struct Other : ScoreRig { void TestBody() override {} } other;
    other.Check({{"open 12 tap B7 type V", "12.112:1[12=0.25]|112-127,0-23|"}});
}

TEST_F(ClipboardTest, LocksAreCopiedOnceInTheOrderOfTheirParameters)
{
    StepLockList& locks = Pattern().locks[9][0];
    for (const int n : {50, 300, 12, 211, -1, 12, 0, 212}) locks.Append(n, static_cast<float>(locks.Count() + 1) / 8);
    ScoreClipboard clipboard;
    const ScoreSelection everything{{0, 0, 2000, 2000}};
    EXPECT_FALSE(clipboard.Fits(kPianoRoll) || clipboard.Fits(kDrumGrid));
    clipboard.Paste(Pattern(), kPianoRoll, 9, everything);
    EXPECT_EQ(locks.Count(), 8);
    clipboard.Copy(Pattern(), 9, {0, 0});
    EXPECT_TRUE(clipboard.Fits(kPianoRoll) && !clipboard.Fits(kDrumGrid));
    Pattern().Clear();
    clipboard.Paste(Pattern(), kPianoRoll, 9, everything);
    EXPECT_EQ(Text(), "9.0:0[0=0.875][12=0.375][50=0.125][211=0.5]");
}

TEST_F(ClipboardTest, ButtonsAndKeysActOnlyWithASelection)
{
    const std::pair<const char*, std::vector<const char*>> rows[] = {
        {"100", {"type C", "tap P30,500", "tap P98,533"}}, {"010", {"type V", "tap P130,500", "tap P198,533"}},
        {"001", {"type X", "tap P230,500", "tap P298,533"}},
        {"000", {"tap P29,500", "tap P99,500", "tap P60,534", "tap P60,499",
                 "tap 90,3 tap 90,3 type C type V type X"}}};
    for (const auto& [flashes, gestures] : rows)
        for (const char* hands : gestures) {
            Do("9.0:1 open 9 tap B0 type C close open 9 tap B0");
            Do(hands);
            for (int n = 0; n < 3; ++n) EXPECT_EQ(Score().state.flash[n], flashes[n] == '1' ? 255 : 0) << hands;
            Do("close");
        }
    Do("3.0:1 open 3 tap B0 tap P230,420 tap P130,421"); // the last row of one, the first below another
    EXPECT_TRUE(Score().state.flash[2] == 255 && Score().state.flash[1] == 0);
    for (const auto& [hands, on] : {std::pair{"tap P330,382", true}, {"tap P398,426", false}, {"tap P399,400", false},
             {"type _", true}, {"close open 9 tap P330,495", false}, {"tap P398,539", true}, {"tap P330,494", true}})
        EXPECT_EQ((Do(hands), ShownModes(Engine()).playing), on) << hands;
}
// clang-format on

} // namespace
} // namespace korvane
