// A sampler program as one row: layers in a musician's units, and the settings of the channel.
#pragma once

#include <vector>

#include "factory/words/Patch.h"

namespace korvane::factory {

enum class Way { Forward, Reverse, Inverted };

/// One of up to four samples that a note starts.
struct Layer {
    const char* sample;
    double level;     // dB
    double pan;       // -1 left, 1 right
    double semitones; // -24..48
    double delay;     // seconds, up to 0.25
    double attack;    // seconds to full level
    double hold;      // seconds
    double decay;     // seconds to -60 dB; 0: none
    double lowCut;    // Hz; 0: none
    double highCut;   // Hz; 0: none
    double start;     // of the sample, 0..1
    Way way;
};

/// A channel parameter that is not as in a new channel.
struct Setting {
    int slotIndex;
    double value; // 0..1
};

struct SamplerProgram {
    const char* name;
    double gain;   // dB, chosen so that roles match across the kits
    double length; // beats that a step sounds
    double fade;   // seconds to -60 dB after the key or the step lets go
    std::vector<Layer> layers;
    std::vector<Setting> settings;
};

// Where a modulation acts; for envelopes and LFOs.
inline constexpr double kToCutoff = 0.0, kToPitch = 2.0 / 3.0;
// What the velocity acts on.
inline constexpr double kVelocityToCutoff = 1.0, kVelocityToEnvelope = 8.0;
// Channel filters.
inline constexpr double kLowPass = 0.0, kBandPass = 0.5, kHighPass = 1.0;

/// Cutoff of the channel filter.
double Cutoff(double hz);
/// Time in which a channel envelope's modulation falls to a thousandth.
double EnvelopeFall(double seconds);
/// Rate of an LFO that runs free, 0.01..25 Hz.
double LfoFree(double hz);
/// Rate of an effect's LFO, and time of its echoes: 0 1/8, 1 1/4, 2 3/8, 3 1/2, 4 3/4, 5 1, 6 2, 7 4, 8 8 beats.
constexpr double FxBeats(int row) { return (row + 0.1) / 9.0; }
/// Gain of an equaliser band, -12..12 dB: 80 Hz, 220 Hz, 1.2 kHz, 6 kHz, 12 kHz.
constexpr double EqDb(double db) { return 0.5 + db / 24.0; }

/// Sets a reset channel to the program.
void Apply(const SamplerProgram& program, Patch& patch);

} // namespace korvane::factory
