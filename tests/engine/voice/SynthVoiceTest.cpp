// Synth oscillators: pitch, mix, modulation, tables, unison, phases, random numbers.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

#include "engine/fx/Signals.h"
#include "engine/voice/SynthVoice.h"
#include "engine/voice/VoiceRig.h"

namespace korvane {
namespace {

template <int number>
float Harmonic(int, int i)
{
    return 0.5f * std::sin(6.2831853f * static_cast<float>(number * i) / 1024.0f);
}
constexpr auto Sine = Harmonic<1>;
float Half(int, int) { return 0.5f; }

std::complex<double> LineOf(const std::vector<float>& signal, double hertz)
{
    return Line(signal.data(), static_cast<int>(signal.size()), hertz, VoiceRig::kRate);
}

/// Frequency of the sine near `hertz`, by the phase that its spectral line gains between two halves.
double Frequency(const std::vector<float>& signal, double hertz)
{
    const int half = static_cast<int>(signal.size() / 2);
    const double expected = 6.283185307179586 * hertz / VoiceRig::kRate * half;
    const double turn = std::arg(Line(&signal[half], half, hertz, VoiceRig::kRate) /
                                 Line(&signal[0], half, hertz, VoiceRig::kRate) * std::polar(1.0, -expected));
    return hertz * (1 + turn / expected);
}

TEST(SynthVoice, SoundsAtItsPitchAndLevel)
{
    // clang-format off
    struct Case { const char* what; VoiceRig::Values values; double hz, gain; float bend = 0; int note = 57; };
    const Case cases[] = {
        {"note 57",         {}, 220, 1},                  {"note 76", {}, 659.2551, 1, 0, 76},
        {"bent up two",     {}, 246.94165, 1, 1.0f},      {"never beyond half the rate", {}, 22045.59, 1, 100.0f},
        {"by -12", {{slot::BendRange, 1}}, 110, 1, -1.0f}, {"by 5", {{slot::BendRange, 0.45f}}, 293.66477, 1, 1.0f},
        {"pitch up",        {{slot::Pitch, 1}, {slot::Octave, 0.74f}}, 880, 1},
        {"in semitones",    {{slot::Pitch, 0.54f}, {slot::Octave, 1}}, 932.32752, 1},
        {"and down",        {{slot::Pitch, 0.45f}, {slot::Octave, 0}}, 48.999429, 1},
        {"detuned",         {{slot::Osc1Pitch, 1}, {slot::Osc1Detune, 1}}, 1760 * 1.0293022, 1},
        {"oscillator 2",    {{slot::MixOsc2, 1}, {slot::Osc2Pitch, 0.75f}}, 220 * 2.8284271, 1},
        {"a quarter of 3",  {{slot::MixOsc3, 0.5f}, {slot::Osc3Pitch, 0}, {slot::Osc1Pitch, 1}}, 27.5, 0.25},
        {"synced at twice", {{slot::Modulation, 0.33333334f}}, 440, 1},
        {"at three times",  {{slot::Modulation, 0.66666667f}}, 660, 1},
        {"LFO syncs", {{slot::LfoDestination, 0.34f}, {slot::LfoShape, 0.34f}, {slot::LfoAmount, 0.57735027f}}, 440, 1},
        {"LFO up",          {{slot::LfoDestination, 0.67f}, {slot::LfoShape, 0.34f}, {slot::LfoAmount, 1}}, 440, 1},
        {"envelope up",     {{slot::EnvelopeDestination, 0.67f}, {slot::EnvelopeAmount, 0.70710678f}}, 440, 1},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        VoiceRig rig(false);
        for (int osc = 0; osc < kOscillators; ++osc) rig.GiveWave(osc, Sine);
        rig.channel.sound.pitchBendIn = c.bend;
        rig.Start(c.values, c.note);
        ChannelVoice& voice = rig.Last();
        std::vector<float> out;
        for (int n = 0; n < 16384; n += 128) {
            voice.lfo1Out = rig.channel.sound.lfo1.amount; // both modulators rest at their peak
            voice.env1.level = c.values.empty() ? 0 : 1;
            RenderAlone(rig.channel, 128, VoiceRig::kTempo);
            out.insert(out.end(), voice.left, voice.left + 128);
        }
        const double hertz = Frequency(out, c.hz);
        EXPECT_NEAR(1200 * std::log2(hertz / c.hz), 0, 1);
        EXPECT_NEAR(Decibels(std::abs(LineOf(out, hertz)) / (0.5 * 0.005 * c.gain)), 0, 0.1);
    }
}

// Each oscillator plays a harmonic of its own; the noise is what they leave.
TEST(SynthVoice, MixesItsSources)
{
    // clang-format off
    const struct { const char* what; float mix2, mix3, noise; double levels[kOscillatorsAndNoise]; } cases[] = {
        {"oscillator 1 alone",      0,    0,    0,    {1,      0,      0,    0}},
        {"a quarter of 2",          0.5f, 0,    0,    {0.75,   0.25,   0,    0}},
        {"a quarter of 3",          0,    0.5f, 0,    {0.75,   0,      0.25, 0}},
        {"3 before 2",              1,    0.6f, 0,    {0,      0.64,   0.36, 0}},
        {"a quarter of noise",      0,    0,    0.5f, {0.75,   0,      0,    0.25}},
        {"noise alone",             1,    1,    1,    {0,      0,      0,    1}},
        {"everything",              0.6f, 0.5f, 0.4f, {0.4032, 0.2268, 0.21, 0.16}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        VoiceRig rig(false);
        rig.GiveWave(0, Harmonic<1>);
        rig.GiveWave(1, Harmonic<2>);
        rig.GiveWave(2, Harmonic<3>);
        rig.Start({{slot::MixOsc2, c.mix2}, {slot::MixOsc3, c.mix3}, {slot::NoiseMix, c.noise}}, 57);
        const Sound sound = rig.Play(16384);
        double rest = std::pow(Rms(sound.left, 0, 16384), 2);
        for (int osc = 0; osc < kOscillators; ++osc) {
            const double line = std::abs(LineOf(sound.left, 220 * (osc + 1)));
            EXPECT_NEAR(line / (0.5 * 0.005), c.levels[osc], 0.012) << "oscillator " << osc + 1;
            rest -= line * line / 2;
        }
        EXPECT_NEAR(std::sqrt(std::max(0.0, rest)) / (0.005 * std::sqrt(1.0 / 12.0)), c.levels[3], 0.015);
    }
}

// Oscillator 1 under an oscillator 2 that stands at 0.5, or oscillator 2 alone, against oscillator 1 by itself.
TEST(SynthVoice, ModulatesOscillator1)
{
    constexpr float kThird = 0.34f; // destination: the modulation amount; LFO shape: triangle
    // clang-format off
    const struct { const char* what; float (*wave)(int, int); VoiceRig::Values values; double gain, turn; } cases[] = {
        {"phase",                Half, {{slot::ModKind, 1}, {slot::Modulation, 0.2f}}, 1, 27},
        {"more phase",           Half, {{slot::ModKind, 1}, {slot::Modulation, 0.4f}}, 1, 108},
        {"phase, inverted",      Half, {{slot::ModKind, 1}, {slot::Modulation, 0.2f}, {slot::Osc2Invert, 1}}, 1, -27},
        {"amplitude",            Half, {{slot::ModKind, 2}, {slot::Modulation, 0.2f}}, 0.94, 0},
        {"more amplitude",       Half, {{slot::ModKind, 2}, {slot::Modulation, 0.5f}}, 0.625, 0},
        {"amplitude, inverted",  Half, {{slot::ModKind, 2}, {slot::Modulation, 0.5f}, {slot::Osc2Invert, 1}}, 1.375, 0},
        {"LFO 2 takes from it",  Half, {{slot::ModKind, 2}, {slot::LfoDestination + 1, kThird}, {slot::LfoShape + 1, 1},
                                        {slot::LfoAmount + 1, 0.4f}, {slot::LfoInvert + 1, 1}}, 1.24, 0},
        {"envelope 2 takes",     Half, {{slot::ModKind, 2}, {slot::EnvelopeDestination + 1, kThird},
                                        {slot::EnvelopeAmount + 1, 0.4f}, {slot::EnvelopeInvert + 1, 1}}, 1.24, 0},
        {"half its offset",      Sine, {{slot::MixOsc2, 1}, {slot::PhaseOffsetOsc2, 0.5f}}, 1, 90},
        {"a quarter of it",      Sine, {{slot::MixOsc2, 1}, {slot::PhaseOffsetOsc2, 0.25f}}, 1, 45},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const auto line = [&](bool modulated) {
            VoiceRig rig(false);
            rig.GiveWave(0, Sine);
            rig.GiveWave(1, c.wave);
            rig.Set({{slot::UnisonRetrig, 1}, {slot::LfoRate, 1}, {slot::LfoRate + 1, 1}, {slot::ModKind, 1}});
            rig.Start(modulated ? c.values : VoiceRig::Values{}, 57, 2000);
            return LineOf(rig.Play(4096).left, 220);
        };
        const auto response = line(true) / line(false);
        EXPECT_NEAR(std::abs(response - std::polar(c.gain, c.turn / 180 * std::numbers::pi)), 0, 0.01) << response;
    }
}

// Unison voices spread evenly over 4 % of an octave, to the sides in turn; an odd one out stays in the middle.
TEST(SynthVoice, SpreadsUnisonInPitchAndStereo)
{
    // clang-format off
    const struct { float voices, detune, stereo; double norm; std::vector<std::array<double, 3>> stack; } cases[] = {
        {0,        0.5f, 0.25f, 1,    {{ 0.0,  1, 1}}},
        {1.1f/15,  0.5f, 0.25f, 1.15, {{-0.02, 0.75, 1}, { 0.02, 1,   0.75}}},
        {1.1f/15,  0.7f, 1,     1.15, {{-0.0392, 0,  1}, {0.0392, 1,  0}}},
        {2.1f/15,  0.5f, 0.25f, 1.3,  {{-0.02, 1,    1}, { 0.0,  1,   0.75}, {0.02, 0.75, 1}}},
        {4.1f/15,  0.7f, 0.5f,  1.6,  {{-0.0392, 1,  1}, {-0.0196, 1, 0.5}, {0, 0.5, 1}, {0.0196, 1, 0.5},
                                       {0.0392, 0.5, 1}}},
        {1,        0,    0,     3.25, {{0.0, 16, 16}}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.stack.size() << " lines, detune " << c.detune);
        VoiceRig rig(false);
        rig.GiveWave(0, Sine);
        rig.Set({{slot::UnisonVoices, c.voices}, {slot::UnisonDetune, c.detune}, {slot::UnisonStereo, c.stereo}});
        rig.Start({{slot::UnisonRetrig, 1}}, 93);
        const Sound sound = rig.Play(16384);
        for (const auto& [octaves, left, right] : c.stack) {
            const double hertz = 1760 * std::exp2(octaves), full = 0.5 * 0.005 / c.norm;
            EXPECT_NEAR(std::abs(LineOf(sound.left, hertz)) / full, left, 0.02) << octaves;
            EXPECT_NEAR(std::abs(LineOf(sound.right, hertz)) / full, right, 0.02) << octaves;
        }
    }
}

// A note that holds its pitch is not tuned again, unless what its tuning came from has changed.
TEST(SynthVoice, FollowsKnobsAndRateWithinANote)
{
    VoiceRig rig(false);
    rig.Start({}, 57);
    // clang-format off
    const struct { const char* what; VoiceRig::Value knob; float rate; int u; double hertz, gain2; } cases[] = {
        {"one voice",    {slot::UnisonVoices, 0},        44100, 0, 220,        0},
        {"two voices",   {slot::UnisonVoices, 1.1f/15},  44100, 1, 220,        0},
        {"detuned",      {slot::UnisonDetune, 0.5f},     44100, 1, 223.07106,  0},
        {"other rate",   {slot::Pitch, 0.5f},            22050, 1, 223.07106,  0},
        {"octave up",    {slot::Pitch, 0.75f},           22050, 1, 446.14212,  0},
        {"oscillator",   {slot::Osc1Pitch, 1},           22050, 1, 3569.13696, 0},
        {"other source", {slot::MixOsc2, 1},             22050, 0, 3471.5391,  0.005/1.15},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        rig.Set({c.knob});
        rig.channel.sound.rate = c.rate;
        rig.Play(4);
        EXPECT_NEAR(rig.Last().tuning.increments[0][c.u] * 0x1p-32 * c.rate, c.hertz, 0.01);
        EXPECT_NEAR(rig.channel.sound.synth.mix.gainLeft[1][0], c.gain2, 1e-6);
        EXPECT_EQ(rig.channel.sound.synth.mix.heard[1], c.gain2 != 0);
    }
}

} // namespace
} // namespace korvane
