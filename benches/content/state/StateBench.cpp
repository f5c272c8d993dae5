// What saving and restoring the host's state costs.
#include <benchmark/benchmark.h>

#include <vector>

#include "content/state/StateImage.h"
#include "engine/GrooveEngine.h"

namespace korvane {

namespace {

/// A full groove: a note with four locks on every second step.
std::vector<std::uint8_t> BusyState(GrooveEngine& engine)
{
    engine.ResetGroove();
    for (auto& pattern : engine.score.patterns)
        for (int c = 0; c < kChannels; ++c)
            for (int step = 0; step < kSteps; step += 2) {
                pattern->steps[c][step] = 1u;
                for (int n = 0; n < 4; ++n) pattern->locks[c][step].Append(n, 0.25f);
            }
    std::vector<std::uint8_t> image(static_cast<std::size_t>(SaveState(engine, nullptr)));
    SaveState(engine, image.data());
    return image;
}

void SaveState(benchmark::State& state)
{
    GrooveEngine engine;
    std::vector<std::uint8_t> image = BusyState(engine);
    for (auto _ : state) benchmark::DoNotOptimize(SaveState(engine, image.data()));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(image.size()));
}

/// Blocks are skipped while this runs.
void LoadState(benchmark::State& state)
{
    GrooveEngine engine;
    const std::vector<std::uint8_t> image = BusyState(engine);
    for (auto _ : state)
        benchmark::DoNotOptimize(LoadState(engine, image.data(), static_cast<std::int32_t>(image.size())));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(image.size()));
}

BENCHMARK(SaveState)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadState)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace korvane
