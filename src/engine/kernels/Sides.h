// Effects that treat the sides of channels alike.
#pragma once

namespace korvane {

/// A channel's block on its way through an effect, in place. Side is what the effect knows of one side: a template over
/// float, which is the definition, or a vector of floats. It holds a multiple of 16 of them, of which a step moves only
/// some among the first 16, and makes the next frame by Step(input) or, where an LFO moves it, Step(input, lfo).
template <template <class> class Side>
struct SidesJob {
    float *left, *right; // of each frame
    Side<float>* sides;  // left and right; moved on
    const float* lfo;    // of each frame; of an effect that asks for it
};

/// Runs an effect of several channels, none of them twice. Audio thread.
/// count   0 or more
/// frames  0..kMaxRun
template <template <class> class Side>
using SidesKernel = void(const SidesJob<Side>* jobs, int count, int frames);

template <class Side, class S>
concept MovedByLfo = requires(Side side, S value)
{
    side.Step(value, value);
};

/// The plain form of every such kernel.
template <template <class> class Side>
void RunSides(const SidesJob<Side>* jobs, int count, int frames)
{
    for (const SidesJob<Side>* job = jobs; job < jobs + count; ++job)
        for (int side = 0; side < 2; ++side) {
            float* const signal = side == 0 ? job->left : job->right;
            for (int n = 0; n < frames; ++n) {
                if constexpr (MovedByLfo<Side<float>, float>)
                    signal[n] = job->sides[side].Step(signal[n], job->lfo[n]);
                else
                    signal[n] = job->sides[side].Step(signal[n]);
            }
        }
}

} // namespace korvane
