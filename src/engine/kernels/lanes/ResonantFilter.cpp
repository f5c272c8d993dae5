// Resonant filters side by side.
#include "engine/kernels/ResonantFilter.h"

#include "engine/kernels/lanes/SideLanes.h"

namespace korvane::KORVANE_ISA_SPACE {

SidesKernel<ResonantSide> FilterSides;

void FilterSides(const SidesJob<ResonantSide>* jobs, int count, int frames)
{
    constexpr int kMaxVectors = kLanes == 16 ? 2 : 1;
    RunInLanes<ResonantSide, kMaxVectors>(jobs, count, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
