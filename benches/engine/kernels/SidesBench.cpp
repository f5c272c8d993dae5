// Cost of the effects that take the sides of channels side by side, per channel and frame.
#include <benchmark/benchmark.h>

#include <cstring>
#include <random>
#include <string>

#include "engine/kernels/Kernels.h"
#include "framework/Limits.h"
#include "platform/FlushToZero.h"

using namespace korvane;

namespace {

constexpr int kMaxFrames = 128;

template <template <class> class Side>
struct Channels {
    alignas(64) float noise[kChannels][2][kMaxFrames], signal[kChannels][2][kMaxFrames], lfo[kMaxFrames];
    alignas(64) Side<Stereo> sides[kChannels];
    SidesJob<Side> jobs[kChannels];
};

/// Noise everywhere: settings are small enough that nothing grows.
template <template <class> class Side>
void Sides(benchmark::State& state, SidesKernel<Side>* kernel)
{
    const int channels = static_cast<int>(state.range(0)), frames = static_cast<int>(state.range(1));
    static Channels<Side> all;
    std::minstd_rand random(1);
    const auto fill = [&](auto& target) {
        float* const values = reinterpret_cast<float*>(&target);
        for (std::size_t n = 0, bytes = sizeof target; n < bytes / sizeof(float); ++n)
            values[n] = static_cast<float>(random()) / static_cast<float>(random.max()) * 0.2f - 0.1f;
    };
    fill(all.noise);
    fill(all.lfo);
    fill(all.sides);
    for (int c = 0; c < channels; ++c) all.jobs[c] = {all.signal[c][0], all.signal[c][1], &all.sides[c], all.lfo};
    fill(all.signal);
    EnableFlushToZero(); // as blocks have it: the noise may die
    for (auto _ : state) {
        kernel(all.jobs, channels, frames);
        benchmark::DoNotOptimize(all.signal);
    }
    const double units = static_cast<double>(state.iterations()) * channels * frames;
    state.counters["ns/unit/frame"] =
        benchmark::Counter(units / 1e9, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

template <template <class> class Side>
void Register(const char* name, SidesKernel<Side>* Kernels::*kernel)
{
    const auto add = [&](const char* form, SidesKernel<Side>* function) {
        const std::string title = "Kernel/" + std::string(name) + ", channel/" + form;
        for (const int channels : {1, 2, 4, 13})
            benchmark::RegisterBenchmark(title.c_str(), Sides<Side>, function)->Args({channels, kMaxFrames});
        benchmark::RegisterBenchmark(title.c_str(), Sides<Side>, function)->Args({kChannels, 1});
    };
    add("plain", [](const SidesJob<Side>* jobs, int count, int frames) {
        for (int n = 0; n < count; ++n) RunSides(jobs[n], frames);
    });
    constexpr const char* kNames[] = {"sse2", "avx2", "avx512"};
    for (const Isa isa : kIsas)
        if (Runs(isa)) add(kNames[static_cast<int>(isa)], KernelsOf(isa).*kernel);
}

const bool registered = [] {
    Register("distortion", &Kernels::distort);
    Register("decimator", &Kernels::decimate);
    Register("resonant filter", &Kernels::filterSides);
    Register("phaser", &Kernels::phase);
    Register("equaliser", &Kernels::equalise);
    return true;
}();

} // namespace
