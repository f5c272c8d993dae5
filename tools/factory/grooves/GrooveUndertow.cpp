// Undertow: drum and bass in F minor. A main, B half time, C break, D and E fills.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Kick, Snare, Ghost, Hat, Ride, Crash, Conga, Snap, Reese, Choir, Lead, Glass, Sub };

// clang-format off
constexpr Track kTracks[] = {
//   channel program              dB     pan    semi gate shuffled
    {Kick,   "Oak Kick Tight",    -5.0,  0.00,  0,   0.0, false},
    {Snare,  "Oak Snare Full",    -7.5,  0.00,  2,   0.0, false},
    {Ghost,  "Oak Snare Ghost",   -4.5,  -0.10, 3,   0.0, true},
    {Hat,    "Oak Hat Crisp",     -11.5, 0.25,  0,   0.0, true},
    {Ride,   "Oak Ride Ping",     -14.0, -0.30, 0,   0.0, false},
    {Crash,  "Oak Crash Big",     -10.5, 0.15,  0,   0.0, false},
    {Conga,  "Deep Conga Slap",   -15.5, 0.40,  3,   0.0, true},
    {Snap,   "Volt Snare Snap",   -9.0,  0.00,  3,   0.0, false},
    {Reese,  "Reese Bass",        -10.0, 0.00,  0,   0.95, false},
    {Choir,  "Choir Pad",         -13.0, 0.00,  0,   2.0, false},
    {Lead,   "Whistle Lead",      -13.0, -0.10, 0,   0.95, false},
    {Glass,  "Glass Pluck",       -13.0, 0.30,  0,   0.8, false},
    {Sub,    "Sub Bass",          -8.5,  0.00,  -12, 0.95, false},
};

constexpr Clip kClips[] = {
    {Kick,  A,     "x.........x.....|x.........x..x..|%2|x..x......x..x..|%4|%4|%4|x..x..x...x..xx."},
    {Kick,  B,     "x...............|..........x.....|%2|......x...x.....|%4|%4|%4|..x...x...x...xx"},
    {Kick,  D,     "x..x..x...x.x..."},
    {Kick,  E,     "x..x..x..x..x.x."},
    {Snare, A,     "....X.......X...|%|%|....X.......X..o|%4|%4|%4|....X..o.o..X.ox"},
    {Snare, B,     "........X.......|%|%|........X.....o.|%4|%4|%4|........X...o.xX"},
    {Snare, C,     "................|%|%|%|%|%|x...x...x...x...|x.x.x.x.xxxxxxxx"},
    {Snare, D,     "....x.o.o.x.oxxx"},
    {Snare, E,     "..x..x..x..x.xxx"},
    {Ghost, A,     ".......o.o.....o|..o....o.o....o.|%2|..o....o.o.o...o|%4|%4|%4|..o.o..o.o.o.o.."},
    {Ghost, B,     "...o..o....o..o.|...o..o....o.oo.|%|...o.oo.o..o.ooo|%4|%4|%|..oo.oo.o.oo.ooo"},
    {Hat,   A,     "x.oxx.oxx.oxx.ox|%|%|x.oxx.oxx.oxxxox|%4|%4|%4|x.oxx.oxx.oxx..."},
    {Hat,   B,     "x.o.x.o.x.o.x.oo|%|%|%|%|%|%|%"},
    {Hat,   C,     "................|%|%|%|o.o.o.o.o.o.o.o.|%|x.o.x.o.x.o.x.o.|xoxoxoxoxxxxxxxx"},
    {Hat,   D | E, "x.oxx.oxx.oxx.xx"},
    {Ride,  A,     "................|%|%|%|x...x...x...x...|%|%|%"},
    {Ride,  B,     "x...x...x...x...|%|%|%|%|%|%|%"},
    {Crash, A | B | E, "x..............."},
    {Crash, C,     "x...............|................|%|%|%|%|%|............x..."},
    {Conga, A | B, "..x..x....5.x...|..x..x...55.x.7.|%2|..x..x..0.5.x577|%4|%4|%4|..x..x..0.5.7520"},
    {Snap,  A,     "....x.......x...|%|%|%|%|%|%|%"},
    {Snap,  B,     "........x.......|%|%|%|%|%|%|%"},

    {Reese, A,     "f/6 ./2 f/2 ./2 g#/2 . f|f/10 ./2 d#/2_ . c|C#/6 ./2 C#/2 ./2 C ./2 g#|C#/10 ./2 g#/2_ . f|"
                   "a#/6 ./2 a#/2 ./2 C#/2_ . a#|a#/10 ./2 g#/2_ . g|c/6 ./2 c/2 ./2 d#/2_ . c|c/8 ./2 e/2_ ./2 g ."},
    {Reese, B,     "f/14 ./2|./2 f/2 ./2 g#/4_ f/4 ./2|C#/14 ./2|./2 C#/2 ./2 C/4_ g#/4 ./2|"
                   "a#/14 ./2|./2 a#/2 ./2 C#/4_ a#/4 ./2|c/14 ./2|./2 c/2 ./2 e/4_ g/2 C/2_ ./2"},
    {Reese, D,     "f/2 . f f# . f# g ./2 g# g# C C# D# E"},
    {Choir, A | B | C, "g#CD#G/16|./16|fg#CD#/16|./16|c#fg#C/16|./16|ega#C/16|./16"},
    {Lead,  A,     "./16|%|%|%|C/12 A#/2 G#/2_|G#/8 F/4_ ./4|G/12 F/2 E/2_|E/12 ./4"},
    {Lead,  B,     "C/8 D#/8_|G/12_ F/4|G#/8 G/4 F/4_|D#/12 ./4|F/8 G#/4 A#/4_|G#/8_ F/8|G/10 A#/4_ G/2|E/12 ./4"},
    {Lead,  C,     "./16|%|D#/12 F/4|G#/12_ ./4|F/12 G#/4|A#/12_ ./4|B/2_ A#/6 G/8|E/8 C/8_"},
    {Glass, A,     "3 ./2 2 ./2 1 ./2 3 ./2 2 . 1 .|./2 3 ./2 2 ./2 1 ./2 2 . 3 ./2|%2|%2|%2|%2|%2|%2",
                   "CD#G|CD#G|CD#G#|CFG#|CFG#|CFG#|a#EG|CEA#"},
    {Glass, C,     "4 3 2 1  4 3 2 1  4 3 2 1  4 3 2 1|%|%|%|%|%|%|%",
                   "g#CD#G|g#CD#G|fCD#G#|fCD#G#|c#CFG#|c#CFG#|a#CEG|a#CEG"},
    {Sub,   A,     "f/8 ./2 f/4 ./2|f/10 ./6|C#/8 ./2 C#/4 ./2|C#/10 ./6|a#/8 ./2 a#/4 ./2|a#/10 ./6|"
                   "C/8 ./2 C/4 ./2|C/8 ./2 e/4 ./2"},
    {Sub,   B,     "f/12 ./4|f/8 ./8|C#/12 ./4|C#/8 ./8|a#/12 ./4|a#/8 ./8|C/12 ./4|C/8 e/6 ./2"},
    {Sub,   C,     "f/14 ./2|./16|C#/14 ./2|./16|a#/14 ./2|./16|C/14 ./2|./16"},
    {Sub,   E,     "f/4 ./2 f/4 ./2 C/4"},
};

