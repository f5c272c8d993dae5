// Equalisers side by side.
#include "engine/kernels/Equaliser.h"

#include "engine/kernels/lanes/SideLanes.h"

namespace korvane::KORVANE_ISA_SPACE {

SidesKernel<EqualiserSide> Equalise;

void Equalise(const SidesJob<EqualiserSide>* jobs, int count, int frames)
{
    constexpr int kMaxVectors = kLanes == 16 ? 2 : 1;
    RunInLanes<EqualiserSide, kMaxVectors>(jobs, count, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
