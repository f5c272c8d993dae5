// Vectors as wide as the instruction set that a kernel is compiled for.
#pragma once

#include <immintrin.h>

#include <cstdint>
#include <cstring>
#include <utility>

#include "engine/dsp/StereoFrame.h"
#include "framework/Limits.h"

// The build compiles everything in this folder once for each instruction set, in a namespace of its own. What several
// files of the folder share lies in that namespace or is always inlined: otherwise the linker would keep one of the
// three copies for all.
namespace korvane::KORVANE_ISA_SPACE {

inline constexpr int kLanes = KORVANE_LANES; // floats of a vector: 4, 8 or 16
inline constexpr int kDoubles = kLanes / 2;

typedef float Floats __attribute__((vector_size(4 * kLanes)));
typedef std::int32_t Ints __attribute__((vector_size(4 * kLanes)));
typedef std::uint32_t Words __attribute__((vector_size(4 * kLanes)));
typedef double Doubles __attribute__((vector_size(4 * kLanes)));
typedef std::int64_t Longs __attribute__((vector_size(4 * kLanes)));

alignas(64) inline constexpr float kNoRow[kMaxRun] = {}; // what lanes read that no channel or voice has

template <class V, class T>
[[gnu::always_inline]] inline V Load(const T* from)
{
    V value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <class V, class T>
[[gnu::always_inline]] inline void Store(const V& value, T* to)
{
    std::memcpy(to, &value, sizeof value);
}

[[gnu::always_inline]] inline Floats Splat(float value) { return Floats{} + value; } // −0 becomes 0

[[gnu::always_inline]] inline Floats Select(Ints mask, Floats yes, Floats no) { return mask ? yes : no; }

/// Some lane of a mask is set.
[[gnu::always_inline]] inline bool Any(Ints mask)
{
    std::int64_t halves[kLanes / 2];
    std::memcpy(halves, &mask, sizeof halves);
    std::int64_t all = 0;
    for (const std::int64_t half : halves) all |= half;
    return all != 0;
}

/// The number of each lane.
[[gnu::always_inline]] inline Ints LaneNumbers()
{
    Ints numbers{};
    for (int n = 0; n < kLanes; ++n) numbers[n] = n;
    return numbers;
}

/// Lane n's sign in bit n.
template <class V>
[[gnu::always_inline]] inline unsigned Bits(const V& mask)
{
    if constexpr (sizeof mask == 64)
        return _mm512_movepi32_mask((__m512i)mask);
    else if constexpr (sizeof mask == 32)
        return static_cast<unsigned>(_mm256_movemask_ps((__m256)mask));
    else
        return static_cast<unsigned>(_mm_movemask_ps((__m128)mask));
}

template <class V, int... lane>
[[gnu::always_inline]] inline Floats ReadAll(const float* table, const V& index, std::integer_sequence<int, lane...>)
{
    return Floats{table[index[lane]]...};
}

/// Lane n is the table's number at index n.
template <class V>
[[gnu::always_inline]] inline Floats Gather(const float* table, const V& index)
{
    if constexpr (sizeof index == 64)
        return (Floats)_mm512_mask_i32gather_ps(__m512{}, 0xffff, (__m512i)index, table, 4);
    else
        return ReadAll(table, index, std::make_integer_sequence<int, kLanes>());
}

} // namespace korvane::KORVANE_ISA_SPACE
