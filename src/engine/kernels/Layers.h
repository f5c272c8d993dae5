// Sample layers, read, filtered and shaped once per layer.
#pragma once

#include <cstdint>

#include "engine/dsp/StereoFrame.h"
#include "framework/Limits.h"

namespace korvane {

/// Low-cut into high-cut: second-order sections, y = b (x ∓ 2 x1 + x2) − a1 y1 − a2 y2.
template <class S>
struct LayerCoefficients {
    S loB{}, loA1{}, loA2{};
    S hiB{}, hiA1{}, hiA2{};
};

/// Both sections of one side. What the low-cut put out is what the high-cut took in. Histories below 1e-9 are stored as
/// 0. S is float, which is the definition, or a vector of floats.
template <class S>
struct LayerFilter {
    S x1{}, x2{}; // into the low-cut
    S m1{}, m2{}; // between
    S y1{}, y2{}; // out of the high-cut

    /// What goes into the low-cut's recursion.
    /// kept  x as the history stores it
    [[gnu::always_inline]] S Feed(S x, S kept, const LayerCoefficients<S>& c)
    {
        const S fed = c.loB * (x - 2.0f * x1 + x2);
        x2 = x1;
        x1 = kept;
        return fed;
    }

    /// flush  Flushed for an S
    template <class Flush>
    [[gnu::always_inline]] S Step(S fed, const LayerCoefficients<S>& c, Flush flush)
    {
        const S middle = fed - c.loA1 * m1 - c.loA2 * m2;
        const S y = c.hiB * (middle + 2.0f * m1 + m2) - c.hiA1 * y1 - c.hiA2 * y2;
        m2 = m1;
        m1 = flush(middle);
        y2 = y1;
        y1 = flush(y);
        return y;
    }
};

/// What sounds of a layer.
struct LayerState {
    double position = 0.0;  // read position in frames of the sample, from 0; kept when a note starts without one
    double increment = 1.0; // frames of the sample per output frame, 2^(semitones / 12)
    float gainLeft = 0.0f, gainRight = 0.0f;
    float envLevel = 0.0f, envTarget = 0.0f, envRate = 0.0f, decayRate = 0.0f;
    std::int32_t plateauFrames = 0; // left at full level between attack and decay
    LayerCoefficients<float> coefficients;
    LayerFilter<float> filters[2]; // left, right
};

inline constexpr float kHoldLevel = 1.00001f; // beyond full level: every frame of the hold finds the attack over

/// A layer that plays in some frames of a run, all of them inside its sample.
struct LayerJob {
    LayerState* state;         // moved on
    const float* data[2];      // left, right; a mono sample's twice. Two floats after the last frame are read
    std::int32_t numFrames;    // of the sample
    bool reverse;              // the sample from its end
    int from, to;              // frames of the run, from < to <= kMaxRun
    float *mixLeft, *mixRight; // of the voice, from the run's first frame; the output is added
    float lastLeft, lastRight; // set to the last frame that was read
};

/// Reads the sample, interpolated between neighbours, with gain. The plain form; moves the position.
/// left, right  of the run, as the mix
inline void ReadLayer(const LayerJob& job, float* left, float* right)
{
    LayerState& state = *job.state;
    for (int n = job.from; n < job.to; ++n) {
        std::int32_t i = static_cast<std::int32_t>(state.position);
        float f = static_cast<float>(state.position - i);
        if (job.reverse) {
            f = 1.0f - f;
            i = job.numFrames - i; // up to numFrames
        }
        const auto between = [&](const float* data) { return data[i] * (1.0f - f) + data[i + 1] * f; };
        left[n] = Flushed(between(job.data[0]) * state.gainLeft);
        right[n] = Flushed(between(job.data[1]) * state.gainRight);
        state.position += state.increment;
    }
}

/// A frame of the envelope: attack, plateau, decay.
inline void StepEnvelope(LayerState& state)
{
    state.envLevel += (state.envTarget - state.envLevel) * state.envRate;
    if (!(state.envLevel > 1.0f)) return;
    if (state.plateauFrames > 0) {
        state.envLevel = kHoldLevel;
        --state.plateauFrames;
    } else {
        state.envLevel = 1.0f;
        state.envTarget = 0.0f;
        state.envRate = state.decayRate;
    }
}

/// Filters and shapes what was read and adds it. The plain form.
/// scale  full scale of the mix
inline void ShapeLayer(const LayerJob& job, const float* left, const float* right, float scale)
{
    LayerState& state = *job.state;
    const auto filtered = [&state](int side, float x) {
        LayerFilter<float>& filter = state.filters[side];
        const float fed = filter.Feed(x, Flushed(x), state.coefficients);
        return filter.Step(fed, state.coefficients, [](float value) { return Flushed(value); });
    };
    for (int n = job.from; n < job.to; ++n) {
        StepEnvelope(state);
        const float gain = state.envLevel * state.envLevel * scale;
        job.mixLeft[n] += filtered(0, left[n]) * gain;
        job.mixRight[n] += filtered(1, right[n]) * gain;
    }
    state.envLevel = Flushed(state.envLevel);
}

inline void PlayLayer(LayerJob& job, float scale)
{
    float left[kMaxRun], right[kMaxRun];
    ReadLayer(job, left, right);
    ShapeLayer(job, left, right, scale);
    job.lastLeft = left[job.to - 1];
    job.lastRight = right[job.to - 1];
}

/// Plays layers in the order of the jobs, each as PlayLayer does. Audio thread.
/// count  0..kSamplerChannels * kVoices * kLayers
using PlayLayersKernel = void(LayerJob* jobs, int count, float scale);

} // namespace korvane
