// The pieces of a path's text. Paths use backslashes.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace korvane {

/// The text after the last backslash; the whole text without one.
constexpr std::string_view FileNameOf(std::string_view path)
{
    return path.substr(path.rfind('\\') + 1); // npos + 1 is 0
}

/// The text up to and including the last backslash; empty without one.
constexpr std::string_view FolderOf(std::string_view path) { return path.substr(0, path.rfind('\\') + 1); }

/// The file name cut at its last dot.
constexpr std::string_view StemOf(std::string_view path)
{
    const std::string_view name = FileNameOf(path);
    return name.substr(0, name.rfind('.'));
}

/// The text after the file name's last dot; empty without one.
constexpr std::string_view ExtensionOf(std::string_view path)
{
    const std::string_view name = FileNameOf(path);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

/// Zero-terminated copy, cut at kSize - 1 bytes.
template <std::size_t kSize>
void SetText(char (&buffer)[kSize], std::string_view text)
{
    const std::string_view kept = text.substr(0, kSize - 1);
    std::memmove(buffer, kept.data(), kept.size());
    buffer[kept.size()] = 0;
}

} // namespace korvane
