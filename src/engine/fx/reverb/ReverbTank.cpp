// The reverb's delay memory.
#include "engine/fx/reverb/ReverbTank.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace korvane {

namespace {

constexpr float kFill = 1e-30f;
constexpr std::size_t kMargin = 16; // floats that are read behind the last line

/// Longest reflection at room size 100, in frames.
std::uint32_t ReflectionRoom(float rate)
{
    return static_cast<std::uint32_t>(std::lround(static_cast<double>(rate) * 13950.0 / 44100.0));
}

} // namespace

void ReverbTank::Allocate(float rate, bool early)
{
    ReverbSteps largest{};
    largest[reverb::RoomSize] = 100;
    largest[reverb::Predelay] = early ? 250 : 0;
    const ReverbCoefficients c = ComputeReverb(largest, rate);
    const int reflectionFrames = early ? 1 << (std::bit_width(ReflectionRoom(rate)) + 1) : 1;
    std::size_t floats =
        static_cast<std::size_t>(c.predelayFrames) + static_cast<std::size_t>(reflectionFrames) + kMargin;
    for (const int length : c.lengths) floats += static_cast<std::size_t>(length);
    memory = std::make_unique<float[]>(floats);
    memoryFloats = floats;

    float* next = memory.get();
    const auto place = [&next](ReverbLine& line, int length) {
        line = {next, length, 0};
        next += length;
    };
    for (std::size_t n = 0; n < kReverbLines; ++n) place(state.lines[n], c.lengths[n]);
    place(state.predelay, c.predelayFrames);
    place(state.reflections, reflectionFrames);
    Reset();
}

void ReverbTank::Reset()
{
    std::fill_n(memory.get(), memoryFloats, kFill);
    state.cuts = {};
    state.damping = {};
    state.level = -1.0f;
}

void ReverbTank::Fit(const ReverbCoefficients& c, bool clear)
{
    if (clear) std::fill_n(memory.get(), memoryFloats, 0.0f);
    state.runLimit = kLongestReverbRun;
    for (std::size_t n = 0; n < kReverbLines; ++n) {
        ReverbLine& line = state.lines[n];
        line.length = c.lengths[n];
        line.position %= line.length;
        state.runLimit = std::min(state.runLimit, line.length);
    }
    state.predelay.length = c.predelayFrames;
    state.predelay.position %= c.predelayFrames;
    // A tap is read when the run has been written: what it needs must not be overwritten by then.
    for (std::size_t n = 0; n < kReverbTaps; ++n) {
        state.runLimit = std::min(state.runLimit, c.lengths[kLeftTapLines[n]] - c.leftTaps[n] + 1);
        state.runLimit = std::min(state.runLimit, c.lengths[kRightTapLines[n]] - c.rightTaps[n] + 1);
    }
    state.runLimit = std::max(state.runLimit, 1);
}

} // namespace korvane
