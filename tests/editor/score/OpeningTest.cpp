// How the score editor comes and goes, and who hears events while it is there.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

using OpeningTest = ScoreRig;
constexpr Rect kAway{-50, -50, 20, 20};

TEST_F(OpeningTest, ItOpensForTheChannelAndClosesWithoutATrace)
{
    const struct {
        int channel;
        Rect open;
        std::function<void()> close;
    } rows[] = {
        {3, {0, 194, 1065, 436}, [&] { PanelRig::Click(500, 400, mouse::RightDown); }},
        {10, {0, 81, 1065, 549}, [&] { PanelRig::Click(5, 5, mouse::RightDown); }},
        {0, {0, 194, 1065, 436}, [&] { PanelRig::Click(500, 193); }},
        {8, {0, 81, 1065, 549}, [&] { PanelRig::Click(500, 80); }},
        {7, {0, 194, 1065, 436}, [&] { window->StealGrab(), Tick(); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.channel);
        Show(row.channel, false);
        To({0, 0});
        for (int n = 0; n < 30; ++n) Tick(); // what glides arrives
        const auto before = window->shown;
        Edit(row.channel);
        EXPECT_TRUE(Score().IsOpen());
        EXPECT_EQ(Score().rect, row.open);
        EXPECT_TRUE(window->grabbed && !window->pointerHidden);
        Tick();
        EXPECT_NE(window->shown, before);
        row.close();
        EXPECT_FALSE(Score().IsOpen());
        EXPECT_EQ(Score().rect, kAway);
        EXPECT_FALSE(window->grabbed);
        EXPECT_EQ(editor->activeGroup, nullptr);
        To({0, 0});
        for (int n = 0; n < 30; ++n) Tick();
        EXPECT_TRUE(window->shown == before);
    }
    Edit(10);
    editor->Close();
    Open();
    EXPECT_FALSE(Score().IsOpen());
}

TEST_F(OpeningTest, EachOpeningBeginsAnew)
{
    Put("9.0:1");
    Edit(9);
    Tap(Strip(0));
    Type('C');
    To(Strip(3));
    Down(Lane(3, 0.5f));
    Press(mouse::RightDown);
    Edit(9);
    const ScoreState& state = State();
    EXPECT_FALSE(state.selection.Exists() || state.laneDrag || state.pressActive);
    EXPECT_EQ(state.flash[0] + state.hoverBar + state.hoverColumn + state.barPick + state.auditionRow, -4);
    Press(mouse::LeftUp); // of the press before
    To(Lane(3, 0.9f));
    EXPECT_EQ(Text(), "9.0:1");
}

TEST_F(OpeningTest, BelowTheAboutPageItStaysClosed)
{
    PanelRig::Click(500, 30);
    ASSERT_NE(editor->activeGroup, nullptr);
    Edit(9, 80);
    for (const int key : {'C', 'V', 'X'}) Type(key);
    EXPECT_FALSE(Score().IsOpen());
    EXPECT_EQ(State().flash[0] + State().flash[1] + State().flash[2], 0);
}

TEST_F(OpeningTest, NothingStaysInEditMode)
{
    const auto edit = [&] {
        instrument->SetParameter(6, 1.0f);
        PanelRig::Play(1);
        ASSERT_TRUE(Engine().clock.editMode);
        Engine().selection.editStep = 3;
    };
    edit();
    Edit(9);
    const std::function<void()> gestures[] = {[] {}, [&] { To(Cell(3, 3)); }, [&] { Press(mouse::LeftDown); },
                                              [&] { Press(mouse::LeftUp); }};
    for (const auto& gesture : gestures) {
        gesture();
        EXPECT_FALSE(ShownModes(Engine()).editMode);
        EXPECT_EQ(Engine().selection.editStep, -1);
        edit();
    }
}

TEST_F(OpeningTest, OtherKeysAndTheWheelBelowDoNothing)
{
    Edit(9);
    Take();
    window->usedKeys.clear();
    for (const int code : {int{'M'}, int{'1'}, int{key::Enter}, int{key::Left}, int{'Z'}}) PanelRig::Key(code, true);
    EXPECT_EQ(std::ranges::count(window->usedKeys, true), 0);
    EXPECT_EQ(Take(), Log{});
    PanelRig::Key('M', false);
    EXPECT_EQ(Take(), Log{"automate 10 0"}); // what was held before is let go
    Show(9, false);
    EXPECT_TRUE(Score().IsOpen());
}

} // namespace
} // namespace korvane
