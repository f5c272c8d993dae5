// How the score editor comes and goes, and who hears events while it is there.
#include "support/ScoreRig.h"

namespace korvane {
namespace {

using OpeningTest = ScoreRig;

TEST_F(OpeningTest, ItOpensForTheChannelAndClosesWithoutATrace)
{
    const std::tuple<int, Rect, std::function<void()>> rows[] = {
        {3, {0, 194, 1065, 436}, [&] { Click(500, 400, mouse::RightDown); }},
        {10, {0, 81, 1065, 549}, [&] { Click(5, 5, mouse::RightDown); }},
        {0, {0, 194, 1065, 436}, [&] { Click(500, 193); }},
        {8, {0, 81, 1065, 549}, [&] { Click(500, 80); }},
        {7, {0, 194, 1065, 436}, [&] { window->StealGrab(), Tick(); }}};
    const auto shown = [&] {
        Move(0, 0);
        for (int n = 0; n < 30; ++n) Tick(); // what glides arrives
        return window->shown;
    };
    for (const auto& [channel, open, close] : rows) {
        Show(channel, false);
        const auto before = shown();
        window->focused = false;
        Edit(channel);
        EXPECT_TRUE(Score().IsOpen() && window->grabbed && !window->pointerHidden && window->focused);
        EXPECT_EQ(Score().rect, open) << channel;
        EXPECT_TRUE(shown() != before);
        close();
        EXPECT_FALSE(Score().IsOpen() || window->grabbed || editor->activeGroup) << channel;
        EXPECT_EQ(Score().rect, (Rect{-50, -50, 20, 20}));
        EXPECT_TRUE(shown() == before) << channel;
    }
    Edit(10);
    editor->Close();
    Open();
    EXPECT_FALSE(Score().IsOpen());
}

TEST_F(OpeningTest, EachOpeningBeginsAnew)
{
    Do("9.0:1 open 9 tap B0 type C to B3 down L3,0.5");
    Press(mouse::RightDown);
    Do("open 9");
    const ScoreState& state = Score().state;
    EXPECT_FALSE(state.selection.Exists() || state.laneDrag || state.pressActive);
    EXPECT_EQ(state.flash[0] + state.hoverBar + state.hoverColumn + state.barPick + state.auditionRow, -4);
    Do("up to L3,0.9"); // of the press before
    EXPECT_EQ(Text(), "9.0:1");
}

TEST_F(OpeningTest, NothingStaysInEditMode)
{
    for (const char* hands : {"open 9", "to 3,3", "down 3,3", "up"}) {
        instrument->SetParameter(6, 1.0f);
        Play(1);
        ASSERT_TRUE(Engine().clock.editMode);
        Engine().selection.editStep = 3;
        Do(hands);
        EXPECT_TRUE(!ShownModes(Engine()).editMode && Engine().selection.editStep == -1) << hands;
    }
}

TEST_F(OpeningTest, ItsKeysAreItsOwnAndThoseOfThePanelRest)
{
    constexpr int kKeys[] = {'M', '1', key::Enter, key::Left, 'Z', 'C', 'V', 'X'};
    for (const char* hands : {"open 9", "close"}) {
        Do(hands);
        if (!Score().IsOpen()) Click(500, 30), Do("open 9"); // below the page about the instrument it stays closed
        Take();
        window->usedKeys.clear();
        for (const int code : kKeys) Key(code, true);
        EXPECT_EQ(std::ranges::count(window->usedKeys, true), Score().IsOpen() ? 3 : 0);
        EXPECT_EQ(Take(), Log{});
        Key('M', false);
        EXPECT_EQ(Take(), Log{"automate 10 0"}); // what was held before is let go
    }
}

} // namespace
} // namespace korvane
