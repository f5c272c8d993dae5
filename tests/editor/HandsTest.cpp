// Keyboard, right clicks and commands of the panel, and what happens without its images.
#include <limits>

#include <gtest/gtest.h>

#include "editor/KeyTable.h"
#include "engine/Transport.h"
#include "support/PanelRig.h"

namespace korvane {
namespace {

struct HandsTest : testing::Test, PanelRig {
    HandsTest() { Open(); }
};

TEST_F(HandsTest, KeysPressAndReleaseTheirButtons)
{
    constexpr struct {
        int code, parameter;
        bool toggles;
    } kRows[] = {{key::Enter, 6, true},  {key::Ctrl, 6, false}, {key::Space, 1, true}, {key::Left, 4, false},
                 {key::Right, 5, false}, {'1', 21, false},      {'8', 28, false},      {'Q', 29, false},
                 {'T', 33, false},       {'A', 12, false},      {'K', 19, false},      {'C', 8, false},
                 {'V', 9, false},        {'X', 7, false},       {'M', 10, false}};
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.code);
        const std::string on = "automate " + std::to_string(row.parameter) + " 1",
                          off = on.substr(0, on.size() - 1) + "0";
        Take();
        Key(row.code, true);
        EXPECT_EQ(Take(), Log{on});
        Key(row.code, false);
        EXPECT_EQ(Take(), row.toggles ? Log{} : Log{off});
        if (!row.toggles) continue;
        Key(row.code, true);
        Key(row.code, false);
        EXPECT_EQ(Take(), Log{off});
    }
    window->usedKeys.clear();
    for (const int code : {int{'Z'}, int{key::F1}, int{key::Escape}, int{'9'}}) Key(code, true);
    EXPECT_TRUE(Take().empty()); // they are the host's
    EXPECT_EQ(std::ranges::count(window->usedKeys, true), 0);
}

TEST_F(HandsTest, AKeySelectsAChannelAsItsButtonDoes)
{
    Show(9, false);
    Key('1', true);
    EXPECT_EQ(Engine().selection.selectedChannel, 9);
    Key('1', false);
    EXPECT_EQ(Engine().selection.selectedChannel, 0);
    Key(key::Ctrl, true);
    EXPECT_TRUE(ShownModes(Engine()).editMode);
    Key(key::Ctrl, false);
    EXPECT_FALSE(ShownModes(Engine()).editMode);
}

TEST_F(HandsTest, RightClicksChooseTheLanesParameterAndLeaveOthersToTheirControl)
{
    struct {
        int id, lane;
        bool goesOn; // to the control
    } rows[] = {{155, 88, false}, {113, 114, false}, {170, 114, false}, {178, 114, false}, {97, 114, true},
                {104, 114, true}, {96, 95, false},   {98, 99, false},   {109, 110, false}, {111, 112, false},
                {73, 74, false},  {75, 76, false},   {70, 70, false},   {136, 136, false}, {47, 136, true},
                {0, 136, true},   {80, 80, false},   {148, 148, false}, {152, 148, true}};
    Show(2, false);
    const ScoreEditControl& score = *editor->panel.Of<ScoreEditControl>(Role::Score);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        CControl& control = *editor->panel.Bound(row.id);
        const Rect place = control.rect;
        if (row.id != 97 && row.id != 104 && row.id != 152) instrument->SetParameter(row.id, 0.875f);
        Tick();
        const float before = control.GetValue();
        Take();
        Click(place.x + place.w / 2, place.y + place.h / 2, mouse::RightDown);
        EXPECT_EQ(editor->laneParameter, row.lane);
        const bool isKnob = row.id == 47 || row.id == 0; // goes to its default
        EXPECT_EQ(control.GetValue() == before, !isKnob);
        EXPECT_EQ(Take().empty(), !isKnob);
        EXPECT_EQ(score.IsOpen(), !row.goesOn);
        if (!score.IsOpen()) continue;
        EXPECT_EQ(score.lane.laneParameter, row.lane);
        Press(mouse::RightDown);
        EXPECT_FALSE(score.IsOpen());
    }
    Show(9, false);
    Click(80, 140, mouse::RightDown); // the same place on a page without that knob
    EXPECT_EQ(editor->laneParameter, 148);
    Click(150, 125); // a list opens
    Click(80, 330, mouse::RightDown);
    EXPECT_EQ(editor->laneParameter, 148);
    EXPECT_EQ(editor->capturingGroup, nullptr); // and is closed
}

