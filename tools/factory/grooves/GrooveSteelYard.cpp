// Steel Yard: techno on F, phrygian. A main, B with the acid line an octave up, C break, D and E fills.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Kick, Clap, Hat, Open, Tom, Pipe, Snare, Impact, Sub, Stab, Acid, Motor, Drone };

// clang-format off
constexpr Track kTracks[] = {
//   channel program               dB     pan    semi gate shuffled
    {Kick,   "Forge Kick Press",   -8.5,  0.00,  0,   0.0, false},
    {Clap,   "Forge Clap Press",   -9.0,  0.10,  0,   0.0, false},
    {Hat,    "Forge Hat Rivet",    -9.0,  0.25,  0,   0.0, true},
    {Open,   "Forge Hat Leak",     -9.5,  -0.15, 0,   1.2, false},
    {Tom,    "Forge Tom Bolt",     -15.0, -0.40, -5,  0.0, true},
    {Pipe,   "Forge Pipe Row",     -14.0, 0.50,  0,   0.0, false},
    {Snare,  "Forge Snare Grind",  -15.0, -0.20, 0,   0.0, true},
    {Impact, "Forge Impact Far",   -7.0,  0.00,  0,   0.0, false},
    {Sub,    "Sub Bass",           -5.0,  0.00,  -12, 0.8, false},
    {Stab,   "Dub Stab",           -6.0,  -0.25, 0,   0.6, false},
    {Acid,   "Acid Bass",          -7.0,  0.05,  0,   0.6, true},
    {Motor,  "Filter Steps",       -13.0, 0.35,  0,   1.0, false},
    {Drone,  "Dark Pad",           -13.5, 0.00,  0,   2.0, false},
};

constexpr Clip kClips[] = {
    {Kick,   A | B, "x...x...x...x...|%|%|x...x...x...x.o.|%4|%4|%4|x...x...x.x.x.xx"},
    {Kick,   D,     "x...x...x..xx.xx"},
    {Kick,   E,     "x..............."},
    {Clap,   A,     "....x.......x...|%|%|....x.......x..o|%4|%4|%4|....x....x..x.xo"},
    {Clap,   B,     "....x..o....x...|....x.......x.o.|%2|....x....x..x..o|%4|%|%|....x....x..x.xo"},
    {Clap,   D | E, "....x..x..x.xxxx"},
    {Hat,    A | B, "o.xoooxooox.ooxo|ooxoooxooox.oxxo|%|%|%|%|%|ooxoooxooox.xxxx"},
    {Hat,    C,     "o...o...o...o...|%|%|%|o.o.o.o.o.o.o.o.|%|ooooooooxoxoxoxo|xoxoxoxoxxxxxxxx"},
    {Open,   A | B, "..x...x...x...x.|%|%|%|%|%|%|..x...x...x....."},
    {Open,   D,     "..x...x...x.x.x."},
    {Tom,    A,     "...x..0....5..x.|...x..0....5.xx.|%2|...x..0..3.5.77.|%4|%4|%4|%4"},
    {Tom,    B,     "x..x..5..x..5.x.|%|%|x..x..5..7.75300|%4|%4|%4|%4"},
    {Tom,    D,     "9..7..5..3..2.00"},
    {Pipe,   A | B | C, "................|..........x.....|%2|....x...........|%4|%4|%4|....x.....x....."},
    {Snare,  B,     ".......x..o....x|.......x..o.x..x|%|%|%|%|%|.......x..o.xxxx"},
    {Snare,  C,     "................|%|%|%|....x.......x...|%|..x...x...x...x.|x.x.x.x.xxxxxxxx"},
    {Snare,  D,     "x.x.x.xxx.xxxxxx"},
    {Snare,  E,     "o.o.o.ooo.xxxxxx"},
    {Impact, A | B | C | E, "x..............."},

    {Sub,    A | B, ". f' f f'  . f' f f'  . f' f f'  . f' f f'|%|%|. f' f f'  . f' f f'  . f' f f'  . f' f# f#'|"
                    "%4|%4|%4|. f' f f'  . f' f f'  . d# d# d#'  . f# f# f#'"},
    {Sub,    D,     ". f f f'  . f f f'  . f# f# f#'  . d# d# d#'"},
    {Stab,   A,     "./3 f ./2 f ./9|./16|./3 f ./2 f ./5 a# ./3|./16|%4|./11 f ./4|%4|./8 c' ./2 c ./4"},
    {Stab,   B,     "./3 f ./2 f ./3 f ./5|./3 f ./2 f ./3 a# ./5|%2|./3 f ./2 f ./3 c ./5|"
                    "%4|%4|%4|./3 c ./2 c ./3 a# ./2 f ./2"},
    {Stab,   C,     "f ./15|./16|a# ./15|./16|f ./7 f ./7|./16|a# ./7 c ./7|./16"},
    {Acid,   A | C, "f! . f F_  . f g# .  f! . d#_ f  . C! . f_|f! . f F_  . f g# .  a#! g#_ f .  d#! . c_ .|"
                    "%2|f! . f F!_  . f f# . f! g#_ . c  f! f_ d#_ f|%4|%4|%4|"
                    "F#! F_ . C  g#! . f#_ f  C!_ a# g#_ f  d#! c_ d#_ f"},
    {Acid,   B,     "F! . F_ C  . F D# .  F! . D#_ F  . G#! . F_|F! . F_ C  . F D# .  A#! G#_ F .  D#! . C_ .|"
                    "%2|F# . F#! F_  . C F .  F#! G#_ F# F_  C! D#_ C F|%4|%4|%4|"
                    "A#! G#_ F# F  D#! C_ a# g#  F!_ D# C_ a#  g#! f#_ f c"},
    {Acid,   D,     "f! f_ F f  f#! F#_ f# f#  g#! G#_ g# g#  a#! C_ D# F!"},
    {Motor,  A | B | C, "fC/16|%|%|%|%|%|%|d#a#/8 fC/8"},
    {Drone,  A | C, "fC/16|./16|%2|%2|%2|%2|%2|%2"},
};

