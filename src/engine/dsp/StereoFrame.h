// Frames as vectors, and the few operations that floats and vectors of floats share.
#pragma once

#include <cstdint>

namespace korvane {

typedef float Stereo __attribute__((vector_size(8))); // lanes: left, right
typedef float Float4 __attribute__((vector_size(16)));

inline Stereo LoadFrame(const float* left, const float* right, int n) { return Stereo{left[n], right[n]}; }

inline void StoreFrame(Stereo frame, float* left, float* right, int n)
{
    left[n] = frame[0];
    right[n] = frame[1];
}

[[gnu::always_inline]] inline float Magnitude(float value) { return __builtin_fabsf(value); }

template <class S>
[[gnu::always_inline]] inline S Magnitude(S value)
{
    using Bits = decltype(value < value);
    return reinterpret_cast<S>(reinterpret_cast<Bits>(value) & 0x7fffffff);
}

inline constexpr float kFlushBelow = 1e-9f;

/// Values this small, and NaN, become 0: recurrences reach no denormals and forget a bad input.
[[gnu::always_inline]] inline float Flushed(float value) { return Magnitude(value) >= kFlushBelow ? value : 0.0f; }

template <class S>
[[gnu::always_inline]] inline S Flushed(S value)
{
    const auto keep = Magnitude(value) >= kFlushBelow;
    return reinterpret_cast<S>(reinterpret_cast<decltype(value < value)>(value) & keep);
}

/// Up to four units of each side. Two vectors, since one of eight lanes is compared lane by lane where registers have
/// four.
struct StereoChain {
    Float4 left, right;

    StereoChain operator+(const StereoChain& b) const { return {left + b.left, right + b.right}; }
    StereoChain operator-(const StereoChain& b) const { return {left - b.left, right - b.right}; }
    StereoChain operator*(float gain) const { return {left * gain, right * gain}; }
    friend StereoChain operator*(float gain, const StereoChain& a) { return a * gain; }
};

inline StereoChain Flushed(const StereoChain& value) { return {Flushed(value.left), Flushed(value.right)}; }

} // namespace korvane
