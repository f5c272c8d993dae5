// Reverb: delay lines, diffusers, branches and taps, a run at a time.
#include "engine/fx/reverb/ReverbTank.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace korvane {

namespace {

constexpr float kFill = 1e-30f;
constexpr float kInputOffset = 1e-30f, kTankOffset = 1e-20f; // keep the tail out of the denormal range

// Which line each output tap reads, and with which sign its weight counts.
constexpr std::array<std::size_t, kReverbTaps> kLeftTapLines = {9, 9, 10, 11, 5, 6, 7};
constexpr std::array<std::size_t, kReverbTaps> kRightTapLines = {5, 5, 6, 7, 9, 10, 11};

constexpr std::array<float, kReflections> kLeftSigns = {1.0f, 1.0f, -1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 0.0f};
constexpr std::array<float, kReflections> kRightSigns = {1.0f, -1.0f, 1.0f, 1.0f, -1.0f, 1.0f, 1.0f, -1.0f};

/// Longest reflection at room size 100, in frames.
std::uint32_t ReflectionRoom(float rate)
{
    return static_cast<std::uint32_t>(std::lround(static_cast<double>(rate) * 13950.0 / 44100.0));
}

/// Calls body(place, offset, count) for the parts of a run that stay clear of the line's end.
template <class Body>
void InParts(int length, int position, int frames, Body body)
{
    for (int done = 0; done < frames;) {
        const int count = std::min(frames - done, length - position);
        body(position, done, count);
        done += count;
        position += count;
        if (position == length) position = 0;
    }
}

int Advanced(int length, int position, int frames) { return (position + frames) % length; }

} // namespace

void ReverbTank::Allocate(float rate, bool early)
{
    ReverbSteps largest{};
    largest[reverb::RoomSize] = 100;
    largest[reverb::Predelay] = early ? 250 : 0;
    const ReverbCoefficients c = ComputeReverb(largest, rate);
    const int reflectionFrames = early ? 1 << (std::bit_width(ReflectionRoom(rate)) + 1) : 1;
    std::size_t floats = static_cast<std::size_t>(c.predelayFrames) + static_cast<std::size_t>(reflectionFrames);
    for (const int length : c.lengths) floats += static_cast<std::size_t>(length);
    memory = std::make_unique<float[]>(floats);
    memoryFloats = floats;

    float* next = memory.get();
    const auto place = [&next](Line& line, int length) {
        line = {next, length, 0};
        next += length;
    };
    for (std::size_t n = 0; n < lines.size(); ++n) place(lines[n], c.lengths[n]);
    place(predelay, c.predelayFrames);
    place(reflections, reflectionFrames);
    Reset();
}

void ReverbTank::Reset()
{
    std::fill_n(memory.get(), memoryFloats, kFill);
    highCutState = lowCutIn = lowCutOut = 0.0f;
    branches = {};
}

void ReverbTank::Fit(const ReverbCoefficients& c, bool clear)
{
    if (clear) std::fill_n(memory.get(), memoryFloats, 0.0f);
    runLimit = kLongestRun;
    for (std::size_t n = 0; n < lines.size(); ++n) {
        lines[n].length = c.lengths[n];
        lines[n].position %= c.lengths[n];
        runLimit = std::min(runLimit, c.lengths[n]);
    }
    predelay.length = c.predelayFrames;
    predelay.position %= c.predelayFrames;
    // A tap is read when the run has been written: what it needs must not be overwritten by then.
    for (std::size_t n = 0; n < kReverbTaps; ++n) {
        runLimit = std::min(runLimit, c.lengths[kLeftTapLines[n]] - c.leftTaps[n] + 1);
        runLimit = std::min(runLimit, c.lengths[kRightTapLines[n]] - c.rightTaps[n] + 1);
    }
    runLimit = std::max(runLimit, 1);
}

void ReverbTank::Run(const ReverbCoefficients& c, const float* inLeft, const float* inRight, float* wetLeft,
                     float* wetRight, int frames, float& level)
{
    Buffer x, left{}, right{}, leftReflected{}, rightReflected{};
    FilterInput(c, inLeft, inRight, x, frames);
    Diffuse(lines[0], x, c.input1, c.input1, frames);
    Diffuse(lines[1], x, c.input2, c.input1, frames);
    if (reflections.length > 1) WriteReflections(x, frames);
    if (c.reflectionsGain != 0.0f) {
        AddReflections(c.leftReflections, c.leftReflectionGains, kLeftSigns, leftReflected, frames);
        AddReflections(c.rightReflections, c.rightReflectionGains, kRightSigns, rightReflected, frames);
    }
    reflections.position = Advanced(reflections.length, reflections.position, frames);
    Diffuse(lines[2], x, c.input1, c.input1, frames);
    Diffuse(lines[3], x, c.input2, c.input1, frames);
    Delay(predelay, x, 1.0f, frames);
    RunBranches(c, x, frames);

    const std::array<float, kReverbTaps> leftWeights = {1.0f, -c.w2, -c.w3, -c.w5, c.w1, 1.0f, c.w4};
    const std::array<float, kReverbTaps> rightWeights = {c.w2, 1.0f, -c.w3, -c.w5, -c.w1, 1.0f, c.w4};
    for (std::size_t n = 0; n < kReverbTaps; ++n) {
        AddTap(lines[kLeftTapLines[n]], c.leftTaps[n], leftWeights[n], left, frames);
        AddTap(lines[kRightTapLines[n]], c.rightTaps[n], rightWeights[n], right, frames);
    }
    for (int n = 0; n < frames; ++n) {
        const std::size_t at = static_cast<std::size_t>(n);
        level += (c.reverbTarget - level) * 0.001f;
        wetLeft[n] = c.reflectionsGain * leftReflected[at] + level * left[at];
        wetRight[n] = c.reflectionsGain * rightReflected[at] + level * right[at];
    }
}

