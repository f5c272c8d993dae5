// Cost of the unison loop in each instruction set.
#include <benchmark/benchmark.h>

#include <vector>

#include "engine/kernels/Kernels.h"

using namespace korvane;

namespace {

/// isa      of kIsas, the one after the last is the plain form
/// all      every source instead of oscillator 1 alone
/// cycle    frames of the reference, which oscillator 1 is synced to
void BM_Unison(benchmark::State& state)
{
    const int isa = static_cast<int>(state.range(0)), count = static_cast<int>(state.range(2)),
              frames = static_cast<int>(state.range(4)), cycle = static_cast<int>(state.range(5));
    if (isa < static_cast<int>(kIsas.size()) && !Runs(static_cast<Isa>(isa))) return state.SkipWithError("not here");
    RenderUnisonKernel* const render =
        isa == static_cast<int>(kIsas.size()) ? RenderUnisonPlainly : KernelsOf(static_cast<Isa>(isa)).renderUnison;
    std::vector<float> table(kWaveTablePoints, 0.3f);
    UnisonMix mix = {.unisonCount = count, .modulation = static_cast<OscillatorModulation>(state.range(1))};
    UnisonTuning tuning;
    for (int source = 0; source < kOscillatorsAndNoise; ++source) {
        mix.heard[source] = source == 0 || state.range(3) != 0;
        for (int u = 0; u < kUnison; ++u)
            mix.gainLeft[source][u] = mix.gainRight[source][u] = mix.heard[source] ? 0.1f : 0.0f;
    }
    for (int osc = 0; osc < kOscillators; ++osc) tuning.tables[osc] = table.data();
    const std::uint32_t increment = 0xffffffffu / static_cast<std::uint32_t>(cycle);
    for (std::uint32_t u = 0; u < kUnison; ++u) {
        tuning.syncIncrements[u] = increment + u * (increment >> 10);
        for (auto& increments : tuning.increments) increments[u] = tuning.syncIncrements[u] * 2;
    }
    UnisonPhases phases = {};
    RandomGenerator random;
    alignas(64) float amount[kMaxRun] = {}, left[kMaxRun], right[kMaxRun];
    for (auto _ : state) {
        render({&mix, &tuning, amount, &phases, left, right}, random, frames);
        benchmark::ClobberMemory();
    }
    state.counters["ns/unit/frame"] =
        benchmark::Counter(1e-9 * count * frames * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_Unison)
    ->ArgNames({"isa", "kind", "unison", "all", "frames", "cycle"})
    ->ArgsProduct({{0, 1, 2, 3}, {0, 1, 2}, {1, 16}, {0, 1}, {128}, {100}})
    ->ArgsProduct({{0, 1, 2, 3}, {0}, {1, 16}, {1}, {1, 8}, {100}})   // short runs
    ->ArgsProduct({{0, 1, 2, 3}, {0}, {1, 16}, {1}, {128}, {20, 5}}); // high notes

} // namespace
