// The open and save dialogs behind the editor's file commands.
#pragma once

#include <initializer_list>

#include "gui/window/CPluginFrame.h"

namespace korvane {

/// Asks for one file at a time with the desktop's own dialog. The window's thread. Paths are as the engine writes them.
class CFileSelector {
public:
    explicit CFileSelector(void* module) : moduleHandle(module) {}
    CFileSelector(const CFileSelector&) = delete;
    /// Forgets filters and path.
    virtual ~CFileSelector() = default;

    /// A kind of files that the dialog offers.
    /// extensions  without a dot, at most four count; empty ones do not
    void AddFilter(const char* description, std::initializer_list<const char*> extensions);
    void SetFilter(int index) { question.filter = index; }
    void SetFolder(const char* folder) { question.folder = folder; } // where it starts
    void SetTitle(const char* text) { question.title = text; }
    void SetName(const char* text) { question.name = text; } // proposed

    /// The path of a file that exists; null when there is no filter, no owner, or the user chooses none. Valid until
    /// the next call.
    const char* Open(CPluginFrame* owner) { return Ask(owner, false); }
    /// The path of a file to write. What exists the user has agreed to overwrite.
    const char* Save(CPluginFrame* owner) { return Ask(owner, true); }

    char path[1024] = ""; // the chosen one
    void* const moduleHandle;

private:
    const char* Ask(CPluginFrame* owner, bool save);

    FileQuestion question;
};

} // namespace korvane
