// Settings that installers and users leave for the instrument.
#include "platform/Registry.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace korvane {

static std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// Where settings may lie, the first to be asked first. Relative folders do not count.
static std::vector<std::string> SettingFolders()
{
    std::vector<std::string> folders;
    auto add = [&](std::string_view folder) {
        if (!folder.empty() && folder.front() == '/') folders.emplace_back(folder);
    };
    const std::string user = Environment("XDG_CONFIG_HOME");
    const std::string home = Environment("HOME");
    add(!user.empty() ? user : home.empty() ? home : home + "/.config");
    std::string machine = Environment("XDG_CONFIG_DIRS");
    if (machine.empty()) machine = "/etc/xdg";
    for (std::size_t start = 0; start <= machine.size();) {
        const std::size_t end = std::min(machine.find(':', start), machine.size());
        add(std::string_view(machine).substr(start, end - start));
        start = end + 1;
    }
    return folders;
}

static std::string_view Trim(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

static bool FindLine(const std::string& path, std::string_view name, char* value, std::size_t size)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(OpenForReading(path.c_str()), std::fclose);
    if (!file) return false;
    char line[4096]; // what a longer line has beyond this counts as a line of its own
    while (std::fgets(line, sizeof line, file.get())) {
        const std::string_view text = line;
        const std::size_t equals = text.find('=');
        if (equals == std::string_view::npos || Trim(text.substr(0, equals)) != name) continue;
        const std::string_view found = Trim(text.substr(equals + 1)).substr(0, size - 1);
        std::memcpy(value, found.data(), found.size());
        value[found.size()] = 0;
        return true;
    }
    return false;
}

bool ReadRegistryText(const char* key, const char* name, char* value, std::size_t size)
{
    constexpr std::string_view hive = "SOFTWARE\\";
    std::string_view file = key;
    if (file.substr(0, hive.size()) == hive) file.remove_prefix(hive.size());
    for (const std::string& folder : SettingFolders())
        if (FindLine(folder + "/" + std::string(file) + ".conf", name, value, size)) return true;
    return false;
}

} // namespace korvane
