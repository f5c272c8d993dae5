// Number helpers that have an answer for every input, NaN and infinity included.
#pragma once

#include <cstdint>

namespace korvane {

/// Toward zero, like the plain conversion, which is undefined outside int's range: there the answer is the nearest
/// end of the range, and 0 for NaN.
inline int Truncate(float value)
{
    if (value >= -2147483648.0f && value < 2147483648.0f) return static_cast<int>(value);
    return value < 0.0f ? INT32_MIN : value > 0.0f ? INT32_MAX : 0;
}

inline int Truncate(double value)
{
    if (value > -2147483649.0 && value < 2147483648.0) return static_cast<int>(value);
    return value < 0.0 ? INT32_MIN : value > 0.0 ? INT32_MAX : 0;
}

/// The nearest int.
constexpr int Saturate(std::int64_t value)
{
    return static_cast<int>(value < INT32_MIN ? INT32_MIN : value > INT32_MAX ? INT32_MAX : value);
}

/// NaN gives low.
template <class T>
constexpr T Clamp(T value, T low, T high)
{
    return value > low ? (value < high ? value : high) : low;
}

} // namespace korvane
