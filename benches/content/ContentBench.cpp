// What a waveform file costs before it sounds.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "content/WaveTables.h"
#include "platform/Files.h"
#include "support/Riff.h"

namespace korvane {

namespace {

/// A mono file of floats. Argument: its frames.
void BM_BuildWaveTables(benchmark::State& state)
{
    std::vector<float> frames;
    for (std::int64_t n = 0; n < state.range(0); ++n)
        frames.push_back(static_cast<float>(n) / static_cast<float>(state.range(0)) - 0.5f);
    const std::string path =
        (std::filesystem::temp_directory_path() / ("korvane_bench." + std::to_string(getpid()))).string();
    std::ofstream(path, std::ios::binary) << riff::WavOf(frames);
    std::vector<float> tables(kWaveTableFloats);
    for (auto _ : state) BuildWaveTables(EnginePath(path.c_str()).c_str(), tables.data());
    std::filesystem::remove(path);
}
BENCHMARK(BM_BuildWaveTables)->Arg(2048)->Arg(1000000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace korvane
