// How the desktop's dialog programs are asked, each in its own words.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/window/FileQuestion.h"

namespace korvane {

/// A program that shows dialogs; path empty: there is none.
struct DialogProgram {
    std::string path;
    bool isKdialog = false; // otherwise it understands what zenity does
};

/// What KORVANE_DIALOG names; else zenity or kdialog, on KDE's desktop in the other order.
DialogProgram FindDialogProgram();

/// The words that ask for a file.
/// proposal  system path; with a '/' at its end a folder alone; empty: nothing is proposed
/// owner     the window that the dialog stands in front of
std::vector<std::string> FileCommand(const DialogProgram& program, const FileQuestion& question,
                                     const std::string& proposal, std::uint32_t owner);

/// The words that ask whether to replace the file; done when the user says yes.
std::vector<std::string> ReplaceCommand(const DialogProgram& program, const std::string& path, std::uint32_t owner);

} // namespace korvane
