// Envelope of the pump.
#pragma once

namespace korvane {

inline constexpr float kPumpStep = 0.01f; // of the way that the envelope goes per frame: no clicks

/// p        0..1 of the period
/// release  1 or more: the larger, the sooner the level is back
[[gnu::always_inline]] inline float PumpEnvelope(float p, float release)
{
    constexpr float kAttack = 0.01f; // of the period
    const float fall = (p - kAttack) / (1.0f - kAttack);
    const float back = fall * fall * fall * fall * release;
    const float rise = p / kAttack, down = 1.0f - (1.0f < back ? 1.0f : back); // both, so that frames go side by side
    return p < kAttack ? rise : down;
}

struct PumpJob {
    const double* phases; // of each frame, 0..1
    float release;
    float* levels;   // of each frame: the smoothed envelope
    float* envelope; // the one of the frame before; moved on
};

/// count  0..kChannels, none of them twice
using PumpKernel = void(const PumpJob* jobs, int count, int frames);

inline void PumpLevels(const PumpJob* jobs, int count, int frames)
{
    for (const PumpJob* job = jobs; job < jobs + count; ++job)
        for (int n = 0; n < frames; ++n) {
            const float e = PumpEnvelope(static_cast<float>(job->phases[n]), job->release);
            job->levels[n] = *job->envelope += (e - *job->envelope) * kPumpStep;
        }
}

} // namespace korvane
