// The menu of grooves and parts.
#pragma once

#include "editor/commands/EditorCommands.h"
#include "gui/controls/CControlDropDownList.h"

namespace korvane {

// The window's thread.

void FillGrooveMenu(CControlDropDownList& list);
/// index  of the chosen item; headings, separators and what is no item do nothing
void ChooseInGrooveMenu(EditorCommands& commands, int index);

} // namespace korvane
