// Band-limited oscillator tables from a single-cycle waveform.
#include "content/WaveTables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <new>
#include <numbers>

#include "content/CWaveSample.h"

namespace korvane {

namespace {

constexpr int kPoints = kWaveTablePoints;
constexpr int kPadFrames = CWaveSample::kPadFrames;

using Cycle = std::array<double, kPoints>;

/// One cycle of the cosine.
const Cycle& Cosine()
{
    static const Cycle table = [] {
        Cycle cosine;
        for (int n = 0; n < kPoints; ++n)
            cosine[static_cast<std::size_t>(n)] = std::cos(2.0 * std::numbers::pi * n / kPoints);
        return cosine;
    }();
    return table;
}

struct Spectrum {
    Cycle re{}, im{};
};

/// Forward transform, radix 2, decimation in time (Cooley and Tukey).
void Transform(Spectrum& s)
{
    const Cycle& cosine = Cosine();
    for (std::size_t n = 1, mirror = 0; n < kPoints; ++n) {
        std::size_t bit = kPoints / 2;
        for (; mirror & bit; bit /= 2) mirror ^= bit;
        mirror ^= bit;
        if (n < mirror) {
            std::swap(s.re[n], s.re[mirror]);
            std::swap(s.im[n], s.im[mirror]);
        }
    }
    for (std::size_t half = 1; half < kPoints; half *= 2) {
        const std::size_t stride = kPoints / (2 * half);
        for (std::size_t group = 0; group < kPoints; group += 2 * half) {
            for (std::size_t n = 0; n < half; ++n) {
                const double c = cosine[n * stride];
                const double sine = -cosine[(n * stride + 3 * kPoints / 4) % kPoints];
                const std::size_t a = group + n, b = a + half;
                const double re = s.re[b] * c - s.im[b] * sine, im = s.re[b] * sine + s.im[b] * c;
                s.re[b] = s.re[a] - re;
                s.im[b] = s.im[a] - im;
                s.re[a] += re;
                s.im[a] += im;
            }
        }
    }
}

} // namespace

void FillWaveTables(const float* cycle, float* tables)
{
    auto spectrum = std::make_unique<Spectrum>();
    for (std::size_t n = 0; n < kPoints; ++n)
        spectrum->re[n] = std::isfinite(cycle[n]) ? static_cast<double>(cycle[n]) : 0.0;
    Transform(*spectrum);

    // cos (2π h i / N + phase) × magnitude = re cos (2π h i / N) − im sin (2π h i / N); the angle is a table index.
    const Cycle& cosine = Cosine();
    auto sum = std::make_unique<Cycle>();
    sum->fill(0.0);
    for (std::size_t h = 1; h <= kWaveTables; ++h) {
        const double re = spectrum->re[h] / kPoints, im = spectrum->im[h] / kPoints;
        float* table = tables + (h - 1) * kPoints;
        std::size_t angle = 0;
        for (std::size_t i = 0; i < kPoints; ++i) {
            (*sum)[i] += re * cosine[angle] - im * cosine[(angle + 3 * kPoints / 4) % kPoints];
            table[i] = static_cast<float>((*sum)[i]);
            angle = (angle + h) % kPoints;
        }
    }
}

bool BuildWaveTables(const char* path, float* tables)
{
    std::fill_n(tables, kWaveTableFloats, 0.0f);
    CWaveSample sample;
    if (!sample.LoadWav(path, kPadFrames) && !sample.LoadAiff(path, kPadFrames)) return false;
    if (sample.numFrames < 1) return true;
    const float* source = sample.channelData[0].get();
    float cycle[kPoints];
    for (int i = 0; i < kPoints; ++i) {
        const double x = static_cast<double>(i) * sample.numFrames / kPoints;
        const int k = static_cast<int>(x);
        cycle[i] = static_cast<float>((x - k) * source[k + 1] + (k + 1 - x) * source[k]);
    }
    FillWaveTables(cycle, tables);
    return true;
}

} // namespace korvane
