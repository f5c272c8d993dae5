// Phaser whose notches an LFO sweeps.
#pragma once

#include "engine/dsp/OnLevel.h"
#include "engine/kernels/Sides.h"

namespace korvane {

/// Six first-order allpass stages in series with feedback around them, added to the input (J. O. Smith, "An allpass
/// approach to digital phasing and flanging", 1984).
template <class S>
struct PhaserSide {
    static constexpr float kDepthStep = 0.001f;   // of the way to the depth's target per frame, by ear
    static constexpr float kLowestPart = 0.001f;  // of the rate; at 0 a stage would ring for ever (c = 1)
    static constexpr float kHighestPart = 0.499f; // of the rate; the sweep may go beyond half of it
    static constexpr float kAgainstDenormals = 0.000001f;

    S stages[6];
    S last; // output of the last stage in the frame before
    OnLevel<S> on;
    S depth, depthTarget; // 0..1
    S feedback;
    S lowest, span; // of the sweep, in parts of the rate
    S unused[2];

    [[gnu::always_inline]] S Step(S dry, S lfo)
    {
        on.Step();
        depth += (depthTarget - depth) * kDepthStep;
        S f = (lfo * depth * 0.5f + depth) * span + lowest;
        f = f > kLowestPart ? f : S{} + kLowestPart;
        f = f < kHighestPart ? f : S{} + kHighestPart;
        const S c = (1.0f - f) / (1.0f + f);
        S stage = dry + feedback * last - kAgainstDenormals;
        for (S& state : stages) {
            const S out = state - c * stage;
            state = c * out + stage;
            stage = out;
        }
        last = stage;
        return dry + on.level * stage;
    }
};

} // namespace korvane
