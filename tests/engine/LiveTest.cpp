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
    constexpr double kB4 = 493.883; // Hz
    // clang-format off
    struct Case { const char* what; int status, data1, data2; double pitch; };
    const Case cases[] = {
        {"bent up",       kBend,       127, 127, 1.12246}, {"bent down",   kBend,       0,   0,   0.8909}, // a tone
        {"in the middle", kBend,       0,   64,  1.0},     {"wheel",       kController, 1,   127, 0.0}, // filter closed
        {"wheel back",    kController, 1,   0,   1.0},     {"pressure",    kPressure,   127, 0,   0.0},
        {"pressure back", kPressure,   0,   0,   1.0},     {"wheel again", kController, 1,   127, 0.0},
        {"all back",      kController, 121, 0,   1.0},     {"another one", kController, 2,   127, 1.0},
    };
    // clang-format on
    for (const int c : {8, 9}) {
        GiveSine(c);
        PutStep(c, 0);
        Engine().score.Current().steps[c][0] = 1u << 23; // B4
        Select(c);
        Set({{ParamOf(slot::WheelDestination), kCutoffCode}, {ParamOf(slot::WheelAmount), 0.0f}});
        Set({{ParamOf(slot::PressureDestination), kCutoffCode}, {ParamOf(slot::PressureAmount), 0.0f}});
    }
    Synth().SetTempo(10.0); // the notes are not played again
    Synth().SetPlaying(true);
    Play(kStep);
    Play(kStep);
    for (const int c : {8, 9}) {
        Select(c);
        for (const Case& row : cases) {
            Queue(row.status, row.data1, row.data2);
            Play(4000);
            Play(kStep);
            EXPECT_NEAR(Pitch(Left(c)), kB4 * row.pitch, 1.0) << row.what << ", channel " << c;
            EXPECT_NEAR(Pitch(Left(17 - c)), kB4, 1.0) << row.what << ", channel " << c;
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
        {"key",        kNoteOn,  kAnyKey, 127, 1.0f},  {"second key",    kNoteOn,     47,  64,  1.0f + kHalf},
        {"let go",     kNoteOff, kAnyKey, 0,   kHalf}, {"pedal",         kController, 64,  127, kHalf},
        {"sustained",  kNoteOff, 47,      0,   kHalf}, {"pedal up",      kController, 64,  0,   0.0f},
        {"pad",        kNoteOn,  48,      64,  kHalf}, {"last pad",      kNoteOn,     71,  127, 1.0f + kHalf},
        {"pad let go", kNoteOff, 48,      0,   1.0f},  {"last let go",   kNoteOff,    71,  0,   0.0f},
        {"pad again",  kNoteOn,  71,      64,  kHalf}, {"all notes off", kController, 123, 0,   0.0f},
    };
    // clang-format on
    std::vector<float> levels;
    for (const Case& c : cases) {
        Queue(c.status, c.data1, c.data2);
        Play(3 * kStep);
        levels.push_back(Left(8).back());
    }
    Set(param::Step1 + 3, 1.0f); // a pad of host or editor: full velocity, whatever the last key's
    Play(3 * kStep);
    for (std::size_t n = 0; n < levels.size(); ++n)
        EXPECT_NEAR(levels[n] / Left(8).back(), cases[n].level, 0.001f) << cases[n].what;
}

// Notes from outside a block reach the voices through the queue, none twice.
TEST_F(Live, NotesOfOtherThreadsWaitForTheNextBlock)
{
    for (const int note : {40, 41, 42, 43, 44}) Engine().NoteOn(8, note, 1.0f);
    EXPECT_EQ(Sounding(Engine().Channel(8)), 0);
    Play(1);
    EXPECT_EQ(Sounding(Engine().Channel(8)), 5);
}

