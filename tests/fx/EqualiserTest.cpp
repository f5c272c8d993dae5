// Equaliser: gain of each band where it is centred.
#include <gtest/gtest.h>

#include "fx/Signals.h"

namespace korvane {
namespace {

/// A unit of which only the equaliser works.
struct Equalised : Played {
    Equalised() : Played(FxType::Pump) { bypass = eqOn = 1; }
};

// The amplitude enters the band's formula unrooted, so a setting of g dB moves its band by 2 g.
TEST(Equaliser, BoostsAndCutsAtItsFrequencies)
{
    // clang-format off
    struct Case { int band; double hz, share; }; // of the band's decibels
    const Case cases[] = {{0,   10.0, 1.0}, {0,    80.0, 0.5}, {1,   220.0, 1.0},  {2,  1200.0, 1.0},
                          {3, 6000.0, 1.0}, {4, 12000.0, 0.5}, {4, 22000.0, 0.95}, {0, 10000.0, 0.0}};
    // clang-format on
    for (const Case& c : cases) {
        for (const float gain : {0.0f, 0.5f, 0.75f, 1.0f}) {
            Equalised unit;
            unit.eqGains[c.band] = gain;
            Sound sound = Sine(48000, c.hz, 0.1f);
            const double before = Rms(sound.left, 24000, 48000);
            unit.Run(sound);
            EXPECT_NEAR(Decibels(Rms(sound.left, 24000, 48000) / before), c.share * (gain - 0.5) * 48.0, 0.6)
                << c.band << " " << c.hz << " " << gain;
        }
    }
}

// A gain that moves is heard at once; the other bands' filters stay as they are.
TEST(Equaliser, FollowsChangedGainsOnly)
{
    Equalised unit;
    Sound sound = Noise(256);
    const Sound input = sound;
    unit.Run(sound, 0, kBlock);
    for (int n = 0; n < kBlock; ++n) EXPECT_NEAR(sound.left[n], input.left[n], 1e-4f);
    unit.eqGains[2] = 1.0f;
    unit.eqChanged[2] = 1;
    unit.Run(sound, kBlock);
    EXPECT_GT(Rms(sound.left, kBlock, 2 * kBlock), 1.3 * Rms(input.left, kBlock, 2 * kBlock));
    EXPECT_EQ(unit.eqChanged[2], 0);
}

// The equaliser reports a tail while it rings; then it and the channel may fall silent.
TEST(Equaliser, RingsAndEnds)
{
    Equalised unit;
    unit.eqGains[0] = 1.0f;
    unit.eqChanged[0] = 1;
    Sound sound = Impulse(24000);
    unit.Run(sound, 0, kBlock);
    EXPECT_TRUE(unit.HasTail());
    unit.Run(sound, kBlock);
    EXPECT_FALSE(unit.HasTail());
    EXPECT_EQ(sound.left.back(), 0.0f);
}

} // namespace
} // namespace korvane
