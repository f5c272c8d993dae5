// What a program library shows: its categories, the programs of the selected one, and what is selected.
#include "content/ProgramLibrary.h"

namespace korvane {

static std::vector<std::string> NamesOf(const CFileList& list)
{
    std::vector<std::string> names;
    char name[256];
    for (std::int32_t n = 0; list.GetEntry(n, name); ++n) names.emplace_back(name);
    return names;
}

ProgramLibrary::ProgramLibrary(const CPresetList& list)
    : folders(NamesOf(list.folders)), programs(NamesOf(list.files)), folder(list.folderIndex), program(list.fileIndex),
      folderName(list.folderName), programName(list.fileName), path(list.CurrentPath())
{
}

} // namespace korvane
