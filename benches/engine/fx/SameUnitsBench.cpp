// Cost of the same effect of several channels, per channel and frame.
#include <benchmark/benchmark.h>

#include <array>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

#include "engine/fx/FXUnit.h"
#include "framework/Limits.h"

using namespace korvane;

namespace {

constexpr float kRate = 48000.0f, kTempo = 120.0f;
constexpr int kMost = 128, kEqualiser = 12;

/// Arguments: type, 12 being the equaliser alone; channels; frames; percent of LFO.
void SameUnits(benchmark::State& state)
{
    const bool equaliser = state.range(0) == kEqualiser;
    const auto type = equaliser ? FxType::Pump : static_cast<FxType>(state.range(0));
    const auto channels = static_cast<std::size_t>(state.range(1));
    const int frames = static_cast<int>(state.range(2));
    std::minstd_rand random(1);
    static std::array<std::array<float, kMost>, 2 * kChannels> noise, rows;
    for (auto& row : noise)
        for (float& x : row) x = static_cast<float>(random()) / static_cast<float>(random.max()) - 0.5f;
    std::vector<std::unique_ptr<FXUnit>> units;
    std::vector<UnitRun> runs;
    for (std::size_t c = 0; c < channels; ++c) {
        FXUnit& unit = *units.emplace_back(std::make_unique<FXUnit>(type));
        unit.Reset(kRate);
        unit.bypass = unit.eqOn = equaliser;
        unit.eqGains.fill(0.7f);
        unit.x = 0.6f;
        unit.y = 0.4f;
        unit.lfoBeats = 1.0f;
        unit.lfoAmount = static_cast<float>(state.range(3)) * 0.01f;
        runs.push_back({&unit, {rows[2 * c].data(), rows[2 * c + 1].data(), frames}});
    }
    for (auto _ : state) {
        std::memcpy(rows.data(), noise.data(), frames < 16 ? sizeof rows[0] : channels * 2 * sizeof rows[0]);
        ProcessUnits(runs, kTempo);
        benchmark::DoNotOptimize(rows);
    }
    const double done = static_cast<double>(state.iterations()) * static_cast<double>(channels) * frames;
    state.counters["ns/unit"] =
        benchmark::Counter(done / 1e9, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(SameUnits)->ArgsProduct({{0, 1, 3, 4, 5, kEqualiser}, {1, 2, 4, kChannels}, {1, kMost}, {0, 30}});

} // namespace
