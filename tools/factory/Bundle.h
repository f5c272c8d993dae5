// The bundle that the content is written into.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "factory/sound/Sound.h"

namespace korvane::factory {

/// Writes files below the bundle and remembers whether every one could be written.
class Bundle {
public:
    explicit Bundle(std::filesystem::path bundleRoot) : root(std::move(bundleRoot)) {}

    /// An empty folder of the bundle.
    std::filesystem::path Folder(const char* name);
    void Wav(const std::filesystem::path& folder, const char* name, const Sound& sound);
    void Image(const std::filesystem::path& path, const std::vector<std::uint8_t>& image);

    const std::filesystem::path root;
    bool complete = true;

private:
    void Keep(bool written, const std::filesystem::path& path);
};

} // namespace korvane::factory
