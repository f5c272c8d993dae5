// What the editor's menus, arrows and drops ask for and do; dialogs are answered by `answer`.
#include "content/LastSampleFolder.h"
#include "editor/commands/GrooveMenu.h"
#include "editor/commands/ProgramMenus.h"
#include "editor/commands/WaveformMenus.h"
#include "platform/window/MemoryWindow.h"
#include "support/SynthRig.h"

namespace korvane {

using Command = std::function<void(EditorCommands&)>;
constexpr auto Menu = [](int n) { return [n](EditorCommands& commands) { ChooseInGrooveMenu(commands, n); }; };

/// Each item behind a sign of its kind, with a mark; then what the closed list reads.
static std::string Shown(CControlDropDownList& list)
{
    std::string all;
    for (auto* i = list.items.First(); i; i = i->next)
        all.append(1, "+>-#"[i->kind]).append(i->text).append(i->marked, '!');
    CDrawBuffer page;
    page.Create(10, 10, false);
    list.Draw(&page);
    return all + "|" + list.text;
}

struct Menus : SynthTest {
    /// Finds its files.
    KVInstrument& Instrument()
    {
        for (const char* name : {"Synth Programs/A/.kvsynth", "Sampler Programs/B/one.kvsmp", "S/b.aif", "S/a.wav",
                                 "S/c.txt", "S/d.aiff", "Synth Waves/Saw.wav", "Synth Waves/x.wav"})
            WriteText(root / name, "neither image nor sound");
        for (const char* name : {"p", "Synth Programs/A/.kvsynth", "Sampler Programs/B/one.kvsmp"})
            Synth().SaveProgramFile(Path(name).c_str());
        window->answerQuestion = [this](const FileQuestion& question) {
            asked = (question.save ? "save|" : "open|") + question.title + "|" + question.folder + "|" + question.name;
            for (const auto& [description, extensions] : question.filters)
                asked += "|" + description + " " + extensions.front() + std::to_string(extensions.size());
            if (elsewhere) Engine().selection.selectedChannel = 3; // by MIDI, while the dialog is up
            return answer.empty() ? answer : Path(answer.c_str());
        };
        return Close(), Synth();
    }

