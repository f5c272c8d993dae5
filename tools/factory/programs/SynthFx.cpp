// Effects: risers, sirens, machines, weather.
#include "factory/programs/SynthPrograms.h"

namespace korvane::factory::synth {

namespace {

using enum FilterType;
using enum LfoShape;

// clang-format off
const SynthSound kSounds[] = {
    {.name = "Riser", .levelDb = 14.25,
     .oscillators = {{"Saw", -12, -8}, {"Saw", -12, 9, 0.9}, {"Saw", 0, 0, 0.5}}, .noise = 0.30,
     .unison = {4, 0.45, 0.8},
     .filter = {LowPass, 0.66, 0.30, 0.2}, .amp = {0.55, 1.0, 1.0, 0.50},
     .envelopes = {{to::Pitch, 0.90, 0.88, 0.90}, {to::Cutoff, 0.60, 0.88, 0.90}},
     .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Echo, 0.40, 0.60, 0.5}, {Fx::Reverb, 0.60, 0.60}}},

    {.name = "Downfall", .levelDb = 8.25,
     .oscillators = {{"Square"}, {"Saw", 7, 11, 0.8}, {"Bright Sync", 0, -9, 0.5}}, .noise = 0.10,
     .unison = {3, 0.50, 0.8},
     .filter = {LowPass, 0.60, 0.25, 0.2}, .amp = {0.0, 0.80, 0.20, 0.50},
     .envelopes = {{to::Pitch, 1.0, 0.0, 0.58}, {to::Cutoff, 0.55, 0.0, 0.56}},
     .wheel = {Target::Env1Decay, 0.20},
     .effects = {{Fx::Reverb, 0.64, 0.50}}},

    {.name = "Laser", .levelDb = 6.0,
     .oscillators = {{"Pulse 25"}, {"Saw", 0, 0, 0.0}},
     .unison = {.restarts = true},
     .amp = {0.0, 0.52, 0.0, 0.35},
     .envelopes = {{to::Pitch, 1.0, 0.0, 0.18}}, .lfos = {{to::Pitch, 0.30, Hz(22.0), Ramp, true}},
     .wheel = {Target::Env1Decay, 0.25},
     .effects = {{Fx::Echo, 0.55, 0.60, 0.25}}},

    {.name = "Siren", .levelDb = 4.5,
     .oscillators = {{"Soft Square"}, {"Saw", 0, 7, 0.4}},
     .filter = {LowPass, 0.84, 0.20, 0.5}, .amp = {0.20, 1.0, 1.0, 0.40},
     .lfos = {{to::Pitch, 0.66, Hz(0.8), Sine, true}},
     .wheel = {Target::Lfo1Rate, -0.30}, .pressure = {Target::Lfo1Amount, 0.30},
     .effects = {{Fx::Echo, 0.60, 0.40, 0.75}, {Fx::Reverb, 0.55, 0.45}}},

    {.name = "Red Alert", .levelDb = 16.75,
     .oscillators = {{"Bright Buzz"}, {"Square", 0, 9, 0.8}},
     .filter = {BandPass, 0.80, 0.30, 0.3}, .amp = {0.05, 1.0, 1.0, 0.15},
     .lfos = {{to::Pitch, 0.645498, Hz(3.3), Square, true}},
     .wheel = {Target::Lfo1Rate, -0.25},
     .effects = {{Fx::Distortion, 0.15, 0.75}, {Fx::Reverb, 0.40, 0.60}}},

    {.name = "Wind", .levelDb = 12.75,
     .oscillators = {{"Sine", 0, 0, 0.04}}, .noise = 1.0,
     .unison = {2, 0.25, 1.0},
     .filter = {BandPass, 0.72, 0.72, 0.5}, .amp = {0.60, 1.0, 1.0, 0.80},
     .lfos = {{to::Cutoff, 0.30, Hz(0.31)}, {to::Cutoff, 0.20, Hz(0.83)}},
     .wheel = {Target::Cutoff, 0.15},
     .effects = {{Fx::Reverb, 0.62, 0.60}}},

