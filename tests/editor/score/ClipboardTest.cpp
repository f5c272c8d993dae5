// Copy, paste and clear, by buttons and keys.
#include "editor/score/ScoreClipboard.h"
#include "support/ScoreRig.h"

namespace korvane {
namespace {

struct ClipboardTest : ScoreRig {
    /// All cells of some columns and rows, from the middle of the first to that of the last.
    void Select(int first, int last, int low, int high)
    {
        const Point end = Cell(last, low);
        Drag(Cell(first, high), {end.x + 1, end.y}, modifier::Ctrl);
    }
};

TEST_F(ClipboardTest, WordsAndLocksGoIntoTheSelectedColumnsUntilEitherEnds)
{
    const struct {
        const char* what;
        int from, to;        // channels
        Rect source, target; // columns first, last; rows first, last
        const char *before, *after;
    } rows[] = {
        {"a bar, rests too",
         9,
         9,
         {0, 15, 0, 23},
         {32, 47, 0, 23},
         "9.0:1 9.2:24[12=0.25] 9.40:1[5=0.5]",
         "9.0:1 9.2:24[12=0.25] 9.32:1 9.34:24[12=0.25]"},
        {"whole columns", 9, 9, {0, 1, 0, 3}, {32, 33, 20, 22}, "9.0:801 9.33:800000", "9.0:801 9.32:801"},
        {"until the source ends", 9, 9, {0, 1, 0, 3}, {32, 40, 0, 3}, "9.0:1 9.33:8 9.34:8", "9.0:1 9.32:1 9.34:8"},
        {"until the selection ends",
         9,
         9,
         {0, 7, 0, 3},
         {32, 33, 0, 3},
         "9.0:1 9.1:2 9.2:4 9.33:1",
         "9.0:1 9.1:2 9.2:4 9.32:1 9.33:2"},
        {"to another channel",
         9,
         11,
         {0, 1, 0, 3},
         {32, 33, 0, 3},
         "9.0:1[0=0.5] 11.0:2 11.33:1",
         "9.0:1[0=0.5] 11.0:2 11.32:1[0=0.5]"},
        {"selected rows of hits, their bits as they are",
         3,
         5,
         {4, 5, 0, 7},
         {9, 10, 4, 5},
         "2.4:10[12=0.25] 3.5:20 4.4:10 3.9:200 4.9:200",
         "2.4:10[12=0.25] 2.9:10[12=0.25] 3.5:20 3.10:20 4.4:10 4.9:200"},
        {"nothing into the other grid", 9, 3, {0, 1, 0, 3}, {32, 33, 0, 7}, "3.32:1 9.0:1", "3.32:1 9.0:1"},
        {"nor the other way", 3, 9, {0, 1, 0, 7}, {32, 33, 0, 7}, "3.0:1 9.32:1", "3.0:1 9.32:1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Empty();
        Put(row.before);
        Edit(row.from);
        Select(row.source.x, row.source.y, row.source.w, row.source.h);
        Type('C');
        PanelRig::Click(5, 5, mouse::RightDown);
        Edit(row.to);
        Select(row.target.x, row.target.y, row.target.w, row.target.h);
        Type('V');
        EXPECT_EQ(Text(), row.after);
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(ClipboardTest, CopyAndPasteGoByThePatternThatPlays)
{
    Put("9.0:1", 0);
    Put("9.0:2 9.33:1", 5);
    Edit(9);
    Tap(Strip(0));
    Engine().score.currentPattern = 5;
    Type('C');
    Pattern(5).ClearStep(9, 0); // what was copied stands
    Tap(Strip(2));
    Type('V');
    EXPECT_EQ(Text(0), "9.0:1");
    EXPECT_EQ(Text(5), "9.32:2");
}

TEST_F(ClipboardTest, ItIsOneForAllEditors)
{
    Put("9.0:1[12=0.25]");
    Edit(9);
    Tap(Strip(0));
    Type('C');
    struct Other : ScoreRig {
        void TestBody() override {}
    } other;
    editor->Close();
    other.Edit(12);
    other.Tap(Strip(7));
    other.Type('V');
    EXPECT_EQ(other.Text(), "12.112:1[12=0.25]");
}

TEST_F(ClipboardTest, LocksAreCopiedOnceInTheOrderOfTheirParameters)
{
    StepLockList& locks = Pattern().locks[9][0];
    for (const int param : {50, 300, 12, 211, -1, 12, 0, 212})
        locks.Append(param, static_cast<float>(locks.Count()) / 8);
    Pattern().SetNotes(9, 0, 1);
    ScoreClipboard clipboard;
    ScoreSelection everything;
    everything.rect = {0, 0, 2000, 2000};
    EXPECT_FALSE(clipboard.Fits(kPianoRoll) || clipboard.Fits(kDrumGrid));
    clipboard.Paste(Pattern(), kPianoRoll, 9, everything);
    clipboard.Paste(Pattern(), kDrumGrid, 3, everything);
    EXPECT_EQ(Text(), "9.0:1[50=0][300=0.125][12=0.25][211=0.375][-1=0.5][12=0.625][0=0.75][212=0.875]");
    clipboard.Copy(Pattern(), 9, {0, 0});
    EXPECT_TRUE(clipboard.Fits(kPianoRoll) && !clipboard.Fits(kDrumGrid));
    clipboard.Paste(Pattern(1), kPianoRoll, 9, everything);
    EXPECT_EQ(Text(1), "9.0:1[0=0.75][12=0.25][211=0.375]");
}

TEST_F(ClipboardTest, ClearTakesOutNotesAndThenTheLocksOfEmptyColumns)
{
    const struct {
        const char* what;
        int channel;
        Rect selected; // columns first, last; rows first, last
        const char *before, *after;
        bool stays;
    } rows[] = {
        {"rows of a chord",
         9,
         {10, 12, 3, 8},
         "9.10:100028[12=0.25] 9.12:8[5=0.5] 9.13:8",
         "9.10:100000[12=0.25] 9.13:8",
         false},
        {"locks without notes anywhere",
         9,
         {10, 12, 3, 8},
         "9.10:8 9.100:0[5=0.5] 10.100:0[5=0.5]",
         "10.100:0[5=0.5]",
         false},
        {"hits of selected rows",
         3,
         {10, 11, 4, 5},
         "1.10:400 2.10:400 3.11:800[5=0.5] 4.11:800",
         "1.10:400 4.11:800",
         false},
        {"a hit's own bit", 3, {4, 5, 4, 4}, "3.4:11 3.5:1", "3.4:1 3.5:1", false},
        {"the locks of its own channel alone",
         3,
         {10, 11, 5, 5},
         "2.10:400[5=0.5] 3.11:800",
         "2.10:0[5=0.5] 3.11:800",
         false},
        {"a full channel", 9, {10, 10, 3, 8}, nullptr, nullptr, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Empty();
        for (int c = 0; !row.before && c < kSteps; ++c) Pattern().SetNotes(9, c, c == 10 ? 9 : 1);
        Put(row.before ? row.before : "");
        Edit(row.channel);
        Select(row.selected.x, row.selected.y, row.selected.w, row.selected.h);
        Type('X');
        EXPECT_EQ(State().selection.Exists(), row.stays);
        if (row.after) { EXPECT_EQ(Text(), row.after); }
        EXPECT_EQ(Pattern().steps[9][11], row.after ? 0u : 1u);
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

TEST_F(ClipboardTest, ButtonsAndKeysDoTheSameAndOnlyWithASelection)
{
    for (const int channel : {9, 3}) {
        Empty();
        Put("9.0:1 3.0:1");
        Edit(channel);
        const int y = channel == 9 ? 500 : 387;
        const struct {
            Point at;
            int button, key;
        } rows[] = {{{30, y}, 0, 'C'},       {{98, y + 33}, 0, 'C'}, {{130, y}, 1, 'V'},   {{198, y + 33}, 1, 'V'},
                    {{230, y + 33}, 2, 'X'}, {{298, y}, 2, 'X'},     {{29, y}, -1, 0},     {{99, y}, -1, 0},
                    {{60, y + 34}, -1, 0},   {{60, y - 1}, -1, 0},   {{330, y - 6}, -1, 0}};
        const auto flashes = [&] {
            const std::vector flash(State().flash, State().flash + 3);
            std::fill_n(State().flash, 3, 0);
            return flash;
        };
        for (const bool selected : {false, true}) {
            for (const auto& row : rows) {
                for (const bool byKey : {false, true}) {
                    if (byKey && row.key == 0) continue;
                    if (selected) Tap(Strip(0)), Type('C'), flashes();
                    Take();
                    if (byKey)
                        Type(row.key);
                    else
                        Tap(row.at);
                    std::vector expected(3, 0);
                    if (selected && row.button >= 0) expected[row.button] = 255;
                    EXPECT_EQ(flashes(), expected) << channel << ' ' << row.at.x << ' ' << row.at.y << byKey;
                    EXPECT_EQ(std::ranges::count(Take(), "automate " + std::to_string(row.key == 'C' ? 8 : 9) + " 1"),
                              0);
                }
            }
        }
        for (const bool on : {true, false}) {
            for (const Point p : {Point{330, y - 5}, Point{398, y + 39}}) {
                Tap(p);
                EXPECT_EQ(ShownModes(Engine()).playing, on == (p.x == 330)) << channel;
            }
            Type(key::Space);
            EXPECT_EQ(ShownModes(Engine()).playing, on);
        }
        PanelRig::Click(5, 5, mouse::RightDown);
    }
}

} // namespace
} // namespace korvane
