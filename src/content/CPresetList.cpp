// A program library: category folders and the programs in one of them.
#include "content/CPresetList.h"

#include "content/PathText.h"

namespace korvane {

CPresetList::CPresetList(const char* folder, const char* extension)
{
    SetText(libraryFolder, folder);
    folders.AddFilter("", true);
    files.AddFilter(extension, false);
    SetText(folderName, "<user>");
    DeselectFile();
}

void CPresetList::DeselectFile()
{
    SetText(fileName, "<noname>");
    SetText(filePath, "");
    fileIndex = -1;
}

void CPresetList::Refresh()
{
    folders.Scan(libraryFolder);
    files.Empty();
    folderIndex = -1;
    SetText(folderName, "<user>");
    DeselectFile();
}

bool CPresetList::SelectFolder(std::int32_t index)
{
    if (!folders.GetEntry(index, folderName)) return false;
    const bool changed = index != folderIndex;
    folderIndex = index;
    RescanFiles();
    return changed;
}

bool CPresetList::SelectEntry(std::int32_t index)
{
    const char* path = files.GetEntry(index, fileName);
    if (!path) return false;
    SetText(filePath, path);
    const bool changed = index != fileIndex;
    fileIndex = index;
    return changed;
}

void CPresetList::RescanFiles()
{
    const char* folder = folders.GetEntry(folderIndex);
    if (!folder) return;
    DeselectFile();
    files.Empty();
    if (files.Scan(folder)) SelectEntry(0);
}

bool CPresetList::Step(int direction)
{
    if (files.Count() == 0) return false;
    return SelectEntry(fileIndex < 0 ? 0 : fileIndex + direction);
}

} // namespace korvane
