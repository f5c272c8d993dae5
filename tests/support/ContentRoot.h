// A content folder of a test's own.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace korvane {

inline void WriteText(const std::filesystem::path& path, const std::string& bytes)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary).write(bytes.data(), std::ssize(bytes));
}

inline void WriteBytes(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes)
{
    WriteText(path, {bytes.begin(), bytes.end()});
}

template <class Bytes = std::vector<std::uint8_t>>
Bytes ReadBytes(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Instruments made while it lives find their content here, nothing at first, whatever the user's settings say.
struct ContentRoot {
    ContentRoot()
    {
        std::filesystem::remove_all(path);
        WriteText(path / "Brassmoor/Korvane.conf", "rootFolder=" + path.string());
        setenv("XDG_CONFIG_HOME", path.c_str(), 1);
    }
    ~ContentRoot() { std::filesystem::remove_all(path); }
    ContentRoot(const ContentRoot&) = delete;

    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("korvane_root." + std::to_string(getpid()));
};

/// Instruments made while it lives find what the bundle holds.
struct BundleRoot : ContentRoot {
    BundleRoot()
    {
        for (const auto& entry : std::filesystem::directory_iterator(KORVANE_BUNDLE))
            if (entry.is_directory() || entry.path().extension() == ".kvprj")
                std::filesystem::create_symlink(entry, path / entry.path().filename());
    }
};

} // namespace korvane
