// Decimators side by side.
#include "engine/kernels/Decimator.h"

#include "engine/kernels/lanes/SideLanes.h"

namespace korvane::KORVANE_ISA_SPACE {

SidesKernel<DecimatorSide> Decimate;

void Decimate(const SidesJob<DecimatorSide>* jobs, int count, int frames)
{
    constexpr int kMaxVectors = kLanes == 16 ? 2 : 4;
    RunInLanes<DecimatorSide, kMaxVectors>(jobs, count, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
