// The kernels of one instruction set.
#include "engine/kernels/Kernels.h"

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

FilterVoicesKernel FilterVoices;

extern const Kernels kKernels;
constinit const Kernels kKernels = {
    .lanes = kLanes,
    .filterVoices = FilterVoices,
};

} // namespace korvane::KORVANE_ISA_SPACE
