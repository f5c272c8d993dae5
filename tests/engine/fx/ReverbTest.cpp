// Reverb: what each parameter does to the response, long runs against single frames, reset.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <utility>
#include <vector>

#include "engine/fx/Signals.h"
#include "engine/fx/reverb/fxReverb.h"

namespace korvane {
namespace {

void Replace(fxReverb& unit, Sound& sound, int frames)
{
    float* blocks[] = {sound.left.data(), sound.right.data()};
    unit.ProcessReplacing(blocks, blocks, frames);
}

/// Response to an impulse on both sides, without the dry part.
Sound WetImpulse(fxReverb& unit, int frames)
{
    Sound sound = Impulse(frames);
    unit.SetParameter(reverb::MuteDry, 1.0f);
    Replace(unit, sound, frames);
    return sound;
}

// The response at one frequency to an impulse of 1 on the left and 0.5 on the right, within 30000 frames. The numbers
// come from a model in double that was written from the diagram and the rules, not from this engine.
TEST(Reverb, RespondsAsItIsSet)
{
    using namespace reverb;
    using Values = std::vector<std::pair<int, float>>;
    const Values wet{{MuteDry, 1}}, late{{MuteDry, 1}, {MuteEr, 1}, {Reverb, 0.9f}};
    // clang-format off
    struct Case { const char* what; int hz; Values base, more; std::complex<double> left, right; float rate = 44100; };
    const Case cases[] = {
        {"its program", 500, {}, {}, {1.4633, 0.0052}, {0.4345, -0.0294}},
        {"at another rate", 300, {}, {}, {1.1533, 0.2513}, {0.3010, -0.3186}, 48000.0f},
        {"mix", 600, {}, {{Input, 0.8f}, {Dry, 0.7f}, {Er, 0.9f}, {Reverb, 0.8f}}, {0.3835, -0.2598}, {0.4389, 0.5443}},
        {"low and high cut", 1000, wet, {{LowCut, 0.4f}, {HighCut, 0.3f}}, {0.2173, -0.0293}, {-0.1946, -0.0968}},
        {"cuts off", 3000, wet, {{LowCut, 0}, {HighCut, 1}, {HighDamping, 1}}, {0.2111, 0.0051}, {0.2713, -0.0007}},
        {"large room, predelay", 400, late, {{RoomSize, 1}, {Predelay, 0.1f}}, {-0.4507, -0.7659}, {0.2312, -0.2191}},
        {"small room, narrow", 400, wet, {{RoomSize, 0.1f}, {Width, 0.2f}}, {0.0700, 0.0446}, {0.0051, 0.0761}},
        {"less diffusion", 700, late, {{Diffusion, 0.6f}}, {0.7981, 0.3280}, {0.8821, -0.4206}},
        {"no diffusion, wide", 700, late, {{Diffusion, 0}, {Width, 0.9f}}, {-0.0374, 0.3120}, {1.5900, -0.3849}},
        {"bass heavy", 150, late, {{BassMultiplier, 0.8f}, {Crossover, 0.1f}, {Decay, 0.1f}},
         {-0.9604, 1.2682}, {0.5581, 0.2229}},
        {"bass light", 250, late, {{BassMultiplier, 0.1f}, {Crossover, 0.6f}, {Decay, 0.2f}},
         {0.7616, -0.1003}, {-0.1858, -0.6304}},
        {"long and dark", 350, late, {{Decay, 0.5f}, {HighDamping, 0.05f}}, {-0.0683, -0.3959}, {3.1782, -1.3341}},
        {"reflections", 700, wet, {{MuteReverb, 1}, {Er, 1}, {Diffusion, 0.5f}}, {-0.7147, -0.2792}, {1.0370, -0.1627}},
        {"input muted", 500, {}, {{MuteInput, 1}}, {0.0, 0.0}, {0.0, 0.0}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fxReverb unit;
        unit.SetSampleRate(c.rate);
        for (const Values& values : {c.base, c.more})
            for (const auto& [index, value] : values) unit.SetParameter(index, value);
        Sound sound = Impulse(30000);
        sound.right[0] = 0.5f;
        Replace(unit, sound, sound.Frames());
        std::complex<double> left, right;
        for (int n = 0; n < sound.Frames(); ++n) {
            const auto turn = std::polar(1.0, -2.0 * std::numbers::pi * c.hz * n / static_cast<double>(c.rate));
            left += static_cast<double>(sound.left[n]) * turn;
            right += static_cast<double>(sound.right[n]) * turn;
        }
        EXPECT_NEAR(std::abs(left - c.left), 0.0, 5e-4) << left;
        EXPECT_NEAR(std::abs(right - c.right), 0.0, 5e-4) << right;
    }
}

// Lines and taps bound how many frames may be worked through at once; what comes out does not tell.
TEST(Reverb, RunsGiveTheBitsOfSingleFrames)
{
    // clang-format off
    const struct { float rate, roomSize, predelay; } cases[] = {{44100, 0.5f, 0}, {4000, 0, 0.01f}, {48000, 0, 0}};
    // clang-format on
    for (const auto& c : cases) { // the later ones bound by a line, by a tap
        SCOPED_TRACE(c.rate);
        fxReverb unit, single;
        for (fxReverb* reverb : {&unit, &single}) {
            reverb->SetParameter(reverb::RoomSize, c.roomSize);
            reverb->SetParameter(reverb::Predelay, c.predelay);
            reverb->SetSampleRate(c.rate);
        }
        Sound input = Noise(12000), sum = Noise(12000, 0.1f), expected = sum;
        for (int done = 0, block = 1; done < sum.Frames(); done += block, block = block % 300 + 7) {
            block = std::min(block, sum.Frames() - done);
            float* ins[] = {&input.left[done], &input.right[done]};
            float* outs[] = {&sum.left[done], &sum.right[done]};
            unit.Process(ins, outs, block);
        }
        for (int n = 0; n < sum.Frames(); ++n) {
            float* frame[] = {&input.left[n], &input.right[n]};
            single.ProcessReplacing(frame, frame, 1);
            ASSERT_EQ(sum.left[n], expected.left[n] + input.left[n]) << n;
            ASSERT_EQ(sum.right[n], expected.right[n] + input.right[n]) << n;
        }
    }
}

TEST(Reverb, KeepsItsTailUnlessTheRoomChanges)
{
    fxReverb unit;
    WetImpulse(unit, 10000);
    unit.SetParameter(reverb::HighDamping, 0.9f);
    Sound tail(8000);
    Replace(unit, tail, 8000);
    EXPECT_GT(Rms(tail.left, 0, 8000), 1e-5);
    unit.SetParameter(reverb::RoomSize, 0.2f);
    Replace(unit, tail, 1);
    tail.Silence();
    Replace(unit, tail, 8000);
    EXPECT_LT(Rms(tail.left, 0, 8000), 1e-5);
}

// Reset and a new rate make the next render the first one; rates that no host means are ignored.
TEST(Reverb, ResetAndRates)
{
    fxReverb unit;
    const Sound first = WetImpulse(unit, 5000);
    for (const float ignored : {0.0f, -1.0f, std::nanf(""), 1e30f}) {
        unit.SetSampleRate(ignored);
        unit.Reset();
        EXPECT_EQ(WetImpulse(unit, 5000).left, first.left) << ignored;
    }
    for (const float rate : {1.0f, 384000.0f}) {
        unit.SetSampleRate(rate);
        EXPECT_TRUE(std::isfinite(Rms(WetImpulse(unit, 400000).left, 0, 400000))) << rate;
    }
}

} // namespace
} // namespace korvane
