// Effect units: switching, each type against its formula in double, tails, bad input.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <complex>
#include <limits>
#include <numeric>

#include "fx/Signals.h"

namespace korvane {
namespace {

using Complex = std::complex<double>;

constexpr FxType kAllTypes[] = {FxType::Distortion, FxType::Decimator, FxType::Chorus, FxType::Phaser,
                                FxType::LowPass,    FxType::HighPass,  FxType::Echo,   FxType::Reverb,
                                FxType::Panner,     FxType::Pump,      FxType::Stutter};

TEST(FXUnit, PassesTheSignalUntouchedWhenItDoesNotWork)
{
    // clang-format off
    struct Case { const char* what; float rate, tempo; std::uint8_t bypass; };
    const Case cases[] = {
        {"never switched on",  kRate,         kTempo,        1}, {"no rate",     0.0f,  kTempo, 0},
        {"negative rate",      -48000.0f,     kTempo,        0}, {"absurd rate", 1e30f, kTempo, 0},
        {"rate not a number",  std::nanf(""), kTempo,        0}, {"no tempo",    kRate, 0.9f,   0},
        {"tempo not a number", kRate,         std::nanf(""), 0},
    };
    // clang-format on
    const Sound input = Noise(1000);
    for (const FxType type : kAllTypes) {
        for (const Case& c : cases) {
            SCOPED_TRACE(testing::Message() << c.what << ", type " << static_cast<int>(type));
            Played unit(type, 0.9f, 0.9f, c.rate);
            unit.bypass = c.bypass;
            Sound sound = input;
            unit.Run(sound, 0, -1, c.tempo);
            EXPECT_EQ(sound.left, input.left);
            EXPECT_EQ(sound.right, input.right);
            const bool runsAlong = type == FxType::Echo && c.bypass; // its tape turns while the channel sounds
            EXPECT_EQ(unit.HasTail(), runsAlong);
        }
    }
}

// A switch moves the output by 1 % of the way per frame, so no step is larger than the sounds' own plus 1 % of them.
TEST(FXUnit, SwitchesWithoutClicks)
{
    const FxType types[] = {FxType::Distortion, FxType::Chorus, FxType::Phaser, FxType::LowPass,
                            FxType::HighPass,   FxType::Echo,   FxType::Reverb, FxType::Stutter};
    constexpr int kOn = 12000, kOff = 36000, kFrames = 60000;
    const auto largestStep = [](const Sound& sound, int from, int to) {
        float step = 0.0f;
        for (int n = from; n < to; ++n) step = std::max(step, std::fabs(sound.left[n] - sound.left[n - 1]));
        return step;
    };
    for (const FxType type : types) {
        Played unit(type, 0.4f, 0.5f);
        unit.lfoBeats = 0.25f;
        unit.bypass = 1;
        Sound sound = Sine(kFrames, 100.0);
        unit.Run(sound, 0, kOn);
        unit.bypass = 0;
        unit.Run(sound, kOn, kOff);
        unit.bypass = 1;
        unit.Run(sound, kOff);
        const float own = std::max(largestStep(sound, kOff - 5000, kOff), largestStep(sound, 1, kOn));
        EXPECT_LT(largestStep(sound, kOn - 1, kOff), own + 0.012f) << static_cast<int>(type);
        EXPECT_LT(largestStep(sound, kOff - 1, kFrames), own + 0.012f) << static_cast<int>(type);
    }
}

// Off, a crossfading unit stops once its level is below 0.0001: 921 frames, so in the ninth block.
TEST(FXUnit, StopsAfterTheFade)
{
    for (const FxType type : {FxType::Distortion, FxType::Decimator, FxType::LowPass, FxType::HighPass}) {
        Played unit(type, 0.0f, 0.0f);
        Sound sound = Noise(30 * kBlock);
        const Sound input = sound;
        unit.Run(sound, 0, 10 * kBlock);
        unit.bypass = 1;
        for (int block = 10; block < 30; ++block) {
            unit.Run(sound, block * kBlock, (block + 1) * kBlock);
            EXPECT_EQ(unit.HasTail(), block < 18) << block;
        }
        EXPECT_TRUE(std::equal(sound.left.begin() + 18 * kBlock, sound.left.end(), input.left.begin() + 18 * kBlock));
    }
}

TEST(FXUnit, DistortionIsASoftClipper)
{
    for (const float drive : {0.0f, 0.3f, 0.7f, 1.0f}) {
        Played unit(FxType::Distortion, drive, 1.0f);
        Sound sound(6000, 0.25f, -0.5f);
        unit.Run(sound);
        const double k = std::pow(drive, 4.0) * 1024.0, q = 0.99;
        const double w = 2.0 * std::numbers::pi * std::pow(2.0, 14.28) / kRate;
        const double still = 4.0 * (1.0 - std::cos(w)) / (std::sin(w) / q + 2.0) /
                             (1.0 + (q - std::sin(w) - 2.0 * q * std::cos(w)) / (q + std::sin(w)));
        const auto clipped = [k](double x) { return x / (std::fabs(x) * k + 1.0) * (k * 0.5 + 0.5); };
        EXPECT_NEAR(sound.left.back(), clipped(0.25) * still, 1e-4) << drive;
        EXPECT_NEAR(sound.right.back(), clipped(-0.5) * still, 1e-4) << drive;
    }
}

TEST(FXUnit, DecimatorHoldsForWholeFrames)
{
    for (const auto& [crush, period] : {std::pair{0.0f, 67}, {0.5f, 19}, {1.0f, 3}}) {
        Played unit(FxType::Decimator, crush, 1.0f);
        Sound sound(4000 + 30 * period);
        for (int n = 0; n < sound.Frames(); ++n) sound.left[n] = static_cast<float>(n) * 0.001f;
        unit.Run(sound);
        std::vector<int> jumps; // the lowpass spreads a jump over a few frames; its largest part tells
        for (int n = 4000; n < sound.Frames() - 1; ++n) {
            const auto step = [&](int at) { return std::fabs(sound.left[at] - sound.left[at - 1]); };
            if (step(n) > 0.0005f * static_cast<float>(period) && step(n) > step(n - 1) && step(n) >= step(n + 1))
                jumps.push_back(n);
        }
        ASSERT_GE(jumps.size(), 20u) << crush;
        for (std::size_t n = 1; n < jumps.size(); ++n) EXPECT_EQ(jumps[n] - jumps[n - 1], period) << crush;
    }
}

/// Level of a sine behind a unit that has been on for a while.
double Gain(Played& unit, double hz)
{
    Sound sound = Sine(24000, hz, 0.1f);
    const double before = Rms(sound.left, 12000, 24000);
    unit.Run(sound);
    return Rms(sound.left, 12000, 24000) / before;
}

TEST(FXUnit, ResonantFiltersFollowTheirFormula)
{
    const float y = 0.7f;
    for (const FxType type : {FxType::LowPass, FxType::HighPass})
        for (const float x : {0.3f, 0.6f})
            for (const double hz : {150.0, 700.0, 3000.0, 9000.0}) {
                const bool highPass = type == FxType::HighPass;
                const double sign = highPass ? 1.0 : -1.0, q = 2.0 * y * y + 1.0;
                const double f = highPass ? std::pow(2.0, x * 9.28 * 0.8 + 5.0) : std::pow(2.0, x * 8.28 + 6.0);
                const double w = 2.0 * std::numbers::pi * f / kRate;
                const double b = (1.0 + sign * std::cos(w)) / (std::sin(w) / q + 2.0);
                const double a1 = -2.0 * q * std::cos(w) / (q + std::sin(w));
                const double a2 = (q - std::sin(w)) / (q + std::sin(w));
                const Complex z = std::polar(1.0, -2.0 * std::numbers::pi * hz / kRate);
                const Complex h = b * (1.0 - sign * 2.0 * z + z * z) / (1.0 + a1 * z + a2 * z * z);
                const double expected = std::pow(std::abs(h), 4.0);
                Played unit(type, x, y);
                EXPECT_NEAR(Gain(unit, hz), expected, 0.003 + 0.02 * expected) << highPass << " " << x << " " << hz;
            }
}

// Six allpass stages against the dry signal: notches where they turn the phase by half a period.
TEST(FXUnit, PhaserHasItsNotches)
{
    const float x = 0.3f;
    const double f = (0.09 * 19950.0 + 50.0) / kRate, c = (1.0 - f) / (1.0 + f);
    double least = 1.0;
    for (double hz = 50.0; hz < 12000.0; hz *= 1.15) {
        const Complex z = std::polar(1.0, -2.0 * std::numbers::pi * hz / kRate);
        const double expected = std::abs(1.0 + std::pow((-c + z) / (1.0 - c * z), 6.0));
        Played unit(FxType::Phaser, x, 0.0f);
        EXPECT_NEAR(Gain(unit, hz), expected, 0.02) << hz;
        least = std::min(least, expected);
    }
    EXPECT_LT(least, 0.2);
}

// Three delays in a row, each inverting, of one frame more than their loop of 49. With feedback each gives
// -z / (1 + z / 2), z being its delay.
TEST(FXUnit, ChorusIsThreeDelaysInSeries)
{
    for (const auto& [y, second] : {std::pair{0.0f, 0.0}, {1.0f, 1.5}}) {
        Played unit(FxType::Chorus, 0.5f, y);
        Sound sound(6000);
        sound.left[5000] = 1.0f;
        unit.Run(sound);
        const auto around = [&](int frame) {
            return std::accumulate(&sound.left[5000 + frame - 3], &sound.left[5000 + frame + 4], 0.0);
        };
        EXPECT_EQ(sound.left[5000], 1.0f);
        EXPECT_NEAR(around(3 * 50), -1.0, 1e-3);
        EXPECT_NEAR(around(4 * 50), second, 1e-3);
        EXPECT_EQ(Rms(sound.right, 0, 6000), 0.0);
    }
}

TEST(FXUnit, EchoKeepsTime)
{
    // clang-format off
    struct Case { const char* what; float beats, tempo; int frames; };
    const Case cases[] = {
        {"one beat", 1.0f, 120.0f, 24000}, {"limited", 4.0f, 120.0f, 71280}, {"short", 0.125f, 300.0f, 1200}};
    // clang-format on
    for (const Case& c : cases) {
        Played unit(FxType::Echo, std::sqrt(0.5f), 0.5f);
        unit.lfoBeats = c.beats;
        Sound sound(160000), settled(2000);
        unit.Run(settled, 0, -1, c.tempo);
        sound.left[0] = 1.0f;
        unit.Run(sound, 0, -1, c.tempo);
        double echo[2]{};
        const double delay = 2.0 + std::min(c.beats * 60.0 / c.tempo / 1.5, 0.99) * (72000.0 - 2.0);
        EXPECT_NEAR(delay, c.frames, 3.0);
        for (int n = -3; n <= 3; ++n)
            for (int k = 0; k < 2; ++k)
                echo[k] += sound.left[static_cast<int>(std::lround((k + 1) * (delay + 1.0))) + n];
        EXPECT_NEAR(echo[0], 0.5, 0.002) << c.what;
        EXPECT_NEAR(echo[1], 0.25, 0.002) << c.what;
        EXPECT_EQ(Rms(sound.right, 0, 160000), 0.0);
    }
}

TEST(FXUnit, PannerDelaysAndWeakensOneSide)
{
    // clang-format off
    struct Case { float x, y; int leftFrames, rightFrames; float left, right; };
    const Case cases[] = {
        {0.5f, 1.0f,   6, 6, 1.0f, 1.0f}, {0.75f, 1.0f,  50,  6, 1.0f, 1.0f}, {1.0f, 1.0f, 96, 6, 0.0f, 1.0f},
        {1.0f, 0.75f, 96, 6, 0.5f, 1.0f}, {0.0f,  0.75f,  6, 96, 1.0f, 0.5f},
    };
    // clang-format on
    for (const Case& c : cases) {
        Played unit(FxType::Panner, c.x, c.y);
        Sound sound = Impulse(1000, 500);
        unit.Run(sound);
        double left = 0.0, right = 0.0;
        for (int n = -2; n <= 2; ++n) {
            left += sound.left[500 + c.leftFrames + n];
            right += sound.right[500 + c.rightFrames + n];
        }
        EXPECT_NEAR(left, c.left, 1e-3) << c.x;
        EXPECT_NEAR(right, c.right, 1e-3) << c.x;
    }
}

TEST(FXUnit, PumpDropsAtEachPeriod)
{
    Played unit(FxType::Pump, 0.8f, 0.0f);
    unit.lfoBeats = 0.5f; // 12000 frames
    Sound sound(60000, 1.0f);
    unit.Run(sound);
    for (int period = 1; period < 5; ++period) {
        const auto from = sound.left.begin() + period * 12000 - 1000;
        const auto lowest = std::min_element(from, from + 12000);
        EXPECT_NEAR(static_cast<double>(lowest - from), 1000 + 1070, 30)
            << period; // the smoothed drop meets the return
        EXPECT_LT(*lowest, 0.05f);
        EXPECT_GT(from[0], 0.99f);
    }
    Played open(FxType::Pump, 0.2f, 1.0f);
    Sound input = Noise(9000), output = input;
    open.Run(output);
    EXPECT_EQ(output.left, input.left);
}

// Shapes by what a panner does with them: the delay of the left side follows the LFO.
TEST(FXUnit, LfoHasItsShapesAndPeriod)
{
    constexpr int kStart = 700; // the delay is still filling at frame 0
    const double phase = kStart / 24000.0;
    const double expected[4][4] = {{std::sin(2.0 * std::numbers::pi * phase), 1.0, 0.0, -1.0},
                                   {2.0 * phase, 0.5, 1.0, 0.5},
                                   {phase, 0.25, 0.5, 0.75},
                                   {0.0, 0.0, 0.0, 1.0}};
    for (int shape = 0; shape < 4; ++shape) {
        for (int quarter = 0; quarter < 4; ++quarter) {
            Played unit(FxType::Panner, 0.5f, 1.0f);
            unit.lfoShape = shape;
            unit.lfoAmount = 0.25f;
            Sound sound(24000, 1.0f);
            unit.Run(sound);
            const int n = quarter ? quarter * 6000 : kStart;
            const double value = expected[shape][quarter];
            const double gain = std::clamp((1.0 - 0.5 * value) * 2.0, 0.0, 1.0);
            EXPECT_NEAR(sound.left[n], gain, 0.02) << shape << " " << quarter;
        }
    }
}

TEST(FXUnit, TailsRingOutAndEnd)
{
    for (const FxType type : {FxType::Echo, FxType::Reverb}) {
        Played unit(type, 0.6f, 0.5f);
        Sound sound = Noise(48000 * 20);
        sound.Silence(24000);
        unit.Run(sound, 0, 24000);
        unit.bypass = 1;
        unit.Run(sound, 24000, 36000);
        EXPECT_TRUE(unit.HasTail()) << static_cast<int>(type);
        unit.Run(sound, 36000);
        EXPECT_FALSE(unit.HasTail()) << static_cast<int>(type);
        EXPECT_GT(Rms(sound.left, 24000 + 6000, 24000 + 30000), 0.001) << static_cast<int>(type);
    }
}

// One silent block for a bad number or an overflow, then the unit works as a fresh one would.
TEST(FXUnit, RecoversFromBadInput)
{
    for (const FxType type : kAllTypes) {
        for (const float bad : {std::nanf(""), std::numeric_limits<float>::infinity(), 3e38f}) {
            Played unit(type, 0.7f, 0.7f);
            unit.lfoAmount = 0.5f;
            unit.eqOn = 1;
            unit.eqGains.fill(0.9f);
            Sound sound = Noise(96000);
            for (int n = 9600; n < 9700; ++n) sound.left[n] = sound.right[n] = bad;
            unit.Run(sound);
            for (int n = 24000; n < sound.Frames(); ++n)
                ASSERT_TRUE(std::isfinite(sound.left[n]) &&
                            (type == FxType::Echo || type == FxType::Stutter || std::fabs(sound.left[n]) < 50.0f))
                    << static_cast<int>(type);
            EXPECT_GT(Rms(sound.right, 72000, 96000), 0.001) << static_cast<int>(type) << " " << bad;
        }
    }
}

TEST(FXUnit, WildSettingsNeverGiveBadNumbers)
{
    for (const FxType type : kAllTypes) {
        for (const float rate : {8000.0f, 22050.0f, 384000.0f, 1e6f}) {
            Played unit(type, 0.0f, 0.0f, rate);
            Sound sound = Noise(1000);
            const float wild[] = {1.0f, -5.0f, 1e30f, std::nanf("")};
            for (const float value : wild) {
                unit.x = value;
                unit.y = unit.lfoAmount = value;
                unit.lfoBeats = std::fabs(value);
                unit.lfoShape = static_cast<int>(type);
                unit.Process(sound.left.data(), sound.right.data(), 512, 1e30f);
                unit.Process(sound.left.data(), sound.right.data(), 512, 130.0f);
            }
            for (const float sample : sound.left)
                ASSERT_TRUE(std::isfinite(sample)) << static_cast<int>(type) << " " << rate;
        }
    }
}

// Decaying filters must not reach the denormal range, where a processor crawls.
TEST(FXUnit, SilenceIsNotSlowerThanSound)
{
    for (const FxType type : kAllTypes) {
        Played unit(type, 0.7f, 0.3f);
        unit.eqOn = 1;
        unit.eqGains.fill(0.8f);
        const auto time = [&](const Sound& source) {
            double best = 1.0;
            for (int pass = 0; pass < 4; ++pass) {
                Sound sound = source;
                const auto start = std::chrono::steady_clock::now();
                unit.Run(sound);
                best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
            }
            return best;
        };
        const double loud = time(Noise(24000));
        EXPECT_LT(time(Sound(24000)), 3.0 * loud + 0.001) << static_cast<int>(type);
    }
}

// A block cut anywhere sounds the same, where the LFO moves frame by frame.
TEST(FXUnit, BlockLengthDoesNotMatter)
{
    for (const FxType type :
         {FxType::Chorus, FxType::Phaser, FxType::Echo, FxType::Reverb, FxType::Panner, FxType::Pump}) {
        Played whole(type, 0.6f, 0.4f), cut(type, 0.6f, 0.4f);
        whole.lfoAmount = cut.lfoAmount = 0.4f;
        Sound a = Noise(6000), b = a;
        whole.Run(a);
        for (int n = 0, step = 0; n < 6000; n += step) {
            step = std::min(n % 97, 6000 - n);
            cut.Process(&b.left[n], &b.right[n], step, kTempo);
            if (step == 0) cut.Process(&b.left[n], &b.right[n], step = 1, kTempo);
        }
        for (int n = 0; n < 6000; ++n) ASSERT_NEAR(a.left[n], b.left[n], 1e-5f) << static_cast<int>(type) << " " << n;
    }
}

} // namespace
} // namespace korvane
