// Five bands in series.
#pragma once

#include "engine/dsp/Biquad.h"
#include "engine/kernels/Sides.h"

namespace korvane {

inline constexpr int kEqBands = 5; // 80 Hz low shelf, peaks at 220, 1200 and 6000 Hz, 12 kHz high shelf

template <class S>
struct EqualiserSide {
    BiquadChain<S, kEqBands> chain;
    BandCoefficients<S> bands[kEqBands];
    S unused[3];

    [[gnu::always_inline]] S Section(int n, S x, S x1, S x2, S y1, S y2) const
    {
        const BandCoefficients<S>& c = bands[n];
        return c.b0 * x + c.b1 * x1 + c.b2 * x2 - c.a1 * y1 - c.a2 * y2;
    }
    [[gnu::always_inline]] S Step(S in)
    {
        return chain.Step(in, [this](auto... values) { return Section(values...); });
    }
};

} // namespace korvane
