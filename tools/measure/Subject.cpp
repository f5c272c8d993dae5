// The plug-in that is measured, and states for it.
#include "measure/Subject.h"

#include <dlfcn.h>

#include <cstring>
#include <fstream>
#include <map>

#include "content/state/ChannelChunk.h"
#include "content/state/StateImage.h"
#include "framework/Limits.h"
#include "render/Failure.h"
#include "render/ReadFile.h"

namespace korvane::measure {

namespace fs = std::filesystem;

Subject::Subject() : bundle(fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "Korvane")
{
    if (!dlopen((bundle / "korvane.so").c_str(), RTLD_NOW)) throw render::Failure(dlerror()); // stays, as in a host
    std::multimap<double, Groove> byCost;
    for (const auto& file : fs::directory_iterator(bundle / "Grooves")) {
        const Groove groove{file.path().stem().string(), render::ReadFile(file.path())};
        const auto host = Playing(groove);
        Times times;
        for (int n = 0; n < 8 * static_cast<int>(kRate) / kFrames; ++n)
            times.micros.push_back(Micros([&host] { host->Render(kFrames); }));
        byCost.emplace(-times.Median(), groove);
    }
    for (auto& [cost, groove] : byCost) grooves.push_back(std::move(groove));
}

std::unique_ptr<PluginHost> Subject::Open(double rate) const
{
    auto host = std::make_unique<PluginHost>((bundle / "korvane.so").string(), rate, kFrames);
    host->SetRealTime(true);
    return host;
}

std::unique_ptr<PluginHost> Subject::Playing(const Groove& groove, double rate) const
{
    auto host = Open(rate);
    host->SetState(groove.bytes, groove.name);
    host->SetPlaying(true);
    host->Render(kFrames);
    return host;
}

Groove BigGroove(const Groove& like, const fs::path& folder)
{
    constexpr std::size_t kBytes = 2'000'000;
    constexpr char kHeader[] = "RIFF\xA4\x84\x1E\0WAVEfmt \x10\0\0\0\1\0\1\0\x80\xBB\0\0\0\x77\1\0\2\0\x10\0"
                               "data\x80\x84\x1E"; // mono, 48 kHz, 16 bits
    static_assert(sizeof kHeader == 44);
    fs::create_directories(folder);
    Groove groove{"32 samples of 2 MB", like.bytes};
    for (int n = 0; n < kSamplerChannels * kLayers; ++n) {
        const std::string path = (folder / (std::to_string(n) + ".wav")).string();
        std::ofstream(path, std::ios::binary).write(kHeader, sizeof kHeader) << std::string(kBytes, '\x11');
        const int chunk = kStateHeaderBytes + n / kLayers * (4 + kChannelChunkBytes) + 4;
        char* const text = reinterpret_cast<char*>(
            &groove.bytes[static_cast<std::size_t>(chunk + 4 + (kFirstLayerSlot + n % kLayers) * kImagePathBytes)]);
        std::memset(text, 0, kImagePathBytes);
        path.copy(text, kImagePathBytes - 1);
    }
    return groove;
}

} // namespace korvane::measure
