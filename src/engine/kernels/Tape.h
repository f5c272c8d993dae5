// What the tapes of the delay effects compute.
#pragma once

#include <algorithm>

#include "engine/dsp/StereoFrame.h"

namespace korvane {

/// What one frame does to a tape, by the numbers of entries.
struct TapePlace {
    int before, after; // the entries that the output lies between
    float fraction;    // of the way from one to the other
    int write;         // the entry that is recorded
    int writeAgain;    // the last frame of a loop is also the first of the next one; else the same
};

/// Speeds of a tape, in loops per frame.
/// delays  of each frame, from 2 (0) to `length` frames (1)
/// length  of the tape in frames
using TapeSpeedsKernel = void(const float* delays, int length, double* speeds, int frames);

inline void TapeSpeeds(const float* delays, int length, double* speeds, int frames)
{
    for (int n = 0; n < frames; ++n)
        speeds[n] = 1.0 / (length * ((1.0 - 2.0 / length) * static_cast<double>(delays[n]) + 2.0 / length));
}

/// The record path: a one-pole lowpass, then a one-pole highpass. S is float or a vector of floats.
template <class S>
struct RecordPath {
    S lowpassState{}, highpassState{};

    /// input              with the feedback
    /// lowpass, highpass  coefficients; 1 and 0 leave the input nearly as it is
    S Step(S input, float lowpass, float highpass)
    {
        lowpassState = Flushed(lowpassState + (input - lowpassState) * lowpass);
        highpassState = Flushed(highpassState + (lowpassState - highpassState) * highpass);
        return lowpassState - highpassState;
    }
};

/// As Step of a path whose coefficients are always 1 and 0.
/// last  what was recorded before
template <class S>
[[gnu::always_inline]] inline S OpenStep(S last, S input)
{
    return Flushed(last + (input - last));
}

/// Three tapes in series on each side that run at one speed, with feedback; their output is added to the input.
/// Entries are one for each tape, the fourth is not used.
struct ChainedTapesJob {
    float *left, *right; // of each frame, in place
    const TapePlace* places;
    const float* gains; // of each frame: of the input of all tapes
    float feedback;
    StereoChain* entries;
    StereoChain* last; // that was recorded
};

/// count  0..kChannels, none of them twice
using ChainTapesKernel = void(const ChainedTapesJob* jobs, int count, int frames);

inline void ChainTapes(const ChainedTapesJob* jobs, int count, int frames)
{
    for (const ChainedTapesJob* job = jobs; job < jobs + count; ++job)
        for (int n = 0; n < frames; ++n) {
            const TapePlace& place = job->places[n];
            const StereoChain before = job->entries[place.before];
            const StereoChain out = Flushed(before + (job->entries[place.after] - before) * place.fraction);
            const StereoChain in = {Float4{job->left[n], out.left[0], out.left[1], 0.0f},
                                    Float4{job->right[n], out.right[0], out.right[1], 0.0f}};
            const StereoChain recorded = OpenStep(*job->last, job->gains[n] * in + job->feedback * out);
            *job->last = job->entries[place.write] = job->entries[place.writeAgain] = recorded;
            job->left[n] += out.left[2];
            job->right[n] += out.right[2];
        }
}

} // namespace korvane
