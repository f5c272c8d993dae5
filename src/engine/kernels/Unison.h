// The source of a synth voice: unison voices of table oscillators and noise.
#pragma once

#include <cstdint>

#include "content/WaveTables.h"
#include "engine/dsp/RandomGenerator.h"
#include "framework/Limits.h"
#include "platform/Numbers.h"

namespace korvane {

/// Phases of the stacked unison voices; a full cycle is 2^32.
struct UnisonPhases {
    alignas(64) std::uint32_t osc1[kUnison], sync[kUnison], osc2[kUnison], osc3[kUnison];
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
    std::uint32_t phaseOffset2 = 0;            // of oscillator 2; a full cycle is 2^32
    bool invert2 = false;                      // oscillator 2
    bool heard[kOscillatorsAndNoise] = {true}; // not where all gains are 0; oscillator 1 always
    alignas(64) float gainLeft[kOscillatorsAndNoise][kUnison] = {};
    alignas(64) float gainRight[kOscillatorsAndNoise][kUnison] = {};
};

/// Frequencies and tables of one voice for a run; phases per frame, a full cycle is 2^32.
struct UnisonTuning {
    const float* tables[kOscillators] = {}; // one cycle each
    alignas(64) std::uint32_t increments[kOscillators][kUnison] = {};
    alignas(64) std::uint32_t syncIncrements[kUnison] = {}; // below 2^31
};

inline constexpr int kTableShift = 22; // from a phase to a point of a table
static_assert(kWaveTablePoints == 1 << (32 - kTableShift));
inline constexpr std::uint32_t kDither = (1u << kTableShift) - 1u; // the bits of a random number that are added

// What oscillator 2 at 1 does to oscillator 1 at full modulation; by ear.
inline constexpr float kPhaseDepth = 15.0f;    // quarter cycles
inline constexpr float kAmplitudeDepth = 3.0f; // of the amplitude

/// A phase from a float, 4 to a cycle, as the instrument rounds it: the bias lets negative positions convert as well,
/// and the steps, one short of 2^22 per quarter, put position 0 a trifle before phase 0.
inline constexpr float kPhaseBias = 64.0f;
inline constexpr float kPhaseSteps = 4194303.0f;
inline constexpr float kPhaseLimit = 2147483520.0f; // what int32 holds; only parameters far outside 0..1 get there
inline std::uint32_t PhaseOf(float quarterCycles)
{
    const float steps = Clamp((quarterCycles + kPhaseBias) * kPhaseSteps, -kPhaseLimit, kPhaseLimit);
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(steps)) << 8;
}

/// A voice to render. Rows hold kMaxRun floats, aligned to 64 bytes; up to the next multiple of the lanes is
/// overwritten, and read.
struct UnisonJob {
    const UnisonMix* mix;
    const UnisonTuning* tuning;
    const float* modAmount; // of each frame
    UnisonPhases* phases;   // moved on
    float *left, *right;
};

/// Renders all unison voices of a voice. Tables are read without interpolation; a random fraction of a table step is
/// added to the phase of every read instead, so that the error turns into noise. Each unison voice draws four numbers
/// per frame, frame after frame, unison voice after unison voice: for oscillator 2, oscillator 1, oscillator 3 and the
/// noise. Audio thread.
/// frames  0..kMaxRun
using RenderUnisonKernel = void(const UnisonJob& job, RandomGenerator& random, int frames);

/// Frame by frame.
inline void RenderUnisonPlainly(const UnisonJob& job, RandomGenerator& random, int frames)
{
    const UnisonMix& mix = *job.mix;
    const UnisonTuning& tuning = *job.tuning;
    UnisonPhases& phases = *job.phases;
    for (int n = 0; n < frames; ++n) {
        const float amount = job.modAmount[n];
        float left = 0.0f, right = 0.0f;
        for (int u = 0; u < mix.unisonCount; ++u) {
            const auto read = [&](int osc, std::uint32_t phase) {
                return tuning.tables[osc][(phase + (random.Next() & kDither)) >> kTableShift];
            };
            const float s2 = read(1, phases.osc2[u] + mix.phaseOffset2) * (mix.invert2 ? -1.0f : 1.0f);
            std::uint32_t phase1 = phases.osc1[u];
            if (mix.modulation == OscillatorModulation::Phase) phase1 += PhaseOf(kPhaseDepth * amount * s2);
            float s1 = read(0, phase1);
            if (mix.modulation == OscillatorModulation::Amplitude) s1 = s1 * (1.0f - kAmplitudeDepth * amount * s2);
            const float s3 = read(2, phases.osc3[u]);
            const float noise = static_cast<float>(random.Next()) * 0x1p-32f - 0.5f;
            const auto sum = [u, s1, s2, s3, noise](const float(&gains)[kOscillatorsAndNoise][kUnison]) {
                return 0.0f + s2 * gains[1][u] + s3 * gains[2][u] + noise * gains[3][u] + s1 * gains[0][u];
            };
            left += sum(mix.gainLeft);
            right += sum(mix.gainRight);

            if (mix.modulation == OscillatorModulation::Sync) {
                phases.sync[u] += tuning.syncIncrements[u];
                if (phases.sync[u] < tuning.syncIncrements[u]) phases.osc1[u] = phases.sync[u];
            }
            phases.osc1[u] += tuning.increments[0][u];
            phases.osc2[u] += tuning.increments[1][u];
            phases.osc3[u] += tuning.increments[2][u];
        }
        job.left[n] = left;
        job.right[n] = right;
    }
}

} // namespace korvane
