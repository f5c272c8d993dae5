// Effects that treat the sides of channels alike.
#pragma once

#include "engine/dsp/StereoFrame.h"

namespace korvane {

/// A channel's block on its way through an effect, in place. Side is what the effect knows of a side: a template over
/// float, or a vector of floats whose lanes are sides. It holds a multiple of 8 values, of which a step moves only some
/// among the first 16, and makes the next frame by Step(input) or, where an LFO moves it, Step(input, lfo).
template <template <class> class Side>
struct SidesJob {
    float *left, *right; // of each frame
    Side<Stereo>* sides; // moved on
    const float* lfo;    // of each frame; of an effect that asks for it
};

template <class Side, class S>
concept MovedByLfo = requires(Side side, S value)
{
    side.Step(value, value);
};

/// One frame of a channel.
template <template <class> class Side>
[[gnu::always_inline]] inline void StepSides(const SidesJob<Side>& job, Side<Stereo>& sides, int n)
{
    Stereo frame = LoadFrame(job.left, job.right, n);
    if constexpr (MovedByLfo<Side<Stereo>, Stereo>)
        frame = sides.Step(frame, Stereo{} + job.lfo[n]);
    else
        frame = sides.Step(frame);
    StoreFrame(frame, job.left, job.right, n);
}

/// The plain form for one channel.
template <template <class> class Side>
[[gnu::always_inline]] inline void RunSides(const SidesJob<Side>& job, int frames)
{
    if (frames == 1) return StepSides(job, *job.sides, 0); // sooner done than a copy
    Side<Stereo> sides = *job.sides;
    for (int n = 0; n < frames; ++n) StepSides(job, sides, n);
    *job.sides = sides;
}

/// Runs an effect of several channels, none of them twice. Audio thread.
/// count   0 or more
/// frames  0..kMaxRun
template <template <class> class Side>
using SidesKernel = void(const SidesJob<Side>* jobs, int count, int frames);

} // namespace korvane
