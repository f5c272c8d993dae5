// Cost of the effects per frame: each unit, the equaliser, the bare reverb, a channel's whole rack.
#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <random>
#include <vector>

#include "engine/fx/FXUnit.h"
#include "engine/fx/reverb/fxReverb.h"

using namespace korvane;

namespace {

constexpr float kRate = 48000.0f, kTempo = 120.0f;
constexpr int kFrames = 128;

std::unique_ptr<FXUnit> Playing(FxType type)
{
    auto unit = std::make_unique<FXUnit>(type);
    unit->Reset(kRate);
    unit->bypass = 0;
    unit->x = 0.6f;
    unit->y = 0.4f;
    unit->lfoBeats = 1.0f;
    unit->lfoAmount = 0.3f;
    return unit;
}

template <class Process>
void Measure(benchmark::State& state, const Process& process)
{
    std::minstd_rand random(1);
    std::array<float, 2 * kFrames> noise, block;
    for (float& x : noise) x = static_cast<float>(random()) / static_cast<float>(random.max()) - 0.5f;
    for (auto _ : state) {
        block = noise;
        process(&block[0], &block[kFrames]);
        benchmark::DoNotOptimize(block);
    }
    state.counters["ns/frame"] = benchmark::Counter(static_cast<double>(state.iterations()) * kFrames / 1e9,
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Unit(benchmark::State& state)
{
    auto unit = Playing(static_cast<FxType>(state.range(0)));
    Measure(state, [&](float* left, float* right) { unit->Process(left, right, kFrames, kTempo); });
}
BENCHMARK(Unit)->DenseRange(0, 9)->Arg(11);

void EqualiserOnly(benchmark::State& state)
{
    FXUnit unit(FxType::Pump);
    unit.Reset(kRate);
    unit.bypass = unit.eqOn = 1;
    unit.eqGains.fill(0.7f);
    Measure(state, [&](float* left, float* right) { unit.Process(left, right, kFrames, kTempo); });
}
BENCHMARK(EqualiserOnly);

void Reverb(benchmark::State& state)
{
    fxReverb unit;
    unit.SetSampleRate(kRate);
    Measure(state, [&](float* left, float* right) {
        float* blocks[] = {left, right};
        unit.ProcessReplacing(blocks, blocks, kFrames);
    });
}
BENCHMARK(Reverb);

void Rack(benchmark::State& state)
{
    std::vector<std::unique_ptr<FXUnit>> rack;
    rack.push_back(Playing(FxType::Stutter));
    for (int k = 0; k < 10; ++k) rack.push_back(Playing(static_cast<FxType>(k)));
    rack.back()->eqOn = 1;
    if (state.range(0) == 0)
        for (auto& unit : rack) unit->bypass = 1;
    Measure(state, [&](float* left, float* right) {
        for (auto& unit : rack) unit->Process(left, right, kFrames, kTempo);
    });
}
BENCHMARK(Rack)->Arg(0)->Arg(1);

} // namespace
