// Night Drive: synthwave in A minor. A main, B its answer over D minor, C break, D and E fills.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Kick, Snare, Clap, Hat, Open, Tom, Crash, Rim, Bass, Bells, Lead, Arp, Pads };

// clang-format off
constexpr Track kTracks[] = {
//   channel program              dB     pan    semi gate  shuffled
    {Kick,   "Volt Kick Solid",   -9.5,  0.00,  0,   0.0,  false},
    {Snare,  "Volt Snare Gated",  -6.5,  0.00,  0,   0.0,  false},
    {Clap,   "Volt Clap Stack",   -11.0, 0.15,  0,   0.0,  false},
    {Hat,    "Volt Hat Tight",    -14.5, 0.25,  0,   0.0,  false},
    {Open,   "Volt Hat Sizzle",   -10.0, -0.25, 0,   0.0,  false},
    {Tom,    "Volt Tom Dive",     -13.0, -0.30, 0,   0.0,  false},
    {Crash,  "Oak Crash Big",     -11.0, 0.20,  0,   0.0,  false},
    {Rim,    "Volt Rim Echo",     -10.5, -0.45, 0,   0.0,  false},
    {Bass,   "Saw Bass",          -5.5,  0.00,  0,   0.7,  false},
    {Bells,  "Crystal Keys",      -14.5, 0.35,  12,  0.9,  false},
    {Lead,   "Saw Lead",          -10.0, -0.05, 12,  0.95, false},
    {Arp,    "Trance Pluck",      -10.0, 0.30,  0,   0.8,  false},
    {Pads,   "Warm Pad",          -12.0, 0.00,  0,   1.0,  false},
};

constexpr Clip kClips[] = {
    {Kick,  A | B, "x...x...x...x...|%|%|x...x...x...x.o.|%4|%4|%4|x...x...x..x..x."},
    {Kick,  D,     "x...x...x..x...."},
    {Kick,  E,     "x.....x.....x..."},
    {Snare, A | B, "....x.......x...|%|%|....x.......x..o|%4|%4|%4|....x..o....x.xx"},
    {Snare, C,     "................|%|%|%|%|%|x...x...x...x...|x.x.x.x.xxxxXXXX"},
    {Snare, D,     "....x.oxo.x.xxxx"},
    {Snare, E,     "....x...o.x.oxxx"},
    {Clap,  B,     "....x.......x...|%|%|....x.......x.x.|%4|%4|%4|%4"},
    {Hat,   A | B, "x.oxx.oxx.oxxoox|%|%|x.oxx.oxx.oxxxox|%4|%4|%4|x.oxx.oxx.oxx.X."},
    {Hat,   C,     "................|%|%|%|o.o.o.o.o.o.o.o.|%|x.o.x.o.x.o.x.o.|xoxoxoxoxoxoxxxx"},
    {Open,  A,     "..............x.|%|%|..........x...x.|%4|%4|%4|%4"},
    {Open,  B,     "..x...x...x...x.|%|%|..x...x...x.....|%4|%4|%4|%4"},
    {Tom,   A,     "................|%|%|..........7.50..|%4|%4|%4|........9.7.5.20"},
    {Tom,   B,     "......5..0......|%|......5..0....7.|..........7.50..|%4|%4|%4|........9.7.5.20"},
    {Tom,   D,     "........97755200"},
    {Tom,   E,     "..9..7..5..2..00"},
    {Crash, A | B | C | E, "x..............."},
    {Rim,   A | C, "......x.........|%|...x......x.....|................|%4|%4|%4|%5"},

    {Bass,  A,     "1! 1 2' 1  1! 1 2 1  1! 1 2' 1  1! 1 2 1 |%|%|1! 1 2' 1  1! 1 2 1  1! 1 2' 1  1! 1 D g_|"
                   "%4|1! 1 2' 1  1! 1 2 1  1! 1 2' 1  1! 1 C f_|%2|1! 1 2' 1  1! 1 2 1  1! 1 2' 1  1! G#_ b e_",
                   "aA|fF|cC|gG|aA|fF|dD|eE"},
    {Bass,  B,     ". 1 1 3  . 1 1 3  . 1 1 3  . 1 3_ 2|%|%|%|%|%|%|1! 1 . 1  3! 1 . 1  1! 1 g#_ 2  3! 1 . 1",
                   "daD|fCF|aEA|gDG|daD|fCF|ebE|ebE"},
    {Bass,  C,     "a/14 ./2|f/14 ./2|C/14 ./2|g/14_ ./2|a/14 ./2|f/14 ./2|D/14_ ./2|e/4 ./4 e/2 . e e e e e"},
    {Bass,  D,     "a! a A' a  a! a A a  e! e E e  e! e E_ G#"},
    {Bass,  E,     "a/4 ./2 a/4 ./2 a . E_ G#"},
    {Bells, A,     "./16|./12 F/2 C/2|./16|./8 G/2 D/2 b/2 g/2|./16|./12 A C F A|./16|./8 g# b E G#  B/4"},
    {Bells, B,     "./4 1 2 3/2 ./8|%|%|%|%|%|%|./8 B G# E b  D b g# e", "DFA|CFA|CEA|bDG|DFA|CFA|bEG#"},
    {Lead,  A,     "E/6 D/2 C/4 a/4|C/6 D/2 C/4 ./4|G/6 E/2 D/4 E/4|D/12_ ./4|"
                   "E/3 E D/2 C/2  D/2_ E/2 A/4_|A/6 G/2 F/4_ E/4|F/6 E/2 D/4 C/4|b/8 G#/8_"},
    {Lead,  B,     "A/4 F/4_ D/8|A/4 G/2 F/2 C/8_|E/4 C/4 a/4 C/4|D/6 b/2 g/8_|"
                   "D/2 E/2 F/4 A/4_ F/4|A/4 G/4 F/4 C/4_|E/8 G#/8_|B/12_ ./4"},
    {Lead,  C,     "./16|%|%|%|E/8 A/8_|C/8_ F/8|D/8 F/8_|G#/12_ ./4"},
    {Arp,   A | C, "1 2 3 4  3 2 1 2  3 4 3 2  1 2 3 2|%|%|%|%|%|%|1 2 3 4  3 2 1 2  3 4 3 2  1 2 3 B",
                   "aCEA|aCFA|gCEG|gbDG|aCEA|aCFA|aDFA|g#bEG#"},
    {Arp,   B,     "3 . 2 1  . 2 3 .  2 1 . 2  3 . 2 1|%|%|%|%|%|%|3 . 2 1  . 2 3 .  2 1 D b  g# b D E",
                   "DFA|CFA|CEA|bDG|DFA|CFA|bEG#|bEG#"},
    {Pads,  A | C, "aCE/16|aCF/16|gCE/16|gbD/16|aCE/16|aCF/16|aDF/16|g#bE/16"},
    {Pads,  B,     "aDF/16|aCF/16|aCE/16|gbD/16|aDF/16|aCF/16|g#bE/16|g#bDE/16"},
    {Pads,  D | E, "aCE/8 g#bE/8"},
};

