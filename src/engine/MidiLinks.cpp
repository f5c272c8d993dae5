// Which MIDI source moves which parameter, and the file in which that survives.
#include "engine/MidiLinks.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <string>

#include "content/CFileStreamer.h"
#include "platform/SaveFile.h"

namespace korvane {

namespace {

// The file: the links, two bytes each, lowest first, then a byte for each flag.
constexpr std::size_t kSources = source::Count;
constexpr std::size_t kLinkBytes = 2 * kSources;
constexpr std::size_t kFileBytes = kLinkBytes + kSources;

std::string FilePath(const char* folder) { return std::string(folder) + "\\linkmap"; }

} // namespace

void MidiLinks::Link(bool link)
{
    const int from = lastSource;
    const int to = lastParameter;
    if (from < 0 || to < 0) return;
    links[from] = static_cast<std::int16_t>(link ? to : -1);
    if (!link) ignoreValue[from] = std::uint8_t{0};
}

void MidiLinks::SetIgnoreValue(bool on)
{
    const int from = lastSource;
    if (from < 0 || from >= source::PitchWheel || links[from] != lastParameter) return;
    ignoreValue[from] = static_cast<std::uint8_t>(on);
}

void MidiLinks::GetLastSourceText(char* buffer) const
{
    const int from = lastSource;
    if (from < 0)
        std::strcpy(buffer, "---");
    else if (from < source::PitchWheel)
        std::snprintf(buffer, 256, "CC %d", from);
    else if (from == source::PitchWheel)
        std::strcpy(buffer, "Pitch Wheel");
    else
        std::snprintf(buffer, 256, "Key %d Velocity", from - source::FirstKey);
}

void MidiLinks::Read(const char* folder)
{
    CFileStreamer file;
    if (!file.Open(FilePath(folder).c_str())) return;
    std::array<std::uint8_t, kFileBytes> bytes{};
    const std::size_t present = std::min<std::size_t>(bytes.size(), static_cast<std::size_t>(file.fileSize));
    file.ReadBlock(bytes.data(), static_cast<std::int32_t>(present));
    for (std::size_t n = 0; n < kSources && 2 * n + 1 < present; ++n)
        links[n] = static_cast<std::int16_t>(bytes[2 * n] | bytes[2 * n + 1] << 8);
    for (std::size_t n = 0; n < kSources && kLinkBytes + n < present; ++n) ignoreValue[n] = bytes[kLinkBytes + n];
}

bool MidiLinks::Write(const char* folder) const
{
    std::array<std::uint8_t, kFileBytes> bytes{};
    for (std::size_t n = 0; n < kSources; ++n) {
        const auto entry = static_cast<std::uint16_t>(links[n]);
        bytes[2 * n] = static_cast<std::uint8_t>(entry & 0xFF);
        bytes[2 * n + 1] = static_cast<std::uint8_t>(entry >> 8);
        bytes[kLinkBytes + n] = ignoreValue[n];
    }
    return SaveFile(FilePath(folder).c_str(), bytes.data(), bytes.size());
}

} // namespace korvane
