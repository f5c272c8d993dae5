// From a question to the path of a file.
#include "platform/window/FileDialog.h"

#include <strings.h>

#include <algorithm>

#include "platform/Files.h"

namespace korvane {

/// As a system path; a folder alone ends with a '/'.
static std::string Proposal(const FileQuestion& question)
{
    std::string result = SystemPath(question.folder.c_str());
    if (!result.empty() && result.back() != '/') result += '/';
    return result + SystemPath(question.name.c_str());
}

/// Whether a filter lets files with this extension in, in capitals, too.
static bool Offered(const FileQuestion& question, const std::string& extension)
{
    const auto takes = [&](const std::string& taken) {
        return taken == "*" || strcasecmp(taken.c_str(), extension.c_str()) == 0;
    };
    return std::any_of(question.filters.begin(), question.filters.end(), [&](const FileQuestion::Filter& filter) {
        return std::any_of(filter.extensions.begin(), filter.extensions.end(), takes);
    });
}

FileDialog::FileDialog(const FileQuestion& theQuestion, std::uint32_t theOwner)
    : question(theQuestion), owner(theOwner), program(FindDialogProgram())
{
    if (!program.path.empty()) Ask(Proposal(question));
}

void FileDialog::Ask(const std::string& proposal)
{
    asksToReplace = false;
    answer.clear();
    goes = child.Start(FileCommand(program, question, proposal, owner));
}

bool FileDialog::Goes()
{
    if (!goes || child.Runs()) return goes;
    goes = false;
    if (asksToReplace) {
        if (!child.Succeeded()) Ask(std::string(answer));
    } else if (child.Succeeded()) {
        std::string path = child.output;
        if (!path.empty() && path.back() == '\n') path.pop_back(); // the program's; others belong to the name
        Take(path);
    }
    return goes;
}

void FileDialog::Take(std::string path)
{
    if (path.empty()) return;
    answer = question.save ? WithExtension(std::move(path)) : std::move(path);
    if (!question.save || StampOf(answer.c_str()).size < 0) return;
    asksToReplace = true;
    goes = child.Start(ReplaceCommand(program, answer, owner));
    if (!goes) answer.clear(); // nobody said yes
}

std::string FileDialog::WithExtension(std::string path) const
{
    const std::size_t name = path.rfind('/') + 1, dot = path.rfind('.');
    const bool hasOne = dot != std::string::npos && dot > name && Offered(question, path.substr(dot + 1));
    if (hasOne || question.filter < 0 || question.filter >= static_cast<int>(question.filters.size())) return path;
    const auto& extensions = question.filters[question.filter].extensions;
    if (extensions.empty() || extensions[0].empty() || extensions[0] == "*") return path;
    return path.append(".").append(extensions[0]);
}

std::string FileDialog::Answer() const { return goes ? std::string() : EnginePath(answer.c_str()); }

} // namespace korvane
