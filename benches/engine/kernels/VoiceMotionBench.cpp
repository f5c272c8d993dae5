// Modulation of the voices: plain form and each instruction set.
#include <benchmark/benchmark.h>

#include <vector>

#include "engine/kernels/Kernels.h"

namespace korvane {
namespace {

struct Rows {
    alignas(64) float cutoff[kMaxRun], gain[kMaxRun], amp[kMaxRun], modAmount[kMaxRun];
};

/// isa     one of kIsas; behind them the plain form
/// voices  their LFOs are triangles
/// acting  an LFO acts on the cutoff of every voice
void VoiceMotionKernel(benchmark::State& state)
{
    const auto isa = static_cast<std::size_t>(state.range(0));
    const int voices = static_cast<int>(state.range(1)), frames = static_cast<int>(state.range(3));
    const bool acting = state.range(2) != 0;
    if (isa < kIsas.size() && !Runs(kIsas[isa])) return state.SkipWithError("does not run here");
    ChannelMotion<float> channel, moved;
    for (int l = 0; l < kLfos; ++l) channel.increment[l] = 1e-4f, channel.amount[l] = 0.5f, channel.shape[l] = 1.0f;
    channel.toCutoff = {0.5f, 0.0f, acting ? 1.0f : 0.0f, 0.0f};
    VoiceMotion<float> voice;
    voice.amp = voice.env1 = voice.env2 = {1.0f, 0.5f, 1e-5f, 1e-5f, 0.5f};
    std::vector<VoiceMotion<float>> moving(static_cast<std::size_t>(voices), voice);
    std::vector<Rows> rows(moving.size());
    std::vector<MotionJob> jobs;
    for (std::size_t v = 0; v < moving.size(); ++v)
        jobs.push_back({&moving[v],
                        &channel,
                        &moved,
                        {},
                        acting,
                        kNeverReleased,
                        rows[v].cutoff,
                        rows[v].gain,
                        rows[v].amp,
                        nullptr});
    ModulateVoicesKernel* const run = isa < kIsas.size() ? KernelsOf(kIsas[isa]).modulateVoices : ModulateVoicesPlainly;
    for (auto _ : state) {
        run(jobs.data(), voices, frames);
        channel = moved;
    }
    state.counters["ns/voice/frame"] =
        benchmark::Counter(1e-9 * voices * frames * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(VoiceMotionKernel)
    ->ArgNames({"isa", "voices", "acting", "frames"})
    ->ArgsProduct({{3, 0, 1, 2}, {1, 20, 78}, {0, 1}, {1, 8, 128}});

} // namespace
} // namespace korvane
