// What a waveform file costs before it sounds.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "content/WaveTables.h"
#include "platform/Files.h"

namespace korvane {

namespace {

/// A mono file of floats. Argument: its frames.
void BM_BuildWaveTables(benchmark::State& state)
{
    const auto bytes = static_cast<std::uint32_t>(4 * state.range(0));
    const std::uint32_t header[] = {0x46464952, 36 + bytes, 0x45564157, 0x20746d66, 16,   0x00010003,
                                    44100,      176400,     0x00200004, 0x61746164, bytes};
    const std::string path =
        (std::filesystem::temp_directory_path() / ("korvane_bench." + std::to_string(getpid()))).string();
    std::FILE* file = std::fopen(path.c_str(), "wb");
    std::fwrite(header, sizeof header, 1, file);
    for (std::int64_t n = 0; n < state.range(0); ++n) {
        const float frame = static_cast<float>(n) / static_cast<float>(state.range(0)) - 0.5f;
        std::fwrite(&frame, sizeof frame, 1, file);
    }
    std::fclose(file);
    std::vector<float> tables(kWaveTableFloats);
    for (auto _ : state) BuildWaveTables(EnginePath(path.c_str()).c_str(), tables.data());
    std::remove(path.c_str());
}
BENCHMARK(BM_BuildWaveTables)->Arg(2048)->Arg(1000000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace korvane
