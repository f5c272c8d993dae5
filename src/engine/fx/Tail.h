// What counts as sound behind an effect, and how its tail runs out.
#pragma once

#include <algorithm>
#include <cstdint>

#include "engine/dsp/StereoFrame.h"

namespace korvane {

/// −80 dB are exceeded on one of the sides.
inline bool CanBeHeard(Stereo frame)
{
    constexpr float kInaudible = 0.0001f;
    const Stereo level = Magnitude(frame);
    return level[0] > kInaudible || level[1] > kInaudible;
}

/// The frames of tail that are left a frame later: `full` after a frame that keeps the effect going, else one less;
/// −1 is the end.
inline std::int32_t TailLeft(std::int32_t holdFrames, bool keptGoing, std::int32_t full)
{
    return keptGoing ? full : std::max(holdFrames - 1, -1);
}

} // namespace korvane
