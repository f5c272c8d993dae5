// A menu as a table.
#pragma once

#include <cstdint>
#include <span>

#include "editor/commands/EditorCommands.h"
#include "gui/controls/CControlDropDownList.h"

namespace korvane {

struct MenuRow {
    std::uint8_t kind; // of item::
    const char* text;
    void (EditorCommands::*command)() = nullptr; // what choosing it does; null: nothing
};

inline void AddRows(CControlDropDownList& list, std::span<const MenuRow> rows)
{
    for (const MenuRow& row : rows) list.AddItem(row.text, row.kind);
}

/// Carries out the row's command, if there is one.
inline void ChooseRow(std::span<const MenuRow> rows, EditorCommands& commands, int index)
{
    if (index < 0 || index >= static_cast<int>(rows.size())) return;
    if (const auto command = rows[static_cast<std::size_t>(index)].command) (commands.*command)();
}

/// As a menu shows a name.
inline const char* ShownName(const char* name) { return *name ? name : "<none>"; }

} // namespace korvane
