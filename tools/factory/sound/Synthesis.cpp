// Building blocks of the drum synthesis: sources, filters, shapers, rooms.
#include "factory/sound/Synthesis.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace korvane::factory {

namespace {

/// What an ideal square wave's edge lacks around its jump. phase and step in cycles.
double BlepEdge(double phase, double step)
{
    if (phase < step) {
        const double x = phase / step;
        return x + x - x * x - 1.0;
    }
    if (phase > 1.0 - step) {
        const double x = (phase - 1.0) / step;
        return x * x + x + x + 1.0;
    }
    return 0.0;
}

double Fraction(double x) { return x - std::floor(x); }

/// Adds the reflections that arrive between two times, each a copy of `dark`.
void AddReflections(Buffer& wet, const Buffer& dark, const RoomSize& room, double from, double to, Noise& noise)
{
    constexpr double kDensity = 1800.0; // reflections per second
    const int first = static_cast<int>(from * kDensity), last = static_cast<int>(to * kDensity);
    for (int n = first; n < last; ++n) {
        const double at = (static_cast<double>(n) + 0.5 + 0.49 * noise.Next()) / kDensity;
        const double sign = noise.Next() < 0.0 ? -1.0 : 1.0;
        Mix(wet, dark, sign * Decay(at, room.seconds), at + room.preDelay);
    }
}

Buffer Reflected(const Buffer& dry, const RoomSize& room, std::uint32_t seed)
{
    constexpr double kThirds[] = {0.0, 0.2, 0.5, 1.0}; // of the room's time: walls take the high frequencies first
    constexpr double kDarker[] = {1.0, 0.6, 0.35};
    Noise noise(seed);
    Buffer wet;
    for (std::size_t n = 0; n < std::size(kDarker); ++n) {
        const Buffer dark = Filtered(dry, Pass::Low, room.darkHz * kDarker[n], 0.6);
        AddReflections(wet, dark, room, room.seconds * kThirds[n], room.seconds * kThirds[n + 1], noise);
    }
    Scale(wet, room.level / std::sqrt(270.0 * room.seconds));
    return Filtered(std::move(wet), Pass::High, 120.0);
}

} // namespace

Buffer WhiteNoise(double seconds, std::uint32_t seed)
{
    Noise noise(seed);
    return Make(seconds, [&noise](double) { return noise.Next(); });
}

Buffer Ring(double seconds, const std::vector<Mode>& modes)
{
    Buffer sum(FramesOf(seconds));
    for (const Mode& mode : modes) {
        const double step = kTurn * mode.hz / kRate, loss = Decay(1.0 / kRate, mode.decay);
        const double start = kTurn * mode.phase;
        double real = mode.level * std::sin(start), imaginary = mode.level * std::cos(start); // a decaying phasor
        const double turnReal = std::cos(step) * loss, turnImaginary = std::sin(step) * loss;
        for (double& value : sum) {
            value += real;
            const double next = real * turnReal + imaginary * turnImaginary;
            imaginary = imaginary * turnReal - real * turnImaginary;
            real = next;
        }
    }
    return sum;
}

Buffer MetalSquares(double seconds, double hz, const Ratios& ratios)
{
    Buffer sum(FramesOf(seconds));
    double start = 0.0, count = 0.0;
    for (const double ratio : ratios) {
        if (ratio <= 0.0) continue;
        count += 1.0;
        const double step = hz * ratio / kRate;
        double phase = start = Fraction(start + 0.381966);
        for (double& value : sum) {
            value += phase < 0.5 ? 1.0 : -1.0;
            value += BlepEdge(phase, step) - BlepEdge(Fraction(phase + 0.5), step);
            phase = Fraction(phase + step);
        }
    }
    Scale(sum, 1.0 / count);
    return sum;
}

Buffer Filtered(Buffer sound, Pass output, double hz, double q)
{
    Filter filter(output, hz, q);
    for (double& value : sound) value = filter.Step(value);
    return sound;
}

void Saturate(Buffer& sound, double drive)
{
    Waveshape(sound, [drive](double x) { return std::tanh(drive * x); });
}

void Crush(Buffer& sound, double hold, int bits)
{
    const double steps = static_cast<double>(1 << (bits - 1));
    double held = 0.0, left = 0.0;
    for (double& value : sound) {
        if (left <= 0.0) {
            const double root = std::round(std::sqrt(std::abs(value)) * steps) / steps;
            held = std::copysign(root * root, value);
            left += hold;
        }
        left -= 1.0;
        value = held;
    }
}

Sound InRoom(const Sound& dry, const RoomSize& room, std::uint32_t seed)
{
    const Buffer& right = dry.Stereo() ? dry.right : dry.left;
    Sound sound(Reflected(dry.left, room, seed), Reflected(right, room, seed + 77));
    Mix(sound.left, dry.left);
    Mix(sound.right, right);
    const std::size_t longer = std::max(sound.left.size(), sound.right.size());
    sound.left.resize(longer);
    sound.right.resize(longer);
    return sound;
}

} // namespace korvane::factory
