// Phasers side by side.
#include "engine/kernels/Phaser.h"

#include "engine/kernels/lanes/SideLanes.h"

namespace korvane::KORVANE_ISA_SPACE {

SidesKernel<PhaserSide> Phase;

void Phase(const SidesJob<PhaserSide>* jobs, int count, int frames)
{
    constexpr int kMaxVectors = kLanes == 16 ? 2 : 4;
    RunInLanes<PhaserSide, kMaxVectors>(jobs, count, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
