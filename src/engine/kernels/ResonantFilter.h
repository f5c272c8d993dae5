// Resonant lowpass or highpass of four sections.
#pragma once

#include "engine/dsp/Biquad.h"
#include "engine/dsp/OnLevel.h"
#include "engine/kernels/Sides.h"

namespace korvane {

/// Four equal second-order sections in series; crossfaded.
template <class S>
struct ResonantSide {
    FilterChain<S, 4> sections;
    OnLevel<S> on;

    [[gnu::always_inline]] S Step(S dry) { return on.Faded(dry, sections.Step(dry)); }
};

} // namespace korvane
