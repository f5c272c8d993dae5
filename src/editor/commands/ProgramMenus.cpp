// The list of a library's categories and the menu of the programs in one of them.
#include "editor/commands/ProgramMenus.h"

#include <iterator>
#include <utility>

#include "content/PathText.h"
#include "editor/commands/MenuRow.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

// clang-format off
/// A heading and the programs follow, where there are programs.
constexpr MenuRow kProgramMenu[] = {
    {item::Command,   "Save Program",  &EditorCommands::SaveProgram},
    {item::Command,   "Load Program",  &EditorCommands::LoadProgram},
    {item::Separator, ""},
    {item::Command,   "Reset Program", &EditorCommands::ResetProgram},
};
// clang-format on
constexpr int kFirstProgram = static_cast<int>(std::size(kProgramMenu)) + 1;

/// selected  -1: none
void AddNames(CControlDropDownList& list, const std::vector<std::string>& names, int selected)
{
    int n = 0;
    for (const std::string& name : names) list.AddItem(ShownName(name.c_str())).marked = n++ == selected;
}

} // namespace

void ProgramMenus::Attach(CControlDropDownList* folderList, CControlDropDownList* programList)
{
    folders = folderList;
    programs = programList;
    shown.reset();
}

void ProgramMenus::Rebuild()
{
    if (!folders || !programs) return;
    ProgramLibrary library = instrument.Library(instrument.engine->selection.OnSampler());
    if (!shown || *shown != library) {
        shown = std::move(library);
        FillLists();
    }
    folders->SetValue(static_cast<float>(shown->folder)); // where it opens
    programs->SetValue(shown->program < 0 ? -1.0f : static_cast<float>(kFirstProgram + shown->program));
    folders->SetClosedText(shown->folderName.c_str());
    ShowName();
}

void ProgramMenus::ShowName()
{
    if (!programs) return;
    const GrooveEngine& engine = *instrument.engine;
    char path[512];
    engine.Channel(engine.selection.selectedChannel).programPath.Get(path);
    programs->SetClosedText(*path ? ShownName(std::string(StemOf(path)).c_str()) : "<noname>");
}

void ProgramMenus::FillLists()
{
    folders->ClearItems();
    AddNames(*folders, shown->folders, shown->folder);
    programs->ClearItems();
    AddRows(*programs, kProgramMenu);
    if (shown->programs.empty()) return;
    programs->AddItem("Library", item::Heading);
    AddNames(*programs, shown->programs, shown->program);
}

void ProgramMenus::FolderChosen()
{
    if (!folders) return;
    instrument.SelectProgramFolder(Truncate(folders->GetValue()));
    Rebuild();
}

void ProgramMenus::ProgramChosen()
{
    if (!programs) return;
    const int index = Truncate(programs->GetValue());
    ChooseRow(kProgramMenu, commands, index);
    if (index >= kFirstProgram) instrument.SelectProgram(index - kFirstProgram);
    Rebuild();
}

void ProgramMenus::Step(int direction)
{
    instrument.StepProgram(direction);
    Rebuild();
}

} // namespace korvane
