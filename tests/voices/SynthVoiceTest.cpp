// Synth oscillators: the loop against its plain form, tuning, tables, unison, phases.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "engine/SynthVoice.h"
#include "voices/VoiceRig.h"

namespace korvane {
namespace {

/// The loop as it reads: frame by frame, unison voice by unison voice, one draw after the other.
void RenderPlainly(const UnisonMix& mix, const UnisonTuning& tuning, const float* modAmount, UnisonPhases* phases,
                   RandomGenerator& random, float* left, float* right, int frames)
{
    const auto read = [&](int osc, std::uint32_t phase) {
        return tuning.tables[osc][(phase + (random.Next() & 0x3fffffu)) >> 22];
    };
    for (int n = 0; n < frames; ++n) {
        left[n] = right[n] = 0;
        for (int u = 0; u < mix.unisonCount; ++u) {
            UnisonPhases& p = phases[u];
            const float m = modAmount[n];
            float s2 = read(1, p.osc2 + mix.phaseOffset2);
            if (mix.invert2) s2 = -s2;
            std::uint32_t phase1 = p.osc1;
            if (mix.modulation == OscillatorModulation::Phase)
                phase1 +=
                    static_cast<std::uint32_t>(static_cast<std::int64_t>((15.0f * m * s2 + 64.0f) * 4194303.0f) * 256);
            float s1 = read(0, phase1);
            if (mix.modulation == OscillatorModulation::Amplitude) s1 = s1 * (1.0f - 3.0f * m * s2);
            if (mix.modulation == OscillatorModulation::Sync) {
                const std::uint32_t before = p.sync;
                p.sync += tuning.syncIncrements[u];
                if (p.sync < before) p.osc1 = p.sync;
            }
            const float s3 = read(2, p.osc3);
            const float w = static_cast<float>(random.Next()) / 4294967296.0f - 0.5f;
            left[n] +=
                s2 * mix.gainLeft[1][u] + s3 * mix.gainLeft[2][u] + w * mix.gainLeft[3][u] + s1 * mix.gainLeft[0][u];
            right[n] += s2 * mix.gainRight[1][u] + s3 * mix.gainRight[2][u] + w * mix.gainRight[3][u] +
                        s1 * mix.gainRight[0][u];
            p.osc1 += tuning.increments[0][u];
            p.osc2 += tuning.increments[1][u];
            p.osc3 += tuning.increments[2][u];
        }
    }
}

float Sine(int, int i) { return 0.5f * std::sin(6.2831853f * static_cast<float>(i) / 1024.0f); }
float TableNumber(int t, int) { return static_cast<float>(t); }

std::complex<double> Line(const float* signal, int frames, double hertz)
{
    std::complex<double> sum = 0;
    for (int n = 0; n < frames; ++n)
        sum += (1 - std::cos(6.283185307179586 * n / frames)) * signal[n] *
               std::polar(1.0, -6.283185307179586 * hertz / VoiceRig::kRate * n);
    return sum / (frames / 2.0);
}

/// Frequency of the sine near `hertz`, by the phase that its spectral line gains between two halves.
double Frequency(const std::vector<float>& signal, double hertz)
{
    const int half = static_cast<int>(signal.size() / 2);
    const double expected = 6.283185307179586 * hertz / VoiceRig::kRate * half;
    const double turn =
        std::arg(Line(&signal[half], half, hertz) / Line(&signal[0], half, hertz) * std::polar(1.0, -expected));
    return hertz * (1 + turn / expected);
}

TEST(SynthVoice, TheLoopGivesTheBitsOfItsPlainForm)
{
    RandomGenerator random{12345};
    const auto value = [&] { return static_cast<float>(random.Next()) * 0x1p-32f; };
    std::vector<float> tables(3 * kWaveTablePoints);
    for (float& point : tables) point = value() - 0.5f;
    const auto compare = [&](int kind, int sources, int unison, int frames) {
        UnisonMix mix;
        UnisonTuning tuning;
        mix.unisonCount = unison;
        mix.modulation = static_cast<OscillatorModulation>(kind);
        mix.phaseOffset2 = random.Next();
        mix.invert2 = frames % 2 == 1;
        UnisonPhases phases[kUnison], plainPhases[kUnison];
        for (int u = 0; u < unison; ++u) {
            phases[u] = {random.Next(), random.Next(), random.Next(), random.Next()};
            for (int s = 0; s < kSources; ++s) {
                mix.gainLeft[s][u] = s == 0 || (sources >> (s - 1)) & 1 ? value() : 0;
                mix.gainRight[s][u] = s == 0 || (sources >> (s - 1)) & 1 ? value() : 0;
            }
            for (auto& increments : tuning.increments) increments[u] = random.Next() >> (1 + u % 8);
            tuning.syncIncrements[u] = random.Next() >> (1 + u % 8);
        }
        for (int osc = 0; osc < kOscillators; ++osc) tuning.tables[osc] = &tables[osc * kWaveTablePoints];
        alignas(64) float amount[kMaxRun], out[2][kMaxRun], plain[2][kMaxRun];
        for (float& m : amount) m = 4 * value() - 2;
        std::memcpy(plainPhases, phases, sizeof phases);
        RandomGenerator drawn = random, plainDrawn = random;
        RenderUnison(mix, tuning, amount, phases, drawn, out[0], out[1], frames);
        RenderPlainly(mix, tuning, amount, plainPhases, plainDrawn, plain[0], plain[1], frames);
        for (int side = 0; side < 2; ++side)
            for (int n = 0; n < frames; ++n) ASSERT_EQ(out[side][n], plain[side][n]) << "frame " << n;
        for (int u = 0; u < unison; ++u) {
            ASSERT_EQ(phases[u].sync, plainPhases[u].sync);
            ASSERT_EQ(phases[u].osc1, plainPhases[u].osc1);
            ASSERT_EQ(phases[u].osc2, plainPhases[u].osc2);
            ASSERT_EQ(phases[u].osc3, plainPhases[u].osc3);
        }
        ASSERT_EQ(drawn.state, plainDrawn.state);
    };
    for (int kind = 0; kind < 3; ++kind)
        for (int sources = 0; sources < 8; ++sources)
            for (int unison : {1, 2, 5, 16})
                for (int frames : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17, 128}) {
                    compare(kind, sources, unison, frames);
                    ASSERT_FALSE(HasFatalFailure())
                        << "kind " << kind << ", sources " << sources << ", unison " << unison << ", frames " << frames;
                }
}

TEST(SynthVoice, SoundsAtItsPitchAndLevel)
{
    // clang-format off
    struct Case { const char* what; int note; std::vector<VoiceRig::Value> values; double hertz, level; float bend = 0; };
    const Case cases[] = {
        {"note 57",                       57, {}, 220, 1},
        {"an octave and a fifth up",      76, {}, 659.2551, 1},
        {"channel pitch",                 57, {{slot::Pitch, 1}}, 880, 1},
        {"oscillator 1 pitch and detune", 57, {{slot::Osc1Pitch, 1}, {slot::Osc1Detune, 1}}, 1760 * 1.0293022, 1},
        {"oscillator 2 alone",            57, {{slot::MixOsc2, 1}, {slot::Osc2Pitch, 0.75f}}, 220 * 2.8284271, 1},
        {"oscillator 3, a quarter",       57, {{slot::MixOsc3, 0.5f}, {slot::Osc3Pitch, 0}, {slot::Osc1Pitch, 1}}, 27.5, 0.25},
        {"oscillator 1, three quarters",  57, {{slot::MixOsc3, 0.5f}, {slot::Osc3Pitch, 1}}, 220, 0.75},
        {"bent up two semitones",         57, {}, 246.94165, 1, 1.0f},
        {"bent down an octave",           57, {{slot::BendRange, 1}}, 110, 1, -1.0f},
        {"synced at twice the pitch",     57, {{slot::Modulation, 0.33333334f}}, 440, 1},
        {"LFO an octave up",              57, {{slot::LfoDestination, 0.67f}, {slot::LfoShape, 0.34f}, {slot::LfoAmount, 1}}, 440, 1},
        {"envelope an octave up",         57, {{slot::EnvelopeDestination, 0.67f}, {slot::EnvelopeAmount, 0.70710678f}}, 440, 1},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        VoiceRig rig(false);
        for (int osc = 0; osc < kOscillators; ++osc) rig.GiveWave(osc, Sine);
        rig.Set(c.values);
        rig.channel.pitchBendIn = c.bend;
        rig.channel.NoteOn(c.note, 0, 1);
        rig.Render(200);
        ChannelVoice& voice = rig.Last();
        std::vector<float> out;
        for (int n = 0; n < 16384; n += 128) {
            voice.lfo1Out = rig.channel.lfo1.amount; // both modulators rest at their peak
            voice.env1.level = c.values.empty() ? 0 : 1;
            rig.channel.Render(128, VoiceRig::kTempo);
            out.insert(out.end(), voice.left, voice.left + 128);
        }
        const double hertz = Frequency(out, c.hertz);
        EXPECT_NEAR(1200 * std::log2(hertz / c.hertz), 0, 1);
        const double level = std::abs(Line(&out[0], 16384, hertz)) / (0.5 * 0.005 * c.level);
        EXPECT_NEAR(20 * std::log10(level), 0, 0.1);
    }
}

TEST(SynthVoice, ReadsTheTableWithTheHarmonicsBelowHalfTheRate)
{
    // clang-format off
    const struct { int note; float modulation; int table; } cases[] = {
        {57, 0, 100}, {57, 1, 25}, {0, 0, 511}, {28, 0, 511}, {30, 0, 476}, {127, 0, 1}, {145, 0, 0}};
    // clang-format on
    for (const auto& c : cases) {
        VoiceRig rig(false);
        rig.GiveWave(0, TableNumber);
        rig.Set({{slot::Modulation, c.modulation}});
        rig.channel.NoteOn(c.note, 0, 1);
        rig.Render(200);
        EXPECT_NEAR(rig.Last().left[0] / 0.005f, c.table, 0.01f) << "note " << c.note;
    }
}

TEST(SynthVoice, SpreadsUnisonInPitchAndStereo)
{
    VoiceRig rig(false);
    rig.Set({{slot::UnisonDetune, 0.5f}, {slot::UnisonStereo, 0.25f}});
    for (int count : {1, 2, 5, 16}) {
        SCOPED_TRACE(count);
        rig.Set({{slot::UnisonVoices, static_cast<float>(count - 1) / 15.0f + 0.001f}});
        SynthSettings settings;
        UnisonTuning tuning;
        SetUpSynth(rig.channel, settings);
        ASSERT_EQ(settings.mix.unisonCount, count);
        rig.Last().pitchNote = 57;
        rig.channel.pitchBendIn = 0;
        TuneOscillators(rig.channel, rig.Last(), settings, tuning);
        for (int u = 0; u < count; ++u) {
            const double octaves = count == 1 ? 0 : (u / (count - 1.0) - 0.5) * 0.04;
            const double hertz = tuning.increments[0][u] * 44100.0 / 0x1p32;
            EXPECT_NEAR(1200 * (std::log2(hertz / 220) - octaves), 0, 0.01) << u;
            const float sign = count % 2 == 1 && u == 0 ? 0.0f : u % 2 == 0 ? 1.0f : -1.0f;
            const float norm = 0.005f / (1 + 0.15f * static_cast<float>(count - 1));
            EXPECT_NEAR(settings.mix.gainLeft[0][u], norm * std::min(1.0f, 1 - 0.25f * sign), 1e-8f);
            EXPECT_NEAR(settings.mix.gainRight[0][u], norm * std::min(1.0f, 1 + 0.25f * sign), 1e-8f);
        }
        rig.channel.pitchBendIn = 100; // far beyond half the rate
        TuneOscillators(rig.channel, rig.Last(), settings, tuning);
        EXPECT_NEAR(tuning.increments[0][0], 0.4999 * 0x1p32, 300);
    }
}

TEST(SynthVoice, StartsItsPhasesAsAsked)
{
    VoiceRig rig(false);
    rig.Set({{slot::UnisonVoices, 0.1f}}); // two unison voices
    ChannelVoice& voice = rig.Last();
    const UnisonPhases before = voice.phases[0];
    rig.channel.NoteOn(57, 0, 1);
    EXPECT_EQ(voice.phases[0].osc1, before.osc1); // runs on
    EXPECT_FALSE(voice.restartPhases);

    SynthSettings settings;
    UnisonTuning tuning;
    rig.Set({{slot::PhaseRetrigOsc2, 1}});
    StartOscillators(rig.channel, voice);
    RandomGenerator random = rig.random;
    SetUpSynth(rig.channel, settings);
    TuneOscillators(rig.channel, voice, settings, tuning);
    for (int u = 0; u < 2; ++u) {
        const std::uint32_t frames = (random.Next() + 1) % 512;
        EXPECT_EQ(voice.phases[u].osc1, tuning.increments[0][u] * frames);
        EXPECT_EQ(voice.phases[u].osc2, tuning.increments[1][u] * frames);
    }
    EXPECT_EQ(voice.phases[0].sync, before.sync);
    EXPECT_EQ(rig.random.state, random.state);
    EXPECT_FALSE(voice.restartPhases);

    rig.Set({{slot::UnisonRetrig, 1}, {slot::UnisonPhase, 0.3f}});
    StartOscillators(rig.channel, voice);
    for (int u = 0; u < kUnison; ++u) {
        const std::uint32_t expected = static_cast<std::uint32_t>(std::fmod(u * 0.3, 1.0) * 0x1p32);
        EXPECT_NEAR(static_cast<std::int32_t>(voice.phases[u].osc3 - expected), 0, 100000) << u;
        EXPECT_EQ(voice.phases[u].sync, voice.phases[u].osc1);
    }
}

} // namespace
} // namespace korvane
