// Sample layers, side by side.
#include "engine/kernels/Layers.h"

#include "engine/kernels/lanes/Transpose.h"

namespace korvane::KORVANE_ISA_SPACE {

PlayLayersKernel PlayLayers;

namespace {

// A group has as many layers as a vector has lanes, or half as many. Of a full one the sides are two vectors; of a half
// one they are the halves of one.
typedef std::int32_t HalfInts __attribute__((vector_size(2 * kLanes)));
typedef float HalfFloats __attribute__((vector_size(2 * kLanes)));

constexpr float kNothing[2] = {}; // what unused lanes read

struct EnvelopeLanes {
    Floats level, target, rate, decayRate;
    Ints plateau;

    /// As StepEnvelope.
    [[gnu::always_inline]] Floats Gain(float scale)
    {
        level += (target - level) * rate;
        const Ints over = level > 1.0f;
        const Ints holds = over & (plateau > 0);
        const Ints ends = over & ~holds;
        plateau += holds;
        level = Select(over, Select(holds, Splat(kHoldLevel), Splat(1.0f)), level);
        target = Select(ends, Floats{}, target);
        rate = Select(ends, decayRate, rate);
        return level * level * scale;
    }
};

/// Lanes of a vector of layers; in a half group each layer stands in both halves.
template <int kHalves>
struct GroupState {
    Doubles position[kHalves] = {}, increment[kHalves] = {}, end[kHalves] = {};
    Ints reverse = {}, turn = {}; // a reversed layer reads at ~i + turn
    Floats gain[kHalves] = {};
    EnvelopeLanes envelope = {};
    LayerCoefficients<Floats> coefficients;
    LayerFilter<Floats> filters[kHalves];
    const float* data[2][kLanes]; // left, right
};

template <int kHalves>
struct Group {
    GroupState<kHalves> state;
    Floats last[kHalves]; // that were read
    // Of up to kLanes frames.
    alignas(64) std::int32_t index[kLanes][kLanes];
    Floats fraction[kLanes];
    Floats signal[kHalves][kLanes]; // as read, then as put out

