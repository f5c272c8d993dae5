// Basses: they sound an octave below the key, so that the sequencer's two octaves start at 65 Hz.
#include "factory/programs/SynthPrograms.h"

namespace korvane::factory::synth {

namespace {

using enum FilterType;
using enum LfoShape;

// clang-format off
const SynthSound kSounds[] = {
    {.name = "Saw Bass", .levelDb = 14.5,
     .oscillators = {{"Saw"}, {"Saw", 0, 9, 0.8}, {"Square", -12, 0, 0.6}},
     .playing = {.mono = true, .slide = 0.35, .octave = -1},
     .filter = {LowPass, 0.63, 0.25, 0.4}, .amp = {0.0, 0.60, 0.80, 0.20},
     .envelopes = {{to::Cutoff, 0.50, 0.0, 0.30}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Cutoff, 0.30}, .pressure = {Target::Cutoff, 0.15}},

    {.name = "Sub Bass", .levelDb = 2.75,
     .oscillators = {{"Sine"}, {"Sub Round", 0, 0, 0.5}},
     .playing = {.mono = true, .slide = 0.30, .octave = -1}, .unison = {.restarts = true},
     .filter = {LowPass, 0.70, 0.0, 0.3}, .amp = {0.10, 0.80, 0.85, 0.25},
     .wheel = {Target::Cutoff, 0.30}},

    {.name = "Square Bass", .levelDb = 8.5,
     .oscillators = {{"Square"}, {"Pulse 33", 12, 4, 0.35}},
     .playing = {.mono = true, .slide = 0.25, .octave = -1},
     .filter = {LowPass, 0.67, 0.15, 0.5}, .amp = {0.0, 0.50, 0.70, 0.15},
     .envelopes = {{to::Cutoff, 0.40, 0.0, 0.22}},
     .velocity = {Target::Cutoff, 0.06}, .wheel = {Target::Cutoff, 0.30}},

    {.name = "Acid Bass", .levelDb = 13.25,
     .oscillators = {{"Saw"}},
     .playing = {.mono = true, .slide = 0.55, .octave = -1, .bend = 12}, .unison = {.restarts = true},
     .filter = {LowPass, 0.46, 0.92, 0.3}, .amp = {0.0, 0.55, 0.55, 0.12},
     .envelopes = {{to::Cutoff, 0.60, 0.0, 0.36}},
     .velocity = {Target::Env1Amount, 0.12}, .wheel = {Target::Cutoff, 0.25}, .pressure = {Target::Resonance, 0.08},
     .effects = {{Fx::Distortion, 0.16, 0.80}}, .eqDb = {4.0, 0.0, 2.0, 0.0, 0.0}},

    {.name = "Reese Bass", .levelDb = 9.0,
     .oscillators = {{"Saw", 0, -18}, {"Saw", 0, 18, 1.0}, {"Saw", -12, 5, 0.5}},
     .playing = {.mono = true, .slide = 0.45, .octave = -1}, .unison = {2, 0.45, 0.5},
     .filter = {LowPass, 0.76, 0.15, 0.3}, .amp = {0.15, 1.0, 1.0, 0.30},
     .lfos = {{to::Cutoff, 0.22, Hz(0.23)}},
     .wheel = {Target::Cutoff, 0.25},
     .effects = {{Fx::Phaser, 0.18, 0.03, 32.0, 0.6}}},

    {.name = "Solid FM Bass", .levelDb = 3.0,
     .oscillators = {{"Sine"}, {"Sine", 0, 0, 0.0}},
     .playing = {.mono = true, .octave = -1}, .unison = {.restarts = true},
     .modulation = {ModKind::Phase, 0.34}, .amp = {0.0, 0.58, 0.40, 0.15},
     .envelopes = {{to::ModAmount, 0.66, 0.0, 0.28}},
     .velocity = {Target::Env1Amount, 0.12}, .wheel = {Target::Modulation, 0.30}},

    {.name = "Wobble Bass", .levelDb = 12.75,
     .oscillators = {{"Saw", 0, -6}, {"Square", 0, 6, 0.8}, {"Sub Round", -12, 0, 0.6}},
     .playing = {.mono = true, .slide = 0.30, .octave = -1},
     .filter = {LowPass, 0.50, 0.45, 0.2}, .amp = {0.0, 1.0, 1.0, 0.20},
     .lfos = {{to::Cutoff, 0.60, Beats(0.5), Triangle, true}},
     .wheel = {Target::Lfo1Rate, 0.35}, .pressure = {Target::Resonance, 0.20},
     .effects = {{Fx::Distortion, 0.14, 0.85}}, .eqDb = {3.0, 0.0, 0.0, 2.0, 0.0}},

    {.name = "Upright Bass", .levelDb = 11.25,
     .oscillators = {{"Piano"}, {"Half Sine", 0, 3, 0.9}, {"Sine", 0, 0, 0.5}}, .noise = 0.03,
     .playing = {.mono = true, .slide = 0.15, .octave = -1},
     .filter = {LowPass, 0.72, 0.05, 0.6}, .amp = {0.06, 0.60, 0.0, 0.25},
     .envelopes = {{to::Cutoff, 0.45, 0.0, 0.16}, {to::Pitch, 0.12, 0.0, 0.10}},
     .velocity = {Target::Cutoff, 0.08}, .wheel = {Target::Cutoff, 0.20},
     .effects = {{Fx::Reverb, 0.30, 0.45}}},

    {.name = "Slap Bass", .levelDb = 10.75,
     .oscillators = {{"Sub Round"}, {"Sine", 24, 0, 0.0}, {"FM Twang", 0, 0, 0.8}}, .noise = 0.02,
     .playing = {.mono = true, .octave = -1}, .unison = {.restarts = true},
     .modulation = {ModKind::Phase, 0.20}, .filter = {LowPass, 0.87, 0.10, 0.5}, .amp = {0.0, 0.52, 0.0, 0.18},
     .envelopes = {{to::ModAmount, 0.62, 0.0, 0.18}, {to::Cutoff, 0.40, 0.0, 0.15}},
     .velocity = {Target::Env1Amount, 0.12}, .wheel = {Target::Modulation, 0.20}, .eqDb = {2.0, -3.0, 0.0, 3.0, 0.0}},

    {.name = "Rubber Bass", .levelDb = 19.75,
     .oscillators = {{"Triangle"}, {"Sub Saw", 0, 3, 0.7}},
     .playing = {.mono = true, .slide = 0.40, .octave = -1}, .unison = {.restarts = true},
     .filter = {LowPass, 0.52, 0.70, 0.6}, .amp = {0.12, 0.50, 0.30, 0.18},
     .envelopes = {{to::Cutoff, 0.58, 0.28, 0.28}, {to::Pitch, -0.25, 0.0, 0.14}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Cutoff, 0.25}},

    {.name = "Growl Bass", .levelDb = 8.25,
     .oscillators = {{"FM Growl"}, {"Saw", -12, 0, 0.5}, {"Sub Round", 0, 0, 0.7}},
     .playing = {.mono = true, .slide = 0.35, .octave = -1},
     .modulation = {ModKind::Phase, 0.18}, .filter = {LowPass, 0.72, 0.40, 0.2}, .amp = {0.10, 1.0, 1.0, 0.20},
     .envelopes = {{to::Depth, 0.0, 0.30, 0.60}},
     .lfos = {{to::ModAmount, 0.45, Hz(5.0)}, {to::Cutoff, 0.30, Hz(5.0), Triangle}},
     .wheel = {Target::Lfo1Rate, -0.30}, .pressure = {Target::Modulation, 0.20},
     .effects = {{Fx::Distortion, 0.15, 0.75}}, .eqDb = {3.0, 0.0, 3.0, 0.0, 0.0}},

    {.name = "House Organ Bass", .levelDb = 12.75,
     .oscillators = {{"Organ Gospel", 12}, {"Sine", 0, 0, 0.7}, {"Square", 12, 0, 0.3}},
     .playing = {.mono = true, .octave = -1}, .unison = {.restarts = true},
     .filter = {LowPass, 0.79, 0.10, 0.5}, .amp = {0.0, 0.42, 0.50, 0.10},
     .envelopes = {{to::Cutoff, 0.50, 0.0, 0.20}},
     .velocity = {Target::Cutoff, 0.05}, .wheel = {Target::Cutoff, 0.20}, .eqDb = {2.0, 0.0, 2.0, 0.0, 0.0}},

    {.name = "Boom Bass", .levelDb = 5.25,
     .oscillators = {{"Sine"}},
     .playing = {.mono = true, .slide = 0.50, .octave = -1}, .unison = {.restarts = true},
     .amp = {0.0, 0.78, 0.0, 0.45},
     .envelopes = {{to::Pitch, 0.85, 0.0, 0.16}},
     .wheel = {Target::Env1Decay, 0.20},
     .effects = {{Fx::Distortion, 0.22, 0.20}}},

    {.name = "Sync Bass", .levelDb = 13.0,
     .oscillators = {{"Saw"}, {"Saw", -12, 0, 0.6}},
     .playing = {.mono = true, .slide = 0.25, .octave = -1},
     .modulation = {ModKind::Sync, 0.15}, .filter = {LowPass, 0.86, 0.20, 0.3}, .amp = {0.0, 0.55, 0.65, 0.18},
     .envelopes = {{to::ModAmount, 0.75, 0.0, 0.34}},
     .velocity = {Target::Env1Amount, 0.10}, .wheel = {Target::Modulation, 0.60},
     .effects = {{Fx::HighPass, 0.0, 0.0}}},

    {.name = "Dub Bass", .levelDb = 2.5,
     .oscillators = {{"Soft Square"}, {"Sub Fifth", 0, 0, 0.4}},
     .playing = {.mono = true, .slide = 0.30, .octave = -1}, .unison = {.restarts = true},
     .filter = {LowPass, 0.62, 0.35, 0.5}, .amp = {0.18, 0.65, 0.60, 0.30},
     .envelopes = {{to::Cutoff, 0.20, 0.0, 0.30}},
     .wheel = {Target::Cutoff, 0.30}, .eqDb = {3.0, 2.0, 0.0, 0.0, 0.0}},
};
// clang-format on

} // namespace

std::vector<ProgramRow> BassPrograms() { return Rows("Bass", kSounds); }

} // namespace korvane::factory::synth
