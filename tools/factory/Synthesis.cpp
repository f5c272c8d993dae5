// Building blocks of the drum synthesis: sources, filters, shapers, rooms.
#include "Synthesis.h"

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

Buffer Reflected(const Buffer& dry, const RoomSize& room, std::uint32_t seed)
{
    constexpr double kDensity = 1800.0; // reflections per second
    Noise noise(seed);
    Buffer wet(dry.size() + FramesOf(room.seconds + room.preDelay));
    const Buffer dark = Filtered(dry, Pass::Low, room.darkHz, 0.6);
    const int count = static_cast<int>(room.seconds * kDensity);
    for (int n = 0; n < count; ++n) {
        const double at = (static_cast<double>(n) + 0.5 + 0.49 * noise.Next()) / kDensity;
        const double sign = noise.Next() < 0.0 ? -1.0 : 1.0;
        const double gain = sign * Decay(at, room.seconds);
        const std::size_t offset = FramesOf(at + room.preDelay);
        for (std::size_t i = 0; i < dark.size() && offset + i < wet.size(); ++i) wet[offset + i] += dark[i] * gain;
    }
    Scale(wet, room.level / std::sqrt(static_cast<double>(count) * 0.15));
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
        double real = 0.0, imaginary = mode.level; // a decaying phasor; its real part starts at 0
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

Buffer MetalSquares(double seconds, double hz, const std::vector<double>& ratios)
{
    Buffer sum(FramesOf(seconds));
    double start = 0.0;
    for (const double ratio : ratios) {
        const double step = hz * ratio / kRate;
        double phase = start = Fraction(start + 0.381966);
        for (double& value : sum) {
            value += phase < 0.5 ? 1.0 : -1.0;
            value += BlepEdge(phase, step) - BlepEdge(Fraction(phase + 0.5), step);
            phase = Fraction(phase + step);
        }
    }
    Scale(sum, 1.0 / static_cast<double>(ratios.size()));
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
        if (left <= 0.0) held = std::round(value * steps) / steps, left += hold;
        left -= 1.0;
        value = held;
    }
}

Sound InRoom(const Buffer& dry, const RoomSize& room, std::uint32_t seed)
{
    Sound sound(Reflected(dry, room, seed), Reflected(dry, room, seed + 77));
    Mix(sound.left, dry);
    Mix(sound.right, dry);
    return sound;
}

} // namespace korvane::factory
