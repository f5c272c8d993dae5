// korvane-factory: computes the content that the instrument ships with. Argument: the bundle's folder.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Grooves.h"
#include "Kits.h"
#include "Parts.h"
#include "Programs.h"
#include "WavFile.h"
#include "Waves.h"
#include "content/state/ChannelChunk.h"
#include "content/state/PartImage.h"
#include "content/state/StateImage.h"

namespace korvane::factory {

namespace {

namespace fs = std::filesystem;

/// Writes files below the bundle and remembers whether every one could be written.
class Bundle {
public:
    explicit Bundle(fs::path bundleRoot) : root(std::move(bundleRoot)) {}

    fs::path Folder(const char* name)
    {
        fs::remove_all(root / name); // what an older build left is no content
        fs::create_directories(root / name);
        return root / name;
    }
    void Keep(bool written, const fs::path& path)
    {
        if (!written) std::fprintf(stderr, "korvane-factory: cannot write %s\n", path.c_str()), complete = false;
    }
    void Wav(const fs::path& folder, const char* name, const Sound& sound)
    {
        const fs::path path = folder / (std::string(name) + ".wav");
        Keep(WriteWav(path.string(), sound), path);
    }
    void Image(const fs::path& path, const std::vector<std::uint8_t>& image)
    {
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char*>(image.data()), static_cast<std::streamsize>(image.size()));
        Keep(static_cast<bool>(file.flush()), path);
    }

    fs::path root;
    bool complete = true;
};

/// The image that one of the engine's savers makes.
template <class Save>
std::vector<std::uint8_t> ImageOf(Save save)
{
    std::vector<std::uint8_t> image(static_cast<std::size_t>(save(nullptr)));
    save(image.data());
    return image;
}

void WriteSounds(Bundle& bundle)
{
    const fs::path drums = bundle.Folder("Drum Samples"), waves = bundle.Folder("Synth Waves");
    for (const OneShot& row : AllOneShots()) bundle.Wav(drums, row.name, Render(row));
    for (const Cycle& cycle : AllCycles()) bundle.Wav(waves, cycle.name, Render(cycle));
}

void ResetToBundle(GrooveEngine& engine)
{
    std::snprintf(engine.defaultWavePath, sizeof engine.defaultWavePath, "\\Saw.wav"); // wherever the bundle lies
    engine.ResetGroove();
}

void WritePrograms(Bundle& bundle, const char* library, const char* extension, int channel,
                   const std::vector<ProgramRow>& rows)
{
    const fs::path folder = bundle.Folder(library);
    GrooveEngine engine;
    ResetToBundle(engine);
    for (const ProgramRow& row : rows) {
        UseProgram(engine, channel, row.name);
        const fs::path category = folder / row.folder;
        fs::create_directories(category);
        bundle.Image(category / (std::string(row.name) + extension),
                     ImageOf([&](std::uint8_t* bytes) { return SaveChannelChunk(engine, bytes, channel); }));
    }
}

void WriteGrooves(Bundle& bundle)
{
    const fs::path folder = bundle.Folder("Grooves");
    for (const GrooveRow& row : AllGrooves()) {
        GrooveEngine engine;
        ResetToBundle(engine);
        groove::Write(row.score(), engine);
        const auto image = ImageOf([&](std::uint8_t* bytes) { return SaveState(engine, bytes); });
        bundle.Image(folder / (std::string(row.name) + ".kvprj"), image);
        if (std::strcmp(row.name, kDefaultGroove) == 0) bundle.Image(bundle.root / "default.kvprj", image);
    }
}

void WriteParts(Bundle& bundle)
{
    const fs::path folder = bundle.Folder("Parts");
    for (const Part& part : AllParts()) {
        GrooveEngine engine;
        ResetToBundle(engine);
        Write(part, engine);
        bundle.Image(folder / (std::string(part.name) + ".kvprt"),
                     ImageOf([&](std::uint8_t* bytes) { return SavePart(engine, bytes); }));
    }
}

} // namespace

} // namespace korvane::factory

int main(int count, char** arguments)
{
    if (count != 2) return std::fprintf(stderr, "usage: korvane-factory FOLDER\n"), 2;
    korvane::factory::Bundle bundle(arguments[1]);
    std::filesystem::create_directories(bundle.root / "Graphics");
    korvane::factory::WriteSounds(bundle);
    korvane::factory::WritePrograms(bundle, "Synth Programs", ".kvsynth", korvane::kSamplerChannels,
                                    korvane::factory::SynthPrograms());
    korvane::factory::WritePrograms(bundle, "Sampler Programs", ".kvsmp", 0, korvane::factory::SamplerPrograms());
    korvane::factory::WriteGrooves(bundle);
    korvane::factory::WriteParts(bundle);
    return bundle.complete ? 0 : 1;
}
