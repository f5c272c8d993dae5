// Instruction sets: what the processor has, what the user wants.
#include "engine/kernels/Isa.h"

#include <cstdlib>
#include <string_view>

namespace korvane {

namespace {

constexpr std::string_view kNames[] = {"sse2", "avx2", "avx512"};
static_assert(std::size(kNames) == kIsas.size());

} // namespace

bool Runs(Isa isa)
{
    switch (isa) {
    case Isa::Sse2: return true;
    case Isa::Avx2: return __builtin_cpu_supports("avx2");
    case Isa::Avx512: break;
    }
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
           __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
}

Isa ChosenIsa()
{
    __builtin_cpu_init(); // this may run before the compiler's own start
    const char* const wanted = std::getenv("KORVANE_ISA");
    Isa best = Isa::Sse2;
    for (const Isa isa : kIsas) {
        if (!Runs(isa)) continue;
        if (wanted && kNames[static_cast<std::size_t>(isa)] == wanted) return isa;
        best = isa;
    }
    return best;
}

} // namespace korvane
