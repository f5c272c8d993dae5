// Band-limited oscillator tables from a single-cycle waveform.
#pragma once

#include <cstddef>

namespace korvane {

inline constexpr int kWaveTables = 512;       // table t holds harmonics 1..t + 1
inline constexpr int kWaveTablePoints = 1024; // of one cycle
inline constexpr std::size_t kWaveTableFloats = std::size_t{kWaveTables} * kWaveTablePoints; // 2 MiB

/// Fourier series of one cycle: table t is the cycle rebuilt from its first t + 1 harmonics, at half their amplitude
/// and without its mean. Within 1e-6 of the sum of cosines for a cycle in -1..1.
///
/// cycle   kWaveTablePoints floats; values that are not finite count as 0
///
/// tables  kWaveTableFloats floats, table after table
void FillWaveTables(const float* cycle, float* tables);

/// The tables of an audio file, whose left channel as a whole is taken as one cycle. A file that cannot be decoded
/// gives silent tables and false.
bool BuildWaveTables(const char* path, float* tables);

} // namespace korvane
