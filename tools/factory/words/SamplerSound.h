// A sampler program as one row: layers in a musician's units, and the settings of the channel.
#pragma once

#include <vector>

#include "factory/words/ChannelWords.h"

namespace korvane::factory {

enum class Way { Forward, Reverse, Inverted };

/// One of up to four samples that a note starts.
struct Layer {
    const char* sample;
    double levelDb;
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

struct SamplerProgram {
    const char* name;
    double levelDb; // "CHN: Amp Level", -25..25, chosen so that roles match across the kits
    double beats;   // that a step sounds
    double fade;    // seconds to -60 dB after the key or the step lets go
    std::vector<Layer> layers;
    double attack = 0.0;                                // knob
    FilterSetting filter = {FilterType::HighPass, 0.0}; // lets everything through
    std::vector<EnvelopeSetting> envelopes = {};        // two at most
    std::vector<LfoSetting> lfos = {};                  // two at most
    Route velocity = {}, wheel = {}, pressure = {};
    std::vector<Effect> effects = {};
    EqDb eqDb = {};
};

/// Sets a reset channel to the program.
void Apply(const SamplerProgram& program, Patch& patch);

} // namespace korvane::factory