    {.name = "Surf", .levelDb = 11.5,
     .oscillators = {{"Dark Cave", -24, 0, 0.15}}, .noise = 1.0,
     .unison = {2, 0.25, 1.0},
     .filter = {LowPass, 0.74, 0.0, 0.0}, .amp = {0.58, 1.0, 1.0, 0.90},
     .lfos = {{to::Cutoff, 0.46, Hz(0.4), Triangle, true}, {to::Amplitude, -0.70, Hz(0.4), Ramp, true}},
     .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Reverb, 0.55, 0.50}}},

    {.name = "Zap", .levelDb = 5.25,
     .oscillators = {{"Sine"}, {"Sine", 17, 0, 0.0}},
     .unison = {.restarts = true},
     .modulation = {ModKind::Phase, 0.20}, .amp = {0.0, 0.36, 0.0, 0.20},
     .envelopes = {{to::Pitch, 0.95, 0.0, 0.08}, {to::ModAmount, 0.70, 0.0, 0.20}},
     .wheel = {Target::AmpDecay, 0.20},
     .effects = {{Fx::Decimator, 0.55, 0.85}, {Fx::Reverb, 0.45, 0.50}}},

    {.name = "Robot Voice", .levelDb = 8.5,
     .oscillators = {{"Vowel Er"}, {"Sine", 4, -30, 0.0}, {"Vowel I", -12, 0, 0.4}},
     .modulation = {ModKind::Amplitude, 0.85}, .filter = {LowPass, 0.82, 0.35, 0.2}, .amp = {0.08, 1.0, 1.0, 0.15},
     .lfos = {{to::Cutoff, 0.42, Hz(2.6), Triangle, true}, {to::Pitch, 0.35, Hz(1.3), Square, true}},
     .wheel = {Target::Lfo1Rate, -0.25},
     .effects = {{Fx::Decimator, 0.40, 0.75}}},

    {.name = "Helicopter", .levelDb = 19.5,
     .oscillators = {{"Dark Steps", -24, 0, 0.6}}, .noise = 1.0,
     .filter = {LowPass, 0.60, 0.20, 0.0}, .amp = {0.40, 1.0, 1.0, 0.60},
     .lfos = {{to::Amplitude, -0.95, Hz(11.0), Ramp}, {to::Cutoff, 0.38, Hz(11.0), Ramp}},
     .wheel = {Target::Lfo1Rate, -0.20},
     .effects = {{Fx::HighPass, 0.0, 0.0}}},

    {.name = "Deep Space", .levelDb = 9.25,
     .oscillators = {{"Dark Drone", -12, -8}, {"FM Metal", -12, 9, 0.35}, {"Bell Gong", -24, 0, 0.6}}, .noise = 0.02,
     .unison = {4, 0.50, 1.0},
     .filter = {LowPass, 0.70, 0.40, 0.2}, .amp = {0.62, 1.0, 1.0, 0.95},
     .lfos = {{to::Cutoff, 0.36, Hz(0.12)}, {to::Pitch, 0.12, Hz(0.2)}},
     .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Phaser, 0.40, 0.70, 32.0, 0.9}, {Fx::Echo, 0.55, 0.45, 2.0}, {Fx::Reverb, 0.85, 0.55}}},

    {.name = "Broken Radio", .levelDb = 23.5,
     .oscillators = {{"Bright Shards", 0, -20}, {"Oboe", 1, 15, 0.6}}, .noise = 0.35,
     .filter = {BandPass, 0.80, 0.35, 0.1}, .amp = {0.0, 1.0, 1.0, 0.10},
     .lfos = {{to::Pitch, 0.40, Hz(0.4), Triangle}, {to::Amplitude, -0.70, Hz(7.3), Square}},
     .wheel = {Target::Cutoff, 0.15},
     .effects = {{Fx::Decimator, 0.25, 0.70, 0.75, 0.5, Square}, {Fx::Distortion, 0.33, 0.75},
                 {Fx::HighPass, 0.45, 0.20}}},

    {.name = "Flying Saucer", .levelDb = 0.5,
     .oscillators = {{"Sine", 12}, {"Triangle", 5, 0, 0.0}, {"Sine", 12, 14, 0.6}},
     .unison = {2, 0.35, 0.9},
     .modulation = {ModKind::Phase, 0.24}, .amp = {0.45, 1.0, 1.0, 0.70},
     .lfos = {{to::Pitch, 0.45, Hz(6.5)}, {to::ModAmount, 0.45, Hz(0.6)}},
     .wheel = {Target::Lfo1Rate, -0.30},
     .effects = {{Fx::Echo, 0.55, 0.55, 0.375}, {Fx::Reverb, 0.66, 0.60}}},

    {.name = "Anvil", .levelDb = 0.25,
     .oscillators = {{"FM Metal", 12}, {"Sine", 18, 31, 0.0}, {"Bell Gong", 22, -40, 0.6}}, .noise = 0.05,
     .unison = {3, 0.60, 0.8, true},
     .modulation = {ModKind::Amplitude, 0.90}, .filter = {HighPass, 0.46, 0.0, 0.3}, .amp = {0.0, 0.66, 0.0, 0.60},
     .envelopes = {{to::Pitch, 0.25, 0.0, 0.06}},
     .wheel = {Target::AmpDecay, 0.15},
     .effects = {{Fx::Reverb, 0.66, 0.70}}},
};
// clang-format on

} // namespace

std::vector<ProgramRow> FxPrograms() { return Rows("FX", kSounds); }

} // namespace korvane::factory::synth
