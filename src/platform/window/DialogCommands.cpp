// The words of zenity and kdialog.
#include "platform/window/DialogCommands.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "platform/window/ChildProcess.h"

namespace korvane {

static bool HasText(const char* text, std::string_view part)
{
    return text && std::string_view(text).find(part) != std::string_view::npos;
}

DialogProgram FindDialogProgram()
{
    if (const char* const wish = std::getenv("KORVANE_DIALOG"); wish && *wish)
        return {FindProgram(wish), HasText(wish, "kdialog")};
    const bool kdeFirst = HasText(std::getenv("XDG_CURRENT_DESKTOP"), "KDE");
    for (const bool isKdialog : {kdeFirst, !kdeFirst})
        if (const std::string path = FindProgram(isKdialog ? "kdialog" : "zenity"); !path.empty())
            return {path, isKdialog};
    return {};
}

static std::string InCapitals(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return text;
}

static std::string PatternsOf(const FileQuestion::Filter& filter)
{
    std::string result;
    const auto add = [&](const std::string& text) { result.append(result.empty() ? "" : " ").append(text); };
    for (const std::string& extension : filter.extensions) {
        if (extension.empty()) continue;
        add(extension == "*" ? extension : std::string("*.").append(extension));
        if (InCapitals(extension) != extension) add(std::string("*.").append(InCapitals(extension)));
    }
    return result.empty() ? "*" : result;
}

/// A filter's description without the signs that the programs read as their own.
static std::string Plain(std::string description, std::string_view signs)
{
    std::replace_if(
        description.begin(), description.end(), [&](char c) { return signs.find(c) != signs.npos; }, ' ');
    return description;
}

/// The chosen filter comes first: that is the one which both programs choose.
static std::vector<FileQuestion::Filter> ChosenFirst(const FileQuestion& question)
{
    std::vector<FileQuestion::Filter> result = question.filters;
    if (question.filter > 0 && question.filter < static_cast<int>(result.size()))
        std::rotate(result.begin(), result.begin() + question.filter, result.begin() + question.filter + 1);
    return result;
}

static std::string Option(const char* name, const std::string& value)
{
    return std::string(name).append("=").append(value);
}

static std::vector<std::string> ZenityCommand(const FileQuestion& question, const std::string& proposal)
{
    std::vector<std::string> words = {"--file-selection"};
    if (question.save) words.push_back("--save");
    if (!proposal.empty()) words.push_back(Option("--filename", proposal));
    for (const FileQuestion::Filter& filter : ChosenFirst(question)) {
        const std::string name = Plain(filter.description, "|");
        words.push_back(Option("--file-filter", (name.empty() ? name : name + " | ") + PatternsOf(filter)));
    }
    return words;
}

static std::vector<std::string> KdialogCommand(const FileQuestion& question, const std::string& proposal)
{
    std::string filters;
    for (const FileQuestion::Filter& filter : ChosenFirst(question))
        filters.append(filters.empty() ? "" : ";;")
            .append(Plain(filter.description, "|/;()"))
            .append(" (")
            .append(PatternsOf(filter))
            .append(")");
    // Words without an option's name: they begin with a '.' or a '/', whatever the file is called.
    const std::string start = proposal.substr(0, 1) == "/" ? proposal : std::string("./").append(proposal);
    std::vector<std::string> words = {question.save ? "--getsavefilename" : "--getopenfilename", start};
    if (!filters.empty()) words.push_back(filters);
    return words;
}

std::vector<std::string> FileCommand(const DialogProgram& program, const FileQuestion& question,
                                     const std::string& proposal, std::uint32_t owner)
{
    std::vector<std::string> words = {program.path, Option("--attach", std::to_string(owner))};
    if (!program.isKdialog) words.push_back("--modal");
    if (!question.title.empty()) words.push_back(Option("--title", question.title));
    const std::vector<std::string> rest =
        program.isKdialog ? KdialogCommand(question, proposal) : ZenityCommand(question, proposal);
    words.insert(words.end(), rest.begin(), rest.end());
    return words;
}

/// As the programs show a text: kdialog reads '\' as the beginning of another sign. What is no UTF-8 they refuse whole.
static std::string Shown(const std::string& text, bool isKdialog)
{
    std::string result;
    int expected = 0; // bytes that belong to the character before
    bool valid = true;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool follows = (byte & 0xC0) == 0x80;
        valid = valid && follows == (expected > 0) && byte < 0xF8;
        expected = follows ? expected - 1 : byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC0 ? 1 : 0;
        result.append(c == '\\' && isKdialog ? "\\\\" : std::string(1, c));
    }
    if (!valid || expected != 0)
        std::replace_if(
            result.begin(), result.end(), [](char c) { return (c & 0x80) != 0; }, '?');
    return result;
}

std::vector<std::string> ReplaceCommand(const DialogProgram& program, const std::string& path, std::uint32_t owner)
{
    const std::string name = Shown(path.substr(path.rfind('/') + 1), program.isKdialog);
    const std::string text = std::string("\"").append(name).append("\" exists already. Replace it?");
    // The yes is also written down: a host that ignores the ends of its children takes away the program's result.
    std::vector<std::string> words = {"/bin/sh", "-c",         "\"$@\" && echo yes",
                                      "sh",      program.path, Option("--attach", std::to_string(owner))};
    if (program.isKdialog)
        words.insert(words.end(), {"--warningyesno", text});
    else
        words.insert(words.end(), {"--modal", "--question", "--no-markup", Option("--text", text)});
    return words;
}

} // namespace korvane
