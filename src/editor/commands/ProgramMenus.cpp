// The list of a library's categories and the menu of the programs in one of them.
#include "editor/commands/ProgramMenus.h"

namespace korvane {

void ProgramMenus::Attach(CControlDropDownList* folderList, CControlDropDownList* programList)
{
    folders = folderList;
    programs = programList;
    shown.reset();
}

void ProgramMenus::Rebuild() {}
void ProgramMenus::FolderChosen() {}
void ProgramMenus::ProgramChosen() {}
void ProgramMenus::Step(int) {}

} // namespace korvane
