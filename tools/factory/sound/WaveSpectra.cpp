// Families of spectra for the single cycles.
#include "factory/sound/WaveSpectra.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace korvane::factory::wave {

namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;
constexpr double kQuarter = 0.25;     // of a turn, from sine to cosine
constexpr double kNoteHz = 130.81278; // C3, where formants stand at their frequencies

Harmonic& At(Spectrum& spectrum, int h) { return spectrum[static_cast<std::size_t>(h - 1)]; }

template <class F>
Spectrum Each(F harmonic)
{
    Spectrum spectrum(kHarmonics);
    for (int h = 1; h <= kHarmonics; ++h) At(spectrum, h) = harmonic(h);
    return spectrum;
}

/// Bessel function of the first kind, by its integral; the periodic integrand makes the plain sum exact.
double Bessel(int n, double x)
{
    constexpr int kPoints = 256;
    double sum = 0.0;
    for (int p = 0; p < kPoints; ++p) {
        const double t = kTurn * p / kPoints;
        sum += std::cos(n * t - x * std::sin(t));
    }
    return sum / kPoints;
}

} // namespace

Spectrum Slope(double exponent)
{
    return Each([exponent](int h) { return Harmonic{1.0 / std::pow(h, exponent)}; });
}

Spectrum Pulse(double width)
{
    return Each([width](int h) { return Harmonic{std::sin(std::numbers::pi * h * width) / h, kQuarter}; });
}

Spectrum Partials(std::initializer_list<Partial> partials)
{
    Spectrum spectrum(kHarmonics);
    for (const Partial& partial : partials) At(spectrum, partial.harmonic).level += partial.level;
    return spectrum;
}

Spectrum Drawbars(const char* registration)
{
    constexpr int kHarmonicOf[] = {1, 3, 2, 4, 6, 8, 10, 12, 16}; // 16' 5 1/3' 8' 4' 2 2/3' 2' 1 3/5' 1 1/3' 1'
    const bool low = registration[0] != '0' || registration[1] != '0';
    Spectrum spectrum(kHarmonics);
    for (int bar = 0; bar < 9; ++bar) {
        const int pulled = registration[bar] - '0';
        if (pulled > 0)
            At(spectrum, low ? kHarmonicOf[bar] : kHarmonicOf[bar] / 2).level =
                std::pow(10.0, (pulled - 8) * 3.0 / 20.0);
    }
    return Spread(spectrum);
}

Spectrum Formants(double sourceExponent, std::initializer_list<Formant> formants)
{
    return Levels([sourceExponent, &formants](int h) {
        double gain = 0.0;
        for (const Formant& formant : formants) {
            const double off = (h * kNoteHz - formant.hz) / (0.5 * formant.widthHz);
            gain += formant.level / std::sqrt(1.0 + off * off);
        }
        return gain / std::pow(h, sourceExponent);
    });
}

Spectrum Fm(int carrier, int modulator, double index)
{
    constexpr int kSidebands = 40;
    Spectrum spectrum(kHarmonics);
    for (int n = -kSidebands; n <= kSidebands; ++n) {
        const int h = carrier + n * modulator;
        if (h == 0 || std::abs(h) > kHarmonics) continue;
        At(spectrum, std::abs(h)).level += (h > 0 ? 1.0 : -1.0) * Bessel(n, index); // below zero it comes back inverted
    }
    return spectrum;
}

Spectrum Shape(const std::function<double(double)>& value)
{
    constexpr int kPoints = 4096;
    std::vector<double> points(kPoints), sine(kPoints);
    for (int n = 0; n < kPoints; ++n) {
        points[static_cast<std::size_t>(n)] = value((n + 0.5) / kPoints);
        sine[static_cast<std::size_t>(n)] = std::sin(kTurn * n / kPoints);
    }
    return Each([&](int h) {
        double in = 0.0, quadrature = 0.0; // against sine and cosine
        for (int n = 0; n < kPoints; ++n) {
            const int angle = n * h % kPoints;
            in += points[static_cast<std::size_t>(n)] * sine[static_cast<std::size_t>(angle)];
            quadrature +=
                points[static_cast<std::size_t>(n)] * sine[static_cast<std::size_t>((angle + kPoints / 4) % kPoints)];
        }
        return Harmonic{std::hypot(in, quadrature) / kPoints, std::atan2(quadrature, in) / kTurn};
    });
}

Spectrum Levels(const std::function<double(int)>& level)
{
    return Spread(Each([&level](int h) { return Harmonic{level(h)}; }));
}

Spectrum Mellow(Spectrum spectrum, double corner, double poles)
{
    for (int h = 1; h <= kHarmonics; ++h)
        At(spectrum, h).level /= std::pow(1.0 + (h / corner) * (h / corner), 0.5 * poles);
    return spectrum;
}

Spectrum Blend(Spectrum a, const Spectrum& b, double part)
{
    for (std::size_t n = 0; n < a.size(); ++n) {
        const double ra = a[n].level * (1.0 - part), rb = b[n].level * part;
        const double in = ra * std::cos(kTurn * a[n].phase) + rb * std::cos(kTurn * b[n].phase);
        const double quadrature = ra * std::sin(kTurn * a[n].phase) + rb * std::sin(kTurn * b[n].phase);
        a[n] = {std::hypot(in, quadrature), std::atan2(quadrature, in) / kTurn};
    }
    return a;
}

Spectrum Raised(const Spectrum& spectrum, int factor)
{
    Spectrum raised(kHarmonics);
    for (int h = 1; h * factor <= kHarmonics; ++h) At(raised, h * factor) = spectrum[static_cast<std::size_t>(h - 1)];
    return raised;
}

Spectrum Spread(Spectrum spectrum)
{
    double power = 0.0;
    for (const Harmonic& harmonic : spectrum) power += harmonic.level * harmonic.level;
    double passed = 0.0, turns = 0.0; // share of the power so far, and its running sum
    for (Harmonic& harmonic : spectrum) {
        turns += passed;
        harmonic.phase = -turns;
        passed += harmonic.level * harmonic.level / power;
    }
    return spectrum;
}

} // namespace korvane::factory::wave
