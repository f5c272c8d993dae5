// Channel filters of all voices, side by side.
#include "engine/kernels/VoiceFilter.h"

#include "engine/kernels/lanes/Transpose.h"

namespace korvane::KORVANE_ISA_SPACE {

FilterVoicesKernel FilterVoices;

namespace {

// A vector holds left and right of some voices. A ladder waits for its own result, so one vector takes as long as
// several: as many run interleaved as the registers hold.
constexpr int kVoicesPerVector = kLanes / 2;
constexpr int kMaxVectors = kLanes == 16 ? 5 : 6;
constexpr int kFullGroup = kMaxVectors * kVoicesPerVector;
constexpr int kMaxJobs = kChannels * kVoices;

/// The lanes of a vector, one by one.
struct Lanes {
    float s1[kLanes] = {}, s2[kLanes] = {}, s3[kLanes] = {}, s4[kLanes] = {};
    float resonance[kLanes] = {};
    std::int32_t isLowPass[kLanes] = {}, isHighPass[kLanes] = {};
    const float* signal[kLanes];
    const float* cutoff[kLanes]; // each voice's twice
};

template <int kVectors>
struct Group {
    alignas(64) Lanes lanes[kVectors];
    // Of kLanes frames: lanes of each vector.
    alignas(64) Floats signal[kLanes][kVectors];
    alignas(64) Ints index[kLanes][kVectors]; // into the cutoff table
};

template <int kVectors>
void LoadVoices(Group<kVectors>& group, const FilterJob* const* jobs, int count)
{
    for (int lane = 0; lane < 2 * count; ++lane) {
        const FilterJob& job = *jobs[lane / 2];
        const float* const state = job.state[lane % 2];
        Lanes& lanes = group.lanes[lane / kLanes];
        const int at = lane % kLanes;
        lanes.s1[at] = state[0];
        lanes.s2[at] = state[1];
        lanes.s3[at] = state[2];
        lanes.s4[at] = state[3];
        lanes.resonance[at] = job.resonance;
        lanes.isLowPass[at] = job.type == FilterType::LowPass ? -1 : 0;
        lanes.isHighPass[at] = job.type == FilterType::HighPass ? -1 : 0;
        lanes.signal[at] = lane % 2 == 0 ? job.left : job.right;
        lanes.cutoff[at] = job.cutoff;
    }
    for (int lane = 2 * count; lane < kLanes * kVectors; ++lane)
        group.lanes[lane / kLanes].signal[lane % kLanes] = group.lanes[lane / kLanes].cutoff[lane % kLanes] = kNoRow;
}

template <int kVectors>
void StoreVoices(const Group<kVectors>& group, const FilterJob* const* jobs, int count)
{
    for (int lane = 0; lane < 2 * count; ++lane) {
        const Lanes& lanes = group.lanes[lane / kLanes];
        const int at = lane % kLanes;
        float* const state = jobs[lane / 2]->state[lane % 2];
        state[0] = lanes.s1[at];
        state[1] = lanes.s2[at];
        state[2] = lanes.s3[at];
        state[3] = lanes.s4[at];
    }
}

Ints IndexOf(Floats cutoff)
{
    constexpr auto kPairs = static_cast<float>(kCutoffPairs);
    const Floats place = cutoff * kPairs;
    const Floats above = Select(place > 0.0f, place, Floats{}); // NaN as well
    const Floats inside = Select(above < kPairs - 1.0f, above, Splat(kPairs - 1.0f));
    return __builtin_convertvector(inside, Ints);
}

constexpr int kFewFrames = kLanes / 4; // up to so many are not worth a transposition

template <int kVectors>
void LoadFrames(Group<kVectors>& group, int from, int frames)
{
    for (int v = 0; v < kVectors; ++v) {
        const Lanes& rows = group.lanes[v];
        Floats signal[kLanes], cutoff[kLanes];
        if (frames > kFewFrames) {
            for (int lane = 0; lane < kLanes; ++lane) signal[lane] = Load<Floats>(rows.signal[lane] + from);
            for (int lane = 0; lane < kLanes; ++lane) cutoff[lane] = Load<Floats>(rows.cutoff[lane] + from);
            Transpose(signal);
            Transpose(cutoff);
        } else {
            for (int n = 0; n < frames; ++n) {
                float lanes[2][kLanes];
                for (int lane = 0; lane < kLanes; ++lane) lanes[0][lane] = rows.signal[lane][from + n];
                for (int lane = 0; lane < kLanes; ++lane) lanes[1][lane] = rows.cutoff[lane][from + n];
                signal[n] = Load<Floats>(lanes[0]);
                cutoff[n] = Load<Floats>(lanes[1]);
            }
        }
        for (int n = 0; n < frames; ++n) {
            group.signal[n][v] = signal[n];
            group.index[n][v] = IndexOf(cutoff[n]);
        }
    }
}

template <int kVectors>
void StoreFrames(const Group<kVectors>& group, const FilterJob* const* jobs, int count, int from, int frames)
{
    for (int v = 0; v < kVectors; ++v) {
        Floats rows[kLanes];
        for (int n = 0; n < frames; ++n) rows[n] = group.signal[n][v];
        for (int n = frames; n < kLanes; ++n) rows[n] = Floats{};
        const bool few = frames <= kFewFrames;
        if (!few) Transpose(rows);
        for (int lane = 0; lane < kLanes && v * kLanes + lane < 2 * count; ++lane) {
            const FilterJob& job = *jobs[(v * kLanes + lane) / 2];
            float* const row = (lane % 2 == 0 ? job.left : job.right) + from;
            if (few)
                for (int n = 0; n < frames; ++n) row[n] = reinterpret_cast<const float*>(&rows[n])[lane];
            else
                Store(rows[lane], row);
        }
    }
}

/// Coefficients of each lane; both lanes of a voice have the same.
struct Coefficients {
    Floats g, k;
};

Coefficients Read(const CutoffPair* table, Ints index)
{
    Doubles raw;
    for (int voice = 0; voice < kVoicesPerVector; ++voice) raw[voice] = Load<double>(&table[index[2 * voice]]);
    const Floats pairs = reinterpret_cast<Floats>(raw);
    const auto even = [&]<int... lane>(std::integer_sequence<int, lane...>)
    {
        return __builtin_shufflevector(pairs, pairs, (lane / 2 * 2)...);
    };
    const auto odd = [&]<int... lane>(std::integer_sequence<int, lane...>)
    {
        return __builtin_shufflevector(pairs, pairs, (lane / 2 * 2 + 1)...);
    };
    constexpr auto kAll = std::make_integer_sequence<int, kLanes>();
    return {even(kAll), odd(kAll)};
}

/// Without resonance nothing is fed back, and the limiter sees the same input in every pass.
template <bool kResonant, int kVectors>
void RunFrames(Group<kVectors>& group, const CutoffPair* table, int frames)
{
    Ladder<Floats> ladders[kVectors];
    Floats resonance[kVectors];
    Ints isLowPass[kVectors], isHighPass[kVectors];
    for (int v = 0; v < kVectors; ++v) {
        const Lanes& lanes = group.lanes[v];
        ladders[v] = {Load<Floats>(lanes.s1), Load<Floats>(lanes.s2), Load<Floats>(lanes.s3), Load<Floats>(lanes.s4)};
        resonance[v] = Load<Floats>(lanes.resonance);
        isLowPass[v] = Load<Ints>(lanes.isLowPass);
        isHighPass[v] = Load<Ints>(lanes.isHighPass);
    }
    for (int n = 0; n < frames; ++n) {
        Floats x[kVectors];
        Coefficients c[kVectors];
        for (int v = 0; v < kVectors; ++v) {
            x[v] = group.signal[n][v];
            c[v] = Read(table, group.index[n][v]);
            if constexpr (!kResonant) ladders[v].Limit(x[v], Floats{}, Floats{});
        }
        for (int pass = 0; pass < kOversampling; ++pass)
            for (int v = 0; v < kVectors; ++v) {
                if constexpr (kResonant) ladders[v].Limit(x[v], c[v].k, resonance[v]);
                ladders[v].Stages(c[v].g);
            }
        for (int v = 0; v < kVectors; ++v) {
            const Ladder<Floats>& ladder = ladders[v];
            const Floats upper = Select(isHighPass[v], ladder.u, ladder.s3) - ladder.s4;
            group.signal[n][v] = Select(isLowPass[v], ladder.s4, upper);
        }
    }
    for (int v = 0; v < kVectors; ++v) {
        Store(ladders[v].s1, group.lanes[v].s1);
        Store(ladders[v].s2, group.lanes[v].s2);
        Store(ladders[v].s3, group.lanes[v].s3);
        Store(ladders[v].s4, group.lanes[v].s4);
    }
}

template <bool kResonant, int kVectors>
void FilterGroup(const FilterJob* const* jobs, int count, const CutoffPair* table, int frames)
{
    Group<kVectors> group;
    LoadVoices(group, jobs, count);
    for (int from = 0; from < frames; from += kLanes) {
        const int run = frames - from < kLanes ? frames - from : kLanes;
        LoadFrames(group, from, run);
        RunFrames<kResonant>(group, table, run);
        StoreFrames(group, jobs, count, from, run);
    }
    StoreVoices(group, jobs, count);
}

using GroupFunction = void(const FilterJob* const* jobs, int count, const CutoffPair* table, int frames);

template <bool kResonant, int... vectors>
void FilterAll(const FilterJob* const* jobs, int count, const CutoffPair* table, int frames,
               std::integer_sequence<int, vectors...>)
{
    static constexpr GroupFunction* kFunctions[] = {FilterGroup<kResonant, vectors + 1>...};
    int rest = (count + kVoicesPerVector - 1) / kVoicesPerVector;
    for (int groups = (rest + kMaxVectors - 1) / kMaxVectors; groups > 0; --groups) { // of nearly the same size
        const int size = (rest + groups - 1) / groups;
        const int voices = size * kVoicesPerVector < count ? size * kVoicesPerVector : count;
        kFunctions[size - 1](jobs, voices, table, frames);
        jobs += voices;
        count -= voices;
        rest -= size;
    }
}

void AddOutput(const FilterJob& job, int frames)
{
    for (int n = 0; n < frames; ++n) {
        job.mixLeft[n] += job.left[n] * job.gain[n];
        job.mixRight[n] += job.right[n] * job.gain[n];
    }
}

} // namespace

void FilterVoices(const FilterJob* jobs, int count, const CutoffPair* table, int frames)
{
    if (frames < 1) return;
    const FilterJob *resonant[kMaxJobs], *straight[kMaxJobs];
    int resonantCount = 0, straightCount = 0;
    for (int v = 0; v < count; ++v) {
        if (jobs[v].resonance == 0.0f)
            straight[straightCount++] = &jobs[v];
        else
            resonant[resonantCount++] = &jobs[v];
    }
    // Lanes of a resonant group that are left cost less than a group of their own.
    while (straightCount > 0 && resonantCount % kFullGroup != 0) resonant[resonantCount++] = straight[--straightCount];
    constexpr auto kSizes = std::make_integer_sequence<int, kMaxVectors>();
    FilterAll<true>(resonant, resonantCount, table, frames, kSizes);
    FilterAll<false>(straight, straightCount, table, frames, kSizes);
    for (int v = 0; v < count; ++v) AddOutput(jobs[v], frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
