// Chrome Robots: electro in E minor. A main, B the machines answer, C break, D and E fills.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Kick, Snare, Clap, Hat, Open, Bell, Tom, Laser, Bass, Robot, Arcade, Chip, Phase };

// clang-format off
constexpr Track kTracks[] = {
//   channel program              dB     pan    semi gate shuffled
    {Kick,   "Volt Kick Boom",    -10.0, 0.00,  0,   4.0, false},
    {Snare,  "Volt Snare Snap",   -6.5,  0.00,  0,   0.0, false},
    {Clap,   "Volt Clap Stack",   -10.0, 0.10,  0,   0.0, false},
    {Hat,    "Volt Hat Tight",    -14.5, 0.25,  0,   0.0, false},
    {Open,   "Volt Hat Sizzle",   -10.0, -0.20, 0,   1.0, false},
    {Bell,   "Volt Bell Pair",    -16.0, 0.30,  0,   0.0, false},
    {Tom,    "Volt Tom Dive",     -12.5, -0.35, 0,   0.0, false},
    {Laser,  "Volt Laser",        -14.0, 0.45,  0,   0.0, false},
    {Bass,   "Solid FM Bass",     -7.5,  0.00,  0,   0.7, false},
    {Robot,  "Robot Voice",       -11.5, -0.15, 0,   0.9, false},
    {Arcade, "Square Lead",       -11.0, 0.10,  12,  0.9, false},
    {Chip,   "Chip Pluck",        -10.5, 0.40,  0,   0.7, false},
    {Phase,  "Phase Pad",         -9.5,  0.00,  0,   1.0, false},
};

constexpr Clip kClips[] = {
    {Kick,   A,     "x.....x...x.....|x.....x...x..x..|%2|x..x..x...x..x..|%4|%4|%4|x..x..x..xx.x.x."},
    {Kick,   B,     "x..x......x..x..|x..x..x...x.....|%2|x..x..x...x.x.xx|%4|%4|%4|x..x..x.x.x.x.xx"},
    {Kick,   D,     "x..x..x...x.x.x."},
    {Kick,   E,     "x..............."},
    {Snare,  A | B, "....x.......x...|%|%|....x.......x.oo|%4|%4|%4|....x..o.o..x.ox"},
    {Snare,  C,     "................|%|%|%|....x.......x...|%|%|x.x.x.x.xxxxxxxx"},
    {Snare,  D,     "....x.xo.xo.xoxx"},
    {Snare,  E,     "x.xox.xox.xoxoxx"},
    {Clap,   A,     "................|............x...|%2|............x.x.|%4|%4|%4|............x.xx"},
    {Clap,   B,     "....x.......x...|%|%|....x..x....x.x.|%4|%4|%4|....x..x....x.xx"},
    {Hat,    A | B, "xoxoxoxoxoxoxoxo|%|%|xoxoxoxoxoxoxxxx|%4|%4|%4|xoxoxoxoxoxox..."},
    {Hat,    C,     "x...x...x...x...|%|%|%|xoxoxoxoxoxoxoxo|%|%|%"},
    {Hat,    D,     "xoxoxoxoxxxxXXXX"},
    {Open,   A | B, "......x.......x.|%|%|%|%|%|%|......x.......X."},
    {Bell,   B,     "x..x..x...x.x...|x..x..x...x.x.x.|%|%|%|%|%|x..x..x.x.x.x.xx"},
    {Bell,   C,     "x..x..x...x.x...|%|%|%|%|%|%|%"},
    {Tom,    A | B, "................|..........x..5..|%2|..........7.5.20|%4|%4|%4|........9.7.5.20"},
    {Tom,    D,     "9.9.7.7.5.5.2200"},
    {Laser,  A,     "x...............|................|..........x.....|..............x.|%4|%4|%4|............x.x."},
    {Laser,  B | C | E, "x...............|......x.........|................|............x...|%4|%4|%4|%4"},

    {Bass,   A,     "e! ./2 e ./2 E . d . e ./3 g .|e! ./2 e ./2 E . d . e ./2 b_ d .|%2|"
                    "f! ./2 f ./2 F . f . e . d . f# .|%4|%4|c! ./2 c ./2 C . c . C ./3 b .|"
                    "a! ./2 a b! . b . b! a_ g f# b! . d# ."},
    {Bass,   B,     "e! e . e  . E_ . e  . d e .  g g#_ a b|e! e . e  . E_ . e  . d e .  d . b .|%2|"
                    "f! f . f  . F_ . f  . e f .  f# . g .|%4|%4|c! c . c  . C_ . c  . b c .  C . G .|"
                    "b! b . b  . B_ . b  . a b .  f# . d# ."},
    {Bass,   C,     "./16|%|%|%|e/12 ./4|%|c/12 ./4|b/12_ ./4"},
    {Bass,   D,     "e! e E e  f! f F f  f#! f# F# f#  g! a b d#"},
    {Robot,  A,     "./16|./8 */2 . * . */3|%2|%2|%2|%2|%2|./8 b/2 D#/2 F#/4", "eb|eb|eb|fC"},
    {Robot,  B,     "eb/3 . eb/2 ./10|./8 eb/2 . gD . eb/3|%2|./8 fC/2 . aE . fC/3|%4|%4|cG/3 . cG/2 ./10|"
                    "./8 b/2 D#/2 F#/4"},
    {Robot,  C,     "eb/4 ./12|./8 gD/4 ./4|%2|./8 fC/4 ./4|%4|%4|cG/4 ./12|bF#/8 ./8"},
    {Robot,  E,     "eb/3 . eb/2 . eb/3 . eb/2 ./3"},
    {Arcade, A,     "B/3 A/3 G/2 E/4 ./4|./16|E/3 G/3 A/2 B/4_ ./4|C/3 E/3 F/2_ A/4 ./4|"
                    "%4|./8 D/2 E/2 G/4_|E/3 G/3 C/2 E/4_ G/4|F#/3 D#/3 b/2 F#/4_ ./4"},
    {Arcade, B,     "./8 E/2 F#/2 G/2 A/2|B/6 A/2_ G/4 E/4|%2|A/6 C/2_ F/8|%4|B/6 A/2_ G/4 D/4|"
                    "G/6 E/2 C/8_|D#/4 F#/4 B/8_"},
    {Arcade, C,     "./16|%|%|%|B/3 A/3 G/2 E/4 ./4|./16|G/3 E/3 C/2 E/4 ./4|F#/8_ D#/4 ./4"},
    {Chip,   A,     "1 . 3 2 . 4 1 . 3 2 . 4 1 . 2 .|%|%|%|%|%|%|%", "ebEG|ebEG|ebEG|fCFA|ebEG|ebEG|cgCE|bD#F#B"},
    {Chip,   B | C, "1 2 3 1  2 3 1 2  3 1 2 3  1 2 3 2|%|%|%|%|%|%|%", "EGB|EGB|EGB|CFA|EGB|EGB|CEG|D#F#B"},
    {Phase,  A | B | C, "egb/16|%|%|faC/16|%4|%4|egC/16|d#f#b/16"},
};

