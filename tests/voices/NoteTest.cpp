// Notes: voice choice, length, envelopes, glide, gain, modulation sources, LFOs.
#include <gtest/gtest.h>

#include <vector>

#include "voices/VoiceRig.h"

namespace korvane {
namespace {

float Constant(int, int) { return 0.5f; }

struct SynthRig : VoiceRig {
    SynthRig() : VoiceRig(false)
    {
        GiveWave(0, Constant);
        channel.sampleSlots[1].entry = channel.sampleSlots[2].entry = channel.sampleSlots[0].entry;
    }

    std::vector<int> Notes() const
    {
        std::vector<int> notes;
        for (auto& voice : channel.voices) notes.push_back(voice->note);
        return notes;
    }
};

TEST(Notes, TakeTheLastFreeVoiceThenTheOldestOne)
{
    SynthRig rig;
    for (int note = 48; note < 54; ++note) rig.channel.NoteOn(note, 0, 1);
    EXPECT_EQ(rig.Notes(), (std::vector<int>{53, 52, 51, 50, 49, 48}));
    rig.channel.NoteOn(60, 0, 1);
    rig.channel.NoteOn(61, 0, 1);
    EXPECT_EQ(rig.Notes(), (std::vector<int>{53, 52, 51, 50, 61, 60}));
    rig.Set({{slot::MonoVoice, 1}});
    rig.channel.NoteOn(62, 0, 1);
    EXPECT_EQ(rig.Notes(), (std::vector<int>{62, 52, 51, 50, 61, 60}));
}

TEST(Notes, AreTransposedInWholeSemitones)
{
    // clang-format off
    const struct { float pitch, octave; int semitones; } cases[] = {
        {0.5f, 0.5f, 0}, {1, 0.5f, 24}, {0, 0.5f, -24}, {0.49f, 0.74f, 0}, {0.54f, 1, 25}, {0.45f, 0, -26}};
    // clang-format on
    for (const auto& c : cases) {
        SynthRig rig;
        rig.Set({{slot::Pitch, c.pitch}, {slot::Octave, c.octave}});
        rig.channel.NoteOn(60, 0, 1);
        EXPECT_EQ(rig.Last().pitchNote, 60 + c.semitones) << c.pitch << " " << c.octave;
        EXPECT_EQ(rig.channel.lastPitch, 60 + c.semitones);
    }
}

// A note's release begins with the frame after its last one, in its own voice and in every voice with its note.
TEST(Notes, EndAfterTheirLength)
{
    for (int run : {100, 37, 1}) {
        SynthRig rig;
        rig.Set({{slot::NoteLength, 0}, {slot::AmpRelease, 0}}); // an eighth of a beat
        const int length = 2756;
        rig.channel.NoteOn(50, 0, 1);                    // voice 5: live, same note
        rig.channel.NoteOn(50, VoiceRig::kTempo, 1);     // voice 4
        rig.channel.NoteOn(51, VoiceRig::kTempo / 2, 1); // voice 3: twice as long
        EXPECT_EQ(rig.Voice(4).lengthFrames, length);
        rig.Render(length, run);
        EXPECT_EQ(rig.Voice(4).amp.level, 1.0f) << run;
        rig.Render(1);
        const float rate = 8.82f / (0.026f * VoiceRig::kRate);
        EXPECT_NEAR(rig.Voice(4).amp.level, 1.0f - rate, 1e-6f);
        EXPECT_TRUE(rig.Voice(5).releasing);
        EXPECT_FALSE(rig.Voice(3).releasing);
        EXPECT_EQ(rig.Voice(3).lengthFrames, 5512 - length - 1);
        rig.Render(20000);
        EXPECT_EQ(rig.Notes(), (std::vector<int>{-1, -1, -1, -1, -1, -1}));
        EXPECT_FALSE(rig.channel.soundedThisBlock);
    }
}

TEST(Notes, AreReleasedByKeyAndByOrigin)
{
    SynthRig rig;
    rig.channel.NoteOn(50, 0, 1);
    rig.channel.NoteOn(51, VoiceRig::kTempo, 1);
    rig.channel.NoteOn(52, 0, 1);
    rig.channel.ReleaseNote(52);
    EXPECT_TRUE(rig.Voice(3).releasing && !rig.Voice(4).releasing && !rig.Voice(5).releasing);
    rig.channel.ReleaseSequenced();
    EXPECT_TRUE(rig.Voice(4).releasing && !rig.Voice(5).releasing);
    rig.channel.ReleaseLive();
    EXPECT_TRUE(rig.Voice(5).releasing);
}

TEST(Notes, FollowTheirEnvelopesFrameByFrame)
{
    SynthRig rig;
    rig.Set({{slot::AmpAttack, 0.05f}, {slot::AmpDecay, 0.3f}, {slot::AmpSustain, 0.4f}});
    rig.Set({{slot::EnvelopeAttack, 0.2f}, {slot::EnvelopeDecay, 0.1f}});
    rig.channel.NoteOn(50, 0, 1);
    const auto rateOf = [](double seconds) { return 8.82 / ((seconds + 0.001) * VoiceRig::kRate); };
    double amp = 0, ampTarget = 5, ampRate = rateOf(std::pow(0.05, 3) * 50);
    double env = 0, envTarget = 5, envRate = rateOf(std::pow(0.2, 5) * 300);
    double gain = 0.25;
    for (int n = 0; n < 6000; ++n) {
        rig.Render(1);
        amp += (ampTarget - amp) * ampRate;
        env += (envTarget - env) * envRate;
        gain += (200 - gain) * 0.01;
        if (amp >= 1) amp = 1, ampTarget = 0.4f, ampRate = rateOf(std::pow(0.3, 4) * 50);
        if (env >= 1) env = 1, envTarget = 0, envRate = rateOf(std::pow(0.28, 5) * 70);
        ASSERT_NEAR(rig.Last().amp.level, amp, 1e-4) << n;
        ASSERT_NEAR(rig.Last().env1.level, env, 1e-4) << n;
        ASSERT_NEAR(rig.Last().gainFrames[0], gain, 0.02) << n;
        ASSERT_NEAR(rig.Last().left[0], 0.5 * 0.005 * amp * amp, 1e-6) << n;
    }
}

TEST(Notes, GlideFromTheNoteBefore)
{
    SynthRig rig;
    rig.Set({{slot::SlideEnable, 1}, {slot::SlideTime, 0.2f}, {slot::MonoVoice, 1}, {slot::FilterTracking, 1}});
    rig.channel.NoteOn(48, 0, 1);
    rig.Render(4000);
    rig.channel.NoteOn(60, 0, 1);
    double pitch = 48;
    for (int n = 0; n < 800; ++n) {
        rig.Render(1);
        ASSERT_NEAR(rig.Voice(0).cutoffOffset, (pitch - 57) / 128, 1e-5) << n;
        pitch += (60 - pitch) * 8.82 / ((2 * 0.008 + 0.001) * VoiceRig::kRate);
        ASSERT_NEAR(rig.Voice(0).glidePitch, pitch, 1e-3) << n;
    }
    rig.Set({{slot::SlideEnable, 0}});
    rig.channel.Render(0, VoiceRig::kTempo);
    EXPECT_EQ(rig.Voice(0).glidePitch, 60.0f);
}

TEST(Notes, GainFollowsLevelVelocityAndMute)
{
    // clang-format off
    struct Case { const char* what; float tempo, velocity, level, sensitivity; bool muted; float start, target; };
    const Case cases[] = {
        {"full velocity",                      0, 1,     0.5f, 1, false, 0.25f, 200},
        {"soft",                               0, 0.25f, 0.5f, 1, false, 0.25f, 50},
        {"soft but not sensitive",             0, 0.25f, 0.5f, 0, false, 0.25f, 200},
        {"a sequenced note has no velocity", 120, 0.25f, 0.5f, 1, false, 0.25f, 200},
        {"loudest",                            0, 1,     1,    1, false, 1,     3556.559f},
        {"muted live",                         0, 1,     0.5f, 1, true,  0.25f, 200},
        {"muted sequenced",                  120, 1,     0.5f, 1, true,  0,     0},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        SynthRig rig;
        rig.Set({{slot::AmpLevel, c.level}, {slot::VelocitySensitivity, c.sensitivity}});
        rig.channel.muted = c.muted;
        rig.channel.NoteOn(50, c.tempo, c.velocity);
        EXPECT_EQ(rig.Last().gain, c.start);
        rig.channel.Render(1, VoiceRig::kTempo);
        EXPECT_NEAR(rig.Last().gainTarget, c.target, 0.01f);
    }
}

TEST(Modulation, SourcesReachTheirTarget)
{
    const int targets[] = {-1, 12, 13, -1, 50, -1, 20, 22, 16, -1, 21, 23, 17, -1, 34, 28, -1, 35, 29, -1, 4, 5, -1};
    SynthRig rig;
    rig.channel.velocityIn = 0.5f;
    rig.channel.modWheelIn = 1.0f;
    for (int i = 0; i < kChannelSlots; ++i) rig.channel.params[i] = 0.25f;
    rig.Set({{slot::VelocityAmount, 0.6f}, {slot::WheelAmount, 0.1f}});
    rig.Set({{slot::VelocityDestination, 0}, {slot::WheelDestination, 0}, {slot::PressureDestination, 0}});
    for (int code = 0; code < static_cast<int>(std::size(targets)); ++code) {
        rig.Set({{slot::VelocityDestination, static_cast<float>(code)}});
        for (int i = 0; i < slot::VelocityAmount; ++i)
            ASSERT_NEAR(rig.channel.Modulated(i), i == targets[code] ? 0.35f : 0.25f, 1e-6f) << code << " on " << i;
    }
    rig.Set({{slot::VelocityDestination, 1}, {slot::WheelDestination, 1}});
    EXPECT_EQ(rig.channel.Modulated(slot::FilterCutoff), 0.0f); // 0.35 - 0.8, clamped
    EXPECT_EQ(rig.channel.Modulated(-1), 0.0f);
    EXPECT_EQ(rig.channel.Modulated(kChannelSlots), 0.0f);
}

TEST(Modulation, LfoRates)
{
    // clang-format off
    const struct { float rate, sync, tempo, hertz; } cases[] = {
        {0,     0,    120, 25.01f},   {1,    0,    120, 0.01f}, {0.5f, 0.49f, 120, 6.26f},     {0.5f, 1, 120, 1 / 1.5f},
        {0.5f,  0.5f, 120, 2.6667f},  {0,    0.5f,  60, 8.0f},  {1,    1,      60, 1 / 32.0f}, {-3, 0.5f, 60, 8.0f},
        {0.12f, 0.5f,  60, 4.0f},     {0.5f, 1,      0, 0},     {0.5f, 1,      -5, 0},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_NEAR(LfoFrequency(c.rate, c.sync, c.tempo), c.hertz, 1e-4f * c.hertz) << c.rate << " " << c.sync;
}

// Every source at every destination, on one frame in the middle of a note.
TEST(Modulation, EnvelopesAndLfosReachTheirDestinations)
{
    const float kShapes[] = {1.0f, 0.5f, 0.75f, 1.0f}; // at a quarter of a cycle
    for (int shape = 0; shape < 4; ++shape)
        for (int destination = 0; destination < 4; ++destination)
            for (float invert : {0.0f, 1.0f}) {
                SCOPED_TRACE(testing::Message() << "shape " << shape << ", destination " << destination);
                SynthRig rig;
                const float third = static_cast<float>(destination) / 3.0f, s = kShapes[shape];
                rig.Set({{slot::LfoAmount + 1, 0.5f}, {slot::LfoInvert + 1, invert}, {slot::LfoRate + 1, 1}});
                rig.Set({{slot::LfoShape + 1, static_cast<float>(shape) / 3.0f}, {slot::LfoDestination + 1, third}});
                rig.Set({{slot::EnvelopeAmount, 0.6f}, {slot::EnvelopeDestination, third}});
                rig.Set({{slot::FilterCutoff, 0.25f}, {slot::LfoAmount, 0.4f}, {slot::LfoShape, 1}});
                rig.channel.NoteOn(57, 0, 1);
                rig.Render(500);
                rig.channel.lfo1.phase = rig.channel.lfo2.phase = 0.25f;
                rig.Last().env1.level = 0.75f;
                rig.Last().env1.rate = 0;
                rig.Render(1);
                const ChannelVoice& voice = rig.Last();
                const float lfo2 = (invert != 0 ? -0.25f : 0.25f) * s;
                const float lfo1 = 0.16f * (destination == 3 ? 0.75f : 1.0f);
                EXPECT_NEAR(voice.lfo2Out, lfo2, 1e-5f);
                EXPECT_NEAR(voice.lfo1Out, lfo1, 1e-5f);
                // LFO 1 keeps destination 0: the cutoff.
                const float cutoff = 0.25f + lfo1 + (destination == 0 ? 0.36f * 0.75f + lfo2 : 0.0f);
                EXPECT_NEAR(voice.cutoffFrames[0], cutoff, 1e-5f);
                const float amp = std::max(0.0f, 1.0f + (destination == 3 ? lfo2 : 0.0f));
                EXPECT_NEAR(voice.left[0], 0.0025f * amp, 1e-6f);
            }
}

TEST(Modulation, RetrigRestartsTheLfo)
{
    SynthRig rig;
    rig.channel.lfo1.phase = rig.channel.lfo2.phase = 0.5f;
    rig.Set({{slot::LfoRetrig + 1, 1}});
    rig.channel.NoteOn(50, 0, 1);
    EXPECT_EQ(rig.channel.lfo1.phase, 0.5f);
    EXPECT_EQ(rig.channel.lfo2.phase, 0.0f);
}

// Whatever parameters a host invents, no voice ever hands on what is not finite, and the channel plays again once they
// are gone.
TEST(Modulation, RecoversFromWildParameters)
{
    for (bool isSampler : {true, false}) {
        SynthRig rig;
        rig.channel.isSampler = isSampler;
        for (int l = 0; l < kLayers; ++l) rig.GiveSample(l, 3000, 2, [](int, int i) { return i & 32 ? 1.0f : -1.0f; });
        rig.Set({{slot::MonoVoice, 1}, {slot::SlideEnable, 1}, {slot::LfoAmount, 0.3f}, {slot::ModKind, 1}});
        for (int wild = 0; wild < slot::VelocityAmount; ++wild)
            for (float value : {1e30f, -1e30f, 3e38f, -3e38f, -0.0794f}) {
                SCOPED_TRACE(testing::Message()
                             << (isSampler ? "sampler" : "synth") << " slot " << wild << " " << value);
                const auto peak = [&] {
                    float most = 0;
                    rig.channel.NoteOn(60, VoiceRig::kTempo, 1);
                    for (int run = 0; run < 20; ++run) {
                        rig.channel.Render(50, VoiceRig::kTempo);
                        for (auto& voice : rig.channel.voices)
                            for (int n = 0; n < 50 && voice->active; ++n) {
                                const float out = (voice->left[n] + voice->right[n]) * voice->gainFrames[n];
                                EXPECT_TRUE(std::isfinite(out) && std::isfinite(voice->resonance));
                                most = std::max(most, std::fabs(out));
                            }
                    }
                    return most;
                };
                const float before = rig.channel.params[wild];
                rig.channel.params[wild] = value;
                peak();
                rig.channel.params[wild] = before;
                ASSERT_GT(peak(), 0.1f);
                ASSERT_FALSE(testing::Test::HasFailure());
            }
    }
}

} // namespace
} // namespace korvane
