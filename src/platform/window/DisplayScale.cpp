// The scale that the musician or the desktop asks for.
#include "platform/window/DisplayScale.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

#include "platform/window/XcbConnection.h"

namespace korvane {

int ScaleFromResources(std::string_view resources)
{
    constexpr std::string_view kName = "Xft.dpi:";
    while (!resources.empty()) {
        std::string_view line = resources.substr(0, resources.find('\n'));
        resources.remove_prefix(std::min(line.size() + 1, resources.size()));
        if (line.substr(0, kName.size()) != kName) continue;
        line.remove_prefix(std::min(line.find_first_not_of(" \t", kName.size()), line.size()));
        int dpi = 0;
        std::from_chars(line.data(), line.data() + line.size(), dpi);
        return dpi < 144 ? 1 : (std::min(dpi, 4 * 96) + 48) / 96;
    }
    return 1;
}

int ReadDisplayScale()
{
    const char* const wish = std::getenv("KORVANE_SCALE");
    if (wish && wish[0] >= '1' && wish[0] <= '4' && wish[1] == '\0') return wish[0] - '0';
    const XcbConnection connection;
    if (!connection.screen) return 1;
    const auto resources = connection.Property(connection.screen->root, XCB_ATOM_RESOURCE_MANAGER, false);
    if (!resources || resources->format != 8) return 1;
    return ScaleFromResources({static_cast<const char*>(xcb_get_property_value(resources.get())),
                               static_cast<std::size_t>(xcb_get_property_value_length(resources.get()))});
}

} // namespace korvane