    MemoryWindow* const window = new MemoryWindow;
    CPluginFrame frame{std::unique_ptr<Window>(window), nullptr};
    EditorCommands commands{Instrument(), frame};
    GrooveChannel& channel = Engine().Channel(8);
    std::string asked, answer; // none: the user cancels
    bool elsewhere = false;
};

TEST_F(Menus, DialogsAskForTheirFiles)
{
    // clang-format off
    const std::string groove = "|Korvane Project kvprj1", part = "|Korvane Part kvprt1", audio = "|All supported wav3|Microsoft Wave wav1|AIFF Wave aif2";
    struct Case { Command command; int channel; std::string title; const char* folder; std::string rest; };
    const Case cases[] = {
        {Menu(1),                         8, "save|Save Groove|",       "Grooves",            "Default Groove" + groove},
        {Menu(2),                         8, "save|Save Groove|",       "Grooves",            "Default Groove" + groove},
        {Menu(4),                         8, "open|Load Groove|",       "Grooves",            groove},
        {Menu(8),                         8, "save|Save Part|",         "Parts",              "Default Groove" + part},
        {Menu(9),                         8, "open|Load Part|",         "Parts",              part},
        {&EditorCommands::SaveProgram,    8, "save|Save Part Program|", "Synth Programs",     "<noname>|Korvane Synth kvsynth1"},
        {&EditorCommands::LoadProgram,    0, "open|Load Part Program|", "Sampler Programs/B", "one|Korvane Sample kvsmp1"},
        {&EditorCommands::LoadWaveSample, 0, "open|Load Wave Sample|",  "Drum Samples",       audio},
        {[](auto& c) { c.ImportWave(2); }, 8, "open|Import Wave 1|",    "Synth Waves",        audio},
    };
    // clang-format on
    Engine().selection.selectedChannel = 0;
    ASSERT_TRUE(Synth().SelectProgramFolder(0));
    for (const Case& c : cases) {
        Engine().selection.selectedChannel = c.channel;
        c.command(commands);
        EXPECT_EQ(asked, c.title + Path(c.folder) + "|" + c.rest);
    }
}

TEST_F(Menus, WhatIsSavedAndResetLoadsAgain)
{
    // clang-format off
    struct Case { const char* file; Command save, reset, load; float level; unsigned notes; };
    const Case cases[] = {
        {"S/a", Menu(1), Menu(6), Menu(4), 0.75f, 0}, {"S/b", Menu(2), Menu(6), Menu(4), 0.75f, 0},
        {"c", Menu(8), Menu(11), Menu(9), 0.75f, 0},
        {"d", &EditorCommands::SaveProgram, &EditorCommands::ResetProgram, &EditorCommands::LoadProgram, 0.1f, 1},
    };
    // clang-format on
    auto& block = Engine().storedParams[8];
    for (const Case& c : cases) {
        answer = c.file;
        block[slot::FilterCutoff] = block[slot::MixLevel] = 0.1f;
        Engine().score.Current().steps[8][5] = 1;
        channel.sound.sampleSlots[0].Ask("");
        elsewhere = true;
        c.save(commands);
        Engine().selection.selectedChannel = 8;
        host.told = 0;
        for (const Command& act : {c.reset, Command(Menu(-1)), Command(Menu(3)), Command(Menu(12))}) act(commands);
        Render();
        EXPECT_EQ(TextOf(channel.sound.sampleSlots[0].name) + TextOf(channel.programPath), "Saw");
        EXPECT_TRUE(block[slot::FilterCutoff] == 1.0f && host.told == param::Count) << c.file;
        EXPECT_TRUE(block[slot::MixLevel] == c.level && Engine().score.Current().steps[8][5] == c.notes) << c.file;
        c.load(commands);
        Engine().selection.selectedChannel = 8;
        EXPECT_EQ(block[slot::FilterCutoff], 0.1f) << c.file;
    }
    EXPECT_TRUE(std::filesystem::exists(root / "S/Samples"));
}

// Neighbours go by name and end with their folder, steps with the library; drops are grooves, programs or samples.
TEST_F(Menus, FilesReachTheirSlots)
{
    WaveformMenus menus(Synth(), commands);
    CControlDropDownList list({0, 0, 10, 10}, -1);
    menus.Attach(1, &list);
    menus.Fill();
    const std::string first = list.items.At(2)->text, second = list.items.At(3)->text; // in the system's order
    Synth().SaveGrooveFile(Path("g").c_str());
    Engine().selection.layerNumber = 2;
    answer = "S/b.aif";
    const auto next = [](int direction) { return [=](EditorCommands& c) { c.NeighbourSample(direction); }; };
    const auto step = [](int direction) { return [=](EditorCommands& c) { c.StepWave(1, direction); }; };
    const auto drop = [this](const char* name) { return [=, this](EditorCommands& c) { c.Drop(Path(name).c_str()); }; };
    const auto choose = [&](float item) { return [=, &list, &menus](auto&) { list.SetValue(item), menus.Chosen(1); }; };
    // clang-format off
    struct Case { Command act; int slot; std::string plays; };
    const Case cases[] = {
        {&EditorCommands::LoadWaveSample, 5, "b"}, {next(1), 5, "d"}, {next(1), 5, "d"}, {next(-1), 5, "b"},
        {next(-1), 5, "a"}, {next(-1), 5, "a"}, {&EditorCommands::RemoveSample, 5, ""}, {next(1), 5, ""},
        {drop("S/c.txt"), 5, "c"}, {drop("p"), 5, ""}, {drop("g"), 3, ""}, {drop("S/c.txt"), 3, "c"}, {choose(3), 1, second},
        {step(-1), 1, first}, {step(-1), 1, first}, {step(1), 1, second}, {step(1), 1, second}, {choose(2), 1, first},
        {choose(1), 1, first}, {choose(0), 1, "b"}, {step(1), 1, first},
    };
    // clang-format on
    for (const Case& c : cases) {
        c.act(commands);
        Synth().FinishLoading();
        Render();
        menus.ShowNames();
        EXPECT_EQ(TextOf(channel.sound.sampleSlots[c.slot].name), c.plays) << &c - cases;
        EXPECT_EQ(Shown(list),
                  ">Load Waveform#Library+" + first + "+" + second + "|" + TextOf(channel.sound.sampleSlots[1].name));
    }
    EXPECT_EQ(TextOf(LastSampleFolder()), Path("S"));
    EXPECT_EQ(list.GetValue(), 2.0f) << "what plays is the current choice";
}

TEST_F(Menus, ProgramsOfTheChannelsLibrary)
{
    ProgramMenus menus(Synth(), commands);
    CControlDropDownList folders({0, 0, 10, 10}, -1), programs({0, 0, 10, 10}, -1);
    menus.Attach(&folders, &programs);
    auto& pitch = Engine().storedParams[3][slot::Pitch];
    const std::string head = ">Save Program>Load Program->Reset Program", one = head + "#Library+one!|one";
    // clang-format off
    struct Case { void (ProgramMenus::*act)(); int channel, item; float pitch, place; std::string shown; };
    const Case cases[] = {
        {&ProgramMenus::Rebuild,       8, 0, 0.1f, -1.0f, "+A|<user>" + head + "|<noname>"},
        {&ProgramMenus::FolderChosen,  8, 0, 0.1f,  0.0f, "+A!|A" + head + "#Library+<none>!|<none>"},
        {&ProgramMenus::Rebuild,       3, 0, 0.1f, -1.0f, "+B|<user>" + head + "|<noname>"},
        {&ProgramMenus::FolderChosen,  3, 0, 0.5f,  0.0f, "+B!|B" + one},
        {&ProgramMenus::ProgramChosen, 3, 5, 0.5f,  0.0f, "+B!|B" + one},
        {&ProgramMenus::ProgramChosen, 3, 3, 0.5f,  0.0f, "+B!|B" + head + "#Library+one!|<noname>"},
    };
    // clang-format on
    for (const Case& c : cases) {
        pitch = 0.1f;
        Engine().selection.selectedChannel = c.channel;
        folders.SetValue(0.0f); // as a refresh of all controls leaves them
        programs.SetValue(static_cast<float>(c.item));
        (menus.*c.act)();
        EXPECT_EQ(Shown(folders) + Shown(programs), c.shown);
        EXPECT_TRUE(pitch == c.pitch && folders.GetValue() == c.place) << c.shown;
    }
}

} // namespace korvane
