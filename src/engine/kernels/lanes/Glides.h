// Gains on the way to where they go.
#pragma once

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

/// value += (target - value) * step for each frame.
struct Glide {
    float value, target;
    float* row; // receives the frames' values; null where none are kept: the value has arrived

    [[gnu::always_inline]] float After(float step) const { return value + (target - value) * step; }
    /// The values of a vector.
    [[gnu::always_inline]] Floats At(int n) const { return row ? Load<Floats>(row + n) : Floats{} + value; }
};

/// Moves on those that have not arrived; the rows of the others are not needed. A glide waits for its own result, so
/// several go side by side.
template <int kMost>
[[gnu::always_inline]] inline void RunGlides(Glide* glides, int count, float step, int frames)
{
    constexpr int kAbreast = 8;
    Glide* moving[kMost + kAbreast];
    int left = 0;
    for (Glide* glide = glides; glide < glides + count; ++glide) {
        if (glide->After(step) == glide->value)
            glide->row = nullptr;
        else
            moving[left++] = glide;
    }
    for (Glide** group = moving; left > 0; group += kAbreast, left -= kAbreast) {
        const int size = left < kAbreast ? left : kAbreast;
        Glide abreast[kAbreast];
        for (int k = 0; k < kAbreast; ++k) abreast[k] = *group[k < size ? k : 0];
        for (int n = 0; n < frames; ++n)
            for (int k = 0; k < kAbreast; ++k) abreast[k].row[n] = abreast[k].value = abreast[k].After(step);
        for (int k = 0; k < size; ++k) group[k]->value = abreast[k].value;
    }
}

} // namespace korvane::KORVANE_ISA_SPACE