constexpr Lock kLocks[] = {
//   channel patterns   first last slot                    from   to
    {Acid,   A,         0,    63,  slot::FilterCutoff,     -0.08, 0.10}, // two turns of the knob
    {Acid,   A,         64,   127, slot::FilterCutoff,     0.10,  -0.06},
    {Acid,   A,         96,   127, slot::EnvelopeDecay,    0.0,   0.15},
    {Acid,   B,         0,    127, slot::FilterCutoff,     -0.02, 0.14},
    {Acid,   B,         0,    127, slot::MixLevel,         -2.0,  -2.0},
    {Acid,   B,         64,   127, X(Fx::Distortion),      0.0,   0.08},
    {Acid,   C,         0,    127, slot::FilterCutoff,     -0.12, 0.20},
    {Acid,   C,         0,    127, slot::FilterResonance,  -0.25, 0.05},
    {Acid,   D,         0,    15,  slot::FilterCutoff,     0.0,   0.18},
    {Snare,  C,         64,   127, slot::AmpLevel,         -12.0, 0.0},
    {Snare,  C,         96,   127, slot::Pitch,            0.0,   9.0},
    {Snare,  D | E,     0,    15,  slot::Pitch,            0.0,   7.0},
    {Stab,   A | B,     112,  127, X(Fx::Echo),            0.12,  0.12},
    {Stab,   C,         0,    127, slot::FilterCutoff,     -0.08, 0.12},
    {Pipe,   A | B | C, 64,   127, slot::Pitch,            -5.0,  -5.0},
    {Motor,  A | B,     0,    127, slot::FilterResonance,  -0.15, 0.15},
    {Open,   A | B,     64,   127, slot::NoteLength,       0.0,   0.12},
    {Clap,   A | B,     120,  127, GlueOf(Fx::Reverb),     1.0,   1.0},
};

constexpr Glued kEffects[] = {
    {Clap,   {Fx::Reverb, 0.66, 0.40}}, // X, Y, beats, LFO
    {Hat,    {Fx::Panner, 0.5, 0.5, 3.0, 0.6}},
    {Tom,    {Fx::Echo, 0.45, 0.40, 0.375}},
    {Stab,   {Fx::HighPass, 0.20, 0.0}},
    {Acid,   {Fx::HighPass, 0.0, 0.0}},
    {Sub,    {Fx::Pump, 0.55, 0.40, 1.0}},
    {Motor,  {Fx::Pump, 0.55, 0.30, 1.0}},
    {Drone,  {Fx::Pump, 0.45, 0.30, 1.0}},
};

constexpr Knob kKnobs[] = {
    {Clap, GlueOf(Fx::Reverb), 0.0}, // thrown by the locks
    {Acid, slot::SlideEnable,  0.0}, // only marked notes glide
    {Sub,  slot::UnisonRetrig, 0.0}, // short notes that start alike leave DC
    {Acid, slot::SlideTime,    0.6},
    {Drone, slot::EqOn, 1.0}, {Drone, slot::EqGain, law::EqKnob(-4.8)},
};

constexpr Handle kHandles[] = {
    {Acid, slot::FilterCutoff}, {Acid, slot::FilterResonance}, {Acid, X(Fx::Distortion)}, {Stab, X(Fx::Echo)},
    {Motor, slot::FilterCutoff},
};
// clang-format on

} // namespace

Score SteelYard() { return {0.12, D | E, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