constexpr Lock kLocks[] = {
//   channel patterns   first last slot                   from   to
    {Bass,   A | B,     0,    127, slot::FilterCutoff,    -0.05, 0.07}, // opens over the eight bars
    {Bass,   A,         112,  127, slot::FilterResonance, 0.05,  0.25},
    {Bass,   D,         0,    15,  slot::FilterCutoff,    0.08,  -0.10},
    {Arp,    A,         64,   127, slot::EnvelopeDecay,   0.0,   0.12},
    {Arp,    C,         0,    127, slot::FilterCutoff,    -0.16, 0.16}, // the long rise of the break
    {Pads,   C,         0,    127, slot::FilterCutoff,    -0.12, 0.10},
    {Lead,   A | B,     112,  127, X(Fx::Echo),           0.25,  0.25}, // the last phrase rings on
    {Snare,  A | B,     124,  124, GlueOf(Fx::Reverb),    1.0,   1.0},
    {Snare,  C,         96,   127, slot::Pitch,           0.0,   7.0},
    {Snare,  D | E,     4,    15,  slot::AmpLevel,        -6.0,  -2.0},
    {Tom,    A | B | D, 8,    127, slot::Panning,         0.0,   0.45},
    {Bells,  B,         0,    127, slot::Modulation,      0.0,   0.12},
};

constexpr Glued kEffects[] = {
    {Snare, {Fx::Reverb, 0.62, 0.55}}, // X, Y, beats, LFO
    {Hat,   {Fx::Panner, 0.5, 0.4, 8.0, 0.5}},
    {Bass,  {Fx::Pump, 0.55, 0.55, 1.0}},
    {Bells, {Fx::Echo, 0.55, 0.50, 0.75}},
    {Arp,   {Fx::Pump, 0.60, 0.60, 1.0}},
    {Pads,  {Fx::Pump, 0.45, 0.35, 1.0}},
};

constexpr Knob kKnobs[] = {
    {Snare, GlueOf(Fx::Reverb), 0.0}, // the locks throw single hits
    {Hat,   slot::LayerDecay,   0.28}, // longer than the program's, and so softer
    {Bass,  slot::SlideEnable,  0.0}, // only marked notes glide
    {Lead,  slot::SlideEnable,  0.0},
    {Lead,  slot::SlideTime,    0.5},
    {Pads,  slot::EqOn,         1.0},
    {Pads,  slot::EqGain,       law::EqKnob(-6.0)}, // the bass has the lowest octave to itself
};

constexpr Handle kHandles[] = {
    {Bass, slot::FilterCutoff}, {Arp, slot::FilterCutoff}, {Lead, X(Fx::Echo)}, {Pads, slot::FilterCutoff},
    {Tom, slot::Pitch},
};
// clang-format on

} // namespace

Score NightDrive() { return {0.0, D | E, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
