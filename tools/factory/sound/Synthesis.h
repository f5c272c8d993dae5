// Building blocks of the drum synthesis: sources, filters, shapers, rooms.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

#include "factory/sound/Sound.h"

namespace korvane::factory {

inline constexpr double kTurn = 2.0 * std::numbers::pi;

/// Level of an exponential decay that has lost 60 dB after `decay` seconds.
inline double Decay(double seconds, double decay) { return std::exp(-6.907755 * seconds / decay); }

/// White noise, -1..1; the same seed gives the same noise everywhere.
class Noise {
public:
    explicit Noise(std::uint32_t seed) : state(seed * 2654435761u | 1u) {}
    double Next()
    {
        state ^= state << 13, state ^= state >> 17, state ^= state << 5; // Marsaglia, xorshift
        return static_cast<double>(state) / 2147483648.0 - 1.0;
    }

private:
    std::uint32_t state;
};

/// A buffer of f(t), t in seconds.
template <class F>
Buffer Make(double seconds, F f)
{
    Buffer sound(FramesOf(seconds));
    for (std::size_t n = 0; n < sound.size(); ++n) sound[n] = f(static_cast<double>(n) / kRate);
    return sound;
}

/// Multiplies by level(t).
template <class F>
void Shape(Buffer& sound, F level)
{
    for (std::size_t n = 0; n < sound.size(); ++n) sound[n] *= level(static_cast<double>(n) / kRate);
}

/// Replaces every value by change(value).
template <class F>
void Waveshape(Buffer& sound, F change)
{
    for (double& value : sound) value = change(value);
}

/// A sine whose frequency follows hz(t).
template <class F>
Buffer Sine(double seconds, F hz, double phase = 0.0)
{
    return Make(seconds, [&hz, phase](double t) mutable {
        const double value = std::sin(kTurn * phase);
        phase += hz(t) / kRate;
        return value;
    });
}

Buffer WhiteNoise(double seconds, std::uint32_t seed);

/// One ringing mode of a body.
struct Mode {
    double hz;
    double level;
    double decay;       // seconds to -60 dB
    double phase = 0.0; // of its sine at the start, cycles
};

Buffer Ring(double seconds, const std::vector<Mode>& modes);

using Ratios = std::array<double, 6>; // 0: none

/// Square waves at fixed ratios, the inharmonic metal of cymbals. Edges are smoothed (polyBLEP).
Buffer MetalSquares(double seconds, double hz, const Ratios& ratios);

/// State-variable filter by A. Simper (trapezoidal integration), two poles.
enum class Pass { Low, Band, High };
struct Filter {
    /// q  0.5 and up; the band output has gain 1 at its centre
    Filter(Pass outputOf, double hz, double q) : output(outputOf), k(1.0 / q) { Tune(hz); }
    void Tune(double hz) { g = std::tan(std::numbers::pi * std::fmin(hz, 0.49 * kRate) / kRate); }
    double Step(double in)
    {
        const double a = 1.0 / (1.0 + g * (g + k));
        const double rest = in - second;
        const double band = a * (first + g * rest), low = second + g * band;
        first = 2.0 * band - first;
        second = 2.0 * low - second;
        return output == Pass::Low ? low : output == Pass::Band ? k * band : in - k * band - low;
    }

    Pass output;
    double k, g = 0.0, first = 0.0, second = 0.0;
};

Buffer Filtered(Buffer sound, Pass output, double hz, double q = 0.707);

/// Filtered with the corner at hz(t).
template <class F>
Buffer FilteredAlong(Buffer sound, Pass output, double q, F hz)
{
    Filter filter(output, hz(0.0), q);
    for (std::size_t n = 0; n < sound.size(); ++n) {
        filter.Tune(hz(static_cast<double>(n) / kRate));
        sound[n] = filter.Step(sound[n]);
    }
    return sound;
}

/// tanh of drive times the sound.
void Saturate(Buffer& sound, double drive);

/// Holds values for `hold` frames and rounds their roots to `bits`, as companding samplers do: tails stay audible.
void Crush(Buffer& sound, double hold, int bits);

struct RoomSize {
    double seconds = 0.0; // to -60 dB
    double darkHz = 6000; // low-pass of the first reflections; the later ones are darker
    double level = 0.0;   // of the reflections against the sound
    double preDelay = 0.004;
};

/// The sound in a short room: sparse random reflections ("velvet noise", Karjalainen and Järveläinen), other ones left
/// and right.
Sound InRoom(const Sound& dry, const RoomSize& room, std::uint32_t seed);

} // namespace korvane::factory
