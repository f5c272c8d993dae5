// Choice of the kernels.
#include "engine/kernels/Kernels.h"

namespace korvane {

namespace sse2 {
extern const Kernels kKernels;
}
namespace avx2 {
extern const Kernels kKernels;
}
namespace avx512 {
extern const Kernels kKernels;
}

const Kernels& KernelsOf(Isa isa)
{
    switch (isa) {
    case Isa::Sse2: break;
    case Isa::Avx2: return avx2::kKernels;
    case Isa::Avx512: return avx512::kKernels;
    }
    return sse2::kKernels;
}

const Kernels& kernels = KernelsOf(ChosenIsa());

} // namespace korvane
