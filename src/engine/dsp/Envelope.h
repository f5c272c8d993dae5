// Attack and decay of a level.
#pragma once

namespace korvane {

inline constexpr float kAttackTarget = 5.0f; // an attack aims beyond full level, so that it arrives; by ear

/// Level moving toward a target by a fraction of the distance per frame. At full level the attack ends: from there it
/// decays toward `sustain`. S is float or a vector of floats.
template <class S>
struct Envelope {
    S level{}; // up to 1
    S target{};
    S rate{}; // fraction of the distance per frame
    S decayRate{};
    S sustain{};

    void Attack(S attackRate)
    {
        rate = attackRate;
        target = S{} + kAttackTarget;
    }

    /// kArrives  false where it is known that the level stays below 1 or stands still
    template <bool kArrives = true>
    [[gnu::always_inline]] void Step()
    {
        level += (target - level) * rate;
        if constexpr (kArrives) {
            const auto arrived = level >= 1.0f;
            level = arrived ? S{} + 1.0f : level;
            target = arrived ? sustain : target;
            rate = arrived ? decayRate : rate;
        }
    }
};

} // namespace korvane
