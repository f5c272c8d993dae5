// The factory parts: one channel each, with what it plays.
#include "factory/grooves/Parts.h"

namespace korvane::factory {

using namespace groove;

namespace {

constexpr int Drum = 0, Synth = kSamplerChannels;

} // namespace

// clang-format off
std::vector<Part> AllParts()
{
    return {
//   name;                channel program             dB    pan    semi gate  shuffled
    {"Floor Kick",       {Drum,  "Volt Kick Solid",   -1.0, 0.00,  0,   0.0,  false},
     "x...x...x...x...|%|%|x...x...x...x.o.|x...x...x...x...|%|%|x...x...x..x..xo",
     {{Drum, A, 56, 63, slot::AmpLevel, -6.0, -6.0}}, {}},
    {"Busy Hats",        {Drum,  "Volt Hat Tight",    -2.0,  0.20,  0,   0.0,  false},
     "x.oxx.oxx.oxxoox|x.oxxooxx.oxxoxx",
     {{Drum, A, 16, 31, slot::LayerDecay, -0.01, 0.005}}, {{Fx::Panner, 0.5, 0.5, 4.0, 0.5}}},
    {"Swung Hats",       {Drum,  "Oak Hat Crisp",     0.0,  0.25,  0,   0.0,  true},
     "x.xox.xxx.xox.xo|x.xox.xxx.xoxoxo|x.xox.xxx.xox.xo|x.xox.xxx.xxxoxx",
     {{Drum, A, 0, 63, slot::LayerPitch, -0.01, 0.015}}, {}},
    {"Ghosted Backbeat", {Drum,  "Oak Snare Full",    -1.0, 0.00,  0,   0.0,  true},
     "....x..o.o..x..o|.o..x..o.o..x.o.|....x..o.o..x..o|.o..x..o.oo.x.ox",
     {}, {{Fx::Reverb, 0.35, 0.50}}},
    {"Conga Circle",     {Drum,  "Deep Conga Slap",   -5.0, -0.30, 0,   0.0,  true},
     "..x..x.5..x.x.5.|..x..x.5.2x.x5..|..x..x.5..x.x.5.|..x..x.5.02.5.75",
     {}, {{Fx::Echo, 0.30, 0.42, 0.375}}},
    {"Iron Toms",        {Drum,  "Forge Tom Bolt",    -4.5, -0.25, -5,  0.0,  false},
     "...x..0....5..x.|...x..0....5.xx.|...x..0....5..x.|...x..0..3.5.77.",
     {{Drum, A, 0, 63, slot::Panning, 0.0, 0.50}}, {{Fx::Echo, 0.45, 0.40, 0.375}}},

    {"Octave Bassline",  {Synth, "Saw Bass",          0.0,  0.00,  0,   0.7,  false},
     "a! a A' a  a! a A a  a! a A' a  a! a A a |f! f F' f  f! f F f  f! f F' f  f! f F f |"
     "C! C g' C  C! C g C  C! C g' C  C! C g C |g! g G' g  g! g G g  g! g G' g  g! g D g_",
     {{Synth, A, 0, 63, slot::FilterCutoff, -0.06, 0.08}}, {{Fx::Pump, 0.55, 0.55, 1.0}}},
    {"Acid Turns",       {Synth, "Acid Bass",         -1.0, 0.00,  0,   0.6,  false},
     "f! . f F_  . f g# .  f! . d#_ f  . C! . f_|f! . f F_  . f g# .  a#! g#_ f .  d#! . c_ .|"
     "f! . f F_  . f g# .  f! . d#_ f  . C! . f_|F! . F_ C  . F D# .  C! a#_ g# f  d#! c_ d#_ f",
     {{Synth, A, 0, 31, slot::FilterCutoff, -0.08, 0.10}, {Synth, A, 32, 63, slot::FilterCutoff, 0.10, -0.06}},
     {{Fx::HighPass, 0.0, 0.0}}},
    {"Heavy Anchor",     {Synth, "Dub Bass",          0.0,  0.00,  -12, 0.9,  false},
     "g/3 . g ./2 a#/2 ./2 D/3 . C|a#/3 . g/2 ./2 f/2 . g/3 ./2|C/3 . C ./2 D#/2 ./2 G/3 . F|"
     "D/3 . C/2_ ./2 a/2 . f/2_ . f# .",
     {{Synth, A, 0, 63, slot::FilterCutoff, 0.0, 0.08}}, {}},
    {"Ninth Stabs",      {Synth, "Electric Piano",    -5.0, 0.00,  0,   0.9,  true},
     "aCEG/3 ./3 aCEG/2 ./3 aCEG ./2 aCEG' .|g#bDE/3 ./3 g#bDE/2 ./3 g#bDE ./2 g#bDE' .|"
     "gbCE/3 ./3 gbCE/2 ./3 gbCE ./2 gbCE' .|faa#D/3 ./3 faa#D/2 eaa#D/3 ./2 eaa#D/2 .",
     {{Synth, A, 0, 63, slot::FilterCutoff, -0.18, 0.0}}, {{Fx::Phaser, 0.20, 0.10, 16.0, 0.6}}},
    {"Falling Glass",    {Synth, "Glass Pluck",       0.0,  0.00,  0,   0.8,  false},
     "G ./2 D# ./2 C ./2 G ./2 D# . C .|./2 G ./2 D# ./2 C ./2 D# . G ./2|"
     "G# ./2 D# ./2 C ./2 G# ./2 F . D# .|./2 G# ./2 F ./2 D# ./2 F . G# ./2",
     {{Synth, A, 0, 63, slot::Modulation, 0.0, 0.12}}, {}},
    {"Evening Lead",     {Synth, "Saw Lead",          0.0,  0.00,  12,  0.95, false},
     "E/6 D/2 C/4 a/4|C/6 D/2 C/4 ./4|G/6 E/2 D/4 E/4|D/12_ ./4|"
     "E/3 E D/2 C/2  D/2_ E/2 A/4_|A/6 G/2 F/4_ E/4|F/6 E/2 D/4 C/4|b/8 G#/8_",
     {{Synth, A, 112, 127, X(Fx::Echo), 0.20, 0.20}}, {}},
    };
}
// clang-format on

} // namespace korvane::factory
