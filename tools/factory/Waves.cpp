// The single cycles of the synth oscillators.
#include "Waves.h"

#include <cmath>

#include "Synthesis.h"

namespace korvane::factory {

namespace {

constexpr int kCycleFrames = 2048;
constexpr int kHarmonics = 512; // more than that no oscillator plays
constexpr double kCyclePeak = 0.9998;

} // namespace

std::vector<Cycle> AllCycles()
{
    return {
        {"Saw", [](int h) { return Harmonic{1.0 / h}; }},
    };
}

Sound Render(const Cycle& cycle)
{
    Buffer sum(kCycleFrames);
    for (int h = 1; h <= kHarmonics; ++h) {
        const Harmonic harmonic = cycle.harmonic(h);
        if (harmonic.level == 0.0) continue;
        const double phase = h == 1 ? 0.0 : harmonic.phase;
        for (int n = 0; n < kCycleFrames; ++n) {
            const int position = n * h % kCycleFrames; // exact, so that all harmonics close
            sum[static_cast<std::size_t>(n)] +=
                harmonic.level * std::sin(kTurn * (static_cast<double>(position) / kCycleFrames + phase));
        }
    }
    Sound sound(std::move(sum));
    Scale(sound.left, kCyclePeak / Peak(sound));
    return sound;
}

} // namespace korvane::factory
