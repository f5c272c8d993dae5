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

struct EnvelopeLanes {
    Floats level, target, rate, decayRate;
    Ints plateau;

    /// As StepEnvelope.
    [[gnu::always_inline]] Floats Gain(float scale)
    {
        level += (target - level) * rate;
        const Ints over = level > 1.0f, holds = plateau > 0;
        level = Select(over, Select(holds, Splat(kHoldLevel), Splat(1.0f)), level);
        target = Select(over, Select(holds, target, Floats{}), target);
        rate = Select(over, Select(holds, rate, decayRate), rate);
        plateau += over & holds;
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
    // Of up to kLanes frames.
    alignas(64) std::int32_t index[kLanes][kLanes];
    Floats fraction[kLanes];
    Floats gain[kLanes];            // of the envelopes
    Floats signal[kHalves][kLanes]; // into the filters, then out of them

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
    to.envLevel = Flushed(level);
    to.envTarget = from.envelope.target[layer];
    to.envRate = from.envelope.rate[layer];
    to.plateauFrames = from.envelope.plateau[layer];
    for (int side = 0; side < 2; ++side) {
        const LayerFilter<Floats>& filter = from.filters[group.VectorOf(side)];
        const int lane = group.LaneOf(layer, side);
        to.filters[side] = {filter.x1[lane], filter.x2[lane], filter.m1[lane],
                            filter.m2[lane], filter.y1[lane], filter.y2[lane]};
        (side == 0 ? job.lastLeft : job.lastRight) = filter.x1[lane];
    }
}

Floats Both(HalfFloats low, HalfFloats high)
{
    return [&]<int... lane>(std::integer_sequence<int, lane...>) { return __builtin_shufflevector(low, high, lane...); }
    (std::make_integer_sequence<int, kLanes>());
}

/// Where each layer reads in the coming frames, and the gain of its envelope. Those past their end stay at it.
template <int kHalves>
void Locate(Group<kHalves>& group, int frames, float scale)
{
    auto& state = group.state;
    Doubles position[kHalves];
    EnvelopeLanes envelope = state.envelope;
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
        group.gain[n] = envelope.Gain(scale);
    }
    state.envelope = envelope;
    for (int h = 0; h < kHalves; ++h) state.position[h] = position[h];
}

/// Each of kDoubles layers' frame and the one after it, moved as if both were a double.
Doubles Pairs(const float* const* data, const std::int32_t* index)
{
    typedef double Pair __attribute__((may_alias, aligned(4)));
    return [&]<int... layer>(std::integer_sequence<int, layer...>)
    {
        return Doubles{*reinterpret_cast<const Pair*>(data[layer] + index[layer])...};
    }
    (std::make_integer_sequence<int, kDoubles>());
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

/// Member by member: after a copy of the whole the compiler would hold the histories of a loop in memory.
[[gnu::always_inline]] inline void Copy(const LayerFilter<Floats>& from, LayerFilter<Floats>& to)
{
    to.x1 = from.x1;
    to.x2 = from.x2;
    to.m1 = from.m1;
    to.m2 = from.m2;
    to.y1 = from.y1;
    to.y2 = from.y2;
}

/// Loads take the time here, so the part of the filters that waits for nothing is done beside them.
template <int kHalves, bool kStereo>
void Read(Group<kHalves>& group, int frames)
{
    const auto& state = group.state;
    LayerFilter<Floats> filters[kHalves];
    for (int v = 0; v < kHalves; ++v) Copy(state.filters[v], filters[v]);
    for (int n = 0; n < frames; ++n) {
        const std::int32_t* const index = group.index[n];
        const auto pairs = [&](int side, int half) {
            return Pairs(&state.data[side][half * kDoubles], &index[half * kDoubles]);
        };
        Floats x[kHalves];
        const Doubles left = pairs(0, 0);
        if constexpr (kHalves == 1) {
            x[0] = Between(left, kStereo ? pairs(1, 0) : left, group.fraction[n]);
        } else {
            x[0] = Between(left, pairs(0, 1), group.fraction[n]);
            x[1] = kStereo ? Between(pairs(1, 0), pairs(1, 1), group.fraction[n]) : x[0];
        }
        for (int v = 0; v < kHalves; ++v) {
            const Floats flushed = Flushed(x[v] * state.gain[v]);
            group.signal[v][n] = filters[v].Feed(flushed, flushed, state.coefficients);
        }
    }
    for (int v = 0; v < kHalves; ++v) Copy(filters[v], group.state.filters[v]);
}

template <int kHalves>
void Filter(Group<kHalves>& group, int frames)
{
    LayerFilter<Floats> filters[kHalves];
    for (int v = 0; v < kHalves; ++v) Copy(group.state.filters[v], filters[v]);
    const auto flush = [](Floats value) __attribute__((always_inline)) { return Flushed(value); };
    for (int n = 0; n < frames; ++n)
        for (int v = 0; v < kHalves; ++v) {
            const Floats out = filters[v].Step(group.signal[v][n], group.state.coefficients, flush);
            group.signal[v][n] = out * group.gain[n];
        }
    for (int v = 0; v < kHalves; ++v) Copy(filters[v], group.state.filters[v]);
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
        for (const float*& data : side) data = kNoRow;
    int from = NextEvent(jobs, count, -1);
    for (int event = from; event <= kMaxRun; event = NextEvent(jobs, count, event)) {
        while (from < event) {
            const int frames = event - from < kLanes ? event - from : kLanes;
            Locate(group, frames, scale);
            Read<kHalves, kStereo>(group, frames);
            Filter(group, frames);
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
