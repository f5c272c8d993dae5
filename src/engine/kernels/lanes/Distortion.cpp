// Distortions side by side.
#include "engine/kernels/Distortion.h"

#include "engine/kernels/lanes/SideLanes.h"

namespace korvane::KORVANE_ISA_SPACE {

SidesKernel<DistortionSide> Distort;

void Distort(const SidesJob<DistortionSide>* jobs, int count, int frames)
{
    constexpr int kMaxVectors = kLanes == 16 ? 2 : 4;
    RunInLanes<DistortionSide, kMaxVectors>(jobs, count, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
