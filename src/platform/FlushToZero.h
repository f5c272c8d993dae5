// The processor's flush-to-zero mode, which keeps dying tails from becoming slow denormal numbers.
#pragma once

#include <xmmintrin.h>

namespace korvane {

inline constexpr unsigned kFlushToZeroBit = 1u << 15; // of MXCSR

/// Of the calling thread, until something else sets its control register.
inline void EnableFlushToZero() { _mm_setcsr(_mm_getcsr() | kFlushToZeroBit); }

} // namespace korvane
