// The menu of grooves and parts.
#include "editor/commands/GrooveMenu.h"

#include "editor/commands/MenuRow.h"

namespace korvane {

namespace {

// clang-format off
constexpr MenuRow kGrooveMenu[] = {
    {item::Heading,   "Groove"},
    {item::Command,   "Save Groove",              &EditorCommands::SaveGroove},
    {item::Command,   "Save Groove With Samples", &EditorCommands::SaveGrooveWithSamples},
    {item::Separator, ""},
    {item::Command,   "Load Groove",              &EditorCommands::LoadGroove},
    {item::Separator, ""},
    {item::Command,   "Reset Groove",             &EditorCommands::ResetGroove},
    {item::Heading,   "PART"},
    {item::Command,   "Save Part",                &EditorCommands::SavePart},
    {item::Command,   "Load Part",                &EditorCommands::LoadPart},
    {item::Separator, ""},
    {item::Command,   "Reset Part",               &EditorCommands::ResetPart},
};
// clang-format on

} // namespace

/// Closed it is named after what it is for, whatever a host writes under its number.
void FillGrooveMenu(CControlDropDownList& list)
{
    AddRows(list, kGrooveMenu);
    list.SetClosedText(kGrooveMenu[0].text);
}

void ChooseInGrooveMenu(EditorCommands& commands, int index) { ChooseRow(kGrooveMenu, commands, index); }

} // namespace korvane
