// Reverb: parameters and texts, what each does to the response, long runs against single frames, reset.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <string>
#include <vector>

#include "engine/fxReverb.h"
#include "fx/Signals.h"

namespace korvane {
namespace {

/// Name, value and unit of a parameter.
std::string Text(fxReverb& unit, int index)
{
    char name[64], display[64], label[64];
    unit.GetParameterName(index, name);
    unit.GetParameterDisplay(index, display);
    unit.GetParameterLabel(index, label);
    return std::string(name) + " " + display + " " + label;
}

TEST(Reverb, StartsWithItsProgramAndTakesValuesInSteps)
{
    fxReverb unit;
    std::string all;
    for (int n = 0; n < reverb::Count; ++n) all += Text(unit, n) + ", ";
    EXPECT_EQ(all, "Input 0.0 dB, LowCut 75 Hz, HighCut 4.0 kHz, Predelay 0 ms, RoomSize 50 , Diffusion 100 %, "
                   "BassMultiplier 1.0 x, Crossover 500 Hz, Decay 1.5 s, HighDamping 4.0 kHz, Dry 0.0 dB, "
                   "ER -3.5 dB, Reverb -12.0 dB, Width 100 %, "
                   "MuteInput Off , MuteDry Off , MuteER Off , MuteReverb Off , ");
    // clang-format off
    const struct { int index; float value; const char* text; } cases[] = {
        {reverb::Input,    0.0f, "Input -Inf dB"},    {reverb::Input,     1.0f, "Input 6.0 dB"},   {reverb::LowCut,   0.0f, "LowCut 19 Hz"},
        {reverb::HighCut,  1.0f, "HighCut 22.1 kHz"}, {reverb::Decay,     1.0f, "Decay 20.0 s"},   {reverb::Predelay, 7.0f, "Predelay 250 ms"},
        {reverb::Predelay, -7.0f, "Predelay 0 ms"},   {reverb::MuteInput, 0.5f, "MuteInput On "},  {reverb::Er,     0.855f, "ER -0.1 dB"},
        {reverb::Count,    1.0f, "  "},               {-1,                1.0f, "  "},
    };
    // clang-format on
    for (const auto& c : cases) {
        unit.SetParameter(c.index, c.value);
        EXPECT_EQ(Text(unit, c.index), c.text) << c.value;
    }
}

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
    // clang-format off
    const struct { const char* what; float rate; int hz; std::vector<std::pair<int, float>> values; std::complex<double> left, right; } cases[] = {
        {"its program", 44100.0f, 500, {}, {1.4633, 0.0052}, {0.4345, -0.0294}},
        {"at another rate", 48000.0f, 300, {}, {1.1533, 0.2513}, {0.3010, -0.3186}},
        {"levels", 44100.0f, 600, {{Input, 0.8f}, {Dry, 0.7f}, {Er, 0.9f}, {Reverb, 0.8f}}, {0.3835, -0.2598}, {0.4389, 0.5443}},
        {"low and high cut", 44100.0f, 1000, {{LowCut, 0.4f}, {HighCut, 0.3f}, {MuteDry, 1}}, {0.2173, -0.0293}, {-0.1946, -0.0968}},
        {"cuts off", 44100.0f, 3000, {{LowCut, 0}, {HighCut, 1}, {MuteDry, 1}, {HighDamping, 1}}, {0.2111, 0.0051}, {0.2713, -0.0007}},
        {"large room, predelay", 44100.0f, 400, {{RoomSize, 1}, {Predelay, 0.1f}, {MuteDry, 1}, {MuteEr, 1}, {Reverb, 0.9f}}, {-0.4507, -0.7659}, {0.2312, -0.2191}},
        {"small room, narrow", 44100.0f, 400, {{RoomSize, 0.1f}, {Width, 0.2f}, {MuteDry, 1}}, {0.0700, 0.0446}, {0.0051, 0.0761}},
        {"less diffusion", 44100.0f, 700, {{Diffusion, 0.6f}, {MuteDry, 1}, {MuteEr, 1}, {Reverb, 0.9f}}, {0.7981, 0.3280}, {0.8821, -0.4206}},
        {"no diffusion, wide", 44100.0f, 700, {{Diffusion, 0}, {Width, 0.9f}, {MuteDry, 1}, {MuteEr, 1}, {Reverb, 0.9f}}, {-0.0374, 0.3120}, {1.5900, -0.3849}},
        {"bass heavy", 44100.0f, 150, {{BassMultiplier, 0.8f}, {Crossover, 0.1f}, {MuteDry, 1}, {MuteEr, 1}, {Decay, 0.1f}, {Reverb, 0.9f}}, {-0.9604, 1.2682}, {0.5581, 0.2229}},
        {"bass light", 44100.0f, 250, {{BassMultiplier, 0.1f}, {Crossover, 0.6f}, {MuteDry, 1}, {MuteEr, 1}, {Decay, 0.2f}, {Reverb, 0.9f}}, {0.7616, -0.1003}, {-0.1858, -0.6304}},
        {"long and dark", 44100.0f, 350, {{Decay, 0.5f}, {HighDamping, 0.05f}, {MuteDry, 1}, {MuteEr, 1}, {Reverb, 0.9f}}, {-0.0683, -0.3959}, {3.1782, -1.3341}},
        {"reflections alone", 44100.0f, 700, {{MuteReverb, 1}, {MuteDry, 1}, {Er, 1}, {Diffusion, 0.5f}}, {-0.7147, -0.2792}, {1.0370, -0.1627}},
        {"input muted", 44100.0f, 500, {{MuteInput, 1}}, {0.0, 0.0}, {0.0, 0.0}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        fxReverb unit;
        unit.SetSampleRate(c.rate);
        for (const auto& [index, value] : c.values) unit.SetParameter(index, value);
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

TEST(Reverb, ShowsClippingForSixBlocks)
{
    fxReverb unit;
    for (const auto& [peak, blocks] : {std::pair{1.0f, 0}, {-1.5f, 6}, {1.0f, 5}}) {
        Sound sound(10);
        sound.left[3] = peak;
        Replace(unit, sound, 10);
        EXPECT_EQ(unit.inputMeters[0].peak, std::fabs(peak));
        EXPECT_EQ(unit.inputMeters[0].clippedBlocks, blocks);
        EXPECT_EQ(unit.inputMeters[1].clippedBlocks, 0);
    }
}

} // namespace
} // namespace korvane
