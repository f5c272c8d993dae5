// Families of spectra for the single cycles.
#pragma once

#include <functional>
#include <initializer_list>
#include <vector>

namespace korvane::factory::wave {

inline constexpr int kHarmonics = 512; // more than that no oscillator plays

struct Harmonic {
    double level = 0.0;
    double phase = 0.0; // turns; 0 is a sine
};

/// kHarmonics entries; entry 0 is the first harmonic, which is never silent.
using Spectrum = std::vector<Harmonic>;

struct Partial {
    int harmonic; // 1 and up
    double level;
};

struct Formant {
    double hz; // with the cycle played at C3, 130.8 Hz
    double level;
    double widthHz;
};

/// h to the power of -exponent: 1 is a saw, 2 is mellow.
Spectrum Slope(double exponent);

/// width  of the high part, 0..0.5 of the cycle; 0.5 is a square
Spectrum Pulse(double width);

Spectrum Partials(std::initializer_list<Partial> partials);

/// Drawbars of a tonewheel organ, 0..8 each, from 16' to 1'. With 16' and 5 1/3' in, the cycle sounds an octave below
/// the note, as on the organ.
Spectrum Drawbars(const char* registration);

/// A voice: a falling source through resonances.
Spectrum Formants(double sourceExponent, std::initializer_list<Formant> formants);

/// Phase modulation of one sine by another (Chowning): harmonic numbers of both, and the index in radians.
Spectrum Fm(int carrier, int modulator, double index);

/// The spectrum of value(t), t 0..1 over the cycle.
Spectrum Shape(const std::function<double(double)>& value);

/// Levels that level(h) gives, phases spread for a low crest (Schroeder).
Spectrum Levels(const std::function<double(int)>& level);

/// Harmonics above `corner` fall by 6 dB per octave times `poles`.
Spectrum Mellow(Spectrum spectrum, double corner, double poles);

/// Part of b in a.
Spectrum Blend(Spectrum a, const Spectrum& b, double part);

/// Every harmonic h moved to h times `factor`.
Spectrum Raised(const Spectrum& spectrum, int factor);

/// Phases after Schroeder, "Synthesis of low-peak-factor signals": a full spectrum without a spike.
Spectrum Spread(Spectrum spectrum);

} // namespace korvane::factory::wave
