// Cost of a reverb send per frame, of several channels at once, in each instruction set.
#include <benchmark/benchmark.h>

#include <array>
#include <deque>

#include "engine/fx/reverb/fxReverb.h"
#include "engine/kernels/Kernels.h"
#include "framework/Limits.h"

using namespace korvane;

namespace {

constexpr int kFrames = 128;

struct Sends {
    std::deque<fxReverb> reverbs;
    float sound[kChannels][2][kFrames];

    explicit Sends(std::size_t count)
    {
        for (std::size_t n = 0; n < count; ++n) {
            fxReverb& reverb = reverbs.emplace_back(ReverbParts::Late);
            reverb.SetParameter(reverb::RoomSize, 1.0f);
            reverb.SetParameter(reverb::Decay, 0.1f);
            reverb.SetSampleRate(48000.0f);
        }
        std::fill_n(&sound[0][0][0], sizeof sound / sizeof(float), 0.1f);
    }

    template <class Run>
    void Measure(benchmark::State& state, int frames, const Run& run)
    {
        ReverbJob jobs[kChannels];
        const auto count = static_cast<int>(reverbs.size());
        for (auto _ : state) {
            for (std::size_t n = 0; n < reverbs.size(); ++n) {
                float* const sides[] = {sound[n][0], sound[n][1]};
                jobs[n] = reverbs[n].Job(sides, sides, false);
            }
            run(jobs, count, frames);
        }
        state.counters["ns/frame"] = benchmark::Counter(static_cast<double>(state.iterations()) * frames * count / 1e9,
                                                        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    }
};

void ReverbSends(benchmark::State& state)
{
    const Isa isa = static_cast<Isa>(state.range(0));
    if (!Runs(isa)) return state.SkipWithError("not on this processor");
    Sends(static_cast<std::size_t>(state.range(1)))
        .Measure(state, static_cast<int>(state.range(2)), *KernelsOf(isa).runReverbs);
}
BENCHMARK(ReverbSends)->ArgsProduct({{0, 1, 2}, {1, 2, 13}, {1, kFrames}});

void ReverbSendsPlain(benchmark::State& state)
{
    Sends(1).Measure(state, kFrames, [](ReverbJob* jobs, int, int frames) { RunReverb(jobs[0], frames); });
}
BENCHMARK(ReverbSendsPlain);

} // namespace
