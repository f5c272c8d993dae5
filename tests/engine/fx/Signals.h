// Test signals and what is measured on them.
#pragma once

#include <cmath>
#include <complex>
#include <cstdint>
#include <numbers>
#include <vector>

#include "engine/fx/FXUnit.h"

namespace korvane {

constexpr float kRate = 48000.0f, kTempo = 120.0f;
constexpr int kBlock = 128;

struct Sound {
    std::vector<float> left, right;
    explicit Sound(int frames, float leftValue = 0.0f, float rightValue = 0.0f)
        : left(frames, leftValue), right(frames, rightValue)
    {
    }
    int Frames() const { return static_cast<int>(left.size()); }
    void Silence(int from = 0)
    {
        for (auto* side : {&left, &right}) std::fill(side->begin() + from, side->end(), 0.0f);
    }
};

inline Sound Impulse(int frames, int at = 0)
{
    Sound sound(frames);
    sound.left[at] = sound.right[at] = 1.0f;
    return sound;
}

inline Sound Noise(int frames, float level = 0.5f)
{
    Sound sound(frames);
    std::uint32_t seed = 1;
    const auto next = [&] {
        return static_cast<float>(static_cast<std::int32_t>(seed = seed * 196314165u + 907633515u)) / 2147483648.0f;
    };
    for (int n = 0; n < frames; ++n) {
        sound.left[n] = level * next();
        sound.right[n] = level * next();
    }
    return sound;
}

inline Sound Sine(int frames, double hz, float level = 0.5f)
{
    Sound sound(frames);
    for (int n = 0; n < frames; ++n)
        sound.left[n] = sound.right[n] = level * static_cast<float>(std::sin(2.0 * std::numbers::pi * hz * n / kRate));
    return sound;
}

/// A unit at 48 kHz that is on, LFO still.
struct Played : FXUnit {
    explicit Played(FxType unitType, float padX = 0.5f, float padY = 0.5f, float rate = kRate) : FXUnit(unitType)
    {
        Reset(rate);
        bypass = 0;
        x = padX;
        y = padY;
        lfoBeats = 1.0f;
    }

    /// Runs frames from..to in blocks of 128; -1: to the end.
    void Run(Sound& sound, int from = 0, int to = -1, float tempo = kTempo)
    {
        if (to < 0) to = sound.Frames();
        for (int n = from; n < to; n += kBlock)
            Process(&sound.left[n], &sound.right[n], std::min(kBlock, to - n), tempo);
    }
};

inline double Rms(const std::vector<float>& samples, int from, int to)
{
    double sum = 0.0;
    for (int n = from; n < to; ++n) sum += static_cast<double>(samples[n]) * samples[n];
    return std::sqrt(sum / (to - from));
}

/// Amplitude and phase of the part of a signal at hz, phase 0 being a cosine at its first frame.
inline std::complex<double> Line(const float* signal, int frames, double hz, double rate = kRate)
{
    constexpr double kTurn = 2.0 * std::numbers::pi;
    std::complex<double> sum = 0.0;
    for (int n = 0; n < frames; ++n)
        sum += (1.0 - std::cos(kTurn * n / frames)) * signal[n] * std::polar(1.0, -kTurn * hz / rate * n);
    return sum * 2.0 / static_cast<double>(frames);
}

/// Gain and turn of a sine.
struct Response {
    double decibels, degrees;
    operator std::complex<double>() const
    {
        return std::polar(std::pow(10.0, decibels / 20.0), degrees / 180.0 * std::numbers::pi);
    }
};

inline double Decibels(double ratio) { return 20.0 * std::log10(ratio); }

} // namespace korvane
