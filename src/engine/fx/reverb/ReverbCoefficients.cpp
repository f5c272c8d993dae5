// Reverb coefficients from parameter steps.
#include "engine/fx/reverb/ReverbCoefficients.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace korvane {

namespace {

constexpr float kPi = std::numbers::pi_v<float>;

// Frames at 20 kHz and room size 100.
constexpr std::array<int, kReverbLines> kLengths = {142, 107, 379, 277, 672, 4453, 1800, 3720, 908, 4217, 2656, 3163};
constexpr std::array<int, kReverbTaps> kLeftTaps = {266, 2974, 1913, 2496, 1690, 187, 1566};
constexpr std::array<int, kReverbTaps> kRightTaps = {353, 3627, 1728, 3173, 1811, 335, 621};

// Two thirds of the frames at 44.1 kHz and room size 100.
constexpr std::array<int, kReflections> kLeftReflections = {1102, 2904, 3784, 4873, 5878, 7470, 9062, 9263};
constexpr std::array<int, kReflections> kRightReflections = {837, 1423, 2865, 3938, 5278, 5978, 7532, 9263};

constexpr float kAllpassLimit = 0.9999f; // at 1 an allpass would ring for ever

/// The lowest step of a level, -361, is silence.
float Level(int tenthsOfDb)
{
    return tenthsOfDb < -360 ? 0.0f : std::pow(10.0f, static_cast<float>(tenthsOfDb) / 200.0f);
}

/// One-pole lowpass for a step in hundreds of Hz; the highest, 221, passes everything.
float LowPass(int step, float rate)
{
    if (step == 221) return 1.0f;
    const float x = 2.0f - std::cos(2.0f * kPi * static_cast<float>(step) * 100.0f / rate);
    return (1.0f - x) + std::sqrt(x * x - 1.0f);
}

/// Allpass that takes the low end away; off at the lowest step, 19 Hz.
float LowCut(int frequencyHz, float rate)
{
    if (frequencyHz <= 19) return 0.0f;
    const float t = std::tan(kPi * std::min(static_cast<float>(frequencyHz), rate / 2.0f) / rate);
    return std::clamp((t - 1.0f) / (t + 1.0f), -kAllpassLimit, kAllpassLimit);
}

void SetLengths(ReverbCoefficients& c, const ReverbSteps& steps, float rate)
{
    const float roomSize = static_cast<float>(steps[reverb::RoomSize]);
    const float scale = (roomSize + 15.0f) * rate / 115.0f;
    const auto scaled = [scale](int base) {
        return std::max(1, static_cast<int>(static_cast<float>(base) * scale / 20000.0f));
    };
    std::transform(kLengths.begin(), kLengths.end(), c.lengths.begin(), scaled);
    std::transform(kLeftTaps.begin(), kLeftTaps.end(), c.leftTaps.begin(), scaled);
    std::transform(kRightTaps.begin(), kRightTaps.end(), c.rightTaps.begin(), scaled);
    c.predelayFrames = std::max(1, static_cast<int>(static_cast<float>(steps[reverb::Predelay]) * rate / 1000.0f));
}

/// Levels fall with the distance; the right side is weaker, by ear.
void SetReflections(ReverbCoefficients& c, const ReverbSteps& steps, float rate)
{
    const float room = rate * (static_cast<float>(steps[reverb::RoomSize]) + 3.0f) / 103.0f;
    const auto scaled = [room](int base) {
        return std::max(1, static_cast<int>(static_cast<float>(base) * 1.5f * room / 44100.0f));
    };
    std::transform(kLeftReflections.begin(), kLeftReflections.end(), c.leftReflections.begin(), scaled);
    std::transform(kRightReflections.begin(), kRightReflections.end(), c.rightReflections.begin(), scaled);
    const float first = static_cast<float>(std::min(c.leftReflections[0], c.rightReflections[0]));
    for (std::size_t n = 0; n < kReflections; ++n) {
        c.leftReflectionGains[n] = 0.5f * first / static_cast<float>(c.leftReflections[n]);
        c.rightReflectionGains[n] = 0.36f * first / static_cast<float>(c.rightReflections[n]);
    }
}

/// A diffuser pair whose echoes fall by 60 dB in `seconds`.
float Diffusion(const ReverbCoefficients& c, std::size_t line, std::size_t other, float amount, float seconds,
                float rate)
{
    if (amount == 0.0f) return 0.0f;
    const float mean = static_cast<float>(c.lengths[line] + c.lengths[other]) * 0.5f / rate;
    return std::pow(10.0f, -3.0f * mean / (amount * seconds));
}

void SetDecay(ReverbCoefficients& c, const ReverbSteps& steps, float rate)
{
    const float loop = static_cast<float>(c.lengths[5] + c.lengths[7] + c.lengths[9] + c.lengths[11]) / rate;
    const auto gainFor = [loop](float seconds) { return std::pow(std::pow(10.0f, -3.0f * loop / seconds), 0.25f); };
    const float seconds = static_cast<float>(steps[reverb::Decay]) / 10.0f;
    const float g = gainFor(seconds);
    const float bass = gainFor(seconds * (static_cast<float>(steps[reverb::BassMultiplier]) / 10.0f));
    const float r = g > 0.0f ? bass / g : 1.0f;
    const float t = std::tan(kPi * static_cast<float>(steps[reverb::Crossover]) / rate);
    c.decay = g;
    c.bassBoost = (r - 1.0f) * 0.5f;
    c.crossover = std::clamp((t - std::min(r, 1.0f)) / (t + std::min(r, 1.0f)), -kAllpassLimit, kAllpassLimit);
    // A short decay weakens the taps, each down to a floor of its own; by ear.
    c.w1 = (1.0f - g) * 0.6f + g;
    c.w2 = (1.0f - g) * 0.25f + g;
    c.w3 = (1.0f - g) * 0.7f + g;
    c.w4 = (1.0f - g) * 0.5f + g;
    c.w5 = g + (1.0f - g) * 0.2f;
}

} // namespace

ReverbCoefficients ComputeReverb(const ReverbSteps& steps, float rate)
{
    ReverbCoefficients c{};
    c.inputGain = steps[reverb::MuteInput] ? 0.0f : Level(steps[reverb::Input]);
    c.dryGain = steps[reverb::MuteDry] ? 0.0f : Level(steps[reverb::Dry]);
    c.reflectionsGain = steps[reverb::MuteEr] ? 0.0f : 0.5f * Level(steps[reverb::Er]);
    c.reverbTarget = steps[reverb::MuteReverb] ? 0.0f : 0.6f * 0.5f * Level(steps[reverb::Reverb]);
    c.lowCut = LowCut(steps[reverb::LowCut], rate);
    c.highCut = LowPass(steps[reverb::HighCut], rate);
    c.highDamping = LowPass(steps[reverb::HighDamping], rate);
    c.width = static_cast<float>(steps[reverb::Width]) / 100.0f;
    SetLengths(c, steps, rate);
    SetReflections(c, steps, rate);
    const float diffusion = static_cast<float>(steps[reverb::Diffusion]) / 100.0f;
    c.input1 = Diffusion(c, 0, 1, diffusion, 0.07f, rate);
    c.input2 = Diffusion(c, 2, 3, diffusion, 0.11f, rate);
    c.decay1 = Diffusion(c, 4, 8, diffusion, 0.35f, rate);
    c.decay2 = Diffusion(c, 6, 10, diffusion, 0.51f, rate);
    SetDecay(c, steps, rate);
    return c;
}

} // namespace korvane
