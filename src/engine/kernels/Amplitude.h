// Blocks of the voices, shaped by their amplitudes.
#pragma once

#include "framework/Limits.h"

namespace korvane {

/// Rows hold kMaxRun floats.
struct AmplitudeJob {
    float *left, *right; // in place
    const float* amp;    // of each frame
};

/// Multiplies each block by its amplitude; one that is not finite then becomes silence. Rows may change up to the next
/// multiple of 16 frames. Audio thread.
/// count   0..kChannels * kVoices
/// frames  0..kMaxRun
using ShapeVoicesKernel = void(const AmplitudeJob* jobs, int count, int frames);

/// The plain form.
[[gnu::always_inline]] inline void ShapeVoicesPlainly(const AmplitudeJob* jobs, int count, int frames)
{
    for (const AmplitudeJob* job = jobs; job != jobs + count; ++job) {
        bool finite = true;
        for (int n = 0; n < frames; ++n) {
            job->left[n] *= job->amp[n];
            job->right[n] *= job->amp[n];
            finite = finite && __builtin_isfinite(job->left[n]) && __builtin_isfinite(job->right[n]);
        }
        for (int n = 0; n < frames && !finite; ++n) job->left[n] = job->right[n] = 0.0f;
    }
}

} // namespace korvane
