// Low-cut and high-cut of a sampler layer.
#pragma once

#include "engine/dsp/Vectors.h"

namespace korvane {

/// Low-cut into high-cut of a sampler layer, both sides: second-order sections that differ in one sign,
/// y = b0 (x ∓ 2 x1 + x2) − a1 y1 − a2 y2. Lanes: low-cut left, right, high-cut left, right.
struct LayerFilters {
    alignas(16) float b0[4];
    alignas(16) float a1[4];
    alignas(16) float a2[4];
    alignas(16) float x1[4], x2[4], y1[4], y2[4];
};

/// y = b0 (x + middle x1 + x2) − a1 y1 − a2 y2, direct form; middle is −2 for a low-cut, 2 for a high-cut. Histories
/// below 1e-9 are stored as 0. S is float or a vector of floats; every lane gives the bits of the float form.
template <class S>
struct Section {
    S b0, a1, a2, middle;
    S x1, x2, y1, y2;

    S Step(S x)
    {
        const S y = b0 * (x + middle * x1 + x2) - a1 * y1 - a2 * y2;
        x2 = x1;
        x1 = Flushed(x);
        y2 = y1;
        y1 = Flushed(y);
        return y;
    }
};

/// Runs both sections of both sides in place.
/// stereo  interleaved left and right
void FilterLayer(LayerFilters& filters, float* stereo, int frames);

} // namespace korvane
