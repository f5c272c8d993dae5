// Dusty Stairs: hip hop in C minor, swung. A main, B the horn's verse, C break, D and E fills.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Kick, Snare, Ghost, Hat, Loose, Stick, Ride, Beads, Bass, Keys, Vibes, Guitar, Horn };

// clang-format off
constexpr Track kTracks[] = {
//   channel program              dB     pan    semi gate shuffled
    {Kick,   "Oak Kick Pillow",   -7.0,  0.00,  0,   0.0, true},
    {Snare,  "Oak Snare Lazy",    -6.5,  0.00,  0,   0.0, true},
    {Ghost,  "Oak Snare Ghost",   -4.0,  -0.10, 0,   0.0, true},
    {Hat,    "Oak Hat Crisp",     -9.0,  0.25,  0,   0.0, true},
    {Loose,  "Oak Hat Loose",     -9.5,  0.25,  0,   1.0, true},
    {Stick,  "Oak Stick Room",    -9.5,  -0.35, 0,   0.0, true},
    {Ride,   "Oak Ride Ping",     -21.0, -0.25, 0,   0.0, true},
    {Beads,  "Oak Hand Beads",    -13.5, 0.45,  0,   0.0, true},
    {Bass,   "Upright Bass",      -7.0,  0.00,  -12, 1.0, true},
    {Keys,   "Suitcase Piano",    -15.5, -0.10, 0,   0.95, true},
    {Vibes,  "Vibraphone",        -10.5, 0.20,  0,   1.0, true},
    {Guitar, "Nylon Pluck",       -10.0, -0.40, 12,  0.9, true},
    {Horn,   "Solo Trumpet",      -12.5, 0.05,  0,   0.95, true},
};

constexpr Clip kClips[] = {
    {Kick,   A | B, "x.....x..xx.....|x..o...x..x..x..|%2|x..o..x..xx..o.x|%4|%4|x.....x..xx..o..|x.o...xx..x..x.o"},
    {Kick,   C,     "x...............|................|x.........x.....|................|%4|%4|%4|........x.x.x.xx"},
    {Kick,   D,     "x.....x...x....."},
    {Kick,   E,     "x..x..x...x..x.."},
    {Snare,  A | B, "....x.......x...|%|%|....x..o....x.o.|%4|%4|%4|....x..o....x.ox"},
    {Snare,  D,     "....x.o.x.o.xxxx"},
    {Snare,  E,     "....x..o.o..x.oo"},
    {Ghost,  A | B, ".......o.o.....o|.o.....o.o....o.|%2|.o....oo.o.....o|%4|%4|%4|.o.o..oo.o..o.oo"},
    {Hat,    A | B, "x.xox.xxx.xox.xo|x.xox.xxx.xox...|%2|%2|%2|%2|%2|x.xox.xxx.xx...."},
    {Hat,    C,     "....o.......o...|%|%|%|..o.o.o...o.o.o.|%|x.o.x.o.x.o.x.o.|x.oox.oox.oox.xx"},
    {Hat,    D | E, "x.x.x.xox...x..."},
    {Loose,  A | B, "................|..............x.|%2|.............x..|%4|%4|%4|............x..."},
    {Stick,  A,     "..........x.....|.....x..........|%2|.....x........x.|%4|%4|%4|.....x....x....."},
    {Stick,  C,     "....x.......x...|%|%|%|%|%|%|....x...x...x.xx"},
    {Ride,   B,     "x...x.x.x...x.x.|%|%|x...x.x.x...x...|%4|%4|%4|x...x.x.x......."},
    {Ride,   C,     "x.......x.......|%|%|%|%|%|%|%"},
    {Beads,  A | B, "..o...o...o...ox|%|%|%|%|%|%|%"},

    {Bass,   A,     "C/3 ./3 C . g ./2 C/2 ./2 D#|f/3 ./3 f . C ./2 f/2 ./2 g|g#/3 ./3 g# . D# ./2 g#/2 ./2 g#|"
                    "g/3 ./3 g . D ./2 g/2 . b .|%4|f/3 ./3 f . C ./2 f/2 . g .|"
                    "g#/3 ./3 g# . D# ./2 C/2 . g# .|g/2 . g . b . D . F ./2 D/2 b ."},
    {Bass,   B,     "C/4 D#/4 G/4 D# C . g|f/4 g#/4 C/4 g# f . a|g#/4 C/4 D#/4 C g# . f#|g/4 b/4 D/4 F D . b|"
                    "C/4 D#/4 G/4 a# C . g|f/4 g#/4 C/4 D# C . a|g#/4 C/4 D#/4 G D# . g#|g/4 b/4 D/4 b g a b_"},
    {Bass,   C,     "C/14 ./2|f/14 ./2|g#/14 ./2|g/8 b/6_ ./2|%4|%4|%4|g/8 ./2 D/2 ./2 b ."},
    {Bass,   D | E, "g/3 ./3 g . b ./2 D/2 ./2 b"},
    {Keys,   A | C, "*/6 ./3 */2 ./5|*/6 ./3 */2 ./3 *' .|%2|*/6 ./3 */2 . fbD/3 .|"
                    "%4|%4|%4|*/4 ./2 fbD/4 . fbDG#/4 .", "d#ga#D|d#gg#C|ga#CD#|fbD#"},
    {Keys,   B,     "./2 */3 ./2 *' . */3 ./4|%|%|./2 */3 ./2 *' . fbD/3 ./4|%4|%4|%4|./2 */3 ./2 *' . fbDG#/4 ./3",
                    "d#ga#D|d#gg#C|ga#CD#|fbD#"},
    {Keys,   D | E, "fbD#/4 ./2 fbD/4 ./2 fbDG#/4"},
    {Vibes,  A,     "./4 G/2 F D# F/2 D#/2 C/4|./4 G#/2 G F D#/4 C/4|./4 G/2 F D# D/2 D#/2 a#/4|"
                    "b/2 D/2 F/4 D#/4 ./4|./16|./12 C D# F G|./16|./10 G#/2 F D b/2"},
    {Vibes,  B,     "./16|./10 C/2 D#/2 G/2|./16|./8 D# D b g# f/4|./16|./10 G#/2 G/2 D#/2|./16|G#/2 F/2 D/2 b/2 ./8"},
    {Vibes,  C,     "GA#/8 ./8|CD#/8 ./8|D#G/8 ./8|bF/8 ./8|GA#/4 D#G/4 ./8|CD#/4 CG#/4 ./8|CD#/8 ./8|bF/4 DG#/4 ./8"},
    {Guitar, A,     "./2 3 ./2 2 . 1 ./8|%|%|%|%|%|%|%", "DD#G|CD#G#|CD#G|bD#F|DD#G|CD#G#|CD#G|bDF"},
    {Guitar, C,     "./2 4 . 3 . 2 . 1 ./7|%|%|%|%|%|%|%", "a#DD#G|g#CD#G#|a#CD#G|gbD#F"},
    {Horn,   A,     "./16|%|%|%|./2 G/4 F/2 D#/4 D/4|C/8_ ./2 C/2 D/2 D#/2|G/6 F/2 D#/4 C/4|D#/6 D/2_ b/8"},
    {Horn,   B,     "C/2 D#/2 G/6 F/2 D#/4|F/2 G#/2 G/4_ D#/8|./2 C/2 D#/2 G/2 a#/2 C/6|D/4 F/4_ D/4 ./4|"
                    "G/6 F/2 D#/2 D/2 C/4|G#/4 G/2 F/2 D#/4_ C/4|G/2 A#/6_ G/2 F/2 D#/4|D/4 b/4 G#/6_ ./2"},
};

