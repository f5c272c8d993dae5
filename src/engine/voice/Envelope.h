// Attack and decay of a level.
#pragma once

namespace korvane {

inline constexpr float kAttackTarget = 5.0f; // an attack aims beyond full level, so that it arrives; by ear

/// Level moving toward a target by a fraction of the distance per frame. At full level the attack ends: from there it
/// decays toward `sustain`.
struct Envelope {
    float level = 0.0f; // up to 1
    float target = 0.0f;
    float rate = 0.0f; // fraction of the distance per frame
    float decayRate = 0.0f;
    float sustain = 0.0f;

    void Attack(float attackRate)
    {
        rate = attackRate;
        target = kAttackTarget;
    }

    void Step()
    {
        level += (target - level) * rate;
        if (level >= 1.0f) {
            level = 1.0f;
            target = sustain;
            rate = decayRate;
        }
    }
};

} // namespace korvane
