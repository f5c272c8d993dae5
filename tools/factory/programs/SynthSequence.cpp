// Sequences: one held note moves with the tempo.
#include "factory/programs/SynthPrograms.h"

namespace korvane::factory::synth {

namespace {

using enum FilterType;
using enum LfoShape;

// An LFO moves the pitch by 12 semitones times its amount squared.
constexpr double kOctave = 1.0, kFifth = 0.76377, kMinorThird = 0.5, kFourth = 0.645498;

// clang-format off
const SynthSound kSounds[] = {
    {.name = "Octave Bounce", .levelDb = 7.75,
     .oscillators = {{"Saw"}, {"Square", 0, 5, 0.6}},
     .playing = {.octave = -1},
     .filter = {LowPass, 0.68, 0.35, 0.5}, .amp = {0.0, 0.90, 0.90, 0.15},
     .lfos = {{to::Pitch, kOctave, Beats(0.5), Square, true}, {to::Cutoff, 0.40, Beats(0.25), Ramp, true}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, 0.25}},

    {.name = "Four Step Arp", .levelDb = 8.0,
     .oscillators = {{"Pulse 33"}, {"Saw", 0, 6, 0.7}},
     .filter = {LowPass, 0.80, 0.25, 0.5}, .amp = {0.0, 0.90, 0.90, 0.20},
     .lfos = {{to::Pitch, kFifth, Beats(0.5), Square, true}, {to::Pitch, kOctave, Beats(1.0), Square, true}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Cutoff, -0.25},
     .effects = {{Fx::Echo, 0.48, 0.45, 0.75}}},

    {.name = "Trance Gate", .levelDb = 6.0,
     .oscillators = {{"Saw"}, {"Saw", 12, 6, 0.6}, {"Saw", 0, -9, 0.8}},
     .unison = {5, 0.42, 0.8},
     .filter = {LowPass, 0.92, 0.10, 0.4}, .amp = {0.05, 1.0, 1.0, 0.30},
     .lfos = {{to::Amplitude, -1.0, Beats(0.25), Square, true}},
     .wheel = {Target::Cutoff, -0.40},
     .effects = {{Fx::Echo, 0.46, 0.45, 0.75}, {Fx::Reverb, 0.52, 0.55}}},

    {.name = "Filter Steps", .levelDb = 10.25,
     .oscillators = {{"Saw", 0, -5}, {"Saw", 0, 6, 0.9}},
     .unison = {2, 0.25, 0.5},
     .filter = {LowPass, 0.50, 0.55, 0.3}, .amp = {0.10, 1.0, 1.0, 0.25},
     .lfos = {{to::Cutoff, 0.50, Beats(0.75), Square, true}, {to::Cutoff, 0.42, Beats(0.5), Square, true}},
     .wheel = {Target::Cutoff, 0.25}, .pressure = {Target::Resonance, 0.20}},

    {.name = "Rolling Sixteenths", .levelDb = 15.75,
     .oscillators = {{"Square"}, {"Saw", 0, 4, 0.8}, {"Sub Round", -12, 0, 0.5}},
     .playing = {.mono = true, .octave = -1},
     .filter = {LowPass, 0.52, 0.30, 0.3}, .amp = {0.0, 0.0, 0.05, 0.08},
     .lfos = {{to::Cutoff, 0.58, Beats(0.25), Ramp, true}, {to::Amplitude, 0.95, Beats(0.25), Ramp, true}},
     .velocity = {Target::Lfo1Amount, 0.06}, .wheel = {Target::Cutoff, 0.25},
     .effects = {{Fx::HighPass, 0.0, 0.0}}},

    {.name = "Dotted Wobble", .levelDb = 13.0,
     .oscillators = {{"Sub Pulse"}, {"FM Brass", 0, 7, 0.8}},
     .playing = {.mono = true, .slide = 0.30, .octave = -1},
     .filter = {LowPass, 0.50, 0.60, 0.2}, .amp = {0.0, 1.0, 1.0, 0.20},
     .lfos = {{to::Cutoff, 0.62, Beats(0.375), Triangle, true}, {to::Cutoff, -0.30, Beats(2.0), Square, true}},
     .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Distortion, 0.15, 0.80}}},

