// A synth program as one row: what the channel's controls are set to, in the units a musician thinks in.
#pragma once

#include <cstddef>
#include <vector>

#include "engine/kernels/Unison.h"
#include "factory/words/ChannelWords.h"

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

using ModKind = OscillatorModulation;

/// Oscillator 2 acting on oscillator 1.
struct Modulation {
    ModKind kind = ModKind::Sync;
    double amount = 0.0; // knob; sync raises to 4 times the pitch, phase goes up to 12 radians
    double phase2 = 0.0; // knob, phase offset of oscillator 2
    bool invert2 = false;
    bool restarts = false; // oscillators 1 and 2 start near phase 0
};

struct Amplifier { // knobs
    double attack = 0.0, decay = 1.0, sustain = 1.0, release = 0.1;
};

struct Playing {
    bool mono = false;
    double slide = -1.0; // knob, time of the glide from note to note; below 0 there is none
    int octave = 0;      // -2..2
    int bend = 2;        // semitones, 0..12
    bool dynamic = true; // live notes are as loud as they are struck
};

struct SynthSound {
    const char* name;
    double levelDb = 0.0; // "CHN: Amp Level", -25..25
    Oscillator oscillators[kOscillators] = {};
    double noise = 0.0; // level, as those of the oscillators
    Playing playing = {};
    Unison unison = {};
    Modulation modulation = {};
    FilterSetting filter = {};
    Amplifier amp = {};
    EnvelopeSetting envelopes[2] = {};
    LfoSetting lfos[2] = {};
    Route velocity = {}, wheel = {}, pressure = {};
    std::vector<Effect> effects = {};
    EqDb eqDb = {};
};

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
