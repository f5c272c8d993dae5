// Keys: struck and blown keyboards, played in chords with velocity.
#include "factory/programs/SynthPrograms.h"

namespace korvane::factory::synth {

namespace {

using enum FilterType;
using enum LfoShape;

// clang-format off
const SynthSound kSounds[] = {
    {.name = "Electric Piano", .levelDb = 2.0,
     .oscillators = {{"Sine"}, {"Sine", 0, 0, 0.0}, {"FM Tine", 0, 1, 0.35}},
     .unison = {.restarts = true},
     .modulation = {ModKind::Phase, 0.10}, .filter = {LowPass, 0.94, 0.0, 0.6}, .amp = {0.0, 0.72, 0.0, 0.35},
     .envelopes = {{to::ModAmount, 0.36, 0.0, 0.42}, {to::Cutoff, 0.30, 0.0, 0.30}},
     .velocity = {Target::Env1Amount, 0.14}, .wheel = {Target::Modulation, 0.20},
     .effects = {{Fx::Reverb, 0.34, 0.50}}},

    {.name = "Suitcase Piano", .levelDb = 3.75,
     .oscillators = {{"Sub Round"}, {"Sine", 0, 3, 0.8}, {"Bell Kalimba", 12, 0, 0.30}},
     .unison = {.restarts = true},
     .filter = {LowPass, 0.80, 0.05, 0.7}, .amp = {0.08, 0.76, 0.0, 0.35},
     .envelopes = {{to::Cutoff, 0.40, 0.0, 0.30}},
     .velocity = {Target::Cutoff, 0.10}, .wheel = {Target::Cutoff, 0.15},
     .effects = {{Fx::Panner, 0.5, 0.7, 0.375, 0.60}}},

    {.name = "Grand Piano", .levelDb = 1.5,
     .oscillators = {{"Piano", 0, -1}, {"Piano", 0, 1, 0.9}, {"Triangle", 12, 0, 0.12}}, .noise = 0.015,
     .unison = {.restarts = true},
     .filter = {LowPass, 0.76, 0.0, 0.8}, .amp = {0.0, 0.74, 0.0, 0.30},
     .envelopes = {{to::Cutoff, 0.46, 0.0, 0.34}},
     .velocity = {Target::Cutoff, 0.10}, .wheel = {Target::Cutoff, -0.20},
     .effects = {{Fx::Reverb, 0.38, 0.55}}, .eqDb = {1.0, 0.0, -1.0, 2.0, 0.0}},

    {.name = "House Piano", .levelDb = 2.0,
     .oscillators = {{"Piano", 0, -6}, {"Saw", 0, 7, 0.7}, {"Piano", 12, 4, 0.4}}, .noise = 0.01,
     .unison = {3, 0.24, 0.6, true, 0.37},
     .filter = {LowPass, 0.86, 0.05, 0.3}, .amp = {0.06, 0.72, 0.0, 0.22},
     .envelopes = {{to::Cutoff, 0.40, 0.0, 0.26}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, -0.25},
     .effects = {{Fx::Reverb, 0.40, 0.60}}, .eqDb = {-2.0, 0.0, 1.0, 3.0, 1.0}},

    {.name = "Jazz Organ", .levelDb = 4.0,
     .oscillators = {{"Organ Jazz", 12}, {"Organ Ballad", 0, 0, 0.5}, {"Sine", 31, 2, 0.12}},
     .playing = {.dynamic = false},
     .filter = {LowPass, 0.92, 0.0, 0.5}, .amp = {0.05, 0.35, 0.90, 0.10},
     .lfos = {{to::Pitch, 0.07, Hz(6.4)}, {to::Amplitude, -0.30, Hz(6.4), Triangle}},
     .wheel = {Target::Lfo2Amount, 0.20},
     .effects = {{Fx::Panner, 0.5, 0.35, 0.25, 0.5}, {Fx::Reverb, 0.35, 0.50}}},

    {.name = "Gospel Organ", .levelDb = 3.25,
     .oscillators = {{"Organ Gospel", 12}, {"Organ Full", 12, 2, 0.5}, {"Organ Reed", 0, -3, 0.4}},
     .playing = {.dynamic = false},
     .filter = {LowPass, 1.00, 0.0, 0.4}, .amp = {0.0, 1.0, 1.0, 0.10},
     .wheel = {Target::Cutoff, -0.30},
     .effects = {{Fx::Distortion, 0.10, 0.75}, {Fx::Chorus, 0.50, 0.20, 0.25, 0.45}, {Fx::Reverb, 0.42, 0.50}}},

    {.name = "Church Organ", .levelDb = 2.75,
     .oscillators = {{"Organ Full", 0, -3}, {"Organ Theatre", 12, 3, 0.7}, {"Organ Quint", 0, 0, 0.5}},
     .playing = {.dynamic = false}, .unison = {2, 0.15, 0.8},
     .filter = {LowPass, 0.98, 0.0, 0.3}, .amp = {0.28, 1.0, 1.0, 0.35},
     .wheel = {Target::Cutoff, -0.30},
     .effects = {{Fx::Reverb, 0.74, 0.60}}},

    {.name = "Clav", .levelDb = 14.75,
     .oscillators = {{"Pulse 12"}, {"Pulse 25", 12, 3, 0.5}},
     .unison = {.restarts = true},
     .filter = {BandPass, 0.72, 0.35, 0.7}, .amp = {0.0, 0.55, 0.0, 0.08},
     .envelopes = {{to::Cutoff, -0.22, 0.0, 0.24}},
     .velocity = {Target::Env1Amount, 0.12}, .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Phaser, 0.35, 0.35, 4.0, 0.6}}, .eqDb = {0.0, 2.0, 0.0, 3.0, 0.0}},

