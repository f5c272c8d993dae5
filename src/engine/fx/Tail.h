// What counts as sound behind an effect, and how its tail runs out.
#pragma once

#include <algorithm>
#include <cstdint>

#include "engine/dsp/Silence.h"
#include "engine/dsp/StereoFrame.h"

namespace korvane {

/// The frame exceeds kSilence on one of the sides.
inline bool CanBeHeard(Stereo frame)
{
    const Stereo level = Magnitude(frame);
    return level[0] > kSilence || level[1] > kSilence;
}

/// The frames of tail that are left a frame later: `full` after a frame that keeps the effect going, else one less;
/// −1 is the end.
inline std::int32_t TailLeft(std::int32_t holdFrames, bool keptGoing, std::int32_t full)
{
    return keptGoing ? full : std::max(holdFrames - 1, -1);
}

} // namespace korvane
