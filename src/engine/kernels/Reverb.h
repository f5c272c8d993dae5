// The reverb's signal path.
#pragma once

#include <array>
#include <cstddef>

#include "engine/dsp/OnLevel.h"

namespace korvane {

inline constexpr int kReverbLines = 12;       // 0..3 input diffusers, 4..7 left branch, 8..11 right branch
inline constexpr int kReverbTaps = 7;         // of each output
inline constexpr int kLongestReverbRun = 128; // frames that pass a stage at a time
inline constexpr int kReflections = 8;        // of each side; the left sum uses the first seven

struct ReverbCoefficients {
    float inputGain, dryGain, reflectionsGain, reverbTarget;
    float lowCut;               // of the allpass; 0 switches the low cut off
    float highCut, highDamping; // of one-pole lowpasses; 1 passes everything
    float input1, input2;       // diffusion
    float decay1, decay2;
    float decay;     // gain of half a branch
    float bassBoost; // of what the crossover allpass leaves of the low band
    float crossover;
    float w1, w2, w3, w4, w5;              // weights of the output taps
    float width;                           // 1: as it is
    std::array<int, kReverbLines> lengths; // frames
    int predelayFrames;
    std::array<int, kReverbTaps> leftTaps, rightTaps;                // frames
    std::array<int, kReflections> leftReflections, rightReflections; // frames
    std::array<float, kReflections> leftReflectionGains, rightReflectionGains;
};

inline constexpr float kInputOffset = 1e-30f, kTankOffset = 1e-20f; // keep the tail out of the denormal range
inline constexpr float kLevelStep = 0.001f;                         // of the way that the level goes per frame

// Which line each output tap reads.
inline constexpr std::array<std::size_t, kReverbTaps> kLeftTapLines = {9, 9, 10, 11, 5, 6, 7};
inline constexpr std::array<std::size_t, kReverbTaps> kRightTapLines = {5, 5, 6, 7, 9, 10, 11};

// The left sum has no eighth reflection.
inline constexpr std::array<float, kReflections> kLeftSigns = {1.0f, 1.0f, -1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 0.0f};
inline constexpr std::array<float, kReflections> kRightSigns = {1.0f, -1.0f, 1.0f, 1.0f, -1.0f, 1.0f, 1.0f, -1.0f};

struct ReverbLine {
    float* memory = nullptr;
    int length = 1;   // frames
    int position = 0; // written next, and read before that
};

/// High cut, then low cut. S is float or a vector of floats, whose lanes are channels.
template <class S>
struct ReverbCuts {
    S high{}, lowIn{}, lowOut{};

    [[gnu::always_inline]] S HighCut(S x, S highCut) { return high += (x - high) * highCut; }
    [[gnu::always_inline]] S LowCut(S x, S lowCut)
    {
        lowOut = lowCut * (x - lowOut) + lowIn;
        lowIn = x;
        return (x - lowOut) * 0.5f + kInputOffset;
    }
};

/// What enters a branch: its input and what the other branch feeds in, with more or less bass, damped.
template <class S>
struct ReverbDamping {
    S allpassIn{}, allpassOut{}, damping{};

    [[gnu::always_inline]] S Step(S in, S cross, S crossover, S bassBoost, S highDamping)
    {
        allpassOut = crossover * (cross - allpassOut) + allpassIn;
        allpassIn = cross;
        const S sum = (in + cross) + (cross + allpassOut) * bassBoost;
        return damping += (sum - damping) * highDamping;
    }
};

/// Lines and filters of one reverb. Behind each line at least 16 more floats may be read, and written as they are.
struct ReverbState {
    std::array<ReverbLine, kReverbLines> lines;
    ReverbLine predelay;
    ReverbLine reflections; // length is a power of two; 1: there are none
    int runLimit = 1;       // so many frames may pass a stage before the next one: no line is shorter, no tap further
    ReverbCuts<float> cuts;
    std::array<ReverbDamping<float>, 2> damping; // left, right
    float level = -1.0f;                         // smoothed reverb level
};

struct ReverbJob {
    const ReverbCoefficients* coefficients;
    ReverbState* state;
    const float *inLeft, *inRight;
    float *outLeft, *outRight; // may be the inputs
    bool adds;                 // to what is there
    float send = 1.0f;         // gain of the input; moved on
    float sendTarget = 1.0f;   // where it goes
};

struct ReverbWeights {
    std::array<float, kReverbTaps> left, right;

    [[gnu::always_inline]] explicit ReverbWeights(const ReverbCoefficients& c)
        : left{1.0f, -c.w2, -c.w3, -c.w5, c.w1, 1.0f, c.w4}, right{c.w2, 1.0f, -c.w3, -c.w5, -c.w1, 1.0f, c.w4}
    {
    }
};

/// The definition, frame by frame.
struct PlainReverb {
    const ReverbCoefficients& c;
    ReverbState& state;

