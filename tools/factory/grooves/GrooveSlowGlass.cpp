// Slow Glass: ambient in E, lydian. A main, B with the flute, C drums gone, D a fill.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Heart, Wood, Breath, Brush, Ride, Spring, Drop, Beads, Deep, Shimmer, Flute, Harp, Glass };

// clang-format off
constexpr Track kTracks[] = {
//   channel  program              dB     pan    semi gate shuffled
    {Heart,   "Deep Kick Heart",   -6.5,  0.00,  0,   0.0, false},
    {Wood,    "Deep Wood Talk",    -12.0, -0.45, 0,   0.0, true},
    {Breath,  "Deep Hat Breath",   -9.0,  0.35,  0,   0.0, false},
    {Brush,   "Oak Brush Sweep",   -7.5,  -0.15, 0,   0.0, false},
    {Ride,    "Oak Bell Ring",     -11.0, 0.25,  0,   0.0, false},
    {Spring,  "Forge Spring Tank", 0.0,   -0.30, 0,   0.0, false},
    {Drop,    "Deep Drop Slow",    -11.0, 0.00,  0,   0.0, false},
    {Beads,   "Oak Hand Beads",    -14.5, 0.50,  0,   0.0, true},
    {Deep,    "Sub Bass",          -7.5,  0.00,  -12, 1.0, false},
    {Shimmer, "Shimmer Pad",       -9.5,  0.00,  0,   1.0, false},
    {Flute,   "Flute Lead",        -7.5,  0.15,  12,  0.95, false},
    {Harp,    "Harp Pluck",        -5.0,  -0.30, 0,   1.0, false},
    {Glass,   "Glass Pad",         -7.0,  0.00,  0,   1.9, false},
};

constexpr Clip kClips[] = {
    {Heart,   A | B, "x.........x.....|x...............|%2|x......x........|%4|%4|%4|x......x...x...."},
    {Heart,   D,     "x......x..x..x.."},
    {Wood,    A | B, "......x.........|...x......x.....|......x.......0.|...x......2.....|"
                     "%4|%4|......x.......5.|...x......2...0."},
    {Wood,    D,     "x..5..2..0..x.20"},
    {Breath,  A | B | C, "....x.......x...|%|%|....x.......x.o.|%4|%4|%4|....x...o...x.o."},
    {Brush,   A | B, "........x.......|........x.....o.|%2|....o...x.......|%4|%4|%4|....o...x...o.oo"},
    {Brush,   D,     "o.o.o.o.x.o.xoxx"},
    {Ride,    B | C, "x...............|........o.......|%2|......o.........|%4|%4|%4|......o.....o..."},
    {Spring,  A | C, "................|........x.......|%2|x...............|%4|%4|%4|x.....o........."},
    {Drop,    A | B, "x...............|................|%|%|x..............."},
    {Drop,    D,     "x..............."},
    {Beads,   A | B, "..o...o...o...o.|..o...o...o..xo.|%|%|%|%|%|..o...o.o.oxoxo."},

    {Deep,    A | B, "e/14 ./2|e/6 ./2 b/6_ ./2|C#/14 ./2|C#/6 ./2 g#/6_ ./2|"
                     "a/14 ./2|a/6 ./2 e/6_ ./2|b/14 ./2|b/6 ./2 f#/6_ ./2"},
    {Shimmer, A | B | C, "g#bD#F#/16|./16|g#bC#E/16|./16|g#bC#D#/16|./16|aC#EF#/16|./16"},
    {Flute,   A,     "./16|./8 b/8|./16|./8 F#/4 G#/4_|./16|./8 G#/4 E/4_|./16|./8 F#/8"},
    {Flute,   B,     "D#/12 F#/4_|B/12_ ./4|G#/8 F#/4 E/4_|C#/12 ./4|E/8 G#/4_ A/4|G#/12_ D#/4|F#/12 E/4_|F#/14_ ./2"},
    {Flute,   D,     "D#/4 F#/4 G#/4 B/4_"},
    {Harp,    A,     "e ./2 b ./2 D# ./2 F# ./2 G# ./2 b|./2 D# ./2 F# ./2 B ./2 G# ./2 F# .|"
                     "c# ./2 g# ./2 b ./2 E ./2 F# ./2 g#|./2 b ./2 E ./2 G# ./2 F# ./2 E .|"
                     "a ./2 E ./2 G# ./2 D# ./2 C# ./2 E|./2 G# ./2 D# ./2 A ./2 G# ./2 E .|"
                     "b ./2 F# ./2 E ./2 C# ./2 a ./2 F#|./2 E ./2 C# ./2 A ./2 F# ./2 D# ."},
    {Harp,    B | C, "1 ./4 2 ./4 3 ./5|./4 1 ./4 2 ./6|%2|%2|%2|%2|%2|%2",
                     "eF#B|D#G#|c#EG#|bF#|aD#E|C#G#|bEF#|D#F#"},
    {Glass,   A | B | C, "eb/16|%|C#G#/16|%|aE/16|%|bF#/16|%"},
};

