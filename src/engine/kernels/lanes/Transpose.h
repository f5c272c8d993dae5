// Rows of samples into lanes and back.
#pragma once

#include <utility>

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

// Two vectors as one of twice the length, dealt out alternately: the lower half.
template <class V, int... lane>
[[gnu::always_inline]] inline V ZipLow(V a, V b, std::integer_sequence<int, lane...>)
{
    constexpr int kCount = sizeof...(lane);
    return __builtin_shufflevector(a, b, (lane % 2 == 0 ? lane / 2 : kCount + lane / 2)...);
}

template <class V, int... lane>
[[gnu::always_inline]] inline V ZipHigh(V a, V b, std::integer_sequence<int, lane...>)
{
    constexpr int kCount = sizeof...(lane), kHalf = kCount / 2;
    return __builtin_shufflevector(a, b, (lane % 2 == 0 ? kHalf + lane / 2 : kCount + kHalf + lane / 2)...);
}

/// As many rows as a vector has lanes change places with columns.
template <class V, int count>
[[gnu::always_inline]] inline void Transpose(V (&rows)[count])
{
    constexpr auto kAll = std::make_integer_sequence<int, count>();
    for (int step = 1; step < count; step *= 2) {
        V next[count];
        for (int n = 0; n < count / 2; ++n) {
            next[2 * n] = ZipLow(rows[n], rows[n + count / 2], kAll);
            next[2 * n + 1] = ZipHigh(rows[n], rows[n + count / 2], kAll);
        }
        for (int n = 0; n < count; ++n) rows[n] = next[n];
    }
}

// Of each four lanes of a and b: the first two of both, dealt out alternately, or the last two.
template <int first, int... lane>
[[gnu::always_inline]] inline Floats Zip(Floats a, Floats b, std::integer_sequence<int, lane...>)
{
    return __builtin_shufflevector(a, b, (lane / 4 * 4 + first + lane % 4 / 2 + (lane % 2 == 0 ? 0 : kLanes))...);
}

// The same with pairs of lanes: the first pair of both, or the second.
template <int first, int... lane>
[[gnu::always_inline]] inline Floats ZipPairs(Floats a, Floats b, std::integer_sequence<int, lane...>)
{
    return __builtin_shufflevector(a, b, (lane / 4 * 4 + 2 * first + lane % 2 + (lane % 4 < 2 ? 0 : kLanes))...);
}

// Fours of lanes: every second one of a, then of b, from the first one on or from the second.
template <int first, int... lane>
[[gnu::always_inline]] inline Floats EverySecond(Floats a, Floats b, std::integer_sequence<int, lane...>)
{
    return __builtin_shufflevector(a, b, (lane / 4 * 8 + 4 * first + lane % 4)...);
}

/// kLanes rows of kLanes floats change places with columns. Within fours of lanes first, then fours as a whole: every
/// step is one instruction without operands in memory.
[[gnu::always_inline]] inline void Transpose(Floats (&rows)[kLanes])
{
    constexpr auto kAll = std::make_integer_sequence<int, kLanes>();
    for (int n = 0; n < kLanes; n += 4) {
        const Floats low0 = Zip<0>(rows[n], rows[n + 1], kAll), high0 = Zip<2>(rows[n], rows[n + 1], kAll);
        const Floats low1 = Zip<0>(rows[n + 2], rows[n + 3], kAll), high1 = Zip<2>(rows[n + 2], rows[n + 3], kAll);
        rows[n] = ZipPairs<0>(low0, low1, kAll);
        rows[n + 1] = ZipPairs<1>(low0, low1, kAll);
        rows[n + 2] = ZipPairs<0>(high0, high1, kAll);
        rows[n + 3] = ZipPairs<1>(high0, high1, kAll);
    }
    // Now row 4 g + k holds column k of each four columns, of the rows 4 g to 4 g + 3.
    constexpr int kFours = kLanes / 4;
    for (int step = 1; step < kFours; step *= 2) {
        Floats next[kLanes];
        for (int n = 0; n < kLanes / 2; ++n) {
            const int pair = n / 4, from = 8 * pair + n % 4;
            next[n] = EverySecond<0>(rows[from], rows[from + 4], kAll);
            next[n + kLanes / 2] = EverySecond<1>(rows[from], rows[from + 4], kAll);
        }
        for (int n = 0; n < kLanes; ++n) rows[n] = next[n];
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
