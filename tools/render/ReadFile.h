// A whole file in memory.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "render/Failure.h"

namespace korvane::render {

inline std::vector<std::uint8_t> ReadFile(const std::string& path)
{
    constexpr std::uintmax_t kLargest = 1u << 30; // bytes
    std::error_code none;
    std::ifstream file;
    if (std::filesystem::is_regular_file(path, none) && std::filesystem::file_size(path, none) <= kLargest)
        file.open(path, std::ios::binary);
    if (!file.is_open()) throw Failure("cannot read '" + path + "'");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace korvane::render
