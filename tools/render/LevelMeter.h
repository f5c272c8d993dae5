// Peak and RMS of a stereo signal.
#pragma once

#include <algorithm>
#include <cmath>

namespace korvane::render {

class LevelMeter {
public:
    void Add(const float* left, const float* right, int frames)
    {
        for (int n = 0; n < frames; ++n) {
            const double l = static_cast<double>(left[n]), r = static_cast<double>(right[n]);
            peak = std::max({peak, std::fabs(l), std::fabs(r)});
            energy += l * l + r * r;
        }
        count += 2.0 * frames;
    }
    double PeakDb() const { return Decibels(peak); }
    double RmsDb() const { return Decibels(count > 0.0 ? std::sqrt(energy / count) : 0.0); }

private:
    static double Decibels(double level)
    {
        constexpr double kSilence = 1.0e-10; // -200 dB; effects at rest leave less
        return level > kSilence ? 20.0 * std::log10(level) : -INFINITY;
    }

    double peak = 0.0, energy = 0.0, count = 0.0;
};

} // namespace korvane::render