// The button arms, the next knob is bound to the control moved last, a second press disarms.
TEST_F(Live, LearntControlsDriveTheirKnob)
{
    constexpr int kLevel = ParamOf(slot::MixLevel), kPan = ParamOf(slot::Panning), kExt = param::Ext1 + 2;
    const Writes learn{{param::ExtLearn, 1.0f}, {param::ExtLearn, 0.0f}};
    // clang-format off
    struct Case { const char* what; int presses; Writes writes; float left, right; };
    const Case cases[] = {
        {"nothing learnt",     0, {{kExt, 0.9f}},                                                   0.5f,    0.5f},
        {"armed and disarmed", 2, {{kLevel, 0.75f}, {kExt, 0.1f}},                                  0.5f,    0.5f},
        {"learnt",             1, {{kLevel, 0.75f}, {kExt, 0.5f}},                                  0.05f,   0.05f},
        {"once",               0, {{kPan, 0.0f}, {kExt, 0.75f}},                                    1.0f,    0.0f},
        {"beyond its end",     0, {{kPan, 0.5f}, {kExt, -2.0f}},                                    0.0005f, 0.0005f},
        {"from elsewhere",     0, {{param::Channel1, 1.0f}, {param::Channel1, 0.0f}, {kExt, 0.75f}}, 0.5f,   0.5f},
        {"not its neighbour",  0, {{kExt - 1, 0.0f}, {kExt + 1, 0.0f}},                             0.5f,    0.5f},
    };
    // clang-format on
    PutStep(8, 0);
    Synth().SetPlaying(true);
    Play(4000);
    const float source = 2.0f * Left(8).back();
    for (const Case& c : cases) {
        for (int n = 0; n < c.presses; ++n) Set(learn);
        Set(c.writes);
        Play(1500);
        EXPECT_NEAR(Left(8).back() / source, c.left, 0.0002f) << c.what;
        EXPECT_NEAR(Right(8).back() / source, c.right, 0.0002f) << c.what;
    }
    Select(8);
    Set(kLevel, 0.25f);
    EXPECT_EQ(Synth().GetParameter(kExt), 0.25f) << "the control follows its knob";
    Set(param::LfoNumber, 1.0f);
    Set(learn);
    Set({{ParamOf(slot::LfoAmount), 0.5f}, {kExt + 1, 0.75f}});
    EXPECT_EQ(Synth().GetParameter(ParamOf(slot::LfoAmount)), 0.75f) << "of the page on which it was learnt";
}

// A reset ends every sound and lets the keys go, unless the pedal holds them; the sequencer goes on.
TEST_F(Live, ResetsEndSoundsAndKeys)
{
    constexpr double kC5 = 523.25; // Hz
    // clang-format off
    struct Case { const char* what; void (*reset)(KVSynth&); bool pedal; double rate, nextPitch; int nextNote; };
    const Case cases[] = {
        {"reset",                 [](KVSynth& s) { s.Reset(); },                  false, kRate,     kC5, kStep},
        {"reset under the pedal", [](KVSynth& s) { s.Reset(); },                  true,  kRate,     0.0, kStep},
        {"the rate it has",       [](KVSynth& s) { s.SetSampleRate(kRate); },     false, kRate,     0.0, kStep},
        {"another rate",          [](KVSynth& s) { s.SetSampleRate(2 * kRate); }, false, 2 * kRate, kC5, 5 * kStep},
        {"a program switch",      [](KVSynth& s) { s.SetProgram(0); },            false, kRate,     kC5, kStep},
    };
    // clang-format on
    GiveSine(8);
    for (const int step : {0, 8}) PutStep(9, step, 0.5f);
    Engine().storedParams[9][slot::FxGlue + static_cast<int>(FxType::Echo)] = 1.0f;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Synth().SetSampleRate(kRate);
        Set(ParamOf(slot::SlideEnable), 0.0f);
        Queue(kController, 64, 0);
        Queue(kController, 123, 0);
        Play(1);
        Synth().SetPlaying(true);
        Queue(kController, 64, c.pedal ? 127 : 0);
        for (const int key : {kAnyKey, kAnyKey + 7}) Queue(kNoteOn, key, 127);
        Play(4 * kStep);
        EXPECT_GT(std::min(Peak(Left(8)), Peak(Left(9))), 0.001f);
        c.reset(Synth());
        EXPECT_EQ(Engine().Channel(8).strip.peakLeft + Engine().Channel(9).strip.peakRight, 0.0f);
        Play(3 * kStep);
        for (const auto& output : out) EXPECT_EQ(Onset(output), -1) << "voices and echoes are gone";
        Set({{ParamOf(slot::SlideEnable), 1.0f}, {ParamOf(slot::SlideTime), 1.0f}});
        Queue(kNoteOn, kAnyKey, 127);
        Play(6 * kStep);
        EXPECT_NEAR(Pitch(Left(8), c.rate), c.nextPitch, 1.0) << "the key, if it was let go; nothing to slide from";
        EXPECT_EQ(Onset(Left(9)), c.nextNote) << "the clock goes on";
    }
}

} // namespace
} // namespace korvane
