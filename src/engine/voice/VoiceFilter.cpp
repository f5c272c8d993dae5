// Channel filters of all voices, side by side.
#include "engine/voice/VoiceFilter.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "engine/dsp/Vectors.h"

namespace korvane {

namespace {

// A vector holds two voices: left and right of one, left and right of the other. A ladder waits for its own result, so
// one vector takes as long as four; from six on the registers are used up.
constexpr int kVoicesPerVector = 2;
constexpr int kMaxVectors = 6;
constexpr int kChunk = 32; // frames whose lanes are kept in the first-level cache

/// Lanes of a chunk: inputs and coefficients of every vector, frame after frame; the outputs replace the inputs.
template <int kVectors>
struct Lanes {
    alignas(64) float signal[kChunk][kVectors][4];
    alignas(64) float cutoff[kChunk][kVectors][4]; // g and k of one voice, g and k of the other
};

template <int kVectors>
struct Group {
    Ladder<Float4> ladders[kVectors];
    Float4 resonance[kVectors] = {};
    Int4 isLowPass[kVectors] = {}, isHighPass[kVectors] = {};
    Lanes<kVectors> lanes;
};

float* StageOf(Ladder<Float4>& ladder, int stage)
{
    Float4* const stages[] = {&ladder.s1, &ladder.s2, &ladder.s3, &ladder.s4};
    return reinterpret_cast<float*>(stages[stage]);
}

template <int kVectors>
void LoadVoices(Group<kVectors>& group, const FilterJob* jobs, int count)
{
    for (int v = 0; v < count; ++v) {
        const int vector = v / kVoicesPerVector;
        for (int side = 0; side < 2; ++side) {
            const int lane = v % kVoicesPerVector * 2 + side;
            for (int stage = 0; stage < 4; ++stage)
                StageOf(group.ladders[vector], stage)[lane] = jobs[v].voice->filterState[side][stage];
            group.resonance[vector][lane] = jobs[v].voice->resonance;
            group.isLowPass[vector][lane] = jobs[v].type == FilterType::LowPass ? -1 : 0;
            group.isHighPass[vector][lane] = jobs[v].type == FilterType::HighPass ? -1 : 0;
        }
    }
}

template <int kVectors>
void StoreVoices(Group<kVectors>& group, const FilterJob* jobs, int count)
{
    for (int v = 0; v < count; ++v)
        for (int side = 0; side < 2; ++side)
            for (int stage = 0; stage < 4; ++stage)
                jobs[v].voice->filterState[side][stage] =
                    StageOf(group.ladders[v / kVoicesPerVector], stage)[v % kVoicesPerVector * 2 + side];
}

template <int kVectors>
void FillLanes(Lanes<kVectors>& lanes, const FilterJob& job, int v, const CutoffPair* table, int from, int frames)
{
    const ChannelVoice& voice = *job.voice;
    const int vector = v / kVoicesPerVector, lane = v % kVoicesPerVector * 2;
    for (int n = 0; n < frames; ++n) {
        const CutoffPair pair = CutoffAt(table, voice.cutoffFrames[from + n]);
        lanes.cutoff[n][vector][lane] = pair.g;
        lanes.cutoff[n][vector][lane + 1] = pair.k;
        lanes.signal[n][vector][lane] = voice.left[from + n];
        lanes.signal[n][vector][lane + 1] = voice.right[from + n];
    }
}

Float4 Even(Float4 pairs) { return __builtin_shufflevector(pairs, pairs, 0, 0, 2, 2); }
Float4 Odd(Float4 pairs) { return __builtin_shufflevector(pairs, pairs, 1, 1, 3, 3); }

template <int kVectors>
void RunLanes(Group<kVectors>& group, int frames)
{
    Ladder<Float4> ladders[kVectors];
    std::copy_n(group.ladders, kVectors, ladders);
    for (int n = 0; n < frames; ++n) {
        Float4 x[kVectors], g[kVectors], k[kVectors];
        for (int v = 0; v < kVectors; ++v) {
            const Float4 pairs = Load<Float4>(group.lanes.cutoff[n][v]);
            x[v] = Load<Float4>(group.lanes.signal[n][v]);
            g[v] = Even(pairs);
            k[v] = Odd(pairs);
        }
        for (int pass = 0; pass < kOversampling; ++pass)
            for (int v = 0; v < kVectors; ++v) ladders[v].Pass(x[v], g[v], k[v], group.resonance[v]);
        for (int v = 0; v < kVectors; ++v) {
            const Ladder<Float4>& ladder = ladders[v];
            const Float4 upper = (group.isHighPass[v] ? ladder.u : ladder.s3) - ladder.s4;
            Store(group.isLowPass[v] ? ladder.s4 : upper, group.lanes.signal[n][v]);
        }
    }
    std::copy_n(ladders, kVectors, group.ladders);
}

template <int kVectors>
void AddOutput(const Lanes<kVectors>& lanes, const FilterJob& job, int v, int from, int frames)
{
    const int vector = v / kVoicesPerVector, lane = v % kVoicesPerVector * 2;
    const float* gain = job.voice->gainFrames + from;
    for (int n = 0; n < frames; ++n) {
        job.mixLeft[from + n] += lanes.signal[n][vector][lane] * gain[n];
        job.mixRight[from + n] += lanes.signal[n][vector][lane + 1] * gain[n];
    }
}

/// Filters up to kVectors times two voices.
template <int kVectors>
void FilterGroup(const FilterJob* jobs, int count, const CutoffPair* table, int frames)
{
    Group<kVectors> group;
    if (count % kVoicesPerVector != 0) group.lanes = {}; // nothing fills the last voice's neighbour
    LoadVoices(group, jobs, count);
    for (int from = 0; from < frames; from += kChunk) {
        const int chunk = std::min(kChunk, frames - from);
        for (int v = 0; v < count; ++v) FillLanes(group.lanes, jobs[v], v, table, from, chunk);
        RunLanes(group, chunk);
        for (int v = 0; v < count; ++v) AddOutput(group.lanes, jobs[v], v, from, chunk);
    }
    StoreVoices(group, jobs, count);
}

using GroupFunction = decltype(&FilterGroup<1>);
constexpr GroupFunction kGroupFunctions[] = {FilterGroup<1>, FilterGroup<2>, FilterGroup<3>,
                                             FilterGroup<4>, FilterGroup<5>, FilterGroup<6>};
static_assert(std::size(kGroupFunctions) == kMaxVectors);

} // namespace

void FilterVoices(const FilterJob* jobs, int count, const CutoffPair* table, int frames)
{
    if (frames < 1) return;
    int vectors = (count + kVoicesPerVector - 1) / kVoicesPerVector;
    int groups = (vectors + kMaxVectors - 1) / kMaxVectors; // of nearly the same size
    for (int first = 0; groups > 0; --groups) {
        const int size = (vectors + groups - 1) / groups;
        const int voices = std::min(size * kVoicesPerVector, count - first);
        kGroupFunctions[size - 1](jobs + first, voices, table, frames);
        first += voices;
        vectors -= size;
    }
}

} // namespace korvane
