// The electronic drum models that the kits are built from. Every setting of a model is a field of its shape, in the
// order of the kits' columns.
#pragma once

#include <array>
#include <cstdint>

#include "factory/sound/Sound.h"
#include "factory/sound/Synthesis.h"

namespace korvane::factory {

inline constexpr double kTail = 1.25; // a sound is computed for this many decays

inline double Octaves(double count) { return std::exp2(count); }
inline double Rise(double t, double seconds) { return seconds <= 0.0 ? 1.0 : std::fmin(1.0, t / seconds); }

/// A burst of noise around hz, 60 dB down after `seconds`.
Buffer Burst(double hz, double seconds, std::uint32_t seed);

/// Sine with two falling pitch envelopes and a click.
struct KickShape {
    double hz;        // where the pitch comes to rest
    double sweep;     // octaves above, the slow fall...
    double sweepTime; // ...and its time constant, seconds
    double snap;      // more octaves above, the fast fall of 3 ms
    double hold;      // seconds before the decay
    double decay;     // seconds to -60 dB
    double click;     // level of the noise burst at the start
    double clickHz;
    double second; // level of the octave above, decays twice as fast
    double drive;
    double lowPass; // Hz
};
Buffer Kick(const KickShape& shape, std::uint32_t seed);

/// Two skin modes and the wires' noise.
struct SnareShape {
    double hz, ratio; // of the modes
    double bend;      // octaves that the modes fall in 12 ms
    double tone, toneDecay;
    double noise, noiseDecay;
    double lowHz, highHz; // band of the noise
    double crack;         // level of the first 10 ms
    double drive;
};
Buffer Snare(const SnareShape& shape, std::uint32_t seed);

/// Noise that several hands start.
struct ClapShape {
    double hz, q;
    int hands;
    double spacing, decay; // seconds; the decay is the last hand's
    double bright;         // level of what lies above 4 kHz
    double drive;
};
Buffer Clap(const ClapShape& shape, std::uint32_t seed);

/// Inharmonic squares and noise through high-passes: hats, rides, crashes of circuits.
struct CymbalShape {
    double hz; // of the lowest square
    Ratios ratios;
    double metal, noise;
    double highPass, lowPass; // Hz
    double attack, decay;     // seconds
    double body, bodyHz;      // a lower band that decays `bodyTime` times as long
    double bodyTime;
    double drive;
};
Buffer Cymbal(const CymbalShape& shape, std::uint32_t seed);

/// A sine that bends, two overtones, a beat of noise.
struct TomShape {
    double hz, bend, bendTime, decay;
    double overtone; // level of the modes at 1.59 and 2.14
    double skin;     // level of the noise at the start
    double skinHz;
    double drive;
};
Buffer Tom(const TomShape& shape, std::uint32_t seed);

using Modes = std::array<Mode, 6>; // level 0: none

/// Struck bars, blocks and bells: modes and a click, or two squares through a band-pass.
struct StruckShape {
    Modes modes;
    double length; // seconds
    double click, clickHz, clickTime;
    double squares, squaresHz, squaresDecay; // two squares a fifth apart
    double drive;
};
Buffer Struck(const StruckShape& shape, std::uint32_t seed);

/// The modes of a free bar (Euler and Bernoulli), the high ones damped.
constexpr Modes Bar(double hz, double decay, double bright)
{
    return {{{hz, 1.0, decay},
             {hz * 2.756, bright, decay * 0.6},
             {hz * 2.771, 0.7 * bright, decay * 0.55}, // bars are never quite round
             {hz * 5.404, 0.7 * bright, decay * 0.4},
             {hz * 8.933, 0.5 * bright, decay * 0.28},
             {hz * 13.34, 0.3 * bright, decay * 0.2}}};
}

/// Beads: band-passed noise that two strokes of a hand let through.
struct ShakerShape {
    double hz, q;
    double attack, decay;
    double back, backAt; // level and time of the return stroke
    double grain;        // 0 smooth, 1 single beads
};
Buffer Shaker(const ShakerShape& shape, std::uint32_t seed);

/// Two-operator frequency modulation with noise: clangs, zaps, machines.
struct ClangShape {
    double hz, ratio, index;
    double bend, bendTime; // octaves, seconds
    double decay, indexDecay;
    double noise, noiseHz, noiseDecay;
    double drive;
};
Buffer Clang(const ClangShape& shape, std::uint32_t seed);

/// Noise through a filter that moves: steam, brushes, sweeps.
struct SweepShape {
    double fromHz, toHz, time; // the corner's time constant, seconds
    double q;
    double attack, decay;
    double flutterHz, flutter; // amplitude modulation, depth 0..1
    double drive;
};
Buffer Sweep(const SweepShape& shape, std::uint32_t seed);

/// A chord of squares through a closing low-pass.
struct StabShape {
    double hz;
    Ratios chord;
    double openHz, closedHz, closeTime, q;
    double decay;
    double drive;
};
Buffer Stab(const StabShape& shape, std::uint32_t seed);

} // namespace korvane::factory
