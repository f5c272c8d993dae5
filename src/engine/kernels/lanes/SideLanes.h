// Sides of channels in lanes.
#pragma once

#include <type_traits>
#include <utility>

#include "engine/dsp/Biquad.h"
#include "engine/kernels/Sides.h"
#include "engine/kernels/lanes/Transpose.h"

namespace korvane::KORVANE_ISA_SPACE {

namespace {

inline constexpr int kMovedValues = 16;
inline constexpr int kWorthPacking = 24; // frames of all channels

/// kVectors vectors of sides: left and right of one channel, then of the next one.
template <template <class> class Side, int kVectors>
struct SideGroup {
    static constexpr int kPiece = 128 / kVectors; // frames that are in lanes at a time

    Side<Floats> sides[kVectors];
    alignas(64) Floats signal[kPiece][kVectors];
    alignas(64) Floats lfo[MovedByLfo<Side<Floats>, Floats> ? kPiece : 1][kVectors];
};

/// Rows of kLanes floats of each lane as lanes.
/// row  lane to its row
template <class Row>
[[gnu::always_inline]] inline void LoadRows(Floats (&lanes)[kLanes], Row row)
{
    for (int lane = 0; lane < kLanes; ++lane) lanes[lane] = Load<Floats>(row(lane));
    Transpose(lanes);
}

/// The first `count` lanes back into their rows.
template <class Row>
[[gnu::always_inline]] inline void StoreRows(Floats (&lanes)[kLanes], int count, Row row)
{
    Transpose(lanes);
    for (int lane = 0; lane < kLanes; ++lane)
        if (lane < count) Store(lanes[lane], row(lane));
}

template <template <class> class Side, int kVectors>
void LoadSides(SideGroup<Side, kVectors>& group, const SidesJob<Side>* jobs, int count)
{
    static const Side<Stereo> kNoSides = {};
    static_assert(sizeof kNoSides % (8 * sizeof(Stereo)) == 0);
    constexpr int kValues = sizeof kNoSides / sizeof(Stereo);
    for (int v = 0; v < kVectors; ++v)
        for (int at = 0; at < kValues; at += kDoubles) {
            Doubles rows[kDoubles]; // of pairs, which change places together
            for (int n = 0; n < kDoubles; ++n) {
                const int channel = v * kDoubles + n;
                const Side<Stereo>* const sides = channel < count ? jobs[channel].sides : &kNoSides;
                rows[n] = Load<Doubles>(reinterpret_cast<const Stereo*>(sides) + at);
            }
            Transpose(rows);
            std::memcpy(reinterpret_cast<Floats*>(&group.sides[v]) + at, rows, sizeof rows);
        }
}

template <template <class> class Side, int kVectors>
void StoreSides(const SideGroup<Side, kVectors>& group, const SidesJob<Side>* jobs, int count)
{
    for (int v = 0; v < kVectors; ++v)
        for (int at = 0; at < kMovedValues; at += kDoubles) {
            Doubles rows[kDoubles];
            std::memcpy(rows, reinterpret_cast<const Floats*>(&group.sides[v]) + at, sizeof rows);
            Transpose(rows);
            for (int n = 0; n < kDoubles && v * kDoubles + n < count; ++n)
                Store(rows[n], reinterpret_cast<Stereo*>(jobs[v * kDoubles + n].sides) + at);
        }
}

/// Frames of each row into lanes. Rows end with the block, so the last vector begins where it still fits, over frames
/// that are there already.
/// row  side to its row
template <int kVectors, class Row>
[[gnu::always_inline]] inline void LoadPiece(Floats (*piece)[kVectors], int frames, Row row)
{
    if (frames < kLanes) {
        for (int n = 0; n < frames; ++n)
            for (int side = 0; side < kVectors * kLanes; ++side) piece[n][side / kLanes][side % kLanes] = row(side)[n];
        return;
    }
    for (int v = 0; v < kVectors; ++v)
        for (int n = 0; n < frames; n += kLanes) {
            const int from = n + kLanes < frames ? n : frames - kLanes;
            Floats lanes[kLanes];
            LoadRows(lanes, [&](int lane) { return row(v * kLanes + lane) + from; });
            for (int k = 0; k < kLanes; ++k) piece[from + k][v] = lanes[k];
        }
}

/// The first `sides` lanes back.
template <int kVectors, class Row>
[[gnu::always_inline]] inline void StorePiece(const Floats (*piece)[kVectors], int sides, int frames, Row row)
{
    if (frames < kLanes) {
        for (int n = 0; n < frames; ++n)
            for (int side = 0; side < sides; ++side) row(side)[n] = piece[n][side / kLanes][side % kLanes];
        return;
    }
    for (int v = 0; v < kVectors; ++v)
        for (int n = 0; n < frames; n += kLanes) {
            const int from = n + kLanes < frames ? n : frames - kLanes;
            Floats lanes[kLanes];
            for (int k = 0; k < kLanes; ++k) lanes[k] = piece[from + k][v];
            StoreRows(lanes, sides - v * kLanes, [&](int lane) { return row(v * kLanes + lane) + from; });
        }
}

/// Sections in series, each a frame behind the one before: a section of a frame waits for the one before and for its
/// own past, and a processor does not look as far ahead as five sections to begin the next frame meanwhile. A step
/// takes one frame in; a stream keeps its last three values by the step that gave them, modulo three, so that nothing
/// has to be moved.
template <class Side>
struct SectionsInStep {
    static constexpr int kStreams = std::extent_v<decltype(Side::chain.past)>; // the input, each section's output
    static constexpr int kLast = kStreams - 2;                                 // section

