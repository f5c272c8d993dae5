// A synth program as one row: what the channel's controls are set to, in the units a musician thinks in.
#pragma once

#include <cstddef>
#include <vector>

#include "factory/words/Patch.h"

namespace korvane::factory::synth {

struct Oscillator {
    const char* wave = nullptr; // of "Synth Waves"; null leaves the oscillator at the default wave, silent
    int semitones = 0;          // -36..36
    int cents = 0;              // -50..50
    double level = 1.0;         // against the other oscillators and the noise; all together make full level
};

struct Unison {
    int voices = 1;        // 1..16
    double detune = 0.25;  // knob; 0.25 spreads them over 12 cents, 0.5 over 48
    double stereo = 0.0;   // knob
    bool restarts = false; // every note starts at the same phases, a hard attack
    double phase = 0.0;    // cycles between neighbouring voices then
};

/// Oscillator 2 acting on oscillator 1.
enum class ModKind { Sync, Phase, Amplitude };
struct Modulation {
    ModKind kind = ModKind::Sync;
    double amount = 0.0; // knob; sync raises to 4 times the pitch, phase goes up to 12 radians
    double phase2 = 0.0; // knob, phase offset of oscillator 2
    bool invert2 = false;
    bool restarts = false; // oscillators 1 and 2 start near phase 0
};

enum class FilterType { LowPass, BandPass, HighPass };
struct Filter {
    FilterType type = FilterType::LowPass;
    double cutoff = 1.0; // knob; 12 dB down at 14 Hz for 0, an octave higher every 0.102
    double resonance = 0.0;
    double tracking = 0.0; // knob; 1 follows the keys
};

struct Amplifier { // knobs
    double attack = 0.0, decay = 1.0, sustain = 1.0, release = 0.1;
};

/// Pitch: 24 semitones times amount squared for an envelope, 12 for an LFO. Fourth: an envelope shapes the depth of the
/// LFO of the same number, an LFO acts on the level.
enum class To { Cutoff, Modulation, Pitch, Fourth };

struct EnvelopeSetting {
    To to = To::Cutoff;
    double amount = 0.0; // knob, -1..1, squared by the engine with its sign
    double attack = 0.0; // knob
    double decay = 1.0;  // knob
};

/// Hz or beats.
struct Rate {
    double hz = 1.0;
    double beats = 0.0; // 1/8, 1/4, 3/8, 1/2, 3/4, 1, 2, 4, 8 and four times these; 0: free
};
constexpr Rate Hz(double hz) { return {hz, 0.0}; }
constexpr Rate Beats(double beats) { return {0.0, beats}; }

enum class LfoShape { Sine, Triangle, Ramp, Square }; // all but the sine are unipolar; the ramp falls

struct LfoSetting {
    To to = To::Cutoff;
    double amount = 0.0; // knob, -1..1, squared by the engine with its sign
    Rate rate = {};
    LfoShape shape = LfoShape::Sine;
    bool restarts = false; // with every note
};

/// What velocity, wheel and pressure may move.
enum class Target : int {
    None = 0,
    Cutoff = 1,
    Resonance = 2,
    Modulation = 4,
    Env1Attack = 6,
    Env1Decay = 7,
    Env1Amount = 8,
    Env2Attack = 10,
    Env2Decay = 11,
    Env2Amount = 12,
    Lfo1Rate = 14,
    Lfo1Amount = 15,
    Lfo2Rate = 17,
    Lfo2Amount = 18,
    AmpAttack = 20,
    AmpDecay = 21,
};
struct Route {
    Target target = Target::None;
    double amount = 0.0; // -1..1, added to the knob at full velocity, wheel or pressure
};

struct Playing {
    bool mono = false;
    double slide = -1.0; // knob, time of the glide from note to note; below 0 there is none
    int octave = 0;      // -2..2
    int bend = 2;        // semitones, 0..12
    bool dynamic = true; // live notes are as loud as they are struck
};

/// An effect that is glued on. X and Y as on the pad.
enum class Fx { None = -1, Distortion, Crush, Chorus, Phaser, LowPass, HighPass, Echo, Reverb, Panner, Pump };
struct Effect {
    Fx unit = Fx::None;
    double x = 0.5, y = 0.5;
    double beats = 1.0;              // of its LFO, and the echo's time
    double lfo = 0.0;                // -1..1, squared by the engine with its sign
    LfoShape shape = LfoShape::Sine; // here the ramp rises
};

struct SynthSound {
    const char* name;
    double levelDb = 0.0; // "CHN: Amp Level", -25..25
    Oscillator oscillators[3] = {};
    double noise = 0.0; // level, as those of the oscillators
    Playing playing = {};
    Unison unison = {};
    Modulation modulation = {};
    Filter filter = {};
    Amplifier amp = {};
    EnvelopeSetting envelopes[2] = {};
    LfoSetting lfos[2] = {};
    Route velocity = {}, wheel = {}, pressure = {};
    Effect effects[4] = {};
    double eqDb[5] = {}; // 80 Hz shelf, 220, 1200 and 6000 Hz, 12 kHz shelf; -12..12
};

/// Glues the effect on; no other parameter changes.
void Apply(const Effect& effect, Patch& patch);
/// Sets a reset channel to the sound.
void Apply(const SynthSound& sound, Patch& patch);

/// Rows of one category folder.
template <std::size_t n>
std::vector<ProgramRow> Rows(const char* folder, const SynthSound (&sounds)[n])
{
    std::vector<ProgramRow> rows;
    for (const SynthSound& sound : sounds)
        rows.push_back({folder, sound.name, [&sound](Patch& patch) { Apply(sound, patch); }});
    return rows;
}

} // namespace korvane::factory::synth
