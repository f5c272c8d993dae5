// Equaliser: gain of each band where it is centred.
#include <gtest/gtest.h>

#include "engine/fx/Signals.h"

namespace korvane {
namespace {

// The amplitude enters the band's formula unrooted, so a setting of g dB moves the centre of its band by 2 g. The other
// numbers come from a model in double, written from the published formulas.
TEST(Equaliser, BoostsAndCutsAroundItsFrequencies)
{
    // clang-format off
    const struct { int band; float gain; int hz; double decibels; } cases[] = {
        {0, 1, 50,   23.00}, {0, 1,   100,   6.70}, {0, 1, 200,  -3.20}, {0, 0.2f, 100,    -1.59}, {0, 1, 10000, 0.0},
        {1, 1, 50,    6.46}, {1, 1,   200,  23.39}, {1, 1, 500,  12.50}, {1, 0.3f, 200,    -9.49},
        {2, 1, 300,   8.22}, {2, 1,  1200,  24.00}, {2, 1, 3000, 12.49}, {2, 0.2f, 1200,  -14.40},
        {3, 1, 2000, 10.21}, {3, 1, 12000,  12.85}, {3, 1, 6000, 24.00}, {3, 0.7f, 6000,    9.60},
        {4, 1, 6000,  6.00}, {4, 1, 12000,  12.00}, {4, 1, 20000, 20.40}, {4, 0.2f, 12000, -7.20},
    };
    // clang-format on
    for (const auto& c : cases) {
        Played unit(FxType::Pump);
        unit.bypass = unit.eqOn = 1;
        unit.eqGains[c.band] = c.gain;
        Sound sound = Sine(24000, c.hz, 0.02f);
        const double before = std::abs(Line(&sound.left[19200], 4800, c.hz));
        unit.Run(sound);
        for (const auto* side : {&sound.left, &sound.right})
            EXPECT_NEAR(Decibels(std::abs(Line(&(*side)[19200], 4800, c.hz)) / before), c.decibels, 0.1)
                << "band " << c.band << ", gain " << c.gain << ", " << c.hz << " Hz";
    }
}

// The equaliser reports a tail while more than -80 dB ring in it; then it and the channel may fall silent.
TEST(Equaliser, RingsAndEnds)
{
    Played unit(FxType::Pump);
    unit.bypass = unit.eqOn = 1;
    unit.eqGains[0] = 1.0f;
    Sound sound = Impulse(40000);
    int end = 0;
    do unit.Run(sound, end, end + kBlock);
    while (unit.audible && (end += kBlock) < 20000);
    EXPECT_GT(end, kBlock);
    EXPECT_LT(std::fabs(sound.left[end + kBlock - 1]), 0.00011f);
    unit.Run(sound, end + kBlock);
    EXPECT_EQ(sound.left.back(), 0.0f);
}

} // namespace
} // namespace korvane