    const Side& side;
    Floats values[kStreams][3]{};

    /// The step that gives the stream's value of frame 0.
    static constexpr int Start(int stream) { return stream > 0 ? stream - 1 : 0; }

    template <int... stream>
    [[gnu::always_inline]] SectionsInStep(const Side& from, std::integer_sequence<int, stream...>) : side(from)
    {
        ((values[stream][(Start(stream) + 2) % 3] = from.chain.past[stream],
          values[stream][(Start(stream) + 1) % 3] = from.chain.beforePast[stream]),
         ...);
    }
    /// step  modulo three, at which the input would go on
    template <int step, int... stream>
    [[gnu::always_inline]] void Keep(Side& to, std::integer_sequence<int, stream...>) const
    {
        ((to.chain.past[stream] = values[stream][(Start(stream) + step + 2) % 3],
          to.chain.beforePast[stream] = values[stream][(Start(stream) + step + 1) % 3]),
         ...);
    }

    /// The sections from `from` up to `to` of a step, the last one first: it takes what the one before gave a step ago.
    template <int step, int from, int to>
    [[gnu::always_inline]] void Step(Floats in)
    {
        constexpr int kNew = step % 3, k1 = (step + 2) % 3, k2 = (step + 1) % 3;
        const Floats(&own)[3] = values[to + 1];
        Floats(&given)[3] = values[to];
        if constexpr (to > 0) {
            values[to + 1][kNew] = Flushed(side.Section(to, given[k1], given[k2], given[kNew], own[k1], own[k2]));
            if constexpr (to > from) Step<step, from, to - 1>(in);
        } else {
            values[1][kNew] = Flushed(side.Section(0, in, given[k1], given[k2], own[k1], own[k2]));
            given[kNew] = Flushed(in);
        }
    }
};

/// frames  at least kLast; those beyond it are a multiple of three
template <class Side, int kVectors, int... ahead>
[[gnu::always_inline]] inline void RunSections(Side& side, Floats (*signal)[kVectors], int v, int frames,
                                               std::integer_sequence<int, ahead...>)
{
    using Sections = SectionsInStep<Side>;
    constexpr int kLast = Sections::kLast;
    constexpr auto kEachStream = std::make_integer_sequence<int, Sections::kStreams>();
    Sections sections(side, kEachStream);
    const auto& out = sections.values[kLast + 1];
    (sections.template Step<ahead, 0, ahead>(signal[ahead][v]), ...);
    for (int n = kLast; n < frames; n += 3) {
        const auto step = [&]<int k>(std::integral_constant<int, k>) {
            sections.template Step<kLast + k, 0, kLast>(signal[n + k][v]);
            signal[n + k - kLast][v] = out[(kLast + k) % 3];
        };
        step(std::integral_constant<int, 0>());
        step(std::integral_constant<int, 1>());
        step(std::integral_constant<int, 2>());
    }
    ((sections.template Step<kLast + ahead, ahead + 1, kLast>(Floats{}),
      signal[frames - kLast + ahead][v] = out[(kLast + ahead) % 3]),
     ...);
    sections.template Keep<kLast % 3>(side, kEachStream);
}

template <template <class> class Side, int kVectors>
void StepFrames(SideGroup<Side, kVectors>& group, int frames)
{
    if constexpr (ChainOfSections<Side<Floats>, Floats>) {
        constexpr int kLast = SectionsInStep<Side<Floats>>::kLast;
        if (frames >= kLast) {
            const int alone = (frames - kLast) % 3;
            for (int v = 0; v < kVectors; ++v) {
                Side<Floats>& side = group.sides[v];
                for (int n = 0; n < alone; ++n) group.signal[n][v] = side.Step(group.signal[n][v]);
                RunSections<Side<Floats>, kVectors>(side, group.signal + alone, v, frames - alone,
                                                    std::make_integer_sequence<int, kLast>());
            }
            return;
        }
    }
    Side<Floats> sides[kVectors];
    for (int v = 0; v < kVectors; ++v) sides[v] = group.sides[v];
    for (int n = 0; n < frames; ++n)
        for (int v = 0; v < kVectors; ++v) {
            Floats& signal = group.signal[n][v];
            if constexpr (MovedByLfo<Side<Floats>, Floats>)
                signal = sides[v].Step(signal, group.lfo[n][v]);
            else
                signal = sides[v].Step(signal);
        }
    for (int v = 0; v < kVectors; ++v) group.sides[v] = sides[v];
}

template <template <class> class Side, int kVectors>
void RunGroup(const SidesJob<Side>* jobs, int count, int frames)
{
    constexpr int kPiece = SideGroup<Side, kVectors>::kPiece;
    SideGroup<Side, kVectors> group;
    LoadSides(group, jobs, count);
    int pieces = (frames + kPiece - 1) / kPiece;
    for (int from = 0; pieces > 0; --pieces) { // of nearly the same size
        const int size = (frames - from + pieces - 1) / pieces;
        const auto signal = [&](int side) {
            return (side % 2 == 0 ? jobs[side / 2].left : jobs[side / 2].right) + from;
        };
        LoadPiece<kVectors>(group.signal, size, [&](int side) { return side < 2 * count ? signal(side) : kNoRow; });
        if constexpr (MovedByLfo<Side<Floats>, Floats>)
            LoadPiece<kVectors>(group.lfo, size,
                                [&](int side) { return (side < 2 * count ? jobs[side / 2].lfo : kNoRow) + from; });
        StepFrames(group, size);
        StorePiece<kVectors>(group.signal, 2 * count, size, signal);
        from += size;
    }
    StoreSides(group, jobs, count);
}

/// A step waits for its own past, so one vector may take as long as several, which run interleaved.
/// kMaxVectors  that are interleaved at most, as the registers allow
template <template <class> class Side, int kMaxVectors>
[[gnu::always_inline]] inline void RunInLanes(const SidesJob<Side>* jobs, int count, int frames)
{
    if (count == 1 || count * frames < kWorthPacking) {
        for (int n = 0; n < count; ++n) RunSides<Side>(jobs[n], frames);
        return;
    }
    using GroupFunction = void(const SidesJob<Side>* jobs, int count, int frames);
    constexpr int kChannelsPerVector = kLanes / 2;
    const auto functions = []<int... vectors>(std::integer_sequence<int, vectors...>)
    {
        static constexpr GroupFunction* kFunctions[] = {RunGroup<Side, vectors + 1>...};
        return kFunctions;
    }
    (std::make_integer_sequence<int, kMaxVectors>());
    int rest = (count + kChannelsPerVector - 1) / kChannelsPerVector;
    for (int groups = (rest + kMaxVectors - 1) / kMaxVectors; groups > 0; --groups) { // of nearly the same size
        const int size = (rest + groups - 1) / groups;
        const int channels = size * kChannelsPerVector < count ? size * kChannelsPerVector : count;
        functions[size - 1](jobs, channels, frames);
        jobs += channels;
        count -= channels;
        rest -= size;
    }
}

} // namespace

} // namespace korvane::KORVANE_ISA_SPACE