    [[gnu::always_inline]] static void Step(ReverbLine& line)
    {
        line.position = line.position + 1 < line.length ? line.position + 1 : 0;
    }

    [[gnu::always_inline]] float Diffuse(std::size_t number, float x, float ga, float gb)
    {
        ReverbLine& line = state.lines[number];
        float& buffer = line.memory[line.position];
        const float out = buffer - ga * x;
        buffer = x + gb * out;
        Step(line);
        return out;
    }
    [[gnu::always_inline]] static float Delay(ReverbLine& line, float x)
    {
        const float out = line.memory[line.position];
        line.memory[line.position] = x;
        Step(line);
        return out;
    }
    [[gnu::always_inline]] float Next(std::size_t number) const
    {
        return state.lines[number].memory[state.lines[number].position];
    }

    /// tap  1 is the frame just written, `length` the oldest one
    [[gnu::always_inline]] static float Tap(const ReverbLine& line, int tap)
    {
        const int place = line.position - tap;
        return line.memory[place < 0 ? place + line.length : place];
    }

    [[gnu::always_inline]] float Branch(std::size_t first, float x)
    {
        x = Delay(state.lines[first + 1], Diffuse(first, x, c.decay1, c.decay1)) * c.decay;
        return Delay(state.lines[first + 3], Diffuse(first + 2, x, c.decay2, c.decay2));
    }
    [[gnu::always_inline]] float Taps(const std::array<std::size_t, kReverbTaps>& lines,
                                      const std::array<int, kReverbTaps>& taps,
                                      const std::array<float, kReverbTaps>& weights) const
    {
        float sum = 0.0f;
        for (std::size_t n = 0; n < kReverbTaps; ++n) sum += weights[n] * Tap(state.lines[lines[n]], taps[n]);
        return sum;
    }
    [[gnu::always_inline]] float Reflections(const std::array<int, kReflections>& taps,
                                             const std::array<float, kReflections>& gains,
                                             const std::array<float, kReflections>& signs) const
    {
        float sum = 0.0f;
        for (std::size_t n = 0; n < kReflections; ++n)
            if (signs[n] != 0.0f) sum += (signs[n] * gains[n]) * Tap(state.reflections, taps[n] + 1);
        return sum;
    }

    /// left, right  the input; the output replaces it
    [[gnu::always_inline]] void Frame(float& left, float& right)
    {
        left *= c.inputGain;
        right *= c.inputGain;
        float x = state.cuts.HighCut((left + right) * 0.5f + kInputOffset, c.highCut);
        if (c.lowCut != 0.0f) x = state.cuts.LowCut(x, c.lowCut);
        x = Diffuse(1, Diffuse(0, x, c.input1, c.input1), c.input2, c.input1);
        if (state.reflections.length > 1) Delay(state.reflections, x);
        x = Diffuse(3, Diffuse(2, x, c.input1, c.input1), c.input2, c.input1);
        x = Delay(state.predelay, x) + kTankOffset;
        const float crossLeft = Next(11) * c.decay, crossRight = Next(7) * c.decay;
        Branch(4, state.damping[0].Step(x, crossLeft, c.crossover, c.bassBoost, c.highDamping));
        Branch(8, state.damping[1].Step(x, crossRight, c.crossover, c.bassBoost, c.highDamping));
        const ReverbWeights weights(c);
        float wetLeft = 0.0f, wetRight = 0.0f;
        if (c.reflectionsGain != 0.0f) {
            wetLeft = c.reflectionsGain * Reflections(c.leftReflections, c.leftReflectionGains, kLeftSigns);
            wetRight = c.reflectionsGain * Reflections(c.rightReflections, c.rightReflectionGains, kRightSigns);
        }
        state.level += (c.reverbTarget - state.level) * kLevelStep;
        wetLeft = wetLeft + state.level * Taps(kLeftTapLines, c.leftTaps, weights.left);
        wetRight = wetRight + state.level * Taps(kRightTapLines, c.rightTaps, weights.right);
        const float middle = wetLeft + wetRight;
        const float side = (wetLeft - wetRight) * c.width;
        left = middle + side + c.dryGain * left;
        right = middle - side + c.dryGain * right;
    }
};

[[gnu::always_inline]] inline void RunReverb(ReverbJob& job, int frames)
{
    PlainReverb reverb{*job.coefficients, *job.state};
    for (int n = 0; n < frames; ++n) {
        job.send += (job.sendTarget - job.send) * kOnStep;
        float left = job.inLeft[n] * job.send, right = job.inRight[n] * job.send;
        reverb.Frame(left, right);
        job.outLeft[n] = job.adds ? job.outLeft[n] + left : left;
        job.outRight[n] = job.adds ? job.outRight[n] + right : right;
    }
}

/// Reverberates. Reads and writes no further than `frames`. Audio thread.
/// count  0..kChannels
using RunReverbsKernel = void(ReverbJob* jobs, int count, int frames);

} // namespace korvane
