// How far a block can be heard.
#include "engine/kernels/HeardFrames.h"

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

HeardFramesKernel HeardFrames;

int HeardFrames(const float* left, const float* right, int frames)
{
    for (; frames >= kLanes; frames -= kLanes) {
        const int from = frames - kLanes;
        const Ints heard =
            (Magnitude(Load<Floats>(left + from)) > kSilence) | (Magnitude(Load<Floats>(right + from)) > kSilence);
        if (Any(heard)) break;
    }
    return HeardOf(left, right, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
