// Cost of what every channel's mix passes through: sines of LFOs, the look for bad samples, strips.
#include <benchmark/benchmark.h>

#include <array>

#include "engine/kernels/Kernels.h"
#include "framework/Limits.h"

using namespace korvane;

namespace {

constexpr int kFrames = 128;

/// units  that an iteration works through
template <class Body>
void Measure(benchmark::State& state, int units, const Body& body)
{
    const Isa isa = static_cast<Isa>(state.range(0));
    if (!Runs(isa)) return state.SkipWithError("not on this processor");
    for (auto _ : state) {
        body(KernelsOf(isa));
        benchmark::ClobberMemory();
    }
    state.counters["ns/unit"] = benchmark::Counter(static_cast<double>(state.iterations()) * units / 1e9,
                                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// ns per frame.
void SinesOfFrames(benchmark::State& state)
{
    std::array<double, kFrames> phases;
    std::array<float, kFrames> sines;
    for (int n = 0; n < kFrames; ++n) phases[static_cast<std::size_t>(n)] = (n + 0.5) / kFrames;
    benchmark::DoNotOptimize(phases);
    Measure(state, kFrames, [&](const Kernels& k) { k.sines(phases.data(), 0.5f, sines.data(), kFrames); });
}
BENCHMARK(SinesOfFrames)->DenseRange(0, 2);

void SinesPlain(benchmark::State& state)
{
    float phase = 0.0f;
    for (auto _ : state) {
        phase = phase < 0.9f ? phase + 0.0123f : 0.0f;
        benchmark::DoNotOptimize(SineOf(static_cast<double>(phase)));
    }
}
BENCHMARK(SinesPlain);

struct Sound {
    float in[kChannels][2][kFrames]{}, direct[kChannels][2][kFrames], main[2][kFrames]{};
};

/// ns per frame of a channel.
void LookForBadSamples(benchmark::State& state)
{
    static Sound sound;
    Measure(state, kFrames,
            [&](const Kernels& k) { benchmark::DoNotOptimize(k.allSound(sound.in[0][0], sound.in[0][1], kFrames)); });
}
BENCHMARK(LookForBadSamples)->DenseRange(0, 2);

/// ns per frame of a channel; with gains that move, and without.
void Strips(benchmark::State& state)
{
    static Sound sound;
    StripJob jobs[kChannels];
    Measure(state, kChannels * kFrames, [&](const Kernels& k) {
        for (int c = 0; c < kChannels; ++c) {
            const auto side = [&](int s) -> StripSide {
                return {sound.in[c][s], sound.direct[c][s], 0.5f, state.range(1) ? 0.1f : 0.5f, 0.0f};
            };
            jobs[c] = {side(0), side(1), c == 0};
        }
        k.mixStrips(jobs, kChannels, sound.main[0], sound.main[1], kFrames);
    });
}
BENCHMARK(Strips)->ArgsProduct({{0, 1, 2}, {0, 1}});

} // namespace
