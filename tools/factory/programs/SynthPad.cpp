// Pads: slow, wide, for chords; four notes stay below full scale.
#include "factory/programs/SynthPrograms.h"

namespace korvane::factory::synth {

namespace {

using enum FilterType;
using enum LfoShape;

// clang-format off
const SynthSound kSounds[] = {
    {.name = "Warm Pad", .levelDb = 0.25,
     .oscillators = {{"Soft Saw"}, {"Saw", 0, 7, 0.7}, {"Triangle", -12, 0, 0.6}},
     .unison = {3, 0.40, 0.8, true, 0.37},
     .filter = {LowPass, 0.73, 0.10, 0.4}, .amp = {0.62, 1.0, 1.0, 0.75},
     .envelopes = {{to::Cutoff, 0.26, 0.62, 0.70}}, .lfos = {{to::Cutoff, 0.16, Hz(0.15)}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, 0.25}, .pressure = {Target::Cutoff, 0.10},
     .effects = {{Fx::Chorus, 0.45, 0.20, 16.0, 0.55}, {Fx::Reverb, 0.60, 0.50}}},

    {.name = "String Pad", .levelDb = -4.0,
     .oscillators = {{"Strings"}, {"Saw", 0, -9, 0.7}, {"Strings", 12, 6, 0.5}},
     .playing = {.dynamic = false}, .unison = {5, 0.42, 0.9, true, 0.37},
     .filter = {LowPass, 0.95, 0.0, 0.4}, .amp = {0.55, 1.0, 1.0, 0.70},
     .lfos = {{to::Pitch, 0.07, Hz(5.1)}},
     .velocity = {Target::AmpAttack, -0.15}, .wheel = {Target::Cutoff, -0.30}, .pressure = {Target::Cutoff, 0.10},
     .effects = {{Fx::Chorus, 0.55, 0.10, 8.0, 0.5}, {Fx::Reverb, 0.58, 0.60}}, .eqDb = {-3.0, 0.0, 0.0, 2.0, 2.0}},

    {.name = "Choir Pad", .levelDb = 3.5,
     .oscillators = {{"Choir Ah", 0, -5}, {"Vowel O", 0, 6, 0.7}, {"Choir Ah", 12, 3, 0.25}}, .noise = 0.012,
     .unison = {4, 0.42, 0.8, true, 0.37},
     .filter = {LowPass, 0.90, 0.05, 0.3}, .amp = {0.60, 1.0, 1.0, 0.70},
     .lfos = {{to::Pitch, 0.10, Hz(4.7)}, {to::Cutoff, 0.14, Hz(0.2)}},
     .wheel = {Target::Lfo1Amount, 0.12},
     .effects = {{Fx::Reverb, 0.68, 0.60}}},

    {.name = "Glass Pad", .levelDb = 4.25,
     .oscillators = {{"Bell Glass"}, {"Sine", 0, 4, 0.9}, {"Sine", 12, -5, 0.6}},
     .unison = {2, 0.30, 0.7, true, 0.37},
     .filter = {LowPass, 0.91, 0.0, 0.4}, .amp = {0.50, 0.85, 0.70, 0.80},
     .lfos = {{to::Amplitude, -0.50, Hz(0.9), Triangle}, {to::Cutoff, 0.25, Hz(0.13)}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Lfo1Amount, 0.30},
     .effects = {{Fx::Echo, 0.40, 0.55, 0.75}, {Fx::Reverb, 0.70, 0.70}}},

    {.name = "Sweep Pad", .levelDb = 7.75,
     .oscillators = {{"Saw", 0, -7}, {"Saw", 0, 7, 1.0}, {"Saw", -12, 0, 0.5}},
     .unison = {2, 0.35, 0.6, true, 0.37},
     .filter = {LowPass, 0.46, 0.62, 0.3}, .amp = {0.45, 1.0, 1.0, 0.70},
     .envelopes = {{to::Cutoff, 0.62, 0.74, 0.66}},
     .velocity = {Target::Env1Amount, 0.06}, .wheel = {Target::Cutoff, 0.20}, .pressure = {Target::Resonance, 0.15},
     .effects = {{Fx::Phaser, 0.40, 0.20, 16.0, 0.6}, {Fx::Reverb, 0.55, 0.50}}},

    {.name = "Dark Pad", .levelDb = 6.0,
     .oscillators = {{"Dark Drone"}, {"Dark Moss", -12, 6, 0.9}, {"Sine", -12, 0, 0.5}},
     .unison = {3, 0.35, 0.7, true, 0.37},
     .filter = {LowPass, 0.56, 0.15, 0.4}, .amp = {0.66, 1.0, 1.0, 0.80},
     .lfos = {{to::Cutoff, 0.24, Hz(0.11)}},
     .wheel = {Target::Cutoff, 0.25},
     .effects = {{Fx::Reverb, 0.66, 0.35}}},

    {.name = "Breath Pad", .levelDb = 13.25,
     .oscillators = {{"Triangle", 12}, {"Choir Ah", 12, 8, 0.5}}, .noise = 0.45,
     .playing = {.dynamic = false}, .unison = {2, 0.30, 0.9, true, 0.37},
     .filter = {BandPass, 0.57, 0.25, 1.0}, .amp = {0.60, 1.0, 1.0, 0.75},
     .lfos = {{to::Cutoff, 0.28, Hz(0.17)}},
     .wheel = {Target::Cutoff, 0.20}, .pressure = {Target::Resonance, 0.30},
     .effects = {{Fx::Reverb, 0.68, 0.75}}},

    {.name = "Pulse Width Pad", .levelDb = 4.0,
     .oscillators = {{"Saw", 0, -7}, {"Saw", 0, 7, 0.8}, {"Square", -12, 0, 0.4}},
     .playing = {.dynamic = false}, .unison = {2, 0.20, 0.8, true, 0.37},
     .modulation = {.phase2 = 0.5, .invert2 = true}, .filter = {LowPass, 0.75, 0.15, 0.4},
     .amp = {0.52, 1.0, 1.0, 0.65},
     .envelopes = {{to::Cutoff, 0.28, 0.55, 0.65}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, 0.25},
     .effects = {{Fx::Chorus, 0.30, 0.30, 32.0, 0.7}, {Fx::Reverb, 0.50, 0.50}}},

    {.name = "Phase Pad", .levelDb = -3.0,
     .oscillators = {{"Pulse 25"}, {"Saw Octaves", 0, 8, 0.7}},
     .playing = {.dynamic = false}, .unison = {2, 0.30, 0.5, true, 0.37},
     .filter = {LowPass, 0.85, 0.0, 0.4}, .amp = {0.50, 1.0, 1.0, 0.70},
     .wheel = {Target::Cutoff, -0.30},
     .effects = {{Fx::Phaser, 0.42, 0.30, 32.0, 0.80}, {Fx::Reverb, 0.55, 0.50}}},

    {.name = "Shimmer Pad", .levelDb = -2.0,
     .oscillators = {{"Strings", 12, -6}, {"Bell Celesta", 24, 5, 0.5}, {"Organ Quint", 12, 0, 0.4}},
     .unison = {4, 0.38, 1.0, true, 0.37},
     .filter = {HighPass, 0.50, 0.0, 0.3}, .amp = {0.68, 1.0, 1.0, 0.85},
     .lfos = {{to::Amplitude, -0.45, Hz(3.1), Triangle}},
     .wheel = {Target::Lfo1Amount, 0.30},
     .effects = {{Fx::Echo, 0.45, 0.60, 0.75}, {Fx::Reverb, 0.80, 0.85}}, .eqDb = {-6.0, 0.0, 0.0, 2.0, 4.0}},

    {.name = "Brass Pad", .levelDb = 6.5,
     .oscillators = {{"Horn", 0, -6}, {"Trumpet", 0, 6, 0.6}, {"Saw", 0, 0, 0.6}},
     .unison = {2, 0.35, 0.6, true, 0.37},
     .filter = {LowPass, 0.66, 0.10, 0.5}, .amp = {0.40, 0.80, 0.85, 0.50},
     .envelopes = {{to::Cutoff, 0.52, 0.50, 0.62}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Cutoff, 0.20}, .pressure = {Target::Cutoff, 0.15},
     .effects = {{Fx::Reverb, 0.50, 0.50}}},

    {.name = "Motion Pad", .levelDb = -3.75,
     .oscillators = {{"Sine"}, {"Sub Octave", 12, 4, 0.0}, {"Soft Saw", 0, -6, 0.6}},
     .playing = {.dynamic = false}, .unison = {3, 0.35, 0.8, true, 0.37},
     .modulation = {ModKind::Phase, 0.22}, .filter = {LowPass, 0.89, 0.0, 0.4}, .amp = {0.55, 1.0, 1.0, 0.70},
     .lfos = {{to::ModAmount, 0.48, Beats(4.0), Triangle}, {to::Cutoff, 0.30, Beats(3.0), Triangle}},
     .wheel = {Target::Modulation, 0.25},
     .effects = {{Fx::Panner, 0.5, 0.6, 8.0, 0.6}, {Fx::Reverb, 0.58, 0.55}}},

    {.name = "Frozen Pad", .levelDb = 7.5,
     .oscillators = {{"Bright Prism"}, {"Sine", 28, -14, 0.0}, {"Vowel U", 12, 7, 0.5}},
     .unison = {4, 0.28, 1.0, true, 0.37},
     .modulation = {ModKind::Amplitude, 0.55}, .filter = {LowPass, 0.95, 0.20, 0.3}, .amp = {0.64, 1.0, 1.0, 0.85},
     .lfos = {{to::ModAmount, 0.40, Hz(0.21)}, {to::Cutoff, 0.30, Hz(0.09)}},
     .wheel = {Target::Modulation, 0.40},
     .effects = {{Fx::Reverb, 0.76, 0.80}}},
};
// clang-format on

} // namespace

std::vector<ProgramRow> PadPrograms() { return Rows("Pad", kSounds); }

} // namespace korvane::factory::synth
