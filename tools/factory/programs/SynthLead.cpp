// Leads: most play one voice that glides, with vibrato on the wheel.
#include "factory/programs/SynthPrograms.h"

namespace korvane::factory::synth {

namespace {

using enum FilterType;
using enum LfoShape;

// clang-format off
const SynthSound kSounds[] = {
    {.name = "Saw Lead", .levelDb = 15.25,
     .oscillators = {{"Saw"}, {"Saw", 12, 7, 0.6}, {"Saw", 0, -8, 0.8}},
     .playing = {.mono = true, .slide = 0.40},
     .filter = {LowPass, 0.74, 0.45, 0.6}, .amp = {0.08, 0.80, 0.90, 0.30},
     .envelopes = {{to::Cutoff, 0.50, 0.0, 0.40}}, .lfos = {{to::Pitch, 0.0, Hz(5.5)}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Lfo1Amount, 0.20}, .pressure = {Target::Cutoff, 0.15},
     .effects = {{Fx::Echo, 0.45, 0.42, 0.75}}},

    {.name = "Super Saw Lead", .levelDb = 3.5,
     .oscillators = {{"Saw"}, {"Saw", 12, 0, 0.5}},
     .playing = {}, .unison = {7, 0.45, 0.7},
     .filter = {LowPass, 1.00, 0.05, 0.5}, .amp = {0.05, 0.80, 0.90, 0.35},
     .lfos = {{to::Pitch, 0.0, Hz(5.0)}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, -0.40}, .pressure = {Target::Lfo1Amount, 0.15},
     .effects = {{Fx::Reverb, 0.50, 0.60}}, .eqDb = {-4.0, 0.0, 0.0, 1.0, 2.0}},

    {.name = "Square Lead", .levelDb = 4.5,
     .oscillators = {{"Square"}, {"Square", 0, 7, 0.4}},
     .playing = {.mono = true, .slide = 0.50},
     .filter = {LowPass, 0.80, 0.15, 0.7}, .amp = {0.15, 0.80, 0.85, 0.25},
     .envelopes = {{to::Depth, 0.0, 0.60, 1.0}}, .lfos = {{to::Pitch, 0.13, Hz(5.2)}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Lfo1Amount, 0.18},
     .effects = {{Fx::Echo, 0.42, 0.40, 0.5}, {Fx::Reverb, 0.38, 0.55}}},

    {.name = "Sync Lead", .levelDb = 6.75,
     .oscillators = {{"Saw"}, {"Saw", -12, 6, 0.25}},
     .playing = {.mono = true, .slide = 0.35},
     .modulation = {ModKind::Sync, 0.45}, .filter = {LowPass, 0.98, 0.10, 0.5}, .amp = {0.0, 0.80, 0.90, 0.25},
     .envelopes = {{to::ModAmount, 0.74, 0.20, 0.50}}, .lfos = {{to::Pitch, 0.0, Hz(5.8)}},
     .velocity = {Target::Env1Amount, 0.08}, .wheel = {Target::Modulation, 0.60},
     .pressure = {Target::Lfo1Amount, 0.20},
     .effects = {{Fx::HighPass, 0.0, 0.0}, {Fx::Echo, 0.40, 0.50, 0.75}}},

    {.name = "Pulse Width Lead", .levelDb = 8.75,
     .oscillators = {{"Saw", 0, -4}, {"Saw", 0, 5, 1.0}},
     .playing = {.mono = true, .slide = 0.40},
     .modulation = {.phase2 = 0.6, .invert2 = true}, .filter = {LowPass, 0.84, 0.30, 0.6},
     .amp = {0.10, 0.80, 0.90, 0.25},
     .envelopes = {{to::Cutoff, 0.30, 0.32, 0.50}}, .lfos = {{to::Pitch, 0.0, Hz(5.5)}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Lfo1Amount, 0.20},
     .effects = {{Fx::Chorus, 0.40, 0.20, 8.0, 0.5}}},

    {.name = "Whistle Lead", .levelDb = 10.25,
     .oscillators = {{"Sine", 12}, {"Triangle", 24, 0, 0.06}}, .noise = 0.04,
     .playing = {.mono = true, .slide = 0.45},
     .filter = {LowPass, 0.76, 0.45, 1.0}, .amp = {0.28, 0.80, 0.90, 0.30},
     .envelopes = {{to::Depth, 0.0, 0.62, 1.0}, {to::Pitch, -0.20, 0.0, 0.20}}, .lfos = {{to::Pitch, 0.16, Hz(5.6)}},
     .wheel = {Target::Lfo1Amount, 0.20},
     .effects = {{Fx::Reverb, 0.55, 0.60}}},

    {.name = "Flute Lead", .levelDb = 8.25,
     .oscillators = {{"Half Sine"}, {"Triangle", 12, 1, 0.15}}, .noise = 0.10,
     .playing = {.mono = true, .slide = 0.25},
     .filter = {LowPass, 0.74, 0.10, 0.8}, .amp = {0.36, 0.60, 0.80, 0.30},
     .envelopes = {{to::Cutoff, 0.34, 0.22, 0.26}},
     .lfos = {{to::Amplitude, -0.35, Hz(4.8), Triangle}, {to::Pitch, 0.09, Hz(4.8)}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Lfo2Amount, 0.18},
     .effects = {{Fx::Reverb, 0.48, 0.50}}},

    {.name = "Solo Trumpet", .levelDb = 6.75,
     .oscillators = {{"Trumpet"}, {"Saw", 0, 3, 0.4}},
     .playing = {.mono = true, .slide = 0.20},
     .filter = {LowPass, 0.66, 0.05, 0.8}, .amp = {0.28, 0.60, 0.85, 0.22},
     .envelopes = {{to::Cutoff, 0.50, 0.36, 0.62}, {to::Pitch, -0.22, 0.0, 0.18}},
     .lfos = {{to::Pitch, 0.08, Hz(5.0)}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Lfo1Amount, 0.18}, .pressure = {Target::Cutoff, 0.15},
     .effects = {{Fx::Reverb, 0.42, 0.55}}},

    {.name = "Overdrive Lead", .levelDb = 4.25,
     .oscillators = {{"Saw"}, {"Saw", 0, 4, 0.8}, {"Pulse 25", -12, 0, 0.6}},
     .playing = {.mono = true, .slide = 0.35, .bend = 12},
     .filter = {LowPass, 0.84, 0.20, 0.5}, .amp = {0.0, 0.85, 0.90, 0.30},
     .lfos = {{to::Pitch, 0.0, Hz(5.4)}},
     .velocity = {Target::Cutoff, 0.05}, .wheel = {Target::Lfo1Amount, 0.22}, .pressure = {Target::Resonance, 0.40},
     .effects = {{Fx::Distortion, 0.33, 0.62}, {Fx::Echo, 0.42, 0.40, 0.75}}, .eqDb = {-8.0, -4.0, 2.0, -2.0, -6.0}},

    {.name = "Theremin", .levelDb = 5.75,
     .oscillators = {{"Sub Round"}, {"Vowel O", 0, 0, 0.12}},
     .playing = {.mono = true, .slide = 0.95, .bend = 12},
     .filter = {LowPass, 0.82, 0.10, 0.5}, .amp = {0.45, 1.0, 1.0, 0.50},
     .lfos = {{to::Pitch, 0.19, Hz(6.2)}, {to::Amplitude, -0.30, Hz(6.2), Triangle}},
     .wheel = {Target::Lfo1Amount, 0.20},
     .effects = {{Fx::Reverb, 0.60, 0.50}}},

    {.name = "Talking Lead", .levelDb = 15.75,
     .oscillators = {{"Vowel A"}, {"Vowel I", 0, 0, 0.9}, {"Pulse 12", 0, 4, 0.4}},
     .playing = {.mono = true, .slide = 0.30},
     .filter = {BandPass, 0.56, 0.45, 0.6}, .amp = {0.10, 0.90, 0.95, 0.25},
     .envelopes = {{to::Cutoff, 0.46, 0.46, 0.46}}, .lfos = {{to::Pitch, 0.0, Hz(5.5)}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Cutoff, 0.25}, .pressure = {Target::Lfo1Amount, 0.20},
     .effects = {{Fx::Echo, 0.40, 0.45, 0.5}}},

    {.name = "Glass Lead", .levelDb = 0.5,
     .oscillators = {{"Sine"}, {"Sine", 19, 2, 0.0}, {"Sine", 12, -3, 0.4}},
     .playing = {.mono = true, .slide = 0.30},
     .modulation = {ModKind::Phase, 0.34}, .amp = {0.05, 0.80, 0.85, 0.35},
     .envelopes = {{to::ModAmount, 0.40, 0.0, 0.40}}, .lfos = {{to::Pitch, 0.0, Hz(5.5)}},
     .velocity = {Target::Modulation, 0.10}, .wheel = {Target::Lfo1Amount, 0.20},
     .pressure = {Target::Modulation, 0.20},
     .effects = {{Fx::Echo, 0.45, 0.50, 0.75}, {Fx::Reverb, 0.50, 0.60}}},

    {.name = "Power Fifths", .levelDb = 11.5,
     .oscillators = {{"Saw"}, {"Saw", 7, 0, 0.9}, {"Square", -12, 0, 0.6}},
     .playing = {.mono = true, .slide = 0.30}, .unison = {3, 0.30, 0.5},
     .filter = {LowPass, 0.78, 0.30, 0.5}, .amp = {0.0, 0.80, 0.85, 0.25},
     .envelopes = {{to::Cutoff, 0.45, 0.10, 0.36}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Cutoff, 0.25},
     .effects = {{Fx::Reverb, 0.42, 0.45}}},

    {.name = "Arcade Lead", .levelDb = 1.25,
     .oscillators = {{"Pulse 12"}, {"Pulse 25", 0, 0, 0.6}},
     .playing = {.mono = true, .dynamic = false}, .unison = {.restarts = true},
     .amp = {0.0, 0.70, 0.60, 0.12},
     .lfos = {{to::Pitch, 1.0, Hz(15.0), Square, true}},
     .wheel = {Target::Lfo1Rate, 0.30},
     .effects = {{Fx::Decimator, 0.45, 0.85}}},
};
// clang-format on

} // namespace

std::vector<ProgramRow> LeadPrograms() { return Rows("Lead", kSounds); }

} // namespace korvane::factory::synth