TEST_F(HandsTest, ARightPressWithinADragEndsItAndOpensTheScore)
{
    const Rect place = editor->panel.Bound(88)->rect;
    Move(place.x + 5, place.y + 5);
    Press(mouse::LeftDown);
    Take();
    Press(mouse::RightDown);
    EXPECT_EQ(Take(), Log{"end 88 0"}); // no reset
    Press(mouse::LeftUp);
    EXPECT_EQ(Take(), Log{});
    EXPECT_TRUE(editor->panel.Of<ScoreEditControl>(Role::Score)->IsOpen());
}

TEST_F(HandsTest, ResetStartMovesTheCurrentLayersStart)
{
    Show(2, false);
    Engine().selection.layerNumber = 1;
    Engine().storedParams[2][slot::LayerStart] = Engine().storedParams[2][slot::LayerStart + 1] = 0.5f;
    Move(160, 158);
    Press(mouse::LeftDown);
    EXPECT_EQ(Engine().storedParams[2][slot::LayerStart], 0.5f);
    EXPECT_EQ(Engine().storedParams[2][slot::LayerStart + 1], 0.0f);
    Press(mouse::LeftUp);
}

TEST_F(HandsTest, WildValuesOfAHostLeaveThePanelWhole)
{
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    for (const float wild : {kInfinity, -1e30f, 0.5f, std::numeric_limits<float>::quiet_NaN(), 1e30f}) {
        for (const int channel : {2, 9}) {
            Show(channel, channel == 9);
            for (int id = -1; id <= param::Count; ++id) {
                instrument->SetParameter(id, wild);
                editor->notices.Post(id, wild);
            }
            Tick();
            Click(110, 140); // a list or a knob of the display
            Tick();
            Click(1000, 620);
        }
    }
    Tick();
    EXPECT_STREQ(editor->panel.Of<CControlTextDisplay>(Role::GrooveMenu)->text, "Groove");
    EXPECT_NE(editor->windowHandle, nullptr);
}

TEST_F(HandsTest, NothingReachesTheEngineWithoutAHost)
{
    KVInstrument alone(nullptr);
    auto made = std::make_unique<MemoryWindow>();
    MemoryWindow& shown = *made;
    KVEditor other(std::move(made), nullptr, alone);
    ASSERT_TRUE(other.Open(kEditorSize.height, kEditorSize.width, nullptr));
    shown.Key(key::Space, true);
    shown.MoveTo(930, 410);
    shown.Press(mouse::LeftDown);
    shown.Serve(0);
    EXPECT_FALSE(ShownModes(*alone.engine).playing);
}

TEST_F(HandsTest, TwoEditorsEachShowTheirOwnEngine)
{
    KVInstrument second(&host);
    auto made = std::make_unique<MemoryWindow>();
    MemoryWindow& shown = *made;
    KVEditor other(std::move(made), nullptr, second);
    ASSERT_TRUE(other.Open(kEditorSize.height, kEditorSize.width, nullptr));
    second.SetParameter(80, 0.25f);
    shown.Advance(25);
    shown.Serve(0);
    Tick();
    EXPECT_EQ(other.panel.Bound(80)->GetValue(), 0.25f);
    EXPECT_NE(editor->panel.Bound(80)->GetValue(), 0.25f);
    other.Close();
    Tick();
    EXPECT_NE(editor->windowHandle, nullptr);
}

} // namespace
} // namespace korvane