constexpr Lock kLocks[] = {
//   channel  patterns   first last slot                  from   to
    {Shimmer, A | B,     0,    127, X(Fx::Echo),          -0.10, 0.20},
    {Shimmer, C,         0,    127, slot::LfoAmount,      0.0,   0.25},
    {Glass,   A | B,     0,    127, slot::FilterCutoff,   -0.20, 0.03}, // the light comes up
    {Glass,   C,         0,    127, slot::FilterCutoff,   0.0,   -0.25},
    {Harp,    A,         0,    127, slot::Panning,        0.0,   0.30},
    {Harp,    A,         0,    127, slot::AmpLevel,       -5.0,  1.0},
    {Harp,    B | C,     0,    127, X(Fx::Echo),          0.0,   0.20},
    {Wood,    A | B,     0,    127, slot::Panning,        0.0,   0.45},
    {Flute,   A | B,     112,  127, X(Fx::Echo),          0.15,  0.15},
    {Brush,   A | B,     56,   63,  slot::LayerPitch,     -0.02, 0.02},
    {Deep,    A | B,     64,   127, slot::FilterCutoff,   0.0,   0.15},
};

constexpr Glued kEffects[] = {
    {Wood,    {Fx::Echo, 0.60, 0.42, 0.75}}, // X, Y, beats, LFO
    {Brush,   {Fx::Reverb, 0.66, 0.45}},
    {Breath,  {Fx::Reverb, 0.55, 0.60}},
    {Spring,  {Fx::LowPass, 0.62, 0.10}},
    {Spring,  {Fx::Reverb, 0.80, 0.40}},
    {Flute,   {Fx::Echo, 0.60, 0.45, 1.0}},
    {Harp,    {Fx::Echo, 0.62, 0.50, 0.75}},
    {Harp,    {Fx::Reverb, 0.70, 0.55}},
    {Glass,   {Fx::Panner, 0.5, 0.4, 16.0, 0.5}},
};

constexpr Knob kKnobs[] = {
    {Flute, slot::SlideEnable, 0.0}, {Flute, slot::SlideTime, 0.55}, // only marked notes glide
    {Deep,  slot::SlideEnable, 0.0}, {Deep,  slot::SlideTime, 0.7},
    {Deep,  slot::AmpAttack,   0.35}, {Deep, slot::AmpRelease, 0.5},
};

constexpr Handle kHandles[] = {
    {Shimmer, X(Fx::Echo)}, {Glass, slot::FilterCutoff}, {Harp, X(Fx::Echo)}, {Flute, X(Fx::Echo)},
    {Harp, X(Fx::Reverb)},
};
// clang-format on

} // namespace

Score SlowGlass() { return {0.2, D, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
