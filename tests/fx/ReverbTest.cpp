// Reverb: parameters and texts, the run-wise path against frame by frame, decay, width, reset.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "engine/fxReverb.h"
#include "fx/Signals.h"

namespace korvane {
namespace {

TEST(Reverb, StartsWithItsDefaultProgram)
{
    fxReverb unit;
    std::string all;
    for (int n = 0; n < reverb::Count; ++n) {
        char name[64], display[64], label[64];
        unit.GetParameterName(n, name);
        unit.GetParameterDisplay(n, display);
        unit.GetParameterLabel(n, label);
        all += std::string(name) + " " + display + " " + label + ", ";
    }
    EXPECT_EQ(all, "Input 0.0 dB, LowCut 75 Hz, HighCut 4.0 kHz, Predelay 0 ms, RoomSize 50 , Diffusion 100 %, "
                   "BassMultiplier 1.0 x, Crossover 500 Hz, Decay 1.5 s, HighDamping 4.0 kHz, Dry 0.0 dB, "
                   "ER -3.5 dB, Reverb -12.0 dB, Width 100 %, "
                   "MuteInput Off , MuteDry Off , MuteER Off , MuteReverb Off , ");
}

TEST(Reverb, TurnsValuesIntoSteps)
{
    // clang-format off
    struct Case { int index; float value; int step; const char* display; };
    const Case cases[] = {
        {0,  0.0f,         -361, "-Inf"},  {0,  1.0f,   60, "6.0"}, {1, 0.0f, 19,  "19"},  {2, 1.0f,  221, "22.1"},
        {8,  1.0f,          200, "20.0"},  {14, 0.5f,   1,  "On"},  {3, 7.0f, 250, "250"}, {3, -7.0f, 0,   "0"},
        {12, std::nanf(""), 0,   nullptr}, {11, 0.855f, -1, "-0.1"},
    };
    // clang-format on
    fxReverb unit;
    for (const Case& c : cases) {
        unit.SetParameter(c.index, c.value);
        char text[64];
        unit.GetParameterDisplay(c.index, text);
        if (!c.display) continue;
        EXPECT_EQ(unit.steps[c.index], c.step) << c.index << " " << c.value;
        EXPECT_STREQ(text, c.display);
    }
    unit.SetParameter(18, 1.0f);
    unit.SetParameter(-1, 1.0f);
    EXPECT_EQ(unit.GetParameter(18), 0.0f);
}

/// The reverb frame by frame on descending positions.
struct PlainReverb {
    struct Line {
        std::vector<float> memory;
        int position = 0;
        float& Here() { return memory[position]; }
        void Move() { position = position == 0 ? static_cast<int>(memory.size()) - 1 : position - 1; }
        float Tap(int tap) const { return memory[(position + tap) % memory.size()]; }
        float Diffuse(float x, float ga, float gb)
        {
            const float v = Here() - ga * x;
            Here() = x + gb * v;
            Move();
            return v;
        }
        float Delay(float x)
        {
            const float out = Here();
            Here() = x;
            Move();
            return out;
        }
    };

    PlainReverb(const ReverbCoefficients& coefficients) : c(coefficients)
    {
        for (int n = 0; n < kReverbLines; ++n) line[n].memory.assign(c.lengths[n], 1e-30f);
        predelay.memory.assign(c.predelayFrames, 1e-30f);
        reflections.memory.assign(1 << 18, 1e-30f);
        level = c.reverbTarget;
    }

    float Branch(int side, float x, float cross)
    {
        const float a = c.crossover * (cross - a1[side]) + c1[side];
        a1[side] = a;
        c1[side] = cross;
        damping[side] += ((x + cross) + (cross + a) * c.bassBoost - damping[side]) * c.highDamping;
        const int first = 4 + 4 * side;
        float out = line[first].Diffuse(damping[side], c.decay1, c.decay1);
        out = line[first + 1].Delay(out) * c.decay;
        return line[first + 3].Delay(line[first + 2].Diffuse(out, c.decay2, c.decay2));
    }

