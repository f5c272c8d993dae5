// What the file dialogs are asked, and what becomes of their answer.
#include "gui/window/CFileSelector.h"

#include <cstring>

#include "platform/Files.h"

namespace korvane {

constexpr std::size_t kExtensions = 4; // of a filter

void CFileSelector::AddFilter(const char* description, std::initializer_list<const char*> extensions)
{
    FileQuestion::Filter filter{description, {}};
    for (const char* extension : extensions)
        if (*extension != '\0' && filter.extensions.size() < kExtensions) filter.extensions.push_back(extension);
    question.filters.push_back(std::move(filter));
}

const char* CFileSelector::Ask(CPluginFrame* owner, bool save)
{
    path[0] = '\0';
    if (!owner || question.filters.empty()) return nullptr;
    question.save = save;
    const std::string answer = owner->Platform().AskForFile(question);
    if (answer.empty() || answer.size() >= sizeof path || (!save && !FileExists(answer.c_str()))) return nullptr;
    std::strcpy(path, answer.c_str());
    return path;
}

} // namespace korvane
