// Harbour Dub: one drop in G minor. A main, B steppers, C bass and echoes, D and E fills.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Kick, Rim, Hat, Open, Conga, Snare, Tom, Drop, Bass, Organ, Reeds, Chop, Siren };

// clang-format off
constexpr Track kTracks[] = {
//   channel program             dB     pan    semi gate shuffled
    {Kick,   "Deep Kick Heart",  -8.0,  0.00,  0,   0.0, false},
    {Rim,    "Deep Rim Dub",     -12.5, 0.10,  0,   0.0, false},
    {Hat,    "Deep Hat Felt",    -19.5, 0.25,  0,   0.0, true},
    {Open,   "Deep Hat Breath",  -10.0, -0.25, 0,   0.8, true},
    {Conga,  "Deep Conga Slap",  -14.5, -0.45, 0,   0.0, true},
    {Snare,  "Deep Snare Warm",  -11.5, -0.05, 0,   0.0, false},
    {Tom,    "Deep Tom Cave",    -12.0, 0.35,  0,   0.0, false},
    {Drop,   "Deep Drop Slow",   -14.0, 0.00,  0,   0.0, false},
    {Bass,   "Dub Bass",         -5.5,  0.00,  -12, 0.9, false},
    {Organ,  "Jazz Organ",       -9.5,  0.20,  0,   0.7, true},
    {Reeds,  "Musette",          -8.0,  -0.10, 0,   0.9, true},
    {Chop,   "Muted Guitar",     -2.5,  -0.35, 0,   0.5, false},
    {Siren,  "Siren",            -17.0, 0.45,  -12, 0.9, false},
};

constexpr Clip kClips[] = {
    {Kick,  A,     "....x.......x...|%|%|....x.......x..o|%4|%4|%4|....x.....o.x..."},
    {Kick,  B,     "x...x...x...x...|%|%|x...x...x...x.o.|%4|%4|%4|x...x...x.o.x..o"},
    {Kick,  D | E, "....x.......x..."},
    {Rim,   A,     "....x.......x...|%|%|....x.......x.x.|%4|%4|%4|....x..x....x..."},
    {Rim,   B,     "......x.........|....x.......x...|%2|....x.......x..x|%4|%4|%4|....x..x....x..."},
    {Rim,   C,     "............x...|................|......x.........|%|%4|%4|%4|............x..x"},
    {Hat,   A | B, "x.o.xoo.x.o.xooo|%|%|x.o.xoo.x.o.x.ox|%4|%4|%4|x.o.xoo.x.ooxoxo"},
    {Hat,   C,     "o...o...o...o.o.|%|%|%|%|%|%|%"},
    {Open,  A | B, "......x.........|%|......x.......x.|%|%4|%4|%4|%4"},
    {Conga, A | B | C, "..x....5..x..5..|..x....5..x..57.|%2|..x..0.5..0..575|%4|%4|%4|..x..0.5.00..755"},
    {Snare, B,     "....x.......x...|%|%|....x.......x.o.|%4|%4|%4|....x.......x.ox"},
    {Snare, D,     "x..x..x.xxo.x.X."},
    {Snare, E,     "X.....o.x...ooxX"},
    {Tom,   A | B, "................|%|%|.............5.0|%4|%4|%4|..........7..5.0"},
    {Tom,   D,     "..7..7..5..5..00"},
    {Tom,   E,     "9...7...5...2.0."},
    {Drop,  B | C | D, "x..............."},
    {Drop,  A,     "................|%|%|%|x..............."},

    {Bass,  A | C, "g/3 . g ./2 a#/2 ./2 D/3 . C|a#/3 . g/2 ./2 f/2 . g/3 ./2|C/3 . C ./2 D#/2 ./2 G/3 . F|"
                   "D/3 . D/2 ./2 a/2 . D/2 . F .|%4|%4|C/3 . C ./2 D#/2 ./2 C/3 . D#|"
                   "D/3 . C/2_ ./2 a/2 . f/2_ . f# ."},
    {Bass,  B,     "g/2 . g . g a#/2 . D/2 . C/2 a# .|g/2 . g . g f/2 . d/2 . f/2 f# .|"
                   "C/2 . C . C D#/2 . G/2 . F/2 D# .|D/2 . D . D a/2 . F/2 . D/2 a .|"
                   "%4|%4|%4|D/2 . D . C a/2 . f/2_ . d/2 f# ."},
    {Bass,  D,     "g/2 . g ./2 g/2 ./3 a/2 . f#/2_"},
    {Organ, A | B, "./2 * . *' . * . *' . * . *' . * .|%|%|%|%|%|%|%", "ga#D|ga#D|gCD#|faD|ga#D|ga#D|gCD#|faD f#aD"},
    {Reeds, A,     "./2 D/2 D/2 C/2 a#/4 g/2 ./2|./2 f/2 g/2 a#/2 g/6 ./2|./2 G/2 F/2 D#/2 D/2 C/4 ./2|"
                   "./2 D/2 F/2 D/2 a/6 ./2|./8 a#/2 C/2 D/4|D#/2 D/2 C/2 a#/2 D/6 ./2|"
                   "./2 D#/2 D/2 C/2 G/6 ./2|F/4 D/4 a/4 ./4"},
    {Reeds, C,     "./16|%|%|%|./8 a#/2 C/2 D/4|./16|./8 C/2 D#/2 G/4|F/4 D/4 a/4 ./4"},
    {Chop,  A | B, "./2 * ./3 * ./3 * ./3 * .|%|%|%|%|%|%|%", "a#D|a#D|CD#|aD|a#D|a#D|CD#|aD f#D"},
    {Chop,  C,     "./2 * ./13|./16|%2|%3|%4|%4|%4|%4", "ga#D|ga#D|gCD#|faD|ga#D|ga#D|gCD#|f#aD"},
    {Siren, C,     "./16|%|./8 G/8|./16|%|%|./8 D/8|./16"},
    {Siren, E,     "D/12 ./4"},
};

