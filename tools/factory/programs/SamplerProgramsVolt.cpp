// The sampler programs of the Volt kit.
#include "factory/programs/SamplerPrograms.h"

#include "framework/ParameterTable.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> VoltPrograms()
{
    return {
//  name, gain dB, length beats, fade s; its layers:
//     sample              dB     pan   pitch delay   attack hold  decay low-cut high-cut start way
    {"Volt Kick Solid", 2.5, 1.0, 0.35, {
        {"Volt Kick",        0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Kick Punch",  -7.0,  0.0,  0.0,  0.0,    0.0,   0.0,  0.14, 120.0,  0.0,     0.0,  Way::Forward},
        {"Volt Rim",         -16.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.02, 1500.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(1.5)}, {slot::EqGain + 1, EqDb(-2.0)}, {slot::EqGain + 3, EqDb(1.0)},
    }},
    {"Volt Kick Boom", 1.0, 4.0, 0.9, {
        {"Volt Kick Long",   0.0,   0.0,  -1.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Kick Punch",  -7.0,  0.0,  0.0,  0.0,    0.0,   0.0,  0.09, 160.0,  0.0,     0.0,  Way::Forward},
        {"Volt Rim",         -13.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.03, 900.0,  0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue, 1.0}, {slot::FxX, 0.18}, {slot::FxY, 0.55}, {slot::EqOn, 1.0}, {slot::EqGain, EqDb(2.0)},
        {slot::EqGain + 1, EqDb(-1.0)}, {slot::EqGain + 3, EqDb(3.0)},
    }},
    {"Volt Kick Dirt", -1.0, 1.0, 0.3, {
        {"Volt Kick Punch",  0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Snare Noise", -22.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.06, 0.0,    2500.0,  0.0,  Way::Forward},
    }, {
        {slot::FxGlue, 1.0}, {slot::FxX, 0.36}, {slot::FxY, 0.35}, {slot::EqOn, 1.0}, {slot::EqGain, EqDb(2.0)},
        {slot::EqGain + 2, EqDb(-2.0)},
    }},
    {"Volt Kick Tick", 5.0, 1.0, 0.15, {
        {"Volt Kick Punch",  0.0,   0.0,  4.0,  0.0,    0.0,   0.0,  0.16, 0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clave",       -14.0, 0.0,  10.0, 0.0,    0.0,   0.0,  0.03, 0.0,    0.0,     0.0,  Way::Forward},
    }, {}},
    {"Volt Snare Fat", 2.0, 1.0, 0.4, {
        {"Volt Snare",       0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Snare Tight", -5.0,  0.0,  -4.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clap",        -11.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  900.0,  0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 1, EqDb(2.0)}, {slot::EqGain + 2, EqDb(-2.0)},
        {slot::EqGain + 3, EqDb(1.0)},
    }},
    {"Volt Snare Gated", -4.0, 1.0, 0.05, {
        {"Volt Snare Noise", 0.0,   0.0,  0.0,  0.0,    0.0,   0.17, 0.03, 0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clap Wide",   -4.0,  0.0,  0.0,  0.0,    0.0,   0.16, 0.03, 0.0,    0.0,     0.08, Way::Forward},
        {"Volt Snare",       -5.0,  0.0,  0.0,  0.0,    0.0,   0.15, 0.04, 0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 1, EqDb(2.0)}, {slot::EqGain + 3, EqDb(1.5)},
    }},
    {"Volt Snare Snap", 5.0, 1.0, 0.15, {
        {"Volt Snare Tight", 0.0,   0.0,  2.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clave",       -14.0, 0.0,  -5.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kHighPass}, {slot::FilterCutoff, Cutoff(160.0)},
        {slot::VelocityDestination, kVelocityToCutoff}, {slot::VelocityAmount, 0.42},
    }},
    {"Volt Clap Stack", 2.0, 1.0, 0.5, {
        {"Volt Clap Wide",   0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clap",        -4.0,  -0.5, 0.0,  0.012,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Snare Noise", -12.0, 0.5,  0.0,  0.02,   0.0,   0.0,  0.0,  2500.0, 0.0,     0.0,  Way::Forward},
    }, {}},
    {"Volt Rim Echo", 2.5, 1.0, 1.5, {
        {"Volt Rim",         0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clave",       -8.0,  0.0,  -7.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 6, 1.0}, {slot::FxX + 6, 0.62}, {slot::FxY + 6, 0.42}, {slot::FxLfoRate + 6, FxBeats(4)},
    }},
    {"Volt Hat Tight", 12.5, 0.5, 0.06, {
        {"Volt Hat Closed",  0.0,   0.0,  1.0,  0.0,    0.0,   0.0,  0.06, 0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Shaker",      -14.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.05, 6000.0, 0.0,     0.1,  Way::Forward},
    }, {
        {slot::VelocityDestination, kVelocityToEnvelope}, {slot::VelocityAmount, 0.6},
    }},
    {"Volt Hat Sizzle", -7.5, 1.0, 0.12, {
        {"Volt Hat Open",    0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Crash",       -8.0,  0.3,  5.0,  0.0,    0.0,   0.0,  0.7,  7000.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 3, 1.0}, {slot::FxX + 3, 0.25}, {slot::FxY + 3, 0.3}, {slot::FxLfoRate + 3, FxBeats(7)},
    }},
    {"Volt Tom Dive", 1.5, 1.0, 0.6, {
        {"Volt Tom Mid",     0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Tom Low",     -5.0,  0.0,  3.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::EnvelopeDestination, kToPitch}, {slot::EnvelopeAmount, 0.62},
        {slot::EnvelopeDecay, EnvelopeFall(0.25)},
    }},
    {"Volt Bell Pair", 3.0, 1.0, 0.4, {
        {"Volt Cowbell",     0.0,   -0.4, 0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Cowbell",     -2.0,  0.5,  5.0,  0.0005, 0.0,   0.0,  0.3,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kHighPass}, {slot::FilterCutoff, Cutoff(250.0)},
    }},
    {"Volt Crash Swell", 10.0, 2.0, 1.2, {
        {"Volt Crash",       0.0,   -0.2, 0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.62, Way::Reverse},
        {"Volt Hat Open",    -6.0,  0.4,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.3,  Way::Reverse},
    }, {
        {slot::AmpAttack, 0.05},
    }},
    {"Volt Laser", -5.5, 1.0, 0.4, {
        {"Volt Zap",         0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Zap",         -5.0,  0.5,  12.0, 0.06,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Zap",         -9.0,  -0.5, 7.0,  0.12,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 2, 1.0}, {slot::FxX + 2, 0.3}, {slot::FxY + 2, 0.5}, {slot::FxLfoRate + 2, FxBeats(6)},
        {slot::FxLfoAmount + 2, 0.8},
    }},
    {"Volt Ride Steady", 0.5, 2.0, 1.0, {
        {"Volt Ride",        0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Hat Closed",  -6.0,  0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  5000.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 2, EqDb(-3.0)}, {slot::EqGain + 4, EqDb(2.0)},
    }},
    };
}
// clang-format on

} // namespace korvane::factory
