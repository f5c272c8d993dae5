// Whether a block is sound or has run wild.
#pragma once

namespace korvane {

inline constexpr float kOverflow = 1.0e25f; // samples below this stay numbers through the mixer's gain and sum

/// A number, and small enough.
[[gnu::always_inline]] inline bool IsSound(float sample) { return __builtin_fabsf(sample) < kOverflow; }

/// All samples of both sides are sound. Reads no further than `frames`. Audio thread.
/// frames  0..kMaxRun
using AllSoundKernel = bool(const float* left, const float* right, int frames);

} // namespace korvane
