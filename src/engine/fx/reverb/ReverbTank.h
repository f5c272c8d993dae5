// The reverb's delay memory and the signal path through it.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/reverb/ReverbCoefficients.h"

namespace korvane {

/// Plate after J. Dattorro, "Effect Design, Part 1" (JAES 1997), without modulation: low and high cut, four input
/// diffusers, predelay, and two cross-coupled branches of diffuser, delay, diffuser and delay; each output sums seven
/// taps of both branches. Early reflections are tapped from behind the second input diffuser.
///
/// No line is shorter than a run, so each stage works through the whole run before the next one starts; the result is
/// that of frame by frame, bit for bit.
class ReverbTank {
public:
    static constexpr int kLongestRun = 64; // frames

    /// Allocates one block for all lines, at their greatest lengths, and fills it. Throws std::bad_alloc and is as
    /// before.
    /// early  with room for reflections and predelay; otherwise Fit gets coefficients without
    void Allocate(float rate, bool early);
    /// Fills the memory with a value below hearing but far above the denormal range; clears the filters.
    void Reset();
    /// Takes over new lengths; the lines are emptied when `clear` is set.
    void Fit(const ReverbCoefficients& c, bool clear);
    /// Frames that Run may be given with these lengths, 1..kLongestRun.
    int RunLimit() const { return runLimit; }

    /// Reverberates a run.
    /// inLeft, inRight      scaled by the input gain
    /// wetLeft, wetRight    receive the sum of reflections and reverb; not the inputs
    /// level                smoothed reverb level; moves to the target
    void Run(const ReverbCoefficients& c, const float* inLeft, const float* inRight, float* wetLeft, float* wetRight,
             int frames, float& level);

private:
    using Buffer = std::array<float, kLongestRun>;

    struct Line {
        float* memory = nullptr;
        int length = 1;   // frames
        int position = 0; // written next, and read before that
    };

    /// Allpass state of the crossover and state of the damping; lanes are the branches.
    struct Branches {
        Stereo allpassIn{}, allpassOut{}, damping{};
    };

    static void Diffuse(Line& line, Buffer& x, float ga, float gb, int frames);
    static void Delay(Line& line, Buffer& x, float gain, int frames);
    static void Peek(const Line& line, Buffer& out, float gain, int frames);
    static void AddTap(const Line& line, int tap, float weight, Buffer& sum, int frames);
    void FilterInput(const ReverbCoefficients& c, const float* inLeft, const float* inRight, Buffer& x, int frames);
    void WriteReflections(const Buffer& x, int frames);
    void AddReflections(const std::array<int, kReflections>& taps, const std::array<float, kReflections>& gains,
                        const std::array<float, kReflections>& signs, Buffer& sum, int frames) const;
    void RunBranches(const ReverbCoefficients& c, const Buffer& x, int frames);
    void DampBranches(const ReverbCoefficients& c, const Buffer& x, Buffer& left, Buffer& right, int frames);

    std::unique_ptr<float[]> memory;
    std::size_t memoryFloats = 0;
    std::array<Line, kReverbLines> lines;
    Line predelay;
    Line reflections; // length is a power of two; 1: there are none
    int runLimit = 1;

    float highCutState = 0.0f;
    float lowCutIn = 0.0f, lowCutOut = 0.0f;
    Branches branches;
};

} // namespace korvane