constexpr Lock kLocks[] = {
//   channel patterns   first last slot                   from   to
    {Keys,   A | C,     0,    127, slot::FilterCutoff,    -0.14, 0.04},
    {Keys,   B,         0,    127, X(Fx::Phaser),         0.0,   0.25},
    {Hat,    A | B,     0,    127, slot::LayerPitch,      -0.01, 0.015}, // a loose hand
    {Snare,  A | B,     60,   63,  GlueOf(Fx::Reverb),    1.0,   1.0},
    {Snare,  A | B,     124,  127, GlueOf(Fx::Reverb),    1.0,   1.0},
    {Snare,  D,         0,    15,  slot::AmpLevel,        -6.0,  2.0},
    {Bass,   A,         0,    127, slot::FilterCutoff,    -0.05, 0.06},
    {Vibes,  A | B,     56,   63,  GlueOf(Fx::Echo),      1.0,   1.0},
    {Vibes,  A | B,     112,  127, GlueOf(Fx::Echo),      1.0,   1.0},
    {Horn,   A | B,     112,  127, X(Fx::Reverb),         0.20,  0.20},
    {Guitar, A | C,     0,    127, slot::Panning,         0.0,   0.30},
    {Stick,  C,         0,    127, X(Fx::Reverb),         0.0,   0.20},
    {Kick,   C,         0,    127, slot::LayerHiCut,      -0.35, 0.0},
};

constexpr Glued kEffects[] = {
    {Snare,  {Fx::Reverb, 0.60, 0.40}}, // X, Y, beats, LFO
    {Hat,    {Fx::Decimator, 0.85, 0.85}},
    {Keys,   {Fx::Phaser, 0.18, 0.15, 16.0, 0.6}},
    {Vibes,  {Fx::Echo, 0.60, 0.42, 0.75}},
    {Guitar, {Fx::Echo, 0.45, 0.40, 0.5}},
    {Ride,   {Fx::LowPass, 0.90, 0.0}},
};

constexpr Knob kKnobs[] = {
    {Snare, GlueOf(Fx::Reverb), 0.0}, {Vibes, GlueOf(Fx::Echo), 0.0}, // thrown by the locks
    {Bass, slot::SlideEnable,   0.0}, {Bass, slot::SlideTime,   0.5}, // only marked notes glide
    {Horn, slot::SlideEnable,   0.0}, {Horn, slot::SlideTime,   0.4},
};

constexpr Handle kHandles[] = {
    {Keys, slot::FilterCutoff}, {Keys, X(Fx::Phaser)}, {Bass, slot::FilterCutoff}, {Vibes, GlueOf(Fx::Echo)},
    {Hat, X(Fx::Decimator)},
};
// clang-format on

} // namespace

Score DustyStairs() { return {0.6, D | E, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
