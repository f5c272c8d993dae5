// What a user does with a window, as lines of text.
#pragma once

#include <functional>
#include <istream>
#include <string>

#include "gui/window/CSynthEditor.h"
#include "platform/window/MemoryWindow.h"

namespace korvane::uishot {

/// Plays lines into a window without a screen; commands and their operands stand apart by blanks, several commands of a
/// line by ";", and "#" begins a comment.
class Script {
public:
    /// shoot  keeps what the window shows under a name
    Script(CSynthEditor& shownEditor, MemoryWindow& shownWindow, std::function<void(const std::string&)> shoot)
        : editor(shownEditor), window(shownWindow), keepPicture(std::move(shoot))
    {
    }

    /// std::runtime_error names what is no command.
    void Play(std::istream& lines);

    static const char* const kHelp; // the commands

private:
    void Do(std::istream& command);

    CSynthEditor& editor;
    MemoryWindow& window;
    std::function<void(const std::string&)> keepPicture;
};

} // namespace korvane::uishot
