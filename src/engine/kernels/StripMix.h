// Levels of the channels' strips and their sum.
#pragma once

namespace korvane {

inline constexpr float kGainStep = 0.01f; // share of the distance that a gain moves per frame

[[gnu::always_inline]] inline float GainAfter(float gain, float target) { return gain + (target - gain) * kGainStep; }

/// One side of a strip's sound.
struct StripSide {
    const float* in;
    float* direct; // overwritten; null where nobody listens
    float target;
    float gain; // >= 0; moved on
    float peak; // >= 0; raised to the greatest magnitude of the run
};

struct StripJob {
    StripSide left, right;
    bool first; // the main pair is empty: it takes the sound instead of adding it
};

/// The definition: one side into its main output, frame by frame.
[[gnu::always_inline]] inline void MixSide(StripSide& side, bool first, float* main, int frames)
{
    for (int n = 0; n < frames; ++n) {
        side.gain = GainAfter(side.gain, side.target);
        const float sound = side.in[n] * side.gain;
        const float magnitude = __builtin_fabsf(sound);
        side.peak = side.peak < magnitude ? magnitude : side.peak; // NaN passes unseen
        main[n] = first ? sound : main[n] + sound;
        if (side.direct) side.direct[n] = sound;
    }
}

/// Mixes the strips in their order. Reads and writes no further than `frames`. Audio thread.
/// count   0..kChannels
/// frames  0..kMaxRun
using MixStripsKernel = void(StripJob* jobs, int count, float* mainLeft, float* mainRight, int frames);

} // namespace korvane