    {.name = "Harpsichord", .levelDb = 7.25,
     .oscillators = {{"Pulse 5"}, {"Pulse 12", 12, 4, 0.6}, {"Saw", 0, -4, 0.3}}, .noise = 0.01,
     .unison = {.restarts = true},
     .filter = {HighPass, 0.48, 0.10, 0.5}, .amp = {0.0, 0.64, 0.0, 0.16},
     .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Reverb, 0.40, 0.70}}},

    {.name = "Celesta", .levelDb = 1.5,
     .oscillators = {{"Bell Celesta", 12}, {"Sine", 12, 4, 0.4}},
     .unison = {.restarts = true},
     .filter = {LowPass, 0.98, 0.0, 0.5}, .amp = {0.0, 0.66, 0.0, 0.45},
     .envelopes = {{to::Cutoff, 0.34, 0.0, 0.25}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::AmpDecay, 0.15},
     .effects = {{Fx::Reverb, 0.50, 0.70}}},

    {.name = "Musette", .levelDb = 1.0,
     .oscillators = {{"Accordion", 0, -12}, {"Accordion", 0, 12, 1.0}, {"Oboe", 12, 0, 0.4}},
     .playing = {.dynamic = false},
     .filter = {LowPass, 0.94, 0.0, 0.4}, .amp = {0.30, 1.0, 1.0, 0.20},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, -0.30},
     .effects = {{Fx::Reverb, 0.36, 0.50}}},

    {.name = "Vibraphone", .levelDb = 2.0,
     .oscillators = {{"Sine", 12}, {"Sine", 36, 0, 0.25}, {"Sub Round", 12, 2, 0.4}},
     .unison = {.restarts = true},
     .filter = {LowPass, 0.86, 0.0, 0.5}, .amp = {0.08, 0.78, 0.0, 0.60},
     .envelopes = {{to::Cutoff, 0.32, 0.0, 0.20}}, .lfos = {{to::Amplitude, -0.42, Hz(5.4), Triangle}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Lfo1Amount, 0.20},
     .effects = {{Fx::Reverb, 0.52, 0.60}}},

    {.name = "Crystal Keys", .levelDb = 1.5,
     .oscillators = {{"Sine"}, {"Sine", 28, -14, 0.0}, {"Bell Chime", 0, 5, 0.2}},
     .unison = {2, 0.22, 0.8, true},
     .modulation = {ModKind::Phase, 0.18}, .filter = {LowPass, 1.00, 0.0, 0.3}, .amp = {0.0, 0.70, 0.15, 0.50},
     .envelopes = {{to::ModAmount, 0.40, 0.0, 0.32}},
     .velocity = {Target::Env1Amount, 0.12}, .wheel = {Target::Modulation, 0.25},
     .effects = {{Fx::Echo, 0.36, 0.55, 0.75}, {Fx::Reverb, 0.55, 0.75}}},
};
// clang-format on

} // namespace

std::vector<ProgramRow> KeysPrograms() { return Rows("Keys", kSounds); }

} // namespace korvane::factory::synth
