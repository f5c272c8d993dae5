// A program library: category folders and the programs in one of them.
#pragma once

#include <cstdint>

#include "content/CFileList.h"

namespace korvane {

/// Browses one library folder. Nothing is selected until SelectFolder.
///
/// Threads: one user at a time, none of them the audio thread. The instrument's libraries belong to the loader.
class CPresetList {
public:
    /// folder     of the library, as ContentFolders has it
    /// extension  of its programs, without the dot
    CPresetList(const char* folder, const char* extension);
    virtual ~CPresetList() = default;

    /// Reads the category folders anew; nothing is selected afterwards.
    void Refresh();

    /// Selects a category, reads its files and selects the first, if there is one. True when another category is
    /// selected than before; false outside 0..folders.Count() - 1, and nothing changes.
    bool SelectFolder(std::int32_t index);

    /// True when another file is selected than before; false outside 0..files.Count() - 1, and nothing changes.
    bool SelectEntry(std::int32_t index);

    /// One file on or back, without wrapping; the first one when none is selected. True when the selection changed.
    bool NextEntry() { return Step(+1); }
    bool PreviousEntry() { return Step(-1); }

    /// Reads the selected category's files anew and selects the first.
    void RescanFiles();

    /// The selected file's full path, else the library folder.
    const char* CurrentPath() const { return fileIndex >= 0 ? filePath : libraryFolder; }

    char fileName[256];   // of the selected file, without extension; "<noname>" when none
    char folderName[256]; // of the selected category; "<user>" when none
    char filePath[1024];  // of the selected file; empty when none
    CFileList folders;
    CFileList files;
    std::int32_t folderIndex = -1; // -1 none
    std::int32_t fileIndex = -1;   // -1 none
    char libraryFolder[1024];

private:
    bool Step(int direction);
    void DeselectFile();
};

} // namespace korvane