    void Process(float inLeft, float inRight, float& outLeft, float& outRight)
    {
        inLeft *= c.inputGain;
        inRight *= c.inputGain;
        h += ((inLeft + inRight) * 0.5f + 1e-30f - h) * c.highCut;
        float x = h;
        if (c.lowCut != 0.0f) {
            const float y = c.lowCut * (h - y1) + h1;
            y1 = y;
            h1 = h;
            x = (h - y) * 0.5f + 1e-30f;
        }
        const auto l = [&](int n) { return c.leftReflectionGains[n - 1] * reflections.Tap(c.leftReflections[n - 1]); };
        const auto r = [&](int n) {
            return c.rightReflectionGains[n - 1] * reflections.Tap(c.rightReflections[n - 1]);
        };
        const float left = l(1) + l(2) - l(3) + l(4) + l(5) + l(6) + l(7);
        const float right = r(1) - r(2) + r(3) + r(4) - r(5) + r(6) + r(7) - r(8);
        x = line[1].Diffuse(line[0].Diffuse(x, c.input1, c.input1), c.input2, c.input1);
        reflections.Delay(x);
        x = line[3].Diffuse(line[2].Diffuse(x, c.input1, c.input1), c.input2, c.input1);
        x = predelay.Delay(x) + 1e-20f;
        const float fromRight = line[11].Here() * c.decay, fromLeft = line[7].Here() * c.decay;
        Branch(0, x, fromRight);
        Branch(1, x, fromLeft);
        const auto &t = c.leftTaps, &u = c.rightTaps;
        const float wetLeft = line[9].Tap(t[0]) - c.w2 * line[9].Tap(t[1]) - c.w3 * line[10].Tap(t[2]) -
                              c.w5 * line[11].Tap(t[3]) + c.w1 * line[5].Tap(t[4]) + line[6].Tap(t[5]) +
                              c.w4 * line[7].Tap(t[6]);
        const float wetRight = c.w2 * line[5].Tap(u[0]) + line[5].Tap(u[1]) - c.w3 * line[6].Tap(u[2]) -
                               c.w5 * line[7].Tap(u[3]) - c.w1 * line[9].Tap(u[4]) + line[10].Tap(u[5]) +
                               c.w4 * line[11].Tap(u[6]);
        level += (c.reverbTarget - level) * 0.001f;
        const float yLeft = c.reflectionsGain * left + level * wetLeft;
        const float yRight = c.reflectionsGain * right + level * wetRight;
        const float m = yLeft + yRight, s = (yLeft - yRight) * c.width;
        outLeft += m + s + c.dryGain * inLeft;
        outRight += m - s + c.dryGain * inRight;
    }

