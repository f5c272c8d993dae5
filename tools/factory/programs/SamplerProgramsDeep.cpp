// The sampler programs of the Deep kit.
#include "factory/programs/SamplerPrograms.h"

#include "framework/ParameterTable.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> DeepPrograms()
{
    return {
//  name, gain dB, length beats, fade s; its layers:
//     sample             dB     pan    pitch  delay  attack hold decay low-cut high-cut start way
    {"Deep Kick Club", 1.0, 1.0, 0.4, {
        {"Deep Kick",       0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Kick Wood",  -6.0,  0.0,   0.0,   0.0,   0.0,   0.0, 0.08, 500.0,  0.0,     0.0,  Way::Forward},
        {"Deep Wood",       -15.0, 0.0,   -5.0,  0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Shaker",     -24.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.06, 0.0,    0.0,     0.05, Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(1.0)}, {slot::EqGain + 1, EqDb(-1.5)}, {slot::EqGain + 2, EqDb(2.0)},
    }},
    {"Deep Sub Floor", 2.0, 2.0, 0.8, {
        {"Deep Kick Sub",   0.0,   0.0,   -2.0,  0.0,   0.006, 0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Drop",       -12.0, 0.0,   5.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.08, Way::Forward},
    }, {
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(420.0)},
    }},
    {"Deep Kick Heart", 4.5, 2.0, 0.6, {
        {"Deep Kick Soft",  0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Kick Soft",  -6.0,  0.0,   -3.0,  0.18,  0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Kick",       -10.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.06, 200.0,  900.0,   0.0,  Way::Forward},
    }, {}},
    {"Deep Kick Dust", -1.5, 1.0, 0.3, {
        {"Deep Kick Wood",  0.0,   0.0,   -3.0,  0.0,   0.0,   0.0, 0.0,  0.0,    2200.0,  0.0,  Way::Forward},
        {"Deep Shaker",     -20.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.1,  0.0,    3500.0,  0.05, Way::Forward},
    }, {
        {slot::FxGlue + 1, 1.0}, {slot::FxX + 1, 0.42}, {slot::FxY + 1, 0.3}, {slot::EqOn, 1.0},
        {slot::EqGain, EqDb(2.0)},
    }},
    {"Deep Snare Warm", 9.0, 1.0, 0.4, {
        {"Deep Snare",      0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snap",       -12.0, 0.0,   0.0,   0.004, 0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(4200.0)}, {slot::FilterResonance, 0.1},
        {slot::VelocityDestination, kVelocityToCutoff}, {slot::VelocityAmount, 0.6},
    }},
    {"Deep Snare Hall", 2.0, 1.0, 1.6, {
        {"Deep Snare Room", 0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snare",      -9.0,  0.0,   -5.0,  0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.74}, {slot::FxY + 7, 0.35}, {slot::EqOn, 1.0},
        {slot::EqGain, EqDb(-6.0)},
    }},
    {"Deep Rim Dub", 5.0, 1.0, 2.0, {
        {"Deep Rim",        0.0,   0.0,   2.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 6, 1.0}, {slot::FxX + 6, 0.7}, {slot::FxY + 6, 0.36}, {slot::FxLfoRate + 6, FxBeats(4)},
        {slot::FilterType, kHighPass}, {slot::FilterCutoff, Cutoff(220.0)},
    }},
    {"Deep Clap Late", 3.0, 1.0, 0.7, {
        {"Deep Clap",       0.0,   -0.15, 0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snap",       -5.0,  0.4,   0.0,   0.018, 0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Clap",       -10.0, 0.5,   3.0,   0.09,  0.0,   0.0, 0.0,  800.0,  0.0,     0.0,  Way::Forward},
    }, {}},
    {"Deep Hat Felt", 16.0, 0.5, 0.08, {
        {"Deep Hat Closed", 0.0,   0.0,   0.0,   0.0,   0.004, 0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Shaker",     -10.0, 0.3,   0.0,   0.0,   0.0,   0.0, 0.08, 0.0,    0.0,     0.12, Way::Forward},
    }, {
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(9500.0)},
    }},
    {"Deep Hat Breath", 5.0, 1.0, 0.15, {
        {"Deep Hat Open",   0.0,   -0.2,  0.0,   0.0,   0.012, 0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Shaker",     -4.0,  0.4,   3.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(9000.0)}, {slot::LfoDestination, kToCutoff},
        {slot::LfoAmount, 0.3}, {slot::LfoRate, LfoFree(3.0)}, {slot::LfoRetrig, 1.0}, {slot::LfoShape, 0.3333},
    }},
    {"Deep Conga Slap", 2.0, 1.0, 0.3, {
        {"Deep Conga High", 0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snap",       -12.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.05, 1500.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::EnvelopeDestination, kToPitch}, {slot::EnvelopeAmount, 0.3}, {slot::EnvelopeDecay, EnvelopeFall(0.06)},
        {slot::VelocityDestination, kVelocityToEnvelope}, {slot::VelocityAmount, 0.65},
    }},
    {"Deep Conga Flam", 0.5, 1.0, 0.5, {
        {"Deep Conga Low",  0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Conga High", -7.0,  0.45,  0.0,   0.085, 0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Conga High", -4.0,  -0.4,  -2.0,  0.17,  0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {}},
    {"Deep Tom Cave", 1.0, 2.0, 2.0, {
        {"Deep Tom",        0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Wood",       -15.0, 0.0,   -12.0, 0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.7}, {slot::FxY + 7, 0.6},
    }},
    {"Deep Wood Talk", 15.5, 1.0, 0.3, {
        {"Deep Wood",       0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Wood",       -4.0,  -0.5,  -5.0,  0.11,  0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Rim",        -14.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  900.0,  0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kBandPass}, {slot::FilterCutoff, Cutoff(900.0)}, {slot::FilterResonance, 0.25},
        {slot::LfoDestination, kToPitch}, {slot::LfoAmount, 0.9}, {slot::LfoRate, LfoFree(5.0)},
        {slot::LfoRetrig, 1.0},
    }},
    {"Deep Stab Dub", 7.0, 1.0, 2.2, {
        {"Deep Stab",       0.0,   -0.1,  0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Stab",       -9.0,  0.4,   12.0,  0.0,   0.0,   0.0, 0.0,  0.0,    1800.0,  0.0,  Way::Forward},
    }, {
        {slot::EnvelopeDestination, kToCutoff}, {slot::EnvelopeAmount, 0.5}, {slot::EnvelopeDecay, EnvelopeFall(0.5)},
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(500.0)}, {slot::FilterResonance, 0.3},
        {slot::FxGlue + 6, 1.0}, {slot::FxX + 6, 0.68}, {slot::FxY + 6, 0.45}, {slot::FxLfoRate + 6, FxBeats(4)},
    }},
    {"Deep Drop Slow", -6.0, 4.0, 1.5, {
        {"Deep Drop",       0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Ride",       -19.0, 0.3,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.35, Way::Reverse},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(2.0)},
    }},
    };
}
// clang-format on

} // namespace korvane::factory
