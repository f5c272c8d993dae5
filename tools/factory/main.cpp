// korvane-factory: computes the content that the instrument ships with. Argument: the bundle's folder.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "content/state/ChannelChunk.h"
#include "content/state/PartImage.h"
#include "content/state/StateImage.h"
#include "engine/GrooveEngine.h"
#include "factory/Bundle.h"
#include "factory/drums/Kits.h"
#include "factory/grooves/Grooves.h"
#include "factory/grooves/Parts.h"
#include "factory/programs/Programs.h"
#include "factory/waves/Waves.h"

namespace korvane::factory {

namespace {

namespace fs = std::filesystem;

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
