// The bundle that the content is written into.
#include "factory/Bundle.h"

#include <cstdio>
#include <fstream>
#include <string>

#include "factory/sound/WavFile.h"

namespace korvane::factory {

namespace fs = std::filesystem;

fs::path Bundle::Folder(const char* name)
{
    fs::remove_all(root / name); // what an older build left is no content
    fs::create_directories(root / name);
    return root / name;
}

void Bundle::Wav(const fs::path& folder, const char* name, const Sound& sound)
{
    const fs::path path = folder / (std::string(name) + ".wav");
    Keep(WriteWav(path.string(), sound), path);
}

void Bundle::Image(const fs::path& path, const std::vector<std::uint8_t>& image)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(image.data()), static_cast<std::streamsize>(image.size()));
    Keep(static_cast<bool>(file.flush()), path);
}

void Bundle::Keep(bool written, const fs::path& path)
{
    if (written) return;
    std::fprintf(stderr, "korvane-factory: cannot write %s\n", path.c_str());
    complete = false;
}

} // namespace korvane::factory
