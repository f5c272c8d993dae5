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
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path)) throw Failure("cannot read '" + path + "'");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace korvane::render
