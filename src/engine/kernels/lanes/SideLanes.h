// Sides of channels in lanes.
#pragma once

#include <utility>

#include "engine/kernels/Sides.h"
#include "engine/kernels/lanes/Transpose.h"

namespace korvane::KORVANE_ISA_SPACE {

namespace {

inline constexpr int kPiece = 32; // frames that are in lanes at a time
inline constexpr int kMovedValues = 16;
inline constexpr int kWorthPacking = 24; // frames of all channels

/// kVectors vectors of sides: left and right of one channel, then of the next one.
template <template <class> class Side, int kVectors>
struct SideGroup {
    static constexpr int kSides = kLanes * kVectors;

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

template <template <class> class Side, int kVectors>
void StepFrames(SideGroup<Side, kVectors>& group, int frames)
{
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
