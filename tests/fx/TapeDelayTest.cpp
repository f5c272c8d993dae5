// Tape delay: time, feedback, moving speed, lanes, wild settings.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "engine/MFXTapeDelay.h"
#include "fx/Signals.h"

namespace korvane {
namespace {

// A frame comes back when the tape is where it was recorded: one loop and the frame in which it was written later.
TEST(TapeDelay, ReturnsAnImpulseOneLoopLater)
{
    // clang-format off
    struct Case { const char* what; int length; double speed; float feedback; int delay; };
    const Case cases[] = {
        {"a hundred frames", 1000, 1.0 / 100,  0.0f, 100},  {"half comes back",    1000, 1.0 / 100,    0.5f, 100},
        {"longest",          1000, 0.0,        0.0f, 1000}, {"beyond the longest", 96,   -1.0,         0.0f, 96},
        {"speed limit",      1000, 0.5,        0.0f, 5},    {"not a number",       200,  std::nan(""), 0.0f, 200},
        {"length too small", 0,    1.0 / 1000, 0.0f, 4},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        MFXTapeDelay delay(c.length);
        delay.inputGain = 1.0f;
        delay.speed = c.speed;
        delay.feedback = c.feedback;
        double echo[3]{};
        const int start = 2 * c.delay + 1; // not at the tape's blank beginning
        for (int n = -start; n < 3 * c.delay + 3; ++n) {
            const float y = delay.Process(n == 0 ? 1.0f : 0.0f);
            for (int k = 0; k < 3; ++k)
                if (std::abs(n - 1 - k * (c.delay + 1) - c.delay) <= 1 + k) echo[k] += y;
            EXPECT_TRUE(y == 0.0f || n >= c.delay) << n;
        }
        EXPECT_NEAR(echo[0], 1.0, 1e-4);
        EXPECT_NEAR(echo[1], c.feedback, 1e-4);
    }
}

// Reading is interpolation in what was recorded one loop earlier, whatever the speed did since.
TEST(TapeDelay, BendsWhatIsOnTheTape)
{
    constexpr int kFrames = 20000;
    const Sound input = Sine(kFrames, 300.0);
    MFXTapeDelay delay(500);
    delay.inputGain = 1.0f;
    double place = 0.0;
    std::vector<double> places{-1.0, 0.0}, values{0.0, 0.0};
    std::size_t at = 1;
    for (int n = 0; n < kFrames; ++n) {
        delay.speed = 1.0 / (250.0 + 200.0 * std::sin(n * 0.0007));
        while (at + 1 < places.size() && places[at] < place - 1.0) ++at;
        const double t = (place - 1.0 - places[at - 1]) / (places[at] - places[at - 1]);
        const double expected = place < 1.0 ? 0.0 : values[at - 1] + (values[at] - values[at - 1]) * t;
        ASSERT_NEAR(delay.Process(input.left[n]), expected, 0.02) << n; // where the loop closes, up to a frame off
        place += delay.speed;
        places.push_back(place);
        values.push_back(input.left[n]);
    }
}

TEST(TapeDelay, LanesEqualSingleTapes)
{
    const Sound input = Noise(5000);
    TapeDelay<Stereo> pair(300);
    MFXTapeDelay left(300), right(300);
    const auto set = [](auto& delay, int n) {
        delay.inputGain = 0.7f;
        delay.feedback = -0.4f;
        delay.lowpass = 0.6f;
        delay.highpass = 0.1f;
        delay.speed = delay.SpeedFor(0.5 + 0.5 * std::sin(n * 0.01));
    };
    for (int n = 0; n < 5000; ++n) {
        set(pair, n);
        set(left, n);
        set(right, n);
        const Stereo y = pair.Process(Stereo{input.left[n], input.right[n]});
        ASSERT_EQ(y[0], left.Process(input.left[n])) << n;
        ASSERT_EQ(y[1], right.Process(input.right[n])) << n;
    }
}

TEST(TapeDelay, ClearForgetsEverything)
{
    MFXTapeDelay used(300), fresh(300);
    const Sound input = Noise(3000);
    for (MFXTapeDelay* delay : {&used, &fresh}) {
        delay->inputGain = 1.0f;
        delay->feedback = 0.9f;
        delay->speed = 0.0101;
        delay->lowpass = 0.5f;
    }
    for (int n = 0; n < 1000; ++n) used.Process(input.left[n]);
    used.Process(std::numeric_limits<float>::infinity());
    used.Clear();
    for (int n = 0; n < 2000; ++n) ASSERT_EQ(used.Process(input.right[n]), fresh.Process(input.right[n])) << n;
}

} // namespace
} // namespace korvane