constexpr Lock kLocks[] = {
//   channel patterns   first last slot                  from   to
    {Reese,  A,         0,    63,  slot::FilterCutoff,   -0.16, 0.02}, // opens and closes
    {Reese,  A,         64,   127, slot::FilterCutoff,   0.08,  -0.06},
    {Reese,  B,         0,    127, slot::FilterCutoff,   -0.20, 0.08},
    {Reese,  B,         0,    127, X(Fx::Phaser),        0.0,   0.25},
    {Reese,  D,         0,    15,  slot::FilterCutoff,   -0.05, 0.12},
    {Glass,  C,         0,    127, slot::Modulation,     0.0,   0.16},
    {Glass,  C,         0,    127, slot::AmpLevel,       -9.0,  1.0},
    {Choir,  C,         0,    127, slot::FilterCutoff,   -0.20, 0.0},
    {Snare,  C,         96,   127, slot::Pitch,          0.0,   7.0},
    {Snare,  A | B,     120,  127, GlueOf(Fx::Reverb),   1.0,   1.0},
    {Snare,  B,         8,    8,   GlueOf(Fx::Reverb),   1.0,   1.0},
    {Snare,  D | E,     12,   15,  slot::Pitch,          0.0,   5.0},
    {Lead,   A | B | C, 112,  127, X(Fx::Echo),          0.15,  0.15},
    {Ghost,  A | B,     0,    127, slot::Panning,        -0.10, 0.20},
    {Hat,    A,         64,   127, slot::LayerPitch,     0.0,   0.02},
};

constexpr Glued kEffects[] = {
    {Snare,  {Fx::Reverb, 0.66, 0.50}}, // X, Y, beats, LFO
    {Hat,    {Fx::Panner, 0.5, 0.4, 3.0, 0.5}},
    {Conga,  {Fx::Echo, 0.45, 0.45, 0.75}},
    {Choir,  {Fx::Pump, 0.40, 0.55, 2.0}},
    {Lead,   {Fx::Echo, 0.55, 0.45, 1.0}},
    {Glass,  {Fx::Echo, 0.58, 0.55, 0.75}},
};

constexpr Knob kKnobs[] = {
    {Snare, GlueOf(Fx::Reverb), 0.0}, // thrown by the locks
    {Reese, slot::SlideEnable,  0.0}, {Reese, slot::SlideTime, 0.6}, // only marked notes glide
    {Lead,  slot::SlideEnable,  0.0}, {Lead,  slot::SlideTime, 0.5},
    {Reese, slot::EqOn, 1.0}, {Reese, slot::EqGain, law::EqKnob(-8.4)}, // the sub has the lowest octave to itself
};

constexpr Handle kHandles[] = {
    {Reese, slot::FilterCutoff}, {Reese, X(Fx::Phaser)}, {Glass, X(Fx::Echo)}, {Choir, slot::FilterCutoff},
    {Lead, X(Fx::Echo)},
};
// clang-format on

} // namespace

Score Undertow() { return {0.25, D | E, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
