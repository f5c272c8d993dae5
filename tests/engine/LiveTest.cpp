// Live play: controllers, keys, pedal, learnt controls; and what a reset leaves of it.
#include <gtest/gtest.h>

#include "support/Stage.h"

namespace korvane {
namespace {

class Live : public StageTest {};

constexpr float kCutoffCode = 1.0f; // modulation destination
constexpr int kNoteOff = 0x80, kNoteOn = 0x90, kController = 0xB0, kPressure = 0xD0, kBend = 0xE0;

// They act while they are moved, on the selected channel and on no other.
TEST_F(Live, ControllersMoveTheSelectedChannel)
{
    // clang-format off
    struct Case { const char* what; int status, data1, data2; double pitch; float level; };
    const Case cases[] = {
        {"bent up",       kBend,       127, 127, 1.12246, 1.0f}, {"bent down",       kBend,       0, 0,   0.8909, 1.0f},
        {"in the middle", kBend,       0,   64,  1.0,     1.0f}, {"wheel",           kController, 1, 127, 0.0,    0.0f},
        {"wheel back",    kController, 1,   0,   1.0,     1.0f}, {"pressure",        kPressure, 127, 0,   0.0,    0.0f},
        {"pressure back", kPressure,   0,   0,   1.0,     1.0f}, {"wheel again",     kController, 1, 127, 0.0,    0.0f},
        {"all back",      kController, 121, 0,   1.0,     1.0f}, {"another one",     kController, 2, 127, 1.0,    1.0f},
    };
    // clang-format on
    for (const int c : {8, 9}) {
        GiveSine(c);
        PutStep(c, 0);
        Select(c);
        Set({{Knob(slot::WheelDestination), kCutoffCode}, {Knob(slot::WheelAmount), 0.0f}});
        Set({{Knob(slot::PressureDestination), kCutoffCode}, {Knob(slot::PressureAmount), 0.0f}});
    }
    Engine().Pattern().steps[8][0] = Engine().Pattern().steps[9][0] = 1u << 23;
    Synth().SetTempo(10.0); // the notes are not played again
    Synth().SetPlaying(true);
    Play(kStep);
    Play(kStep);
    const double pitch = Pitch(Left(8));
    const float level = Peak(Left(8));
    EXPECT_GT(pitch, 400.0);
    for (const int c : {8, 9}) {
        Select(c);
        const int other = 17 - c;
        for (const Case& row : cases) {
            SCOPED_TRACE(std::string(row.what) + ", channel " + std::to_string(c));
            Queue(row.status, row.data1, row.data2);
            Play(4000);
            Play(kStep);
            EXPECT_NEAR(Peak(Left(c)) / level, row.level, 0.05f);
            EXPECT_NEAR(Pitch(Left(c)) / pitch, row.pitch, 0.002);
            EXPECT_NEAR(Pitch(Left(other)) / pitch, 1.0, 0.002);
            EXPECT_NEAR(Peak(Left(other)) / level, 1.0f, 0.01f);
        }
    }
}

// A key sounds at its velocity until it is let go, or until the pedal is.
TEST_F(Live, KeysAndPedal)
{
    constexpr float kHalf = 64.0f / 127.0f;
    // clang-format off
    struct Case { const char* what; int status, data1, data2; float level; };
    const Case cases[] = {
        {"key",         kNoteOn,     kAnyKey, 127, 1.0f},           {"second key",    kNoteOn,     47,      64,  1.0f + kHalf},
        {"let go",      kNoteOff,    kAnyKey, 0,   kHalf},          {"pedal",         kController, 64,      127, kHalf},
        {"sustained",   kNoteOff,    47,      0,   kHalf},          {"pedal up",      kController, 64,      0,   0.0f},
        {"pad",         kNoteOn,     48,      64,  kHalf},          {"last pad",      kNoteOn,     71,      127, 1.0f + kHalf},
        {"pad let go",  kNoteOff,    48,      0,   1.0f},           {"last let go",   kNoteOff,    71,      0,   0.0f},
        {"pad again",   kNoteOn,     71,      127, 1.0f},           {"all notes off", kController, 123,     0,   0.0f},
    };
    // clang-format on
    Queue(kNoteOn, kAnyKey, 127);
    Play(4000);
    const float full = Left(8).back();
    EXPECT_GT(full, 0.001f);
    Queue(kNoteOff, kAnyKey);
    Play(3 * kStep);
    for (const Case& c : cases) {
        Queue(c.status, c.data1, c.data2);
        Play(3 * kStep);
        EXPECT_NEAR(Left(8).back() / full, c.level, 0.001f) << c.what;
    }
    Set(param::Step1 + 3, 1.0f);
    Play(3 * kStep);
    EXPECT_NEAR(Left(8).back() / full, 1.0f, 0.001f) << "a pad of host or editor sounds at full velocity";
}

// The button arms, the next knob is bound to the control moved last, a second press disarms.
TEST_F(Live, LearntControlsDriveTheirKnob)
{
    const int level = Knob(slot::MixLevel), pan = Knob(slot::Panning), ext = param::Ext1 + 2;
    // clang-format off
    struct Case { const char* what; Writes writes; float left, right; };
    const Case cases[] = {
        {"nothing learnt",     {{ext, 0.9f}},                                                      0.5f,   0.5f},
        {"armed and disarmed", {{param::ExtLearn, 1.0f}, {param::ExtLearn, 0.0f},
                                {param::ExtLearn, 1.0f}, {param::ExtLearn, 0.0f},
                                {level, 0.75f}, {ext, 0.1f}},                                      0.5f,   0.5f},
        {"learnt",             {{param::ExtLearn, 1.0f}, {param::ExtLearn, 0.0f},
                                {level, 0.75f}, {ext, 0.5f}},                                      0.05f,  0.05f},
        {"once",               {{pan, 0.0f}, {ext, 0.75f}},                                        1.0f,   0.0f},
        {"beyond its end",     {{pan, 0.5f}, {ext, -2.0f}},                                        0.0005f, 0.0005f},
        {"from elsewhere",     {{param::Channel1, 1.0f}, {param::Channel1, 0.0f}, {ext, 0.75f}},   0.5f,   0.5f},
        {"not its neighbour",  {{ext - 1, 0.0f}, {ext + 1, 0.0f}},                                 0.5f,   0.5f},
    };
    // clang-format on
    PutStep(8, 0);
    Synth().SetPlaying(true);
    Play(4000);
    const float source = Left(8).back() + Right(8).back();
    for (const Case& c : cases) {
        Set(c.writes);
        Play(1500);
        EXPECT_NEAR(Left(8).back() / source, c.left, 0.0002f) << c.what;
        EXPECT_NEAR(Right(8).back() / source, c.right, 0.0002f) << c.what;
    }
    Select(8);
    Set(level, 0.25f);
    EXPECT_EQ(Synth().GetParameter(ext), 0.25f) << "the control follows its knob";
}

// A reset ends every sound and lets the keys go, unless the pedal holds them; the sequencer goes on.
TEST_F(Live, ResetsEndSoundsAndKeys)
{
    // clang-format off
    struct Case { const char* what; void (*reset)(KVSynth&); bool pedal, keyPlaysAgain; int nextNote; };
    const Case cases[] = {
        {"reset",                 [](KVSynth& s) { s.Reset(); },                  false, true,  kStep},
        {"reset under the pedal", [](KVSynth& s) { s.Reset(); },                  true,  false, kStep},
        {"the rate it has",       [](KVSynth& s) { s.SetSampleRate(kRate); },     false, false, kStep},
        {"another rate",          [](KVSynth& s) { s.SetSampleRate(2 * kRate); }, false, true,  5 * kStep},
        {"a program switch",      [](KVSynth& s) { s.SetProgram(0); },            false, true,  kStep},
    };
    // clang-format on
    constexpr int kEcho = 6;
    for (const int step : {0, 8}) PutStep(9, step, 0.5f);
    Engine().storedParams[9][slot::FxGlue + kEcho] = 1.0f;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Synth().SetSampleRate(kRate);
        Queue(kController, 64, 0);
        Queue(kController, 123, 0);
        Play(1);
        Synth().SetPlaying(true);
        Queue(kController, 64, c.pedal ? 127 : 0);
        Queue(kNoteOn, kAnyKey, 127);
        Play(4 * kStep);
        EXPECT_GT(Peak(Left(8)), 0.001f);
        EXPECT_GT(Peak(Left(9)), 0.001f);
        c.reset(Synth());
        EXPECT_EQ(Engine().Channel(8).peakLeft + Engine().Channel(9).peakRight, 0.0f);
        Play(3 * kStep);
        for (const auto& output : out) EXPECT_EQ(Onset(output), -1) << "voices and echoes are gone";
        Queue(kNoteOn, kAnyKey, 127);
        Play(6 * kStep);
        EXPECT_EQ(Onset(Left(8)), c.keyPlaysAgain ? 0 : -1);
        EXPECT_EQ(Onset(Left(9)), c.nextNote) << "the clock goes on";
    }
}

// A note has its pitch, and two steps their time, at any rate and tempo; a step begun keeps its length.
TEST_F(Live, TimesFollowRateAndTempo)
{
    // clang-format off
    struct Case { double rate, tempo, tempoLater; int frames; };
    const Case cases[] = {{48000, 120, 120, 12000}, {48000, 240, 240, 6000},  {96000, 120, 120, 24000},
                          {44100, 120, 120, 11025}, {44100, 60,  60,  22050}, {48000, 120, 240, 9000},
                          {48000, 0.5, 0.5, -1}}; // takes half a minute
    // clang-format on
    GiveSine(8);
    PutStep(8, 0), PutStep(9, 2);
    double pitch = 0.0;
    for (const Case& c : cases) {
        Synth().SetSampleRate(c.rate);
        Synth().SetTempo(c.tempo);
        Synth().SetPlaying(true);
        Play(100);
        Synth().SetTempo(c.tempoLater);
        Play(24000);
        EXPECT_EQ(Onset(Left(9)), c.frames < 0 ? -1 : c.frames - 100) << c.rate << " Hz, " << c.tempo;
        if (pitch == 0.0) pitch = Pitch(Left(8), c.rate);
        EXPECT_NEAR(Pitch(Left(8), c.rate) / pitch, 1.0, 0.01) << c.rate;
    }
}

} // namespace
} // namespace korvane
