// The inner loop of the synth: unison voices of table oscillators and noise.
#pragma once

#include <cstdint>

#include "content/WaveTables.h"
#include "engine/voice/RandomGenerator.h"
#include "framework/Limits.h"

namespace korvane {

/// Phases of one of the stacked unison voices; a full cycle is 2^32.
struct UnisonPhases {
    std::uint32_t osc1, sync, osc2, osc3;
};

/// How oscillator 2 or its reference modulates oscillator 1.
enum class OscillatorModulation : int {
    Sync = 0,      // oscillator 1 restarts with a reference at the note's own pitch while its frequency is swept
    Phase = 1,     // oscillator 2 moves oscillator 1's phase
    Amplitude = 2, // oscillator 2 moves oscillator 1's amplitude
};

inline constexpr int kOscillatorsAndNoise = kOscillators + 1; // the last one is the noise

/// Levels and modulation of a run, the same for every voice of the channel.
struct UnisonMix {
    int unisonCount = 1; // 1..16
    OscillatorModulation modulation = OscillatorModulation::Sync;
    std::uint32_t phaseOffset2 = 0; // of oscillator 2; a full cycle is 2^32
    bool invert2 = false;           // oscillator 2
    float gainLeft[kOscillatorsAndNoise][kUnison] = {};
    float gainRight[kOscillatorsAndNoise][kUnison] = {};
};

/// Frequencies and tables of one voice for a run; phases per frame, a full cycle is 2^32.
struct UnisonTuning {
    const float* tables[kOscillators] = {}; // one cycle each
    std::uint32_t increments[kOscillators][kUnison] = {};
    std::uint32_t syncIncrements[kUnison] = {};
};

inline constexpr int kTableShift = 22; // from a phase to a point of a table
static_assert(kWaveTablePoints == 1 << (32 - kTableShift));

/// A phase from a float, 4 to a cycle, as the instrument rounds it: the bias lets negative positions convert as well,
/// and the steps, one short of 2^22 per quarter, put position 0 a trifle before phase 0.
std::uint32_t PhaseOf(float quarterCycles);
inline constexpr float kPhaseBias = 64.0f;
inline constexpr float kPhaseSteps = 4194303.0f;
inline constexpr float kPhaseLimit = 2147483520.0f; // what int32 holds; only parameters far outside 0..1 get there

/// Renders `frames` frames of all unison voices into left and right. Tables are read without interpolation; a random
/// fraction of a table step is added to the phase of every read instead, so that the error turns into noise. Each
/// unison voice draws four numbers per frame, frame after frame, unison voice after unison voice: for oscillator 2,
/// oscillator 1, oscillator 3 and the noise.
/// modAmount    of each frame; nothing behind the last one is read
/// phases       of the unison voices, moved on by the run
/// left, right  kMaxRun floats, aligned to 64 bytes; up to the next multiple of 4 frames is overwritten
void RenderUnison(const UnisonMix& mix, const UnisonTuning& tuning, const float* modAmount, UnisonPhases* phases,
                  RandomGenerator& random, float* left, float* right, int frames);

} // namespace korvane
