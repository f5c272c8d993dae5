// Notes: voice choice, length, envelopes, glide, gain, modulation sources, LFOs.
#include <gtest/gtest.h>

#include <vector>

#include "engine/voice/VoiceRig.h"

namespace korvane {
namespace {

struct NoteRig : VoiceRig {
    NoteRig() : VoiceRig(false)
    {
        GiveWave(0, [](int, int) { return 0.5f; });
        channel.sound.sampleSlots[1].entry = channel.sound.sampleSlots[2].entry = entries.back().get();
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
    NoteRig rig;
    for (int note = 48; note < 54; ++note) rig.channel.NoteOn(note, 0, 1);
    EXPECT_EQ(rig.Notes(), (std::vector<int>{53, 52, 51, 50, 49, 48}));
    for (int note : {60, 61}) rig.channel.NoteOn(note, 0, 1);
    EXPECT_EQ(rig.Notes(), (std::vector<int>{53, 52, 51, 50, 61, 60}));
    rig.Set({{slot::MonoVoice, 1}});
    rig.channel.NoteOn(62, 0, 1);
    EXPECT_EQ(rig.Notes(), (std::vector<int>{62, 52, 51, 50, 61, 60}));
}

// A note's release begins with the frame after its last one, in its own voice and in every voice with its note.
TEST(Notes, EndAfterTheirLength)
{
    for (int run : {100, 37, 1}) {
        NoteRig rig;
        rig.Set({{slot::NoteLength, 0}, {slot::AmpRelease, 0}}); // an eighth of a beat, 2756 frames
        rig.channel.NoteOn(50, 0, 1);                            // voice 5: live, same note
        rig.channel.NoteOn(50, VoiceRig::kTempo, 1);             // voice 4
        rig.channel.NoteOn(51, VoiceRig::kTempo / 2, 1);         // voice 3: twice as long
        rig.Render(2751, run);
        EXPECT_EQ(rig.Voice(4).amp.level, 1.0f) << run;
        rig.Render(6, run);
        EXPECT_NEAR(rig.Voice(4).amp.level, 1.0f - 8.82f / (0.026f * VoiceRig::kRate), 1e-6f);
        EXPECT_TRUE(rig.Voice(5).releasing && !rig.Voice(3).releasing);
        rig.Render(20000);
        EXPECT_EQ(rig.Notes(), std::vector<int>(kVoices, -1));
        EXPECT_FALSE(rig.channel.soundedThisBlock);
    }
}

// Levels at a frame of the note, in 0.0001. They come from a model in double that was written from the rules.
TEST(Notes, FollowTheirEnvelopes)
{
    constexpr int kEnv1 = slot::EnvelopeAttack, kEnv2 = kEnv1 + 1, kDecay1 = slot::EnvelopeDecay, kDecay2 = kDecay1 + 1;
    // clang-format off
    const struct { const char* what; VoiceRig::Values values; int release, frame; double levels[3]; } cases[] = {
        {"at once",    {}, 100, 100, {1, 0.9997, 0.9997}},
        {"attack",     {{slot::AmpAttack, 0.15f}, {kEnv1, 0.35f}, {kEnv2, 0.3f}}, 100, 100, {0.5560, 0.0630, 0.1351}},
        {"slower",     {{slot::AmpAttack, 0.3f}, {kEnv1, 0.45f}, {kEnv2, 0.5f}}, 1000, 1000, {0.6881, 0.1774, 0.1055}},
        {"decay",      {{slot::AmpDecay, 0.3f}, {slot::AmpSustain, 0.4f}, {kDecay1, 0.1f}, {kDecay2, 0.2f}},
                       1000, 1000, {0.7668, 0.1928, 0.6243}},
        {"long decay", {{slot::AmpDecay, 0.5f}, {slot::AmpSustain, 0.2f}, {kDecay1, 0.3f}, {kDecay2, 0.4f}},
                       3000, 3000, {0.8603, 0.5950, 0.7983}},
        {"release",    {{slot::AmpRelease, 0.1f}}, 600, 1000, {0.4269, 0.9971, 0.9971}},
        {"long end",   {{slot::AmpRelease, 0.8f}}, 600, 4000, {0.8414, 0.9886, 0.9886}},
        {"cut decay",  {{slot::AmpDecay, 0.3f}, {slot::AmpSustain, 0.4f}, {slot::AmpRelease, 0.5f}},
                       1200, 1500, {0.6998, 0.9957, 0.9957}},
        {"cut attack", {{slot::AmpAttack, 0.2f}, {slot::AmpRelease, 0.3f}}, 300, 600, {0.6111, 0.9983, 0.9983}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        NoteRig rig;
        rig.Start(c.values, 50, c.release);
        ReleaseNote(rig.channel.voices, 50);
        rig.Render(c.frame - c.release);
        const float levels[] = {rig.Last().amp.level, rig.Last().env1.level, rig.Last().env2.level};
        for (int n = 0; n < 3; ++n) EXPECT_NEAR(levels[n], c.levels[n], 5e-4) << n;
        rig.Last().amp.rate = 0;
        RenderAlone(rig.channel, 1, VoiceRig::kTempo);
        EXPECT_NEAR(rig.Last().left[0], 0.5 * 0.005 * levels[0] * levels[0], 1e-6);
    }
}

TEST(Notes, GlideFromTheNoteBefore)
{
    NoteRig rig;
    rig.Set({{slot::SlideEnable, 1}, {slot::SlideTime, 0.2f}, {slot::MonoVoice, 1}, {slot::FilterTracking, 1}});
    rig.channel.NoteOn(48, 0, 1);
    rig.Render(4000);
    rig.channel.NoteOn(60, 0, 1);
    EXPECT_EQ(rig.Voice(0).amp.level, 1.0f); // a voice that is taken over keeps its level
    for (double pitch = 48, n = 0; n < 800; ++n) {
        rig.Render(1);
        ASSERT_NEAR(rig.Voice(0).cutoffOffset, (pitch - 57) / 128, 1e-5) << n;
        pitch += (60 - pitch) * 8.82 / ((2 * 0.008 + 0.001) * VoiceRig::kRate);
    }
}

TEST(Notes, GainFollowsLevelVelocityAndMute)
{
    // clang-format off
    const struct { const char* what; float tempo, velocity, level, sensitive; bool mute; float start, end; } cases[] = {
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
        NoteRig rig;
        rig.Set({{slot::AmpLevel, c.level}, {slot::VelocitySensitivity, c.sensitive}});
        rig.channel.sound.muted = c.mute;
        rig.channel.NoteOn(50, c.tempo, c.velocity);
        EXPECT_EQ(rig.Last().gain, c.start);
        RenderAlone(rig.channel, 1, VoiceRig::kTempo);
        EXPECT_NEAR(rig.Last().gain, c.start + (c.end - c.start) / 100, 0.001f);
    }
}

TEST(Modulation, SourcesReachTheirTarget)
{
    // By position in the editor's list; its headings and separators reach nothing.
    // clang-format off
    const int targets[] = {
        -1, slot::FilterCutoff, slot::FilterResonance, -1, slot::Modulation,
        -1, slot::EnvelopeAttack, slot::EnvelopeDecay, slot::EnvelopeAmount,
        -1, slot::EnvelopeAttack + 1, slot::EnvelopeDecay + 1, slot::EnvelopeAmount + 1,
        -1, slot::LfoRate, slot::LfoAmount, -1, slot::LfoRate + 1, slot::LfoAmount + 1,
        -1, slot::AmpAttack, slot::AmpDecay, -1};
    // clang-format on
    NoteRig rig;
    rig.channel.sound.velocityIn = 0.5f;
    rig.channel.sound.modWheelIn = 1.0f;
    for (int i = 0; i < kChannelSlots; ++i) rig.channel.sound.params[i] = 0.25f;
    rig.Set({{slot::VelocityAmount, 0.6f}, {slot::WheelAmount, 0.1f}});
    rig.Set({{slot::WheelDestination, 0}, {slot::PressureDestination, 0}});
    for (int code = 0; code < static_cast<int>(std::size(targets)); ++code) {
        rig.Set({{slot::VelocityDestination, static_cast<float>(code)}});
        for (int i = 0; i < slot::VelocityAmount; ++i)
            ASSERT_NEAR(rig.channel.sound.Modulated(i), i == targets[code] ? 0.35f : 0.25f, 1e-6f)
                << code << " on " << i;
    }
    rig.Set({{slot::VelocityDestination, 1}, {slot::WheelDestination, 1}});
    EXPECT_EQ(rig.channel.sound.Modulated(slot::FilterCutoff), 0.0f); // 0.35 - 0.8, clamped
    EXPECT_EQ(rig.channel.sound.Modulated(-1), 0.0f);
    EXPECT_EQ(rig.channel.sound.Modulated(kChannelSlots), 0.0f);
}

TEST(Modulation, LfosRunAtTheirRateFromWhereANoteFindsThem)
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
    NoteRig rig;
    rig.channel.sound.lfo1.phase = rig.channel.sound.lfo2.phase = 0.5f;
    rig.Set({{slot::LfoRate, 0.5f}, {slot::LfoRate + 1, 1}, {slot::LfoSync + 1, 0.5f}, {slot::LfoRetrig + 1, 1}});
    rig.channel.NoteOn(50, 0, 1);
    EXPECT_EQ(std::pair(rig.channel.sound.lfo1.phase, rig.channel.sound.lfo2.phase), std::pair(0.5f, 0.0f));
    rig.Render(1);
    EXPECT_NEAR(rig.channel.sound.lfo1.increment * VoiceRig::kRate, 6.26f, 1e-3f);
    EXPECT_NEAR(rig.channel.sound.lfo2.increment * VoiceRig::kRate, 0.25f, 1e-3f);
}

// Amplitude and cutoff in one frame of a note whose envelopes stand at 0.75 and 0.5; both LFOs are at the given phase.
TEST(Modulation, ReachesAmplitudeAndCutoff)
{
    constexpr float kDepth = 1.0f; // destination of an LFO: the amplitude
    constexpr int kShape = slot::LfoShape, kGoal = slot::LfoDestination, kAmount = slot::LfoAmount;
    // clang-format off
    const struct { const char* what; VoiceRig::Values values; double amp, cutoff; float phase = 0.25f; } cases[] = {
        {"sine",              {{kAmount, 0.5f}}, 1, 0.5},                   {"later", {{kAmount, 0.5f}}, 1, 0.0, 0.75f},
        {"triangle",          {{kAmount, 0.5f}, {kShape, 0.34f}}, 1, 0.375}, {"nothing", {}, 1, 0.25},
        {"back",              {{kAmount, 0.5f}, {kShape, 0.34f}}, 1, 0.3125, 0.875f},
        {"falling ramp",      {{kAmount, 0.5f}, {kShape, 0.67f}}, 1, 0.4375},
        {"later",             {{kAmount, 0.5f}, {kShape, 0.67f}}, 1, 0.3125, 0.75f},
        {"square", {{kAmount, 0.5f}, {kShape, 1}}, 1, 0.5}, {"later", {{kAmount, 0.5f}, {kShape, 1}}, 1, 0.25, 0.75f},
        {"gain", {{kAmount, 0.5f}, {kGoal, kDepth}}, 1.25, 0.25}, {"envelope", {{slot::EnvelopeAmount, 0.6f}}, 1, 0.52},
        {"LFO 2 upside down", {{kAmount + 1, 0.4f}, {slot::LfoInvert + 1, 1}}, 1, 0.09},
        {"not below 0",       {{kAmount, 1}, {kAmount + 1, 1}, {kGoal, kDepth}, {kGoal + 1, kDepth}}, 0, 0.25, 0.75f},
        {"inverted envelope", {{slot::EnvelopeAmount + 1, 0.4f}, {slot::EnvelopeInvert + 1, 1}}, 1, 0.17},
        {"envelope to LFO",   {{kAmount, 0.5f}, {slot::EnvelopeDestination, 1}, {slot::EnvelopeAmount, 1}}, 1, 0.4375},
        {"envelope 2 to LFO", {{kAmount + 1, 0.5f}, {slot::EnvelopeDestination + 1, 1}, {kAmount, 0.4f}}, 1, 0.535},
        {"nothing for pitch", {{kAmount, 0.5f}, {kGoal, 0.67f}, {slot::EnvelopeAmount, 1},
                               {slot::EnvelopeDestination, 0.67f}}, 1, 0.25},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        NoteRig rig;
        rig.Set({{slot::FilterCutoff, 0.25f}});
        rig.Start(c.values, 57, 500);
        rig.channel.sound.lfo1.phase = rig.channel.sound.lfo2.phase = c.phase;
        rig.Last().env1 = {.level = 0.75f};
        rig.Last().env2 = {.level = 0.5f};
        RenderAlone(rig.channel, 1, VoiceRig::kTempo);
        EXPECT_NEAR(rig.Last().cutoffFrames[0], c.cutoff, 1e-4);
        EXPECT_NEAR(rig.Last().left[0] / 0.0025, c.amp, 1e-4);
    }
}

// Voices work on runs of frames, four or more at a time; what comes out must not tell.
TEST(Modulation, RunsGiveTheBitsOfSingleFrames)
{
    for (const bool isSampler : {false, true}) {
        NoteRig whole, single;
        for (int setting = 0; setting < 48; ++setting) {
            SCOPED_TRACE(testing::Message() << (isSampler ? "sampler, " : "synth, ") << setting);
            const auto bit = [setting](int n) { return static_cast<float>(setting >> n & 1); };
            for (NoteRig* rig : {&whole, &single}) {
                rig->channel.sound.isSampler = isSampler;
                for (int osc = 0; osc < kOscillators && setting == 0; ++osc)
                    rig->GiveWave(osc, [](int, int i) { return static_cast<float>(i % 32) / 32; });
                for (int l = 0; l < kLayers; ++l) rig->GiveSample(l, 900, 2, Wobble);
                rig->Set({{slot::MixOsc2, bit(0)}, {slot::MixOsc3, bit(1) / 2}, {slot::NoiseMix, bit(2) / 2}});
                rig->Set({{slot::ModKind, static_cast<float>(setting / 16)}, {slot::Modulation, 0.7f}});
                rig->Set({{slot::UnisonVoices, 0.34f * static_cast<float>(setting / 4 % 4)}, {slot::MonoVoice, 1}});
                rig->Set({{slot::LayerHiCut, 0.4f}, {slot::LayerLoCut + 1, 0.5f}, {slot::LayerReverse + 2, 1}});
                rig->Set({{slot::LayerDelay, 0.2f}, {slot::LayerPitch + 3, 0.6f}, {slot::LfoAmount, 0.5f}});
                // Synced oscillators read the LFO once a run.
                rig->Set({{slot::LfoDestination, setting < 16 ? 0.0f : 0.34f}});
                rig->channel.NoteOn(60 + setting, 0, 1);
            }
            for (int frames : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17, 128}) {
                RenderAlone(whole.channel, frames, VoiceRig::kTempo);
                for (int n = 0; n < frames; ++n) {
                    RenderAlone(single.channel, 1, VoiceRig::kTempo);
                    ASSERT_EQ(whole.Voice(0).left[n], single.Voice(0).left[0]) << n << " of " << frames;
                    ASSERT_EQ(whole.Voice(0).right[n], single.Voice(0).right[0]) << n << " of " << frames;
                }
                ASSERT_EQ(whole.random.state, single.random.state);
            }
        }
    }
}

} // namespace
} // namespace korvane
