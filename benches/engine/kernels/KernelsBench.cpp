// Cost of each kernel in its plain form and as each instruction set has it.
#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <random>
#include <vector>

#include "engine/kernels/Kernels.h"
#include "platform/FlushToZero.h"

namespace korvane {
namespace {

constexpr int kFrames = 128;
constexpr int kVoicesAtOnce = kChannels * kVoices;

struct alignas(64) Rows {
    float values[kMaxRun];
};

/// Rows of random numbers, each row between the same ends.
std::vector<Rows> Random(int rows, float from, float to)
{
    std::minstd_rand random(1);
    std::vector<Rows> made(static_cast<std::size_t>(rows));
    for (Rows& row : made)
        for (float& value : row.values)
            value = from + (to - from) * static_cast<float>(random()) / static_cast<float>(std::minstd_rand::max());
    return made;
}

/// A voice at a time, a side at a time.
void PlainFilterVoices(const FilterJob* jobs, int count, const CutoffPair* table, int frames)
{
    for (const FilterJob* job = jobs; job < jobs + count; ++job)
        for (int side = 0; side < 2; ++side) {
            const float* const signal = side == 0 ? job->left : job->right;
            float* const mix = side == 0 ? job->mixLeft : job->mixRight;
            float* const state = job->state[side];
            Ladder<float> ladder{state[0], state[1], state[2], state[3]};
            for (int n = 0; n < frames; ++n) {
                const CutoffPair pair = table[CutoffIndex(job->cutoff[n])];
                for (int pass = 0; pass < kOversampling; ++pass) ladder.Pass(signal[n], pair.g, pair.k, job->resonance);
                const float upper = (job->type == FilterType::HighPass ? ladder.u : ladder.s3) - ladder.s4;
                mix[n] += (job->type == FilterType::LowPass ? ladder.s4 : upper) * job->gain[n];
            }
            state[0] = ladder.s1, state[1] = ladder.s2, state[2] = ladder.s3, state[3] = ladder.s4;
        }
}

/// Seventy-eight voices; unit: voice.
std::function<void()> FilterVoices(const Kernels* of)
{
    struct Work {
        std::vector<Rows> signals = Random(2 * kVoicesAtOnce, -0.5f, 0.5f), cutoffs = Random(kVoicesAtOnce, 0.2f, 0.8f);
        std::vector<Rows> mixes = Random(2, 0.0f, 0.0f), gains = Random(1, 0.5f, 1.0f);
        float states[kVoicesAtOnce][2][kFilterStages] = {};
        std::vector<FilterJob> jobs;
        const CutoffPair* table = CutoffTable();
    };
    const auto work = std::make_shared<Work>();
    for (int v = 0; v < kVoicesAtOnce; ++v) {
        const auto n = static_cast<std::size_t>(v);
        work->jobs.push_back({work->states[v], work->signals[2 * n].values, work->signals[2 * n + 1].values,
                              work->cutoffs[n].values, work->gains[0].values, 0.4f, static_cast<FilterType>(v % 3),
                              work->mixes[0].values, work->mixes[1].values});
    }
    FilterVoicesKernel* const run = of ? of->filterVoices : PlainFilterVoices;
    return [work, run] { run(work->jobs.data(), kVoicesAtOnce, work->table, kFrames); };
}

struct Row {
    const char* name;                                 // with its unit, as the page has it
    double units;                                     // in a call
    std::function<void()> (*make)(const Kernels* of); // a call of it; null for the plain form
};
// clang-format off
constexpr Row kRows[] = {
    {"voice filter, voice", kVoicesAtOnce, FilterVoices},
};
// clang-format on

void Register(const Row& row, const std::string& form, const Kernels* of)
{
    benchmark::RegisterBenchmark(
        ("Kernel/" + std::string(row.name) + "/" + form).c_str(), [row, of](benchmark::State& state) {
            const auto call = row.make(of);
            EnableFlushToZero(); // as blocks have it
            for (auto _ : state) call();
            state.counters["ns/unit/frame"] =
                benchmark::Counter(row.units * kFrames * static_cast<double>(state.iterations()) * 1e-9,
                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
        });
}

const bool registered = [] {
    constexpr const char* kNames[] = {"sse2", "avx2", "avx512"};
    for (const Row& row : kRows) {
        Register(row, "plain", nullptr);
        for (const Isa isa : kIsas)
            if (Runs(isa)) Register(row, kNames[static_cast<int>(isa)], &KernelsOf(isa));
    }
    return true;
}();

} // namespace
} // namespace korvane