void ReverbTank::FilterInput(const ReverbCoefficients& c, const float* inLeft, const float* inRight, Buffer& x,
                             int frames)
{
    float h = highCutState;
    float h1 = lowCutIn;
    float y1 = lowCutOut;
    for (int n = 0; n < frames; ++n) {
        const float mono = (inLeft[n] + inRight[n]) * 0.5f + kInputOffset;
        h += (mono - h) * c.highCut;
        float out = h;
        if (c.lowCut != 0.0f) {
            y1 = c.lowCut * (h - y1) + h1;
            h1 = h;
            out = (h - y1) * 0.5f + kInputOffset;
        }
        x[static_cast<std::size_t>(n)] = out;
    }
    highCutState = h;
    lowCutIn = h1;
    lowCutOut = y1;
}

void ReverbTank::RunBranches(const ReverbCoefficients& c, const Buffer& x, int frames)
{
    Buffer left, right;
    Peek(lines[11], left, c.decay, frames);
    Peek(lines[7], right, c.decay, frames);
    DampBranches(c, x, left, right, frames);
    const auto branch = [&](std::size_t first, Buffer& signal) {
        Diffuse(lines[first], signal, c.decay1, c.decay1, frames);
        Delay(lines[first + 1], signal, c.decay, frames);
        Diffuse(lines[first + 2], signal, c.decay2, c.decay2, frames);
        Delay(lines[first + 3], signal, 1.0f, frames);
    };
    branch(4, left);
    branch(8, right);
}

/// left, right  what the other branch feeds in, already scaled; replaced by what enters the branch's first diffuser
void ReverbTank::DampBranches(const ReverbCoefficients& c, const Buffer& x, Buffer& left, Buffer& right, int frames)
{
    Branches state = branches;
    for (int n = 0; n < frames; ++n) {
        const float in = x[static_cast<std::size_t>(n)] + kTankOffset;
        const Stereo cross = LoadFrame(left.data(), right.data(), n);
        state.allpassOut = c.crossover * (cross - state.allpassOut) + state.allpassIn;
        state.allpassIn = cross;
        const Stereo sum = (in + cross) + (cross + state.allpassOut) * c.bassBoost;
        state.damping += (sum - state.damping) * c.highDamping;
        StoreFrame(state.damping, left.data(), right.data(), n);
    }
    branches = state;
}

void ReverbTank::Diffuse(Line& line, Buffer& x, float ga, float gb, int frames)
{
    InParts(line.length, line.position, frames, [&](int place, int offset, int count) {
        float* __restrict buffer = line.memory + place;
        float* __restrict signal = x.data() + offset;
        for (int n = 0; n < count; ++n) {
            const float in = signal[n];
            const float out = buffer[n] - ga * in;
            buffer[n] = in + gb * out;
            signal[n] = out;
        }
    });
    line.position = Advanced(line.length, line.position, frames);
}

/// A run may be longer than this line: the predelay can be a single frame.
void ReverbTank::Delay(Line& line, Buffer& x, float gain, int frames)
{
    InParts(line.length, line.position, frames, [&](int place, int offset, int count) {
        float* __restrict buffer = line.memory + place;
        float* __restrict signal = x.data() + offset;
        for (int n = 0; n < count; ++n) {
            const float out = buffer[n];
            buffer[n] = signal[n];
            signal[n] = out * gain;
        }
    });
    line.position = Advanced(line.length, line.position, frames);
}

/// What the line is about to give in this run.
void ReverbTank::Peek(const Line& line, Buffer& out, float gain, int frames)
{
    InParts(line.length, line.position, frames, [&](int place, int offset, int count) {
        for (int n = 0; n < count; ++n) out[static_cast<std::size_t>(offset + n)] = line.memory[place + n] * gain;
    });
}

/// tap  1 is the frame just written, `length` the oldest one
void ReverbTank::AddTap(const Line& line, int tap, float weight, Buffer& sum, int frames)
{
    const int back = frames + tap - 1; // from the line's position, which is past the run
    const int start = (line.position - back % line.length + line.length) % line.length;
    InParts(line.length, start, frames, [&](int place, int offset, int count) {
        const float* __restrict buffer = line.memory + place;
        float* __restrict out = sum.data() + offset;
        for (int n = 0; n < count; ++n) out[n] += weight * buffer[n];
    });
}

void ReverbTank::WriteReflections(const Buffer& x, int frames)
{
    InParts(reflections.length, reflections.position, frames, [&](int place, int offset, int count) {
        std::copy_n(x.data() + offset, count, reflections.memory + place);
    });
}

void ReverbTank::AddReflections(const std::array<int, kReflections>& taps, const std::array<float, kReflections>& gains,
                                const std::array<float, kReflections>& signs, Buffer& sum, int frames) const
{
    const int mask = reflections.length - 1;
    for (std::size_t t = 0; t < kReflections; ++t) {
        if (signs[t] == 0.0f) continue;
        const float gain = signs[t] * gains[t];
        InParts(reflections.length, (reflections.position - taps[t]) & mask, frames,
                [&](int place, int offset, int count) {
                    for (int n = 0; n < count; ++n)
                        sum[static_cast<std::size_t>(offset + n)] += gain * reflections.memory[place + n];
                });
    }
}

} // namespace korvane
