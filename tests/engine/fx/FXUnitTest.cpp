// Effect units: what each type does at its settings, switching, tails, bad input.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/fx/Signals.h"

namespace korvane {
namespace {

constexpr FxType kAllTypes[] = {FxType::Distortion, FxType::Decimator, FxType::Chorus, FxType::Phaser,
                                FxType::LowPass,    FxType::HighPass,  FxType::Echo,   FxType::Reverb,
                                FxType::Panner,     FxType::Pump,      FxType::Stutter};

/// Names the unit in a failure.
testing::Message Named(FxType type) { return testing::Message() << "type " << static_cast<int>(type); }

// Gain and turn of a sine of 0.5 on the left and 0.25 on the right within 20 ms, behind a unit that was switched on at
// frame 0. The numbers come from a model in double that was written from the instrument's rules, not from this engine.
TEST(FXUnit, ActsOnASineAsItIsSet)
{
    // clang-format off
    const struct { FxType type; float x, y, lfo, beats; int shape, hz, from; Response left, right; } cases[] = {
//                           x     y      LFO    beats shape hz   from   left             right
        {FxType::Distortion, 0.5f, 0.3f,  0.0f,   1.0f, 0, 1000,  9600, {1.64, -43.7}, {7.30, -43.7}},
        {FxType::Distortion, 0.3f, 0.5f,  0.3f,   1.0f, 0, 1000,  5760, {3.27, -24.5}, {9.11, -24.5}},
        {FxType::Distortion, 0.5f, 0.5f, -0.2f,   0.5f, 3, 1000,  8640, {1.87, -24.5}, {6.03, -24.5}},
        {FxType::Decimator,  0.2f, 0.9f,  0.0f,   1.0f, 0,  600,  9600, {-1.36, -99.1}, {-1.36, -99.1}},
        {FxType::Decimator,  0.9f, 0.7f,  0.4f,   1.0f, 1,  300,  9600, {2.20, -18.9}, {2.20, -18.9}},
        {FxType::Decimator,  0.3f, 0.7f, -0.4f,   0.5f, 2,  600,  8640, {1.92, -34.0}, {1.92, -34.0}},
        {FxType::Chorus,     0.2f, 0.9f,  0.0f,   1.0f, 0, 1500,  9600, {12.92, 93.4}, {12.92, 93.4}},
        {FxType::Chorus,     0.8f, 0.5f,  0.0f,   1.0f, 0, 1500,     0, {0.14, 67.0}, {0.14, 67.0}},
        {FxType::Chorus,     1.0f, 0.5f,  0.0f,   1.0f, 0, 5000,  9600, {-3.06, -159.0}, {-3.06, -159.0}},
        {FxType::Chorus,     0.4f, 0.5f,  0.4f,   1.0f, 2,  700, 14400, {9.90, -28.3}, {9.90, -28.3}},
        {FxType::Chorus,     0.5f, 0.5f, -0.3f,   0.5f, 0,  400,  9600, {4.89, -6.8}, {4.89, -6.8}},
        {FxType::Phaser,     0.5f, 0.7f,  0.0f,   1.0f, 0, 5000,  9600, {-4.66, -30.6}, {-4.66, -30.6}},
        {FxType::Phaser,     0.6f, 0.2f,  0.0f,   1.0f, 0, 2000,     0, {-4.37, -41.2}, {-4.37, -41.2}},
        {FxType::Phaser,     0.4f, 0.5f,  0.6f,   1.0f, 1, 1500,  9600, {-5.91, 41.9}, {-5.91, 41.9}},
        {FxType::Phaser,     0.3f, 0.8f, -0.5f,   0.5f, 0,  700,  8640, {-6.89, -12.8}, {-6.89, -12.8}},
        {FxType::LowPass,    0.4f, 0.2f,  0.0f,   1.0f, 0,  700,  9600, {-23.69, -23.9}, {-23.69, -23.9}},
        {FxType::LowPass,    0.4f, 0.5f,  0.3f,   1.0f, 0, 1500,  4800, {4.23, -141.4}, {4.23, -141.4}},
        {FxType::LowPass,    0.6f, 0.5f, -0.3f,   0.5f, 3,  800,  8640, {-55.31, 146.8}, {-55.31, 146.8}},
        {FxType::LowPass,    1.0f, 0.5f,  0.0f,   1.0f, 0, 9000,  9600, {4.84, -57.0}, {4.84, -57.0}},
        {FxType::HighPass,   0.3f, 0.9f,  0.0f,   1.0f, 0,  200,  9600, {11.50, -150.0}, {11.50, -150.0}},
        {FxType::HighPass,   0.4f, 0.5f,  0.3f,   1.0f, 2,  700,  9600, {-1.19, -122.6}, {-1.19, -122.6}},
        {FxType::HighPass,   0.6f, 0.5f, -0.3f,   0.5f, 1,  400,  9600, {-10.69, 9.3}, {-10.69, 9.3}},
        {FxType::Echo,       0.8f, 0.5f,  0.0f,  0.25f, 0,  500, 19200, {-5.33, 11.5}, {-5.33, 11.5}},
        {FxType::Echo,       0.7f, 0.3f,  0.0f,   0.5f, 0, 1000, 14400, {3.03, -10.4}, {3.03, -10.4}},
        {FxType::Echo,       0.7f, 0.8f,  0.0f,  0.25f, 0,  400, 14400, {0.10, 2.5}, {0.10, 2.5}},
        {FxType::Echo,       0.9f, 0.5f,  0.0f,   4.0f, 0,   50, 73000, {2.16, -39.2}, {2.16, -39.2}},
        {FxType::Echo,       0.9f, 0.5f,  0.0f, 0.003f, 0,   50,  3000, {-1.99, 23.7}, {-1.99, 23.7}},
        {FxType::Reverb,     0.0f, 1.0f,  0.0f,   1.0f, 0,  300, 14400, {0.59, -3.2}, {0.91, -0.4}},
        {FxType::Reverb,     0.5f, 0.5f,  0.0f,   1.0f, 0,  300, 14400, {0.71, -5.0}, {1.22, -1.6}},
        {FxType::Reverb,     0.9f, 0.9f,  0.0f,   1.0f, 0, 1000, 28800, {-2.01, 23.0}, {3.44, -37.1}},
        {FxType::Reverb,     0.7f, 0.3f,  0.0f,   1.0f, 0, 1000,  4800, {0.15, 0.9}, {-0.21, -3.7}},
        {FxType::Panner,     0.5f, 1.0f,  0.0f,   1.0f, 0,  700,  9600, {0.00, -31.5}, {0.00, -31.5}},
        {FxType::Panner,     1.0f, 0.75f,  0.0f,   1.0f, 0,  700,  9600, {-6.02, -144.3}, {0.00, -31.5}},
        {FxType::Panner,     0.1f, 0.8f,  0.0f,   1.0f, 0,  700,  9600, {0.00, -31.5}, {-2.86, -50.5}},
        {FxType::Panner,     0.6f, 0.9f,  0.3f,   1.0f, 0,  400,  4800, {-4.67, 128.9}, {0.00, -18.0}},
        {FxType::Pump,       0.8f, 0.0f,  0.0f,   1.0f, 0, 1000,     0, {-19.12, 0.0}, {-19.12, 0.0}},
        {FxType::Pump,       0.8f, 0.3f,  0.0f,   1.0f, 0, 1000,  4800, {-20.43, 0.0}, {-20.43, 0.0}},
        {FxType::Pump,       0.3f, 0.6f,  0.0f,   1.0f, 0, 1000,  4800, {-8.16, 0.0}, {-8.16, 0.0}},
        {FxType::Pump,       0.0f, 0.1f,  0.0f,   0.5f, 0, 1000, 14400, {-16.99, 0.0}, {-16.99, 0.0}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(Named(c.type) << ", x " << c.x << ", y " << c.y << ", LFO " << c.lfo << " of shape " << c.shape
                                   << ", " << c.beats << " beats, " << c.hz << " Hz at " << c.from);
        constexpr int kFrames = 960;
        Played unit(c.type, c.x, c.y);
        unit.lfoAmount = c.lfo;
        unit.lfoBeats = c.beats;
        unit.lfoShape = static_cast<LfoShape>(c.shape);
        Sound sound = Sine(c.from + kFrames, c.hz);
        for (float& sample : sound.right) sample *= 0.5f;
        const Sound input = sound;
        unit.Run(sound);
        const auto compare = [&](const auto& in, const auto& out, std::complex<double> expected) {
            const auto gain = Line(&out[c.from], kFrames, c.hz) / Line(&in[c.from], kFrames, c.hz);
            EXPECT_NEAR(std::abs(gain - expected), 0.0, 0.003 + 0.005 * std::abs(expected))
                << "was " << Decibels(std::abs(gain)) << " dB, " << std::arg(gain) * 180.0 / std::numbers::pi;
        };
        compare(input.left, sound.left, c.left);
        compare(input.right, sound.right, c.right);
    }
}

TEST(FXUnit, PassesTheSignalUntouchedWhenItDoesNotWork)
{
    // clang-format off
    const struct { const char* what; float rate, tempo; std::uint8_t bypass; } cases[] = {
        {"never switched on", kRate, kTempo, 1}, {"absurd rate",        1e30f, kTempo,         0},
        {"no rate",           0.0f,  kTempo, 0}, {"rate not a number",  std::nanf(""), kTempo, 0},
        {"no tempo",          kRate, 0.9f,   0}, {"tempo not a number", kRate, std::nanf(""),  0},
    };
    // clang-format on
    const Sound input = Noise(1000);
    for (const FxType type : kAllTypes)
        for (const auto& c : cases) {
            SCOPED_TRACE(Named(type) << ", " << c.what);
            Played unit(type, 0.9f, 0.9f, c.rate);
            unit.bypass = c.bypass;
            Sound sound = input;
            unit.Run(sound, 0, -1, c.tempo);
            EXPECT_TRUE(sound.left == input.left && sound.right == input.right);
            EXPECT_EQ(unit.audible, type == FxType::Echo && c.bypass); // its tape turns while the channel sounds
        }
}

// Off, a crossfading unit moves 1 % of the way per frame and stops once its level is below 0.0001: 921 frames, so in
// the ninth block. A stutter that has recorded no slice yet holds on for 202 frames; panner and pump stop at once.
TEST(FXUnit, StopsAfterTheFade)
{
    // clang-format off
    constexpr std::pair<FxType, int> kBlocks[] = {
        {FxType::Distortion, 8}, {FxType::Decimator, 8}, {FxType::Chorus, 8}, {FxType::Phaser, 8}, {FxType::LowPass, 8},
        {FxType::HighPass, 8},   {FxType::Panner, 0},    {FxType::Pump, 0},   {FxType::Stutter, 2}};
    // clang-format on
    for (const auto& [type, blocks] : kBlocks) {
        SCOPED_TRACE(Named(type));
        Played unit(type, 0.4f, 0.0f);
        Sound sound(30 * kBlock, 0.5f, 0.5f);
        unit.Run(sound, 0, 10 * kBlock);
        unit.bypass = 1;
        for (int block = 10; block < 30; ++block) {
            unit.Run(sound, block * kBlock, (block + 1) * kBlock);
            EXPECT_EQ(unit.audible, block < 10 + blocks) << block;
        }
        for (int n = (10 + blocks) * kBlock; n < sound.Frames(); ++n) ASSERT_EQ(sound.left[n], 0.5f) << n;
    }
}

// Echo and reverb run on for 1.5 s and 0.25 s after the last frame that can be heard.
TEST(FXUnit, TailsRingOutAndEnd)
{
    for (const auto& [type, hold] : {std::pair{FxType::Echo, 72000}, {FxType::Reverb, 12000}}) {
        SCOPED_TRACE(Named(type));
        Played unit(type, 0.6f, 0.5f);
        Sound sound = Noise(48000 * 20);
        sound.Silence(24000);
        unit.Run(sound, 0, 24000);
        unit.bypass = 1;
        int end = 24000;
        do unit.Run(sound, end, end + kBlock);
        while (unit.audible && (end += kBlock) < sound.Frames() - kBlock);
        int last = end;
        while (std::max(std::fabs(sound.left[last]), std::fabs(sound.right[last])) <= 0.0001f) --last;
        EXPECT_NEAR(end, last + hold, kBlock + 1);
        EXPECT_GT(last, 36000);
    }
}

// Reset makes a used unit sound as a new one does, at the rate that it is given.
TEST(FXUnit, ForgetsEverythingAtAReset)
{
    for (const FxType type : kAllTypes)
        for (const float rate : {kRate, 44100.0f}) {
            SCOPED_TRACE(Named(type) << ", before at " << rate);
            Played used(type, 0.7f, 0.7f, rate), fresh(type, 0.7f, 0.7f);
            for (FXUnit* unit : {&used, &fresh}) {
                unit->lfoAmount = 0.4f;
                unit->lfoBeats = 0.25f;
                unit->eqOn = 1;
                unit->eqGains.fill(0.7f);
            }
            const Sound input = Noise(20000);
            Sound before = input, after = input, expected = input;
            used.x = 0.2f;
            used.Run(before);
            used.Reset(kRate);
            used.x = fresh.x;
            EXPECT_FALSE(used.audible);
            used.Run(after);
            fresh.Run(expected);
            EXPECT_TRUE(after.left == expected.left && after.right == expected.right);
        }
}

// One silent block for a bad number or an overflow, then the unit works as a fresh one would, at any rate.
TEST(FXUnit, RecoversFromBadInput)
{
    for (const FxType type : kAllTypes)
        for (const float rate : {8000.0f, kRate, 1e6f})
            for (const float bad : {std::nanf(""), std::numeric_limits<float>::infinity(), 3e38f}) {
                SCOPED_TRACE(Named(type) << ", " << bad << " at " << rate);
                const bool bounded = rate == kRate && type != FxType::Echo && type != FxType::Stutter;
                Played unit(type, 0.7f, 0.7f, rate);
                unit.lfoAmount = 0.5f;
                unit.eqOn = 1;
                unit.eqGains.fill(0.9f);
                Sound sound = Noise(96000);
                for (int n = 9600; n < 9700; ++n) sound.left[n] = sound.right[n] = bad;
                unit.Run(sound);
                for (int n = 24000; n < sound.Frames(); ++n)
                    ASSERT_TRUE(std::isfinite(sound.left[n]) && (!bounded || std::fabs(sound.left[n]) < 50.0f)) << n;
                EXPECT_GT(Rms(sound.right, 72000, 96000), 0.001);
            }
}

// What no mixer can add up is one silent block, also where only the equaliser works. At a wild gain that is every block
// with a sound in it; nothing rings on then, as infinite coefficients forget it at once.
TEST(FXUnit, SilencesWhatOverflowsInTheEqualiserAlone)
{
    for (const auto& [gain, peak] : {std::pair{0.5f, 1.1e25f}, {0.5f, -1e30f}, {1000.0f, 0.5f}}) {
        Played unit(FxType::Pump);
        unit.bypass = unit.eqOn = 1;
        unit.eqGains[2] = gain;
        Sound sound(3 * kBlock);
        sound.left[0] = sound.left[2 * kBlock] = 1.0f;
        sound.right[kBlock + 50] = peak;
        unit.Run(sound);
        EXPECT_EQ(Rms(sound.right, kBlock, 2 * kBlock), 0.0) << peak;
        for (const int n : {0, 2 * kBlock}) EXPECT_NEAR(sound.left[n], gain > 1.0f ? 0.0f : 1.0f, 1e-4f) << peak;
    }
}

// What decays must not reach the denormal range, where a processor crawls.
TEST(FXUnit, SilenceHoldsNoDenormals)
{
    for (const FxType type : kAllTypes)
        for (const float x : {0.0f, 0.7f}) {
            SCOPED_TRACE(Named(type) << ", x " << x);
            Played unit(type, x, 0.3f);
            unit.lfoBeats = 0.125f;
            unit.eqOn = 1;
            unit.eqGains.fill(0.8f);
            Sound sound = Noise(type == FxType::Reverb ? 400000 : 100000); // a plate takes its time
            sound.Silence(4000);
            unit.Run(sound, 0, 4000);
            unit.bypass = type == FxType::Stutter; // which repeats what it has
            unit.Run(sound, 4000);
            for (const float sample : sound.left) ASSERT_NE(std::fpclassify(sample), FP_SUBNORMAL);
            EXPECT_NE(std::fpclassify(unit.mix), FP_SUBNORMAL);
        }
}

} // namespace
} // namespace korvane
