// The files and folders in a folder that pass a filter.
#include "content/CFileList.h"

#include <algorithm>
#include <string_view>

#include "content/PathText.h"
#include "platform/Files.h"

namespace korvane {

void CFileList::AddFilter(const char* text, bool isDirectory)
{
    Filter filter{};
    SetText(filter.text, text ? text : "");
    filter.isDirectory = isDirectory;
    filters.push_back(filter);
}

bool CFileList::Listed(const char* name, bool isDirectory) const
{
    const std::string_view extension = ExtensionOf(name);
    return std::any_of(filters.begin(), filters.end(), [&](const Filter& filter) {
        return filter.isDirectory == isDirectory && (filter.text[0] == '\0' || extension == filter.text);
    });
}

bool CFileList::Scan(const char* folder)
{
    entries.clear();
    if (!folder) return false;
    std::string base(folder);
    if (base.empty() || base.back() != '\\') base += '\\';
    std::vector<FolderEntry> found;
    if (!ListFolder(base.c_str(), found)) return false;
    for (const FolderEntry& entry : found)
        if (!entry.name.empty() && Listed(entry.name.c_str(), entry.isFolder))
            entries.push_back({base + entry.name, entry.isFolder});
    return true;
}

const char* CFileList::GetEntry(std::int32_t index, char* name, char* extension, bool* isDirectory) const
{
    if (index < 0 || index >= Count()) return nullptr;
    const Entry& entry = entries[static_cast<std::size_t>(index)];
    const auto copy = [](char* to, std::string_view text, std::size_t size) {
        if (to) to[text.copy(to, size - 1)] = '\0';
    };
    copy(name, entry.isDirectory ? FileNameOf(entry.path) : StemOf(entry.path), 256);
    copy(extension, entry.isDirectory ? std::string_view() : ExtensionOf(entry.path), 32);
    if (isDirectory) *isDirectory = entry.isDirectory;
    return entry.path.c_str();
}

} // namespace korvane
