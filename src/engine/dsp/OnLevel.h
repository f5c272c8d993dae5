// How far an effect is on.
#pragma once

namespace korvane {

inline constexpr float kOnStep = 0.01f; // of the way that an on-level goes per frame: 100 frames, by ear

/// Smoothed on-level of an effect, 0..1. S is float or a vector of floats.
template <class S>
struct OnLevel {
    S level, target;

    [[gnu::always_inline]] void Step() { level += (target - level) * kOnStep; }

    /// The next frame, faded between the input and the effect's own signal.
    [[gnu::always_inline]] S Faded(S dry, S wet)
    {
        Step();
        return (1.0f - level) * dry + level * wet;
    }
};

} // namespace korvane
