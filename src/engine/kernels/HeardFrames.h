// How far a block can be heard.
#pragma once

#include "engine/dsp/Silence.h"

namespace korvane {

/// Frames up to the last one that exceeds kSilence on one of the sides; 0: there is none. The definition.
[[gnu::always_inline]] inline int HeardOf(const float* left, const float* right, int frames)
{
    const auto heard = [](float sample) { return __builtin_fabsf(sample) > kSilence; };
    while (frames > 0 && !heard(left[frames - 1]) && !heard(right[frames - 1])) --frames;
    return frames;
}

/// Reads no further than `frames`. Audio thread.
/// frames  0..kMaxRun
using HeardFramesKernel = int(const float* left, const float* right, int frames);

} // namespace korvane
