// Plucks: struck once and dying away, whatever the note's length.
#include "factory/programs/SynthPrograms.h"

namespace korvane::factory::synth {

namespace {

using enum FilterType;
using enum LfoShape;

// clang-format off
const SynthSound kSounds[] = {
    {.name = "Trance Pluck", .levelDb = 8.25,
     .oscillators = {{"Saw"}, {"Saw", 12, 5, 0.6}},
     .unison = {5, 0.38, 0.7},
     .filter = {LowPass, 0.60, 0.20, 0.5}, .amp = {0.0, 0.54, 0.0, 0.30},
     .envelopes = {{to::Cutoff, 0.62, 0.0, 0.26}},
     .velocity = {Target::Env1Amount, 0.08}, .wheel = {Target::Env1Decay, 0.25}, .pressure = {Target::Cutoff, 0.15},
     .effects = {{Fx::Echo, 0.50, 0.45, 0.75}, {Fx::Reverb, 0.48, 0.60}}, .eqDb = {-4.0, 0.0, 0.0, 1.0, 2.0}},

    {.name = "Harp Pluck", .levelDb = 1.75,
     .oscillators = {{"Harp"}, {"Triangle", 0, 3, 0.6}}, .noise = 0.02,
     .unison = {.restarts = true},
     .filter = {LowPass, 0.76, 0.0, 0.8}, .amp = {0.0, 0.64, 0.0, 0.55},
     .envelopes = {{to::Cutoff, 0.42, 0.0, 0.22}},
     .velocity = {Target::Cutoff, 0.10}, .wheel = {Target::Cutoff, 0.15},
     .effects = {{Fx::Reverb, 0.55, 0.55}}},

    {.name = "Nylon Pluck", .levelDb = 4.0,
     .oscillators = {{"Harp"}, {"Soft Saw", 0, -2, 0.8}, {"Dark Bottle", 0, 2, 0.4}}, .noise = 0.05,
     .unison = {.restarts = true},
     .filter = {LowPass, 0.72, 0.15, 0.7}, .amp = {0.05, 0.56, 0.0, 0.25},
     .envelopes = {{to::Cutoff, 0.48, 0.0, 0.14}, {to::Pitch, 0.12, 0.0, 0.08}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Reverb, 0.36, 0.40}}, .eqDb = {0.0, 2.0, 0.0, 0.0, 0.0}},

    {.name = "Kalimba", .levelDb = 3.75,
     .oscillators = {{"Bell Kalimba", 12}, {"Sine", 12, 0, 0.5}}, .noise = 0.03,
     .unison = {.restarts = true},
     .filter = {LowPass, 0.78, 0.05, 0.8}, .amp = {0.0, 0.55, 0.0, 0.40},
     .envelopes = {{to::Cutoff, 0.55, 0.0, 0.14}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::AmpDecay, 0.15},
     .effects = {{Fx::Reverb, 0.42, 0.50}}},

    {.name = "Marimba", .levelDb = 2.5,
     .oscillators = {{"Sine"}, {"Sine", 24, 0, 0.0}, {"Sine", 0, 2, 0.3}},
     .unison = {.restarts = true},
     .modulation = {ModKind::Phase, 0.05}, .filter = {LowPass, 0.80, 0.0, 0.7}, .amp = {0.0, 0.48, 0.0, 0.35},
     .envelopes = {{to::ModAmount, 0.38, 0.0, 0.10}, {to::Cutoff, 0.30, 0.0, 0.08}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::AmpDecay, 0.15},
     .effects = {{Fx::Reverb, 0.45, 0.45}}},

    {.name = "Pizzicato", .levelDb = 8.5,
     .oscillators = {{"Strings", 0, 2}, {"Soft Saw", 0, 9, 0.7}, {"Strings", 0, -10, 0.7}}, .noise = 0.04,
     .unison = {3, 0.30, 0.8},
     .filter = {LowPass, 0.72, 0.10, 0.7}, .amp = {0.08, 0.46, 0.0, 0.28},
     .envelopes = {{to::Cutoff, 0.42, 0.0, 0.14}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Reverb, 0.60, 0.50}}},

