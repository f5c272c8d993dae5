// A single cycle of a synth oscillator: from its spectrum to a file's sound.
#include "factory/sound/Cycle.h"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

namespace korvane::factory {

namespace {

constexpr int kCycleFrames = 2048;
constexpr double kCyclePeak = 0.9998;
constexpr double kTurn = 2.0 * std::numbers::pi;

} // namespace

Sound Render(const Cycle& cycle)
{
    std::vector<double> sine(kCycleFrames);
    for (int n = 0; n < kCycleFrames; ++n)
        sine[static_cast<std::size_t>(n)] = std::sin(kTurn * (static_cast<double>(n) / kCycleFrames));

    const wave::Harmonic& first = cycle.spectrum.front();
    const double shift = first.phase + (first.level < 0.0 ? 0.5 : 0.0); // turns of the first harmonic
    Buffer sum(kCycleFrames);
    for (int h = 1; h <= wave::kHarmonics; ++h) {
        const wave::Harmonic& harmonic = cycle.spectrum[static_cast<std::size_t>(h - 1)];
        if (harmonic.level == 0.0) continue;
        const double phase = kTurn * (harmonic.phase - h * shift);
        const double in = harmonic.level * std::cos(phase), quadrature = harmonic.level * std::sin(phase);
        for (int n = 0; n < kCycleFrames; ++n) {
            const int angle = n * h % kCycleFrames; // exact, so that all harmonics close
            const int quarterOn = (angle + kCycleFrames / 4) % kCycleFrames;
            sum[static_cast<std::size_t>(n)] +=
                in * sine[static_cast<std::size_t>(angle)] + quadrature * sine[static_cast<std::size_t>(quarterOn)];
        }
    }
    Sound sound(std::move(sum));
    Scale(sound.left, kCyclePeak / Peak(sound));
    return sound;
}

} // namespace korvane::factory
