// Sample-and-hold decimator into a lowpass.
#pragma once

#include "engine/dsp/Biquad.h"
#include "engine/dsp/OnLevel.h"
#include "engine/kernels/Sides.h"

namespace korvane {

/// Takes a frame and holds it for a period, then one second-order section; crossfaded.
template <class S>
struct DecimatorSide {
    FilterChain<S, 1> lowpass;
    OnLevel<S> on;
    S held;
    S left;   // whole frames before the next one is taken
    S period; // whole frames, 1 or more
    S unused[3];

    [[gnu::always_inline]] S Step(S dry)
    {
        const S passed = left - 1.0f;
        const auto taken = passed <= 0.0f;
        held = taken ? dry : held;
        left = taken ? period : passed;
        return on.Faded(dry, lowpass.Step(held));
    }
};

} // namespace korvane
