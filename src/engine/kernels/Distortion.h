// Soft clipper into a lowpass.
#pragma once

#include "engine/dsp/Biquad.h"
#include "engine/dsp/OnLevel.h"
#include "engine/kernels/Sides.h"

namespace korvane {

/// s ÷ (|s| drive + 1), made up for and followed by one second-order section; crossfaded.
template <class S>
struct DistortionSide {
    FilterChain<S, 1> lowpass;
    OnLevel<S> on;
    S drive, makeUp;
    S unused[4];

    [[gnu::always_inline]] S Step(S dry)
    {
        return on.Faded(dry, lowpass.Step(dry / (Magnitude(dry) * drive + 1.0f) * makeUp));
    }
};

} // namespace korvane