    {.name = "Pump Chords", .levelDb = 5.0,
     .oscillators = {{"Saw"}, {"Saw Octaves", 0, 7, 0.7}},
     .unison = {3, 0.38, 0.8},
     .filter = {LowPass, 0.88, 0.05, 0.4}, .amp = {0.15, 1.0, 1.0, 0.35},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, -0.35},
     .effects = {{Fx::Reverb, 0.50, 0.50}, {Fx::Pump, 0.60, 0.10, 1.0}}},

    {.name = "Echo Line", .levelDb = 11.5,
     .oscillators = {{"Triangle"}, {"Square", 12, 4, 0.35}},
     .filter = {LowPass, 0.62, 0.35, 0.6}, .amp = {0.0, 0.52, 0.0, 0.20},
     .envelopes = {{to::Cutoff, 0.50, 0.0, 0.18}},
     .velocity = {Target::Env1Amount, 0.08}, .wheel = {Target::Env1Decay, 0.25},
     .effects = {{Fx::Echo, 0.80, 0.55, 0.75}, {Fx::Panner, 0.5, 0.6, 0.75, 0.8, Square}, {Fx::Reverb, 0.40, 0.60}}},

    {.name = "Three Against Four", .levelDb = 10.75,
     .oscillators = {{"FM Wire"}, {"Organ Quint", 0, 5, 0.6}},
     .filter = {BandPass, 0.52, 0.40, 0.3}, .amp = {0.05, 1.0, 1.0, 0.25},
     .lfos = {{to::Cutoff, 0.52, Beats(0.375), Ramp, true}, {to::Cutoff, 0.48, Beats(0.5), Triangle, true}},
     .wheel = {Target::Resonance, 0.30},
     .effects = {{Fx::Echo, 0.40, 0.50, 0.5}}},

    {.name = "Machine Gun", .levelDb = 18.25,
     .oscillators = {{"Bright Razor"}, {"Square", -12, 0, 0.8}}, .noise = 0.30,
     .filter = {LowPass, 0.92, 0.20, 0.3}, .amp = {0.0, 0.0, 0.05, 0.10},
     .lfos = {{to::Amplitude, 1.0, Beats(0.125), Ramp, true}, {to::Cutoff, 0.40, Beats(2.0), Triangle, true}},
     .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Distortion, 0.14, 0.85}, {Fx::Panner, 0.5, 0.7, 1.0, 0.7}}},

    {.name = "Acid Runner", .levelDb = 15.25,
     .oscillators = {{"Saw"}},
     .playing = {.mono = true, .slide = 0.25, .octave = -1}, .unison = {.restarts = true},
     .filter = {LowPass, 0.52, 0.78, 0.3}, .amp = {0.0, 1.0, 0.95, 0.10},
     .lfos = {{to::Cutoff, 0.55, Beats(0.25), Ramp, true}, {to::Pitch, kMinorThird, Beats(0.75), Square, true}},
     .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Distortion, 0.16, 0.80}, {Fx::HighPass, 0.0, 0.0}, {Fx::Echo, 0.36, 0.60, 0.75}},
     .eqDb = {3.0, 0.0, 0.0, 0.0, 0.0}},

    {.name = "Talking Steps", .levelDb = 10.5,
     .oscillators = {{"Vowel A"}, {"Vowel E", 0, 4, 0.9}, {"Sub Saw", -12, 0, 0.5}},
     .unison = {.restarts = true},
     .filter = {BandPass, 0.62, 0.45, 0.5}, .amp = {0.05, 1.0, 1.0, 0.20},
     .lfos = {{to::Cutoff, 0.42, Beats(1.0), Triangle, true}, {to::Cutoff, 0.30, Beats(0.5), Square, true}},
     .wheel = {Target::Cutoff, 0.20}, .eqDb = {2.0, 0.0, 3.0, 0.0, 0.0}},

    {.name = "Bell Cascade", .levelDb = 4.25,
     .oscillators = {{"Bell Celesta", 12}, {"Bell Glass", 0, 4, 0.4}},
     .unison = {2, 0.18, 0.8},
     .filter = {LowPass, 0.94, 0.0, 0.4}, .amp = {0.0, 0.0, 0.05, 0.30},
     .lfos = {{to::Pitch, kFourth, Beats(0.75), Square, true}, {to::Amplitude, 0.95, Beats(0.25), Ramp, true}},
     .wheel = {Target::Cutoff, -0.30},
     .effects = {{Fx::Echo, 0.52, 0.58, 0.75}, {Fx::Reverb, 0.60, 0.70}}},
};
// clang-format on

} // namespace

std::vector<ProgramRow> SequencePrograms() { return Rows("Sequence", kSounds); }

} // namespace korvane::factory::synth
