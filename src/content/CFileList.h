// The files and folders in a folder that pass a filter.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace korvane {

/// Contents of one folder in the order in which the system returns them. No thread of its own: one user at a time.
class CFileList {
public:
    virtual ~CFileList() = default;

    /// Lets files, or folders, with this extension into the list; an empty text lets all of them in.
    /// text  without the dot, case counts; cut at 31 bytes
    void AddFilter(const char* text, bool isDirectory);

    /// Replaces the entries by what the folder holds now. False, and no entries, when it cannot be read.
    bool Scan(const char* folder);

    void Empty() { entries.clear(); }
    std::int32_t Count() const { return static_cast<std::int32_t>(entries.size()); }

    /// The full path of an entry, valid until the list changes; null outside 0..Count() - 1. Each output may be null.
    /// name         256 bytes: a file's name without extension, a folder's whole name; cut to fit
    /// extension    32 bytes: without the dot; empty for folders
    /// isDirectory  whether it is a folder
    const char* GetEntry(std::int32_t index, char* name = nullptr, char* extension = nullptr,
                         bool* isDirectory = nullptr) const;

private:
    struct Filter {
        char text[32];
        bool isDirectory;
    };
    struct Entry {
        std::string path;
        bool isDirectory;
    };
    bool Listed(const char* name, bool isDirectory) const;

    std::vector<Filter> filters;
    std::vector<Entry> entries;
};

} // namespace korvane
