// Cost of the sample layers, side by side.
#include <benchmark/benchmark.h>

#include <vector>

#include "engine/kernels/Kernels.h"

using namespace korvane;

namespace {

/// unit: layer; isa -1: the plain form
void BM_Layers(benchmark::State& state)
{
    const int isa = static_cast<int>(state.range(0)), count = static_cast<int>(state.range(1));
    const int frames = static_cast<int>(state.range(2)), sides = static_cast<int>(state.range(3));
    if (isa >= 0 && !Runs(static_cast<Isa>(isa))) return state.SkipWithError("not on this machine");
    constexpr int kSampleFrames = 1 << 16;
    std::vector<float> sample(kSampleFrames + 2, 0.1f), mix(2 * kMaxRun * static_cast<std::size_t>(count));
    std::vector<LayerState> layers(count);
    std::vector<LayerJob> jobs;
    for (LayerState& layer : layers) {
        layer.increment = 1.01;
        layer.gainLeft = layer.gainRight = 1.0f;
        layer.envRate = 1e-3f;
        layer.coefficients = {0.99f, -1.98f, 0.98f, 0.5f, 0.5f, 0.1f};
        const float* const data = sample.data();
        float* const voice = &mix[2 * kMaxRun * (jobs.size() / kLayers)];
        jobs.push_back(
            {&layer, {data, data + sides - 1}, kSampleFrames, false, 0, frames, voice, voice + kMaxRun, 0, 0});
    }
    for (auto _ : state) {
        for (LayerState& layer : layers) layer.position = 100.5;
        if (isa >= 0)
            KernelsOf(static_cast<Isa>(isa)).playLayers(jobs.data(), count, 0.005f);
        else
            for (LayerJob& job : jobs) PlayLayer(job, 0.005f);
        benchmark::DoNotOptimize(mix.data());
    }
    const double units = static_cast<double>(state.iterations()) * count * frames;
    state.counters["ns/layer/frame"] =
        benchmark::Counter(units * 1e-9, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_Layers)
    ->ArgNames({"isa", "layers", "frames", "sides"})
    ->ArgsProduct({{-1, 0, 1, 2}, {1, 5, 8, 16, 192}, {1, 128}, {1, 2}});

} // namespace
