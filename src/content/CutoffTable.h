// Coefficients of the channel filter by cutoff.
#pragma once

namespace korvane {

struct CutoffPair {
    float g; // gain of one stage per pass, 0.0005..0.437
    float k; // feedback gain at full resonance
};

inline constexpr int kCutoffPairs = 65536; // cutoff 0..1, equal steps of pitch over nearly ten octaves

void BuildCutoffTable(CutoffPair* pairs);

/// The table that all instances in the process read; built by the first call, which must not be the audio thread's.
const CutoffPair* CutoffTable();

} // namespace korvane