constexpr Lock kLocks[] = {
//   channel patterns   first last slot                   from   to
    {Chop,   A | B,     14,   15,  GlueOf(Fx::Echo),      1.0,   1.0}, // throws into the echo
    {Chop,   A | B,     58,   63,  GlueOf(Fx::Echo),      1.0,   1.0},
    {Chop,   A | B,     94,   95,  GlueOf(Fx::Echo),      1.0,   1.0},
    {Chop,   A | B,     122,  127, GlueOf(Fx::Echo),      1.0,   1.0},
    {Chop,   C,         0,    127, GlueOf(Fx::Echo),      1.0,   1.0},
    {Snare,  B,         60,   63,  GlueOf(Fx::Reverb),    1.0,   1.0},
    {Snare,  B | D | E, 12,   15,  GlueOf(Fx::Reverb),    1.0,   1.0},
    {Rim,    A | B | C, 48,   63,  X(Fx::Echo),           0.10,  0.10},
    {Rim,    A | B | C, 112,  127, X(Fx::Echo),           0.14,  0.14},
    {Organ,  A | B,     0,    63,  slot::FilterCutoff,    -0.22, 0.0},
    {Organ,  A | B,     64,   127, slot::FilterCutoff,    0.0,   -0.22},
    {Bass,   B,         0,    127, slot::FilterCutoff,    0.0,   0.10},
    {Bass,   A | C,     56,   63,  slot::FilterCutoff,    0.08,  0.08},
    {Reeds,  A | C,     120,  127, X(Fx::Echo),           0.20,  0.20},
    {Siren,  C,         64,   127, slot::LfoRate,         -0.12, -0.12},
    {Hat,    A | B,     0,    127, slot::FilterCutoff,    -0.03, 0.02},
};

constexpr Glued kEffects[] = {
    {Snare, {Fx::Reverb, 0.74, 0.40}}, // X, Y, beats, LFO
    {Hat,   {Fx::Phaser, 0.30, 0.30, 16.0, 0.6}},
    {Conga, {Fx::Echo, 0.42, 0.38, 0.75}},
    {Reeds, {Fx::Echo, 0.52, 0.36, 0.75}},
    {Chop,  {Fx::Echo, 0.80, 0.34, 0.75}},
    {Chop,  {Fx::HighPass, 0.45, 0.0}},
    {Siren, {Fx::Echo, 0.78, 0.36, 0.75}},
};

constexpr Knob kKnobs[] = {
    {Chop, GlueOf(Fx::Echo),   0.0}, {Snare, GlueOf(Fx::Reverb), 0.0}, // thrown by the locks
    {Bass, slot::SlideEnable,  0.0}, // only marked notes glide
    {Rim,  slot::LayerDelay,   0.47}, // 12 ms behind the kick
};

constexpr Handle kHandles[] = {
    {Bass, slot::FilterCutoff}, {Chop, GlueOf(Fx::Echo)}, {Rim, X(Fx::Echo)}, {Organ, slot::FilterCutoff},
    {Reeds, X(Fx::Echo)},
};
// clang-format on

} // namespace

Score HarbourDub() { return {0.25, D | E, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
