// What a file dialog asks its user.
#pragma once

#include <string>
#include <vector>

namespace korvane {

struct FileQuestion {
    /// One row of the dialog's list of kinds.
    struct Filter {
        std::string description;
        std::vector<std::string> extensions; // without a dot
    };

    bool save = false;  // a file to write, which may be new; else one that is there
    std::string title;  // empty: the dialog's own
    std::string folder; // where it starts, as the engine writes paths; empty: wherever it likes
    std::string name;   // proposed
    std::vector<Filter> filters;
    int filter = 0; // the one that is chosen at first
};

} // namespace korvane
