// Instruction sets that the kernels are compiled for.
#pragma once

#include <array>

namespace korvane {

enum class Isa : int { Sse2, Avx2, Avx512 };

inline constexpr std::array kIsas = {Isa::Sse2, Isa::Avx2, Isa::Avx512}; // from narrow to wide

/// The processor and the system can run it. Any thread.
bool Runs(Isa isa);

/// The widest that runs here; KORVANE_ISA in the environment (sse2, avx2, avx512) names another one, which is taken if
/// it runs.
Isa ChosenIsa();

} // namespace korvane
