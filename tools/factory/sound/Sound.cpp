// Sounds in the making, and what brings them into shape for a file.
#include "factory/sound/Sound.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace korvane::factory {

namespace {

constexpr double kSilence = 0.00008; // -82 dBFS: what a tail may lose
constexpr double kFadeSeconds = 0.012;

/// First-order high-pass. Its state starts as if the sound had been silent for ever.
void BlockDc(Buffer& side)
{
    constexpr double kPole = 1.0 - 2.0 * std::numbers::pi * 8.0 / kRate; // 8 Hz
    double in = 0.0, out = 0.0;
    for (double& value : side) {
        out = value - in + kPole * out;
        in = value;
        value = out;
    }
}

void CutTail(Sound& sound)
{
    std::size_t last = sound.Frames();
    const auto quiet = [&sound](std::size_t n) {
        return std::abs(sound.left[n]) < kSilence && (!sound.Stereo() || std::abs(sound.right[n]) < kSilence);
    };
    while (last > 0 && quiet(last - 1)) --last;
    last = std::min(sound.Frames(), last + FramesOf(kFadeSeconds));
    sound.left.resize(last);
    if (sound.Stereo()) sound.right.resize(last);
}

void FadeOut(Buffer& side)
{
    const std::size_t fade = std::min(side.size(), FramesOf(kFadeSeconds));
    const std::size_t first = side.size() - fade;
    for (std::size_t n = 0; n < fade; ++n) {
        const double left = 1.0 - static_cast<double>(n + 1) / static_cast<double>(fade);
        side[first + n] *= 0.5 - 0.5 * std::cos(std::numbers::pi * left);
    }
}

/// Takes the rest of the mean out under a window that starts and ends at 0.
void Centre(Buffer& side)
{
    if (side.empty()) return;
    double sum = 0.0;
    for (const double value : side) sum += value;
    const double frames = static_cast<double>(side.size());
    for (std::size_t n = 0; n < side.size(); ++n)
        side[n] -= sum / frames * (1.0 - std::cos(2.0 * std::numbers::pi * static_cast<double>(n) / (frames - 1.0)));
}

} // namespace

void Mix(Buffer& sum, const Buffer& part, double gain, double atSeconds)
{
    const std::size_t at = FramesOf(atSeconds);
    sum.resize(std::max(sum.size(), at + part.size()));
    for (std::size_t n = 0; n < part.size(); ++n) sum[at + n] += part[n] * gain;
}

void Scale(Buffer& sound, double gain)
{
    for (double& value : sound) value *= gain;
}

double Peak(const Sound& sound)
{
    double peak = 0.0;
    for (const Buffer* side : {&sound.left, &sound.right})
        for (const double value : *side) peak = std::max(peak, std::abs(value));
    return peak;
}

Sound Finished(Sound raw, double peakDb, double longest)
{
    Sound sound = std::move(raw);
    if (sound.Stereo()) sound.right.resize(sound.left.size());
    const std::size_t most = FramesOf(longest);
    const auto each = [&sound](auto change) {
        change(sound.left);
        if (sound.Stereo()) change(sound.right);
    };

    each([most](Buffer& side) { side.resize(std::min(side.size(), most)); });
    each(BlockDc);
    const double before = Peak(sound);
    if (before <= 0.0) return sound;
    each([before](Buffer& side) { Scale(side, 1.0 / before); });
    CutTail(sound);
    each(FadeOut);
    each(Centre);
    const double gain = std::pow(10.0, peakDb / 20.0) / Peak(sound);
    each([gain](Buffer& side) { Scale(side, gain); });
    return sound;
}

} // namespace korvane::factory
