// A file dialog while it is open: one question, or more until a file may be replaced.
#pragma once

#include <cstdint>
#include <string>

#include "platform/window/ChildProcess.h"
#include "platform/window/DialogCommands.h"
#include "platform/window/FileQuestion.h"

namespace korvane {

/// Runs beside its caller, who looks after it again and again. Ends with its object.
class FileDialog {
public:
    /// owner  the window that it stands in front of
    FileDialog(const FileQuestion& question, std::uint32_t owner);

    /// Takes what the user has answered and goes on to what follows from it; false at the end.
    bool Goes();
    /// Readable when there is something to take; -1: look from time to time.
    int Descriptor() const { return child.Descriptor(); }
    /// At the end: as the engine writes paths; empty: the user does not want to.
    std::string Answer() const;

private:
    void Ask(const std::string& proposal);
    void Take(std::string path);
    std::string WithExtension(std::string path) const;

    const FileQuestion question;
    const std::uint32_t owner;
    const DialogProgram program;
    ChildProcess child;
    bool goes = false;
    bool asksToReplace = false; // the answer; otherwise the dialog asks for a file
    std::string answer;         // system path
};

} // namespace korvane
