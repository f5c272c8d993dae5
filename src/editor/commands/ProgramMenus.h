// The list of a library's categories and the menu of the programs in one of them.
#pragma once

#include <optional>

#include "content/state/KVInstrument.h"
#include "editor/commands/EditorCommands.h"
#include "gui/controls/CControlDropDownList.h"

namespace korvane {

/// Shows the library of the selected channel's kind and the name of that channel's program. The window's thread.
class ProgramMenus {
public:
    ProgramMenus(KVInstrument& shownInstrument, EditorCommands& menuCommands)
        : instrument(shownInstrument), commands(menuCommands)
    {
    }

    /// New lists, without items; null: none.
    void Attach(CControlDropDownList* folderList, CControlDropDownList* programList);
    /// What is shown may have changed: another channel is selected, something was loaded. After RefreshAll as well,
    /// which gives the lists a value. A list whose items stay the same stays open.
    void Rebuild();
    /// On each tick; draws nothing that has not changed. Also a groove that loads but in part brings other names.
    void ShowName();
    void FolderChosen();
    void ProgramChosen();
    /// The program before (-1) or after (1) it in its folder.
    void Step(int direction);

private:
    void FillLists();

    KVInstrument& instrument;
    EditorCommands& commands;
    CControlDropDownList *folders = nullptr, *programs = nullptr;
    std::optional<ProgramLibrary> shown; // in the lists
};

} // namespace korvane
