// The panel's lists, arrows and layer buttons under the mouse; keys and drops while the about page is open.
#include <gtest/gtest.h>

#include "gui/controls/CControlDropDownList.h"
#include "support/PanelRig.h"

namespace korvane {
namespace {

struct CommandsTest : testing::Test, PanelRig {
    CommandsTest() { Open(); }

    Rect PlaceOf(Role role, int number) { return editor->panel.Of(role, number)->rect; }
    void Hold(Role role, int number)
    {
        const Rect place = PlaceOf(role, number);
        Move(place.x + 3, place.y + 3);
        Press(mouse::LeftDown);
    }
    void Choose(Role role, int number, int item)
    {
        Hold(role, number);
        Press(mouse::LeftUp);
        const Rect place = editor->panel.Of<CControlDropDownList>(role, number)->GetItemRect(item);
        Click(place.x + 3, place.y + 3);
    }
    SharedText<512>& Path(int channel, int slot)
    {
        return Engine().Channel(channel).sound.sampleSlots[static_cast<std::size_t>(slot)].path;
    }
    std::string NameIn(const SharedText<512>& path)
    {
        char text[512];
        path.Get(text);
        return std::string(text).substr(std::string(text).rfind('\\') + 1);
    }
    std::string InRoot(const char* file)
    {
        std::string path = (root.path / file).string();
        std::ranges::replace(path, '/', '\\');
        return path;
    }
};

TEST_F(CommandsTest, LayerButtonsActOnTheCurrentLayerWhenTheyAreLetGo)
{
    struct {
        int button;
        const char* then;
    } rows[] = {{1, "Deep Drop.wav"}, {2, "Deep Hat Open.wav"}, {0, ""}, {3, "Forge Kick.wav"}};
    window->answerQuestion = [this](const FileQuestion&) { return InRoot("Drum Samples/Forge Kick.wav"); };
    Show(2, false);
    Engine().selection.layerNumber = 1;
    for (const auto& row : rows) {
        Path(2, 4).Set(InRoot("Drum Samples/Deep Hat Closed.wav").c_str());
        Hold(Role::LayerCommand, row.button);
        EXPECT_EQ(NameIn(Path(2, 4)), "Deep Hat Closed.wav") << row.button;
        Press(mouse::LeftUp);
        EXPECT_EQ(NameIn(Path(2, 4)), row.then) << row.button;
    }
}

TEST_F(CommandsTest, AButtonThatIsTakenFromTheUserDoesNothing)
{
    const std::function<void()> takings[] = {
        [this] { Engine().selection.selectedChannel = 9, Tick(); },                   // its page goes
        [this] { Move(530, 160), Press(mouse::RightDown), Press(mouse::RightDown); }, // the score opens and closes
        [this] { window->StealGrab(), Tick(); }, [this] { editor->Close(); }};
    for (const auto& take : takings) {
        Show(2, false);
        Path(2, 3).Set("C:\\kick.wav"), Path(9, 3).Set("C:\\kick.wav");
        Hold(Role::LayerCommand, 0);
        take();
        EXPECT_EQ(NameIn(Path(2, 3)) + NameIn(Path(9, 3)), "kick.wavkick.wav") << &take - takings;
        Press(mouse::LeftUp);
    }
}

TEST_F(CommandsTest, WaveArrowsMoveTheirOwnOscillator)
{
    Show(9, false);
    for (const int arrow : {0, 1, 2, 3, 4, 5}) {
        for (int n = 0; n < 3; ++n) Path(9, n).Set(instrument->waveforms.GetEntry(1));
        Hold(Role::WaveArrow, arrow);
        Press(mouse::LeftUp);
        for (int n = 0; n < 3; ++n)
            EXPECT_EQ(NameIn(Path(9, n)), NameIn(SharedText<512>(instrument->waveforms.GetEntry(n != arrow % 3 ? 1
                                                                                                : arrow < 3    ? 0
                                                                                                               : 2))))
                << arrow << ' ' << n;
    }
    Choose(Role::WaveList, 1, 2);
    EXPECT_EQ(NameIn(Path(9, 1)), NameIn(SharedText<512>(instrument->waveforms.GetEntry(0))));
}

TEST_F(CommandsTest, ListsAndArrowsChooseProgramsOfTheChannelsLibrary)
{
    Show(9, false);
    CPresetList& library = instrument->synthPrograms;
    Choose(Role::FolderList, 0, 0);
    EXPECT_EQ(library.folderIndex, 0);
    Choose(Role::ProgramMenu, 0, 7);
    EXPECT_EQ(library.fileIndex, 2);
    for (const auto& [arrow, then] : {std::pair{1, 3}, {0, 2}}) {
        Hold(Role::ProgramArrow, arrow);
        Press(mouse::LeftUp);
        EXPECT_EQ(library.fileIndex, then);
    }
    char path[512];
    Engine().Channel(9).programPath.Get(path);
    EXPECT_STREQ(path, library.filePath);
    EXPECT_EQ(instrument->samplerPrograms.folderIndex, -1);
}

TEST_F(CommandsTest, AProgramThatComesWithAGrooveCutShortIsNamed)
{
    Engine().selection.selectedChannel = 9;
    ASSERT_TRUE(instrument->SaveProgramFile(InRoot("Bass.kvsynth").c_str()));
    ASSERT_TRUE(instrument->SaveGrooveFile(InRoot("g").c_str()));
    std::filesystem::resize_file(root.path / "g", std::filesystem::file_size(root.path / "g") - 40000);
    instrument->ResetGroove();
    Show(9, false);
    const auto* const menu = editor->panel.Of<CControlDropDownList>(Role::ProgramMenu);
    EXPECT_STREQ(menu->text, "<noname>");
    window->Drop(InRoot("g"));
    window->Serve(0);
    Engine().selection.selectedChannel = 9;
    Tick();
    EXPECT_STREQ(menu->text, "Bass");
}

TEST_F(CommandsTest, BelowTheAboutPageOnlyPlayAndReleasesAndDropsAreHeard)
{
    Click(500, 40);
    ASSERT_NE(editor->activeGroup, nullptr);
    Take();
    for (const int code : {int{'C'}, int{'1'}, int{key::Enter}, int{key::Space}}) Key(code, true);
    EXPECT_EQ(Take(), Log{"automate 1 1"});
    Key('1', false);
    EXPECT_EQ(Take(), Log{"automate 21 0"});
    const int lane = editor->laneParameter;
    Click(80, 330, mouse::RightDown); // on the cutoff
    EXPECT_EQ(editor->laneParameter, lane);
    const int channel = Engine().selection.selectedChannel, slot = 3 + Engine().selection.layerNumber;
    window->Drop("\\x\\kick.wav");
    window->Serve(0);
    EXPECT_EQ(NameIn(Path(channel, slot)), "kick.wav");
}

} // namespace
} // namespace korvane