constexpr Lock kLocks[] = {
//   channel patterns   first last slot                   from   to
    {Bass,   A,         0,    127, slot::Modulation,      -0.06, 0.14}, // harder and harder
    {Bass,   B,         0,    127, slot::Modulation,      0.0,   0.18},
    {Bass,   B,         0,    127, slot::MixLevel,        -2.0,  -2.0},
    {Bass,   B,         96,   127, GlueOf(Fx::Decimator), 1.0,   1.0},
    {Bass,   C,         64,   127, slot::Modulation,      -0.10, 0.20},
    {Chip,   A,         0,    127, X(Fx::Decimator),      0.0,   -0.30},
    {Chip,   C,         0,    127, slot::AmpLevel,        -9.0,  0.0},
    {Chip,   B | C,     0,    127, X(Fx::Echo),           -0.15, 0.20},
    {Robot,  A | B,     24,   31,  X(Fx::Decimator),      0.2,   0.2},
    {Hat,    A | B,     0,    127, slot::LayerDecay,      -0.02, 0.01},
    {Hat,    D,         0,    15,  slot::Pitch,           0.0,   8.0},
    {Snare,  C,         112,  127, slot::Pitch,           0.0,   9.0},
    {Snare,  A | B,     124,  127, GlueOf(Fx::Echo),      1.0,   1.0},
    {Snare,  A | B,     60,   63,  GlueOf(Fx::Echo),      1.0,   1.0},
    {Phase,  A | B,     0,    127, X(Fx::Phaser),         -0.15, 0.30},
    {Phase,  C,         0,    127, slot::FilterCutoff,    -0.30, 0.0},
    {Tom,    A | B,     0,    127, slot::Panning,         0.0,   0.50},
    {Tom,    A | B,     120,  127, slot::AmpLevel,        -3.0,  -3.0},
    {Laser,  B | C,     48,   127, slot::Pitch,           -5.0,  7.0},
};

constexpr Glued kEffects[] = {
    {Snare,  {Fx::Echo, 0.60, 0.45, 0.375}}, // X, Y, beats, LFO
    {Bass,   {Fx::Decimator, 0.62, 0.75}},
    {Bass,   {Fx::HighPass, 0.0, 0.0}}, // frequency modulation leaves DC
    {Bell,   {Fx::Echo, 0.45, 0.45, 0.75}},
    {Laser,  {Fx::Echo, 0.62, 0.50, 0.5}},
    {Robot,  {Fx::Echo, 0.50, 0.45, 0.75}},
    {Phase,  {Fx::Pump, 0.55, 0.45, 1.0}},
};

constexpr Knob kKnobs[] = {
    {Snare,  GlueOf(Fx::Echo),  0.0}, {Bass,   GlueOf(Fx::Decimator), 0.0}, // thrown by the locks
    {Hat,    slot::LayerDecay,  0.28}, // longer than the program's, and so softer
    {Bass,   slot::SlideTime,   0.55},
    {Arcade, slot::SlideEnable, 0.0},  {Arcade, slot::SlideTime, 0.5}, // only marked notes glide
};

constexpr Handle kHandles[] = {
    {Bass, slot::Modulation}, {Bass, GlueOf(Fx::Decimator)}, {Chip, X(Fx::Echo)}, {Phase, X(Fx::Phaser)},
    {Kick, slot::Pitch},
};
// clang-format on

} // namespace

Score ChromeRobots() { return {0.0, D | E, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
