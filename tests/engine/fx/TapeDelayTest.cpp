// Tape delay: time, feedback, interpolation, wild settings.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/fx/MFXTapeDelay.h"
#include "engine/fx/Signals.h"

namespace korvane {
namespace {

// A frame comes back when the tape is where it was recorded: one loop and the frame in which it was written later.
TEST(TapeDelay, ReturnsAnImpulseOneLoopLater)
{
    // clang-format off
    const struct { const char* what; int length; double speed; float feedback; int delay; } cases[] = {
        {"a hundred frames", 1000, 1.0 / 100,  0.0f, 100},  {"half comes back",    1000, 1.0 / 100,    0.5f, 100},
        {"longest",          1000, 0.0,        0.0f, 1000}, {"beyond the longest", 96,   -1.0,         0.0f, 96},
        {"speed limit",      1000, 0.5,        0.0f, 5},    {"not a number",       200,  std::nan(""), 0.0f, 200},
        {"length too small", 0,    1.0 / 1000, 0.0f, 4},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        MFXTapeDelay delay(c.length);
        delay.inputGain = 1.0f;
        delay.speed = c.speed;
        delay.feedback = c.feedback;
        double echo[2]{}, place = 0.0;
        const int start = 2 * c.delay + 1; // not at the tape's blank beginning
        for (int n = -start; n < 2 * c.delay + 4; ++n) {
            const float y = delay.Process(n == 0 ? 1.0f : 0.0f);
            const int loop = n > c.delay + 1 + c.delay / 2;
            echo[loop] += y;
            if (loop == 0) place += static_cast<double>(y) * n;
            EXPECT_TRUE(y == 0.0f || n >= c.delay) << n;
        }
        EXPECT_NEAR(echo[0], 1.0, 1e-4);
        EXPECT_NEAR(place, c.delay + 1, 0.01);
        EXPECT_NEAR(echo[1], c.feedback, 1e-4);
    }
}

} // namespace
} // namespace korvane
