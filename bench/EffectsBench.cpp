// Cost of the effects per frame: each unit, the equaliser, the bare reverb, a channel's whole rack.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "engine/FXUnit.h"
#include "engine/fxReverb.h"

using namespace korvane;

namespace {

constexpr float kRate = 48000.0f, kTempo = 120.0f;
constexpr int kFrames = 128;

struct Signal {
    Signal()
    {
        std::uint32_t seed = 1;
        for (float& sample : source) {
            seed = seed * 196314165u + 907633515u;
            sample = static_cast<float>(static_cast<std::int32_t>(seed)) / 2147483648.0f * 0.5f;
        }
    }
    void Refill()
    {
        std::copy_n(source.begin(), kFrames, left.begin());
        std::copy_n(source.begin() + kFrames, kFrames, right.begin());
    }
    std::array<float, 2 * kFrames> source{};
    std::array<float, kFrames> left{}, right{};
};

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

void PerFrame(benchmark::State& state)
{
    state.counters["ns/frame"] = benchmark::Counter(static_cast<double>(state.iterations()) * kFrames / 1e9,
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Unit(benchmark::State& state)
{
    auto unit = Playing(static_cast<FxType>(state.range(0)));
    Signal signal;
    for (auto _ : state) {
        signal.Refill();
        unit->Process(signal.left.data(), signal.right.data(), kFrames, kTempo);
        benchmark::DoNotOptimize(signal);
    }
    PerFrame(state);
}
BENCHMARK(Unit)->DenseRange(0, 9)->Arg(11);

void EqualiserOnly(benchmark::State& state)
{
    FXUnit unit(FxType::Pump);
    unit.Reset(kRate);
    unit.bypass = unit.eqOn = 1;
    unit.eqGains.fill(0.7f);
    Signal signal;
    for (auto _ : state) {
        signal.Refill();
        unit.Process(signal.left.data(), signal.right.data(), kFrames, kTempo);
        benchmark::DoNotOptimize(signal);
    }
    PerFrame(state);
}
BENCHMARK(EqualiserOnly);

void Reverb(benchmark::State& state)
{
    fxReverb unit;
    unit.SetSampleRate(kRate);
    Signal signal;
    float* blocks[] = {signal.left.data(), signal.right.data()};
    for (auto _ : state) {
        signal.Refill();
        unit.ProcessReplacing(blocks, blocks, kFrames);
        benchmark::DoNotOptimize(signal);
    }
    PerFrame(state);
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
    Signal signal;
    for (auto _ : state) {
        signal.Refill();
        for (auto& unit : rack) unit->Process(signal.left.data(), signal.right.data(), kFrames, kTempo);
        benchmark::DoNotOptimize(signal);
    }
    PerFrame(state);
}
BENCHMARK(Rack)->Arg(0)->Arg(1);

} // namespace
