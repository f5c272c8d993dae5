// Reads text/uri-list: a URI a line, '#' before a comment; names percent-encoded.
#include "platform/window/DroppedFile.h"

#include <algorithm>
#include <charconv>

namespace korvane {

/// Empty when the text holds a NUL, which no path can. A '%' without two digits stands for itself.
static std::string Decoded(std::string_view text)
{
    std::string result;
    for (std::size_t n = 0; n < text.size(); ++n) {
        unsigned char byte = static_cast<unsigned char>(text[n]);
        if (byte == '%' && n + 2 < text.size()) {
            const char* const digits = text.data() + n + 1;
            if (std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) n += 2;
        }
        if (byte == 0) return {};
        result += static_cast<char>(byte);
    }
    return result;
}

static bool SameText(std::string_view a, std::string_view b) // in capitals or not
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return lower(x) == lower(y); });
}

/// Of file:///path, file://host/path and file:/path the path, if the file is here.
static std::string PathOf(std::string_view uri, std::string_view host)
{
    constexpr std::string_view kScheme = "file:";
    if (!SameText(uri.substr(0, kScheme.size()), kScheme)) return {};
    uri.remove_prefix(kScheme.size());
    if (uri.substr(0, 2) == "//") {
        uri.remove_prefix(2);
        const std::string_view name = uri.substr(0, uri.find('/'));
        if (!name.empty() && !SameText(name, "localhost") && !SameText(name, host)) return {};
        uri.remove_prefix(name.size());
    }
    return uri.substr(0, 1) == "/" ? Decoded(uri) : std::string();
}

std::string FirstFileOf(std::string_view uriList, std::string_view host)
{
    while (!uriList.empty()) {
        const std::string_view line = uriList.substr(0, uriList.find_first_of(std::string_view("\r\n\0", 3)));
        uriList.remove_prefix(std::min(line.size() + 1, uriList.size()));
        if (std::string path = PathOf(line, host); !path.empty()) return path;
    }
    return {};
}

} // namespace korvane
