// Rows of samples into lanes and back.
#pragma once

#include <utility>

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

// Two vectors as one of twice the length, dealt out alternately: the lower half.
template <int... lane>
[[gnu::always_inline]] inline Floats ZipLow(Floats a, Floats b, std::integer_sequence<int, lane...>)
{
    return __builtin_shufflevector(a, b, (lane % 2 == 0 ? lane / 2 : kLanes + lane / 2)...);
}

template <int... lane>
[[gnu::always_inline]] inline Floats ZipHigh(Floats a, Floats b, std::integer_sequence<int, lane...>)
{
    return __builtin_shufflevector(a, b, (lane % 2 == 0 ? kLanes / 2 + lane / 2 : kLanes + kLanes / 2 + lane / 2)...);
}

/// kLanes rows of kLanes floats change places with columns.
[[gnu::always_inline]] inline void Transpose(Floats (&rows)[kLanes])
{
    constexpr auto kAll = std::make_integer_sequence<int, kLanes>();
    for (int step = 1; step < kLanes; step *= 2) {
        Floats next[kLanes];
        for (int n = 0; n < kLanes / 2; ++n) {
            next[2 * n] = ZipLow(rows[n], rows[n + kLanes / 2], kAll);
            next[2 * n + 1] = ZipHigh(rows[n], rows[n + kLanes / 2], kAll);
        }
        for (int n = 0; n < kLanes; ++n) rows[n] = next[n];
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
