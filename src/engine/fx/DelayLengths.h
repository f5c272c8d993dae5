// How long the delay memories of the effects are.
#pragma once

#include <cmath>

namespace korvane {

inline constexpr float kShortDelaySeconds = 0.002f; // chorus and panner
inline constexpr float kLongDelaySeconds = 1.5f;    // echo and stutter

inline int ShortDelayFrames(float rate) { return static_cast<int>(std::lround(rate * kShortDelaySeconds)); }
inline int LongDelayFrames(float rate) { return static_cast<int>(rate * kLongDelaySeconds); }

} // namespace korvane
