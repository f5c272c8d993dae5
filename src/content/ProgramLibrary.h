// What a program library shows: its categories, the programs of the selected one, and what is selected.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "content/CPresetList.h"

namespace korvane {

/// A copy, of a moment at which nobody was selecting.
struct ProgramLibrary {
    explicit ProgramLibrary(const CPresetList& list);
    bool operator==(const ProgramLibrary&) const = default;

    std::vector<std::string> folders, programs; // names; of files without extension
    std::int32_t folder, program;               // -1 none
    std::string folderName, programName;        // of what is selected, see CPresetList
    std::string path;                           // of the selected program, else of the library
};

} // namespace korvane
