// Second-order sections of the effects: resonant lowpass and highpass, and the general form of the equaliser's bands.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/dsp/StereoFrame.h"

namespace korvane {

/// Lowpass y = b (x + 2 x1 + x2) − a1 y1 − a2 y2; highpass with −2 x1.
struct FilterCoefficients {
    float b, a1, a2;
};

/// Radians per frame, kept below π, where the sections would stop being stable.
inline float FilterAngle(float frequencyHz, float rate)
{
    constexpr float kHighestAngle = 3.1f;
    return std::min(2.0f * std::numbers::pi_v<float> * frequencyHz / rate, kHighestAngle);
}

/// sign  −1 lowpass, +1 highpass
inline FilterCoefficients ResonantCoefficients(float frequencyHz, float q, float rate, float sign)
{
    const float w = FilterAngle(frequencyHz, rate);
    const float sine = std::sin(w);
    const float cosine = std::cos(w);
    return {Flushed((1.0f + sign * cosine) / (sine / q + 2.0f)), Flushed(-2.0f * q * cosine / (q + sine)),
            Flushed((q - sine) / (q + sine))};
}

inline FilterCoefficients LowPassCoefficients(float frequencyHz, float q, float rate)
{
    return ResonantCoefficients(frequencyHz, q, rate, -1.0f);
}

inline FilterCoefficients HighPassCoefficients(float frequencyHz, float q, float rate)
{
    return ResonantCoefficients(frequencyHz, q, rate, 1.0f);
}

/// y = b0 x + b1 x1 + b2 x2 − a1 y1 − a2 y2, normalised by a0.
template <class S>
struct BandCoefficients {
    S b0, b1, b2, a1, a2;
};

/// kSections sections in series. Each takes its past input from the past output of the one before, which is the same
/// number. S is float or a vector of floats; every lane of the vector form gives the bits of the float form.
template <class S, int kSections>
struct BiquadChain {
    S past[kSections + 1], beforePast[kSections + 1]; // input, then the output of each section

    /// section  number of the section, its x, x1, x2, y1, y2 to its y
    template <class Section>
    [[gnu::always_inline]] S Step(S x, Section section)
    {
        S in = Flushed(x);
        for (int n = 0; n < kSections; ++n) {
            const S out = Flushed(section(n, x, past[n], beforePast[n], past[n + 1], beforePast[n + 1]));
            beforePast[n] = past[n];
            past[n] = in;
            x = in = out;
        }
        beforePast[kSections] = past[kSections];
        past[kSections] = x;
        return x;
    }
};

/// A side that is nothing but sections in series: `chain`, and the sections' Section(number, x, x1, x2, y1, y2).
template <class Side, class S>
concept ChainOfSections = requires(Side side, S value)
{
    value = side.Section(0, value, value, value, value, value);
    side.chain.past[0] = value;
};

inline constexpr float kLowPassMiddle = 2.0f, kHighPassMiddle = -2.0f; // factors of x1

/// Equal sections of FilterCoefficients.
template <class S, int kSections>
struct FilterChain {
    BiquadChain<S, kSections> chain;
    S b, a1, a2, middle;

    [[gnu::always_inline]] S Section(int, S x, S x1, S x2, S y1, S y2) const
    {
        return b * (x + middle * x1 + x2) - a1 * y1 - a2 * y2;
    }
    [[gnu::always_inline]] S Step(S in)
    {
        return chain.Step(in, [this](auto... values) { return Section(values...); });
    }

    void Set(const FilterCoefficients& c, float newMiddle)
    {
        b = S{} + c.b;
        a1 = S{} + c.a1;
        a2 = S{} + c.a2;
        middle = S{} + newMiddle;
    }
};

} // namespace korvane
