// How long the delay memories of the effects are.
#pragma once

#include <cmath>

namespace korvane {

inline constexpr float kShortDelaySeconds = 0.002f; // chorus and panner
inline constexpr float kLongDelaySeconds = 1.5f;    // echo and stutter

/// The most of its tape that an effect's delay takes: the tape stays faster than the lowest speed it can run at.
inline constexpr float kLongestTapePart = 0.99f;

inline int ShortDelayFrames(float rate) { return static_cast<int>(std::lround(rate * kShortDelaySeconds)); }
inline int LongDelayFrames(float rate) { return static_cast<int>(rate * kLongDelaySeconds); }

} // namespace korvane
