// The drum models that the kits are built from. Every setting of a model is a field of its shape.
#pragma once

#include <cstdint>
#include <vector>

#include "Sound.h"
#include "Synthesis.h"

namespace korvane::factory {

/// Sine with two falling pitch envelopes, a click and some air.
struct KickShape {
    double hz = 50.0;        // where the pitch comes to rest
    double sweep = 3.0;      // octaves above, the slow fall...
    double sweepTime = 0.05; // ...and its time constant, seconds
    double snap = 1.5;       // more octaves above, the fast fall of 3 ms
    double decay = 0.6;      // seconds to -60 dB
    double hold = 0.02;      // seconds before the decay
    double click = 0.2;      // level of the noise burst at the start
    double clickHz = 3000.0;
    double drive = 1.5;
    double second = 0.0; // level of the octave above, decays twice as fast
    double lowPass = 12000.0;
};
Buffer Kick(const KickShape& shape, std::uint32_t seed);

/// Two skin modes and the wires' noise.
struct SnareShape {
    double hz = 185.0, ratio = 1.72; // modes
    double tone = 0.6, toneDecay = 0.16;
    double bend = 0.6; // octaves that the modes fall in 12 ms
    double noise = 0.7, noiseDecay = 0.22;
    double lowHz = 900.0, highHz = 9000.0; // band of the noise
    double crack = 0.5;                    // level of the first 5 ms
    double drive = 1.4;
};
Buffer Snare(const SnareShape& shape, std::uint32_t seed);

struct ClapShape {
    double hz = 1100.0, q = 1.4;
    int hands = 4;
    double spacing = 0.010, decay = 0.22; // seconds; the decay is the last hand's
    double bright = 0.3;                  // level of what lies above 4 kHz
    double drive = 1.3;
};
Buffer Clap(const ClapShape& shape, std::uint32_t seed);

/// Inharmonic squares and noise through high-passes: hats, rides, crashes.
struct CymbalShape {
    double hz = 320.0; // of the lowest square
    std::vector<double> ratios = {1.0, 1.342, 1.6532, 1.9523, 2.1523, 2.5714};
    double metal = 0.7, noise = 0.4;
    double highPass = 7000.0;
    double attack = 0.0005, decay = 0.09; // seconds
    double body = 0.0, bodyHz = 3400.0;   // a lower band that decays `bodyTime` times as long
    double bodyTime = 1.0;
    double stick = 0.15;
    double drive = 1.0;
};
Buffer Cymbal(const CymbalShape& shape, std::uint32_t seed);

/// A skin that bends: sine, overtones, a beat of noise.
struct TomShape {
    double hz = 110.0, bend = 0.7, bendTime = 0.05, decay = 0.45;
    double overtone = 0.25; // level of the modes at 1.59 and 2.14
    double skin = 0.15;     // level of the noise at the start
    double skinHz = 1800.0;
    double drive = 1.3;
};
Buffer Tom(const TomShape& shape, std::uint32_t seed);

/// Struck bars, shells and bells: modes, a click and optionally squares through a band-pass.
struct StruckShape {
    std::vector<Mode> modes = {};
    double length = 0.5; // seconds
    double click = 0.3, clickHz = 4000.0, clickTime = 0.004;
    double drive = 1.2;
    double squares = 0.0, squaresHz = 540.0, squaresDecay = 0.3; // two squares a fifth apart
};
Buffer Struck(const StruckShape& shape, std::uint32_t seed);

/// Beads: bursts of band-passed noise.
struct ShakerShape {
    double hz = 6500.0, q = 0.9;
    double attack = 0.02, decay = 0.07;
    double back = 0.0, backAt = 0.07; // level and time of the return stroke
    double grain = 0.6;               // 0 smooth, 1 single beads
};
Buffer Shaker(const ShakerShape& shape, std::uint32_t seed);

/// Two-operator frequency modulation with noise: clangs, zaps, machines.
struct ClangShape {
    double hz = 220.0, ratio = 1.41, index = 4.0;
    double bend = 0.0, bendTime = 0.1; // octaves, seconds
    double decay = 0.5, indexDecay = 0.2;
    double noise = 0.2, noiseHz = 2500.0, noiseDecay = 0.1;
    double crushHold = 0.0; // frames; 0 leaves the sound alone
    int crushBits = 8;
    double drive = 2.0;
};
Buffer Clang(const ClangShape& shape, std::uint32_t seed);

} // namespace korvane::factory
