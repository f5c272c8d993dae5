// Open Window: soulful house in A minor. A main, B second verse, C break, D and E fills.
#include "factory/grooves/Grooves.h"

namespace korvane::factory::groove {

namespace {

enum : int { Kick, Clap, Snare, Hat, Open, Beads, Conga, Rim, Bass, Keys, Flute, Guitar, Strings };

// clang-format off
constexpr Track kTracks[] = {
//   channel  program              dB     pan    semi gate shuffled
    {Kick,    "Deep Kick Club",    -7.0,  0.00,  0,   0.0, false},
    {Clap,    "Volt Clap Stack",   -6.0,  0.05,  0,   0.0, false},
    {Snare,   "Oak Snare Ghost",   -3.5,  -0.10, 0,   0.0, true},
    {Hat,     "Oak Hat Crisp",     -10.0, 0.25,  0,   0.0, true},
    {Open,    "Oak Hat Loose",     -9.5,  -0.20, 0,   0.7, true},
    {Beads,   "Oak Hand Beads",    -16.0, -0.45, 0,   0.0, true},
    {Conga,   "Deep Conga Slap",   -13.0, 0.40,  0,   0.0, true},
    {Rim,     "Volt Rim Echo",     -8.5,  -0.35, 0,   0.0, false},
    {Bass,    "House Organ Bass",  -4.0,  0.00,  0,   0.9, true},
    {Keys,    "Electric Piano",    -13.5, -0.10, 0,   0.9, true},
    {Flute,   "Flute Lead",        -9.5,  0.10,  12,  1.0, true},
    {Guitar,  "Muted Guitar",      -14.0, 0.45,  0,   0.8, true},
    {Strings, "String Pad",        -10.5, 0.00,  12,  1.0, false},
};

constexpr Clip kClips[] = {
    {Kick,    A | B, "x...x...x...x...|%|%|x...x...x...x..o|%4|%4|%4|x...x...x..ox.o."},
    {Kick,    D,     "x...x...x..xx..."},
    {Kick,    E,     "x.....x...x....."},
    {Clap,    A | B, "....x.......x...|%|%|....x.......x..o|%4|%4|%4|....x..o....x.ox"},
    {Clap,    C,     "............o...|%|%|%|%|%|%|....x..x..x.xxxx"},
    {Clap,    D,     "....x..x..o.xoxx"},
    {Clap,    E,     "....x.....x.x.x."},
    {Snare,   A | B, ".......o.o.....o|.o.....o.o..o..o|%|.......o.o...ooo|%4|%4|%|...o.o.o.o..oxoo"},
    {Snare,   D,     "..o.x.oxoxoxxxxx"},
    {Hat,     A | B, "x.oxx.oxx.oxx.ox|%|%|x.oxx.oxx.oxxoxo|%4|%4|%4|x.oxx.oxx.oxxx.x"},
    {Hat,     C,     "o...o...o...o...|%|%|%|o.o.o.o.o.o.o.o.|%|x.oxx.oxx.oxx.ox|%"},
    {Hat,     D | E, "x.oxx.oxx.oxx.x."},
    {Open,    A,     "..x...x...x...x.|%|%|%|%|%|%|..x...x...x....."},
    {Open,    B,     "..x...x...x...x.|..x..ox...x...x.|%|%|%4|%4|%4|..x...x...x....."},
    {Beads,   A | B | C, "o.x.o.x.o.x.o.xo|%|%|%|%|%|%|%"},
    {Conga,   A | B, "..x..x.5..x.x.5.|..x..x.5.2x.x5..|%|..x..x.5..x.5.75|%4|%4|%4|..x..x.5.02.5.75"},
    {Conga,   C,     "..x..x.5..x.x.5.|%|%|%|%|%|%|..x..x.5.02.5.75"},
    {Conga,   D,     "..x.55.2.0x.5577"},
    {Rim,     A | C, "................|......x.........|%2|...x......x.....|%4|%4|%4|...x............"},

    {Bass,    A,     "f/2 . f  . . C .  . f . .  . C . d#|e/2 . e  . . b .  . e . .  . b . g#|"
                     "a/2 . a  . . E .  . a . .  . E . a |g/2 . g  . . D .  c/2 . c  . . c e |"
                     "%4|e/2 . e  . . b .  . e . .  e' g# . b|%4|d/2 . d  . . a .  . d . .  . D C a"},
    {Bass,    B,     "f . f' f  . f C .  . f . C  . f . d#|e . e' e  . e b .  . e . b  . e . g#|"
                     "a . a' a  . a E .  . a . E  . G E a |g . g' g  . D g .  c . c' c  . G c e |"
                     "%4|e . e' e  . e b .  . g# . b  . D b g#|%4|d . d' d  . a d .  . D . C  . a f# e"},
    {Bass,    D,     "a/2 . a  . . E .  e/2 . e  g#/2 b/2"},
    {Bass,    E,     "a/2 ./3 a/2 ./3 e/2 ./2 e e"},
    {Keys,    A,     "*/3 ./3 */2 ./3 * ./2 *' .|%|%|*/3 ./3 */2 */3 ./2 */2 .|%4|%4|%4|%5",
                     "aCEG|g#bDE|gbCE|faa#D eaa#D|aCEG|g#bDF|gbCE|f#aCE"},
    {Keys,    B,     "./2 */2 . *' ./2 */3 ./2 */2 .|%|%|%|%|%|%|%",
                     "aCEG|g#bDE|gbCE|faa#D eaa#D|aCEG|g#bDF g#bDE|gbCE|f#aCE"},
    {Keys,    C,     "aCEG/16|g#bDE/16|gbCE/16|faa#D/8 eaa#D/8|aCEG/16|g#bDF/16|gbCE/16|f#aCE/12 g#bDF/4"},
    {Keys,    D,     "gbCE/3 ./3 gbCE/2  g#bDF/3 . g#bDE/3 ."},
    {Keys,    E,     "gbCE/4 ./2 gbCE/2 ./2 g#bDF/4 ./2"},
    {Flute,   A,     "./2 E/2 G/2 A/4 ./2 G/2 E/2|D/2 E/2 ./2 b/2  D/4 ./4|./2 C/2 D/2 E/4_ ./2 D/2 C/2|"
                     "D/2 a#/2 ./4  E/2 G/2_ ./4|./2 E/2 G/2 A/2  B/2 A/2 G/2 ./2|G#/4 B/4_ ./2 A/2 G#/2 E/2|"
                     "A/8_ ./2 E/2 G/2 A/2|F#/4 E/4  D/2 C/2 ./4"},
    {Flute,   B,     "A/6 G/2 E/4 D/2 C/2|b/4 D/4 E/2 G#/2_ ./4|C/6 b/2 a/4_ g/4|D/2 C/2 a#/2 D/2  E/4 G/2 A/2_|"
                     "C/2 E/2 G/2 A/2  B/4_ A/2 G/2|F/4 E/2 D/2  b/4 g#/4_|a/2 C/2 E/2 G/2  B/8_|A/8 F#/4_ E/4"},
    {Flute,   C,     "./16|./8 b/2 D/2 E/4_|G/12 E/4_|D/8 E/8|A/12 G/4|F/8 E/8_|B/16_|A/8 F#/4_ ./4"},
    {Guitar,  A,     "./3 * . * ./4 * ./2 *' ./2|%|%|%|%|%|%|%", "CE|bD|CE|a#D a#E|CE|bD|bE|CF#"},
    {Guitar,  B,     "*' . * *'  . * . *'  *' . * .  . * . *'|%|%|%|%|%|%|%", "CE|bD|CE|a#D a#E|CE|bD|bE|CF#"},
    {Strings, A | B | C, "CE/16|bD/16|EG/16|DF/8 DE/8|CE/16|bD/16|EG/16|EF#/12 bD/4"},
};

constexpr Lock kLocks[] = {
//   channel  patterns   first last slot                 from   to
    {Keys,    A,         0,    63,  slot::FilterCutoff,  -0.18, 0.0},  // the piano opens
    {Keys,    A | B,     64,   127, slot::Modulation,    0.0,   0.12}, // and brightens
    {Keys,    C,         0,    127, X(Fx::Phaser),       0.0,   0.30},
    {Bass,    A,         64,   127, slot::FilterCutoff,  0.0,   0.08},
    {Bass,    B,         0,    127, slot::FilterCutoff,  -0.05, 0.10},
    {Flute,   A | B | C, 112,  127, GlueOf(Fx::Echo),    1.0,   1.0},  // ends of phrases echo
    {Flute,   A,         60,   63,  GlueOf(Fx::Echo),    1.0,   1.0},
    {Clap,    A | B,     60,   63,  GlueOf(Fx::Reverb),  1.0,   1.0},
    {Snare,   D,         2,    15,  slot::AmpLevel,      -9.0,  -3.0}, // a roll that grows
    {Open,    A | B,     0,    127, slot::Panning,       0.0,   0.15},
    {Rim,     A | C,     48,   63,  X(Fx::Echo),         0.15,  0.15},
    {Strings, C,         0,    127, slot::FilterCutoff,  -0.25, 0.0},
    {Strings, B,         0,    127, slot::MixLevel,      0.0,   3.0},
};

constexpr Glued kEffects[] = {
    {Clap,    {Fx::Reverb, 0.64, 0.50}}, // X, Y, beats, LFO
    {Beads,   {Fx::Panner, 0.5, 0.5, 4.0, 0.6}},
    {Bass,    {Fx::Pump, 0.70, 0.75, 1.0}},
    {Keys,    {Fx::Phaser, 0.20, 0.10, 16.0, 0.6}},
    {Flute,   {Fx::Echo, 0.62, 0.42, 0.75}},
    {Guitar,  {Fx::Phaser, 0.35, 0.30, 4.0, 0.6}},
    {Strings, {Fx::Pump, 0.50, 0.45, 1.0}},
};

constexpr Knob kKnobs[] = {
    {Clap,  GlueOf(Fx::Reverb), 0.0}, {Flute, GlueOf(Fx::Echo), 0.0}, // thrown by the locks
    {Flute, slot::SlideEnable,  0.0}, {Flute, slot::SlideTime,  0.45}, // only marked notes glide
};

constexpr Handle kHandles[] = {
    {Bass, slot::FilterCutoff}, {Keys, slot::FilterCutoff}, {Keys, X(Fx::Phaser)}, {Flute, X(Fx::Echo)},
    {Strings, slot::FilterCutoff},
};
// clang-format on

} // namespace

Score OpenWindow() { return {0.35, D | E, kTracks, kClips, kLocks, kEffects, kKnobs, kHandles}; }

} // namespace korvane::factory::groove