    const ReverbCoefficients c;
    Line line[kReverbLines], predelay, reflections;
    float h = 0, h1 = 0, y1 = 0, a1[2]{}, c1[2]{}, damping[2]{}, level = 0;
};

TEST(Reverb, RunsGiveTheBitsOfSingleFrames)
{
    // clang-format off
    struct Case { const char* what; float rate; std::vector<std::pair<int, float>> values; };
    const Case cases[] = {
        {"default",                             44100.0f, {}},
        {"smallest room, slow rate, predelay",   8000.0f, {{4, 0.0f}, {3, 0.01f}, {11, 1.0f}}},
        {"dark, bass heavy, wide",              48000.0f, {{6, 1.0f}, {9, 0.0f}, {13, 1.0f}, {1, 0.5f}, {8, 0.5f}}},
        {"bass light, undiffused, low cut off", 22050.0f, {{6, 0.0f}, {5, 0.0f}, {1, 0.0f}, {2, 1.0f}, {16, 1.0f}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        fxReverb unit;
        for (const auto& [index, value] : c.values) unit.SetParameter(index, value);
        unit.SetSampleRate(c.rate);
        PlainReverb plain(ComputeReverb(unit.steps, c.rate));
        const Sound input = Noise(20000);
        Sound out = Noise(20000, 0.1f), expected = out;
        for (int done = 0, block = 1; done < out.Frames(); done += block, block = block % 300 + 7) {
            block = std::min(block, out.Frames() - done);
            float* ins[] = {const_cast<float*>(&input.left[done]), const_cast<float*>(&input.right[done])};
            float* outs[] = {&out.left[done], &out.right[done]};
            unit.Process(ins, outs, block);
        }
        for (int n = 0; n < out.Frames(); ++n) {
            plain.Process(input.left[n], input.right[n], expected.left[n], expected.right[n]);
            ASSERT_EQ(out.left[n], expected.left[n]) << n;
            ASSERT_EQ(out.right[n], expected.right[n]) << n;
        }
    }
}

void Replace(fxReverb& unit, Sound& sound, int frames)
{
    float* blocks[] = {sound.left.data(), sound.right.data()};
    unit.ProcessReplacing(blocks, blocks, frames);
}

/// Response to an impulse on both sides, without the dry part.
Sound Response(fxReverb& unit, int frames)
{
    Sound sound = Impulse(frames);
    unit.SetParameter(reverb::MuteDry, 1.0f);
    Replace(unit, sound, frames);
    return sound;
}

// "Decay" is the time in which the four delays of the loop lose 60 dB; the diffusers in it make it longer.
TEST(Reverb, DecaysInItsTime)
{
    for (const float seconds : {1.0f, 3.0f}) {
        fxReverb unit;
        unit.SetParameter(reverb::Decay, (seconds * 10.0f - 1.0f) / 199.0f);
        unit.SetParameter(reverb::HighDamping, 1.0f);
        unit.SetParameter(reverb::MuteEr, 1.0f);
        const auto lengths = ComputeReverb(unit.steps, 44100.0f).lengths;
        double delays = lengths[5] + lengths[7] + lengths[9] + lengths[11];
        double loop = delays + lengths[4] + lengths[6] + lengths[8] + lengths[10];
        const int later = static_cast<int>(seconds * 44100.0f);
        const Sound tail = Response(unit, 2 * later + 30000);
        const double fall = Decibels(Rms(tail.left, 20000, 30000) / Rms(tail.left, 20000 + later, 30000 + later));
        EXPECT_NEAR(fall, 60.0 * delays / loop, 5.0) << seconds;
    }
}

TEST(Reverb, WidthAndInputLevel)
{
    fxReverb mono, normal, wide, deaf;
    mono.SetParameter(reverb::Width, 0.0f);
    wide.SetParameter(reverb::Width, 1.0f);
    deaf.SetParameter(reverb::Input, 0.0f);
    const Sound a = Response(mono, 20000), b = Response(normal, 20000), c = Response(wide, 20000);
    const Sound d = Response(deaf, 20000);
    for (int n = 0; n < 20000; ++n) {
        ASSERT_EQ(a.left[n], a.right[n]);
        ASSERT_NEAR(c.left[n] - c.right[n], 2.0f * (b.left[n] - b.right[n]), 1e-6f);
        ASSERT_LT(std::fabs(d.left[n]), 1e-12f);
    }
}

TEST(Reverb, KeepsItsTailUnlessTheRoomChanges)
{
    fxReverb unit;
    Response(unit, 10000);
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
    fxReverb unit, fresh;
    const Sound first = Response(fresh, 5000);
    Response(unit, 5000);
    unit.Reset();
    EXPECT_EQ(Response(unit, 5000).left, first.left);
    for (const float rate : {0.0f, -1.0f, std::nanf(""), 1e30f}) unit.SetSampleRate(rate);
    unit.Reset();
    EXPECT_EQ(Response(unit, 5000).left, first.left);
    unit.SetSampleRate(384000.0f);
    const Sound fast = Response(unit, 400000);
    EXPECT_GT(Rms(fast.left, 100000, 300000), 1e-6);
    unit.SetSampleRate(1.0f);
    EXPECT_TRUE(std::isfinite(Response(unit, 100).left[99]));
}

TEST(Reverb, MetersPeaksAndClips)
{
    fxReverb unit;
    Response(unit, 100);
    EXPECT_EQ(unit.inputMeters[0].peak, 1.0f);
    EXPECT_EQ(unit.inputMeters[0].clippedBlocks, 0);
    Sound loud(10);
    loud.left[3] = -1.5f;
    Replace(unit, loud, 10);
    EXPECT_EQ(unit.inputMeters[0].clippedBlocks, 6);
    EXPECT_EQ(unit.inputMeters[1].clippedBlocks, 0);
    Replace(unit, loud, 10);
    EXPECT_EQ(unit.inputMeters[0].clippedBlocks, 5);
}

} // namespace
} // namespace korvane