    {.name = "Koto", .levelDb = 12.25,
     .oscillators = {{"Bright Pins"}, {"Pulse 12", 0, 3, 0.5}, {"Harp", 12, -2, 0.4}}, .noise = 0.02,
     .unison = {.restarts = true},
     .filter = {LowPass, 0.78, 0.10, 0.4}, .amp = {0.0, 0.58, 0.0, 0.35},
     .envelopes = {{to::Cutoff, 0.36, 0.0, 0.20}, {to::Pitch, 0.18, 0.0, 0.14}},
     .velocity = {Target::Env2Amount, 0.10}, .wheel = {Target::Cutoff, 0.15},
     .effects = {{Fx::Reverb, 0.45, 0.60}}},

    {.name = "Glass Pluck", .levelDb = 2.5,
     .oscillators = {{"Sine", 12}, {"Sine", 31, 12, 0.0}, {"Bell Glass", 12, 4, 0.3}},
     .unison = {2, 0.20, 0.8, true},
     .modulation = {ModKind::Phase, 0.12}, .amp = {0.0, 0.58, 0.0, 0.50},
     .envelopes = {{to::ModAmount, 0.45, 0.0, 0.22}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Modulation, 0.30},
     .effects = {{Fx::Echo, 0.48, 0.60, 0.75}, {Fx::Reverb, 0.60, 0.75}}},

    {.name = "Chip Pluck", .levelDb = -0.75,
     .oscillators = {{"Square", 12}, {"Pulse 25", 12, 0, 0.7}},
     .playing = {.dynamic = false}, .unison = {.restarts = true},
     .amp = {0.0, 0.40, 0.0, 0.10},
     .envelopes = {{to::Pitch, 0.70, 0.0, 0.02}},
     .wheel = {Target::AmpDecay, 0.20},
     .effects = {{Fx::Decimator, 0.62, 0.90}, {Fx::Echo, 0.40, 0.50, 0.5}}},

    {.name = "Muted Guitar", .levelDb = 13.75,
     .oscillators = {{"Saw"}, {"Pulse 25", 0, -3, 0.7}, {"Saw", 12, 4, 0.3}}, .noise = 0.03,
     .unison = {.restarts = true},
     .filter = {LowPass, 0.64, 0.30, 0.6}, .amp = {0.0, 0.42, 0.0, 0.16},
     .envelopes = {{to::Cutoff, 0.55, 0.0, 0.10}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Env1Decay, 0.25},
     .effects = {{Fx::Distortion, 0.14, 0.62}, {Fx::Chorus, 0.45, 0.15, 8.0, 0.4}}},

    {.name = "Bell Pluck", .levelDb = 3.5,
     .oscillators = {{"Bell Tower", 12}, {"Bell Chime", 0, 6, 0.3}, {"Sine", 12, -4, 0.4}},
     .unison = {.restarts = true},
     .filter = {LowPass, 0.96, 0.0, 0.4}, .amp = {0.0, 0.72, 0.0, 0.75},
     .envelopes = {{to::Cutoff, 0.30, 0.0, 0.36}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, -0.30},
     .effects = {{Fx::Echo, 0.42, 0.55, 1.0}, {Fx::Reverb, 0.66, 0.65}}},

    {.name = "Dub Stab", .levelDb = 18.75,
     .oscillators = {{"Saw"}, {"Saw", 3, 4, 0.9}, {"Saw", 7, -4, 0.9}},
     .unison = {2, 0.25, 0.6},
     .filter = {BandPass, 0.64, 0.45, 0.3}, .amp = {0.0, 0.46, 0.0, 0.30},
     .envelopes = {{to::Cutoff, 0.40, 0.0, 0.22}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Cutoff, 0.25},
     .effects = {{Fx::Distortion, 0.30, 0.70}, {Fx::Echo, 0.72, 0.36, 0.75}, {Fx::Reverb, 0.55, 0.40}}},
};
// clang-format on

} // namespace

std::vector<ProgramRow> PluckPrograms() { return Rows("Pluck", kSounds); }

} // namespace korvane::factory::synth