    static constexpr int VectorOf(int side) { return kHalves == 2 ? side : 0; }
    static constexpr int LaneOf(int layer, int side) { return kHalves == 2 ? layer : layer + side * kDoubles; }
};

template <int kHalves>
void LoadLayer(Group<kHalves>& group, const LayerJob& job, int layer)
{
    auto& to = group.state;
    const LayerState& from = *job.state;
    to.position[layer / kDoubles][layer % kDoubles] = from.position;
    to.increment[layer / kDoubles][layer % kDoubles] = from.increment;
    to.end[layer / kDoubles][layer % kDoubles] = job.numFrames;
    for (int side = 0; side < 2; ++side) {
        const int v = group.VectorOf(side), lane = group.LaneOf(layer, side);
        to.data[side][layer] = job.data[side];
        to.reverse[lane] = job.reverse ? -1 : 0;
        to.turn[lane] = job.reverse ? job.numFrames + 1 : 0;
        to.gain[v][lane] = side == 0 ? from.gainLeft : from.gainRight;
        to.envelope.level[lane] = from.envLevel;
        to.envelope.target[lane] = from.envTarget;
        to.envelope.rate[lane] = from.envRate;
        to.envelope.decayRate[lane] = from.decayRate;
        to.envelope.plateau[lane] = from.plateauFrames;
        to.coefficients.loB[lane] = from.coefficients.loB;
        to.coefficients.loA1[lane] = from.coefficients.loA1;
        to.coefficients.loA2[lane] = from.coefficients.loA2;
        to.coefficients.hiB[lane] = from.coefficients.hiB;
        to.coefficients.hiA1[lane] = from.coefficients.hiA1;
        to.coefficients.hiA2[lane] = from.coefficients.hiA2;
        to.filters[v].x1[lane] = from.filters[side].x1;
        to.filters[v].x2[lane] = from.filters[side].x2;
        to.filters[v].m1[lane] = from.filters[side].m1;
        to.filters[v].m2[lane] = from.filters[side].m2;
        to.filters[v].y1[lane] = from.filters[side].y1;
        to.filters[v].y2[lane] = from.filters[side].y2;
    }
}

template <int kHalves>
void StoreLayer(const Group<kHalves>& group, LayerJob& job, int layer)
{
    const auto& from = group.state;
    LayerState& to = *job.state;
    to.position = from.position[layer / kDoubles][layer % kDoubles];
    const float level = from.envelope.level[layer];
    to.envLevel = Flushed(Splat(level))[0];
    to.envTarget = from.envelope.target[layer];
    to.envRate = from.envelope.rate[layer];
    to.plateauFrames = from.envelope.plateau[layer];
    for (int side = 0; side < 2; ++side) {
        const LayerFilter<Floats>& filter = from.filters[group.VectorOf(side)];
        const int lane = group.LaneOf(layer, side);
        to.filters[side] = {filter.x1[lane], filter.x2[lane], filter.m1[lane],
                            filter.m2[lane], filter.y1[lane], filter.y2[lane]};
        (side == 0 ? job.lastLeft : job.lastRight) = group.last[group.VectorOf(side)][lane];
    }
}

Floats Both(HalfFloats low, HalfFloats high)
{
    return [&]<int... lane>(std::integer_sequence<int, lane...>) { return __builtin_shufflevector(low, high, lane...); }
    (std::make_integer_sequence<int, kLanes>());
}

/// Where each layer reads in the coming frames. Those past their end stay at it.
template <int kHalves>
void Locate(Group<kHalves>& group, int frames)
{
    auto& state = group.state;
    Doubles position[kHalves];
    for (int h = 0; h < kHalves; ++h) position[h] = state.position[h];
    for (int n = 0; n < frames; ++n) {
        HalfInts whole[kHalves];
        HalfFloats part[kHalves];
        for (int h = 0; h < kHalves; ++h) {
            const Doubles inside = position[h] < state.end[h] ? position[h] : state.end[h];
            whole[h] = __builtin_convertvector(inside, HalfInts);
            part[h] = __builtin_convertvector(inside - __builtin_convertvector(whole[h], Doubles), HalfFloats);
            position[h] += state.increment[h];
        }
        const Floats f = Both(part[0], part[kHalves - 1]);
        const Ints i = reinterpret_cast<Ints>(
            Both(reinterpret_cast<HalfFloats>(whole[0]), reinterpret_cast<HalfFloats>(whole[kHalves - 1])));
        group.fraction[n] = Select(state.reverse, 1.0f - f, f);
        Store((i ^ state.reverse) + state.turn, group.index[n]);
    }
    for (int h = 0; h < kHalves; ++h) state.position[h] = position[h];
}

/// Each of kDoubles layers' frame and the one after it.
Doubles Pairs(const float* const* data, const std::int32_t* index)
{
    Doubles pairs;
    for (int layer = 0; layer < kDoubles; ++layer) pairs[layer] = Load<double>(data[layer] + index[layer]);
    return pairs;
}

/// Frames between neighbours.
Floats Between(Doubles low, Doubles high, Floats f)
{
    constexpr auto kAll = std::make_integer_sequence<int, kLanes>();
    const Floats a = reinterpret_cast<Floats>(low), b = reinterpret_cast<Floats>(high);
    const auto every = [&]<int... lane>(auto odd, std::integer_sequence<int, lane...>)
    {
        return __builtin_shufflevector(a, b, (2 * lane + odd())...);
    };
    const Floats first = every(std::integral_constant<int, 0>(), kAll);
    const Floats second = every(std::integral_constant<int, 1>(), kAll);
    return first * (1.0f - f) + second * f;
}

template <int kHalves, bool kStereo>
void Read(Group<kHalves>& group, int frames)
{
    const auto& state = group.state;
    for (int n = 0; n < frames; ++n) {
        const std::int32_t* const index = group.index[n];
        const Floats f = group.fraction[n];
        const auto pairs = [&](int side, int half) {
            return Pairs(&state.data[side][half * kDoubles], &index[half * kDoubles]);
        };
        if constexpr (kHalves == 1) {
            const Doubles left = pairs(0, 0);
            group.signal[0][n] = Flushed(Between(left, kStereo ? pairs(1, 0) : left, f) * state.gain[0]);
        } else {
            const Floats left = Between(pairs(0, 0), pairs(0, 1), f);
            group.signal[0][n] = Flushed(left * state.gain[0]);
            const Floats right = kStereo ? Between(pairs(1, 0), pairs(1, 1), f) : left;
            group.signal[kHalves - 1][n] = Flushed(right * state.gain[kHalves - 1]);
        }
    }
    for (int v = 0; v < kHalves; ++v) group.last[v] = group.signal[v][frames - 1];
}

template <int kHalves>
void Shape(Group<kHalves>& group, int frames, float scale)
{
    EnvelopeLanes envelope = group.state.envelope;
    LayerFilter<Floats> filters[kHalves];
    for (int v = 0; v < kHalves; ++v) filters[v] = group.state.filters[v];
    const LayerCoefficients<Floats> coefficients = group.state.coefficients;
    const auto flush = [](Floats value) __attribute__((always_inline)) { return Flushed(value); };
    for (int n = 0; n < frames; ++n) {
        const Floats gain = envelope.Gain(scale);
        for (int v = 0; v < kHalves; ++v) {
            const Floats x = group.signal[v][n];
            group.signal[v][n] = filters[v].Step(x, x, coefficients, flush) * gain;
        }
    }
    group.state.envelope = envelope;
    for (int v = 0; v < kHalves; ++v) group.state.filters[v] = filters[v];
}

bool Plays(const LayerJob& job, int frame) { return job.from <= frame && frame < job.to; }

/// Adds the layers that play in these frames, those of a voice in their order.
template <int kHalves>
void Mix(Group<kHalves>& group, const LayerJob* jobs, int count, int from, int frames)
{
    for (int v = 0; v < kHalves; ++v) {
        Floats rows[kLanes];
        if (frames == kLanes) {
            for (int n = 0; n < kLanes; ++n) rows[n] = group.signal[v][n];
            Transpose(rows);
        }
        for (int lane = 0; lane < kLanes; ++lane) {
            const int layer = kHalves == 2 ? lane : lane % kDoubles, side = kHalves == 2 ? v : lane / kDoubles;
            if (layer >= count || !Plays(jobs[layer], from)) continue;
            float* const mix = (side == 0 ? jobs[layer].mixLeft : jobs[layer].mixRight) + from;
            if (frames == kLanes)
                Store(Load<Floats>(mix) + rows[lane], mix);
            else
                for (int n = 0; n < frames; ++n) mix[n] += group.signal[v][n][lane];
        }
    }
}

/// The next frame at which a layer begins or ends; kMaxRun + 1 when none does.
int NextEvent(const LayerJob* jobs, int count, int after)
{
    int next = kMaxRun + 1;
    for (int layer = 0; layer < count; ++layer) {
        const LayerJob& job = jobs[layer];
        if (job.from > after && job.from < next) next = job.from;
        if (job.to > after && job.to < next) next = job.to;
    }
    return next;
}

template <int kHalves, bool kStereo>
void PlayGroup(LayerJob* jobs, int count, float scale)
{
    Group<kHalves> group;
    for (auto& side : group.state.data)
        for (const float*& data : side) data = kNothing;
    int from = NextEvent(jobs, count, -1);
    for (int event = from; event <= kMaxRun; event = NextEvent(jobs, count, event)) {
        while (from < event) {
            const int frames = event - from < kLanes ? event - from : kLanes;
            Locate(group, frames);
            Read<kHalves, kStereo>(group, frames);
            Shape(group, frames, scale);
            Mix(group, jobs, count, from, frames);
            from += frames;
        }
        for (int layer = 0; layer < count; ++layer) {
            if (jobs[layer].from == event) LoadLayer(group, jobs[layer], layer);
            if (jobs[layer].to == event) StoreLayer(group, jobs[layer], layer);
        }
    }
}

bool AnyStereo(const LayerJob* jobs, int count)
{
    for (int layer = 0; layer < count; ++layer)
        if (jobs[layer].data[0] != jobs[layer].data[1]) return true;
    return false;
}

} // namespace

void PlayLayers(LayerJob* jobs, int count, float scale)
{
    while (count > 0) {
        const int layers = count < kLanes ? count : kLanes;
        const bool stereo = AnyStereo(jobs, layers);
        if (layers > kDoubles)
            stereo ? PlayGroup<2, true>(jobs, layers, scale) : PlayGroup<2, false>(jobs, layers, scale);
        else
            stereo ? PlayGroup<1, true>(jobs, layers, scale) : PlayGroup<1, false>(jobs, layers, scale);
        jobs += layers;
        count -= layers;
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
