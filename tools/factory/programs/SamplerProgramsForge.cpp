// The sampler programs of the Forge kit.
#include "factory/programs/SamplerPrograms.h"

#include "framework/ParameterTable.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> ForgePrograms()
{
    return {
//  name, gain dB, length beats, fade s; its layers:
//     sample              dB     pan   pitch  delay attack hold  decay low-cut high-cut start way
    {"Forge Kick Press", 0.0, 1.0, 0.3, {
        {"Forge Kick",       0.0,   0.0,  0.0,   0.0,  0.0,   0.07, 0.22, 0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Piston",     -8.0,  0.0,  0.0,   0.0,  0.0,   0.0,  0.1,  600.0,  0.0,     0.0,  Way::Forward},
        {"Forge Steam",      -17.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.12, 0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(2.0)}, {slot::EqGain + 1, EqDb(-2.0)},
    }},
    {"Forge Kick Ruin", 4.5, 1.0, 0.4, {
        {"Forge Kick Hard",  0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Kick Bit",   -8.0,  0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  700.0,  0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue, 1.0}, {slot::FxX, 0.45}, {slot::FxY, 0.42}, {slot::EqOn, 1.0}, {slot::EqGain, EqDb(1.0)},
        {slot::EqGain + 1, EqDb(-1.0)}, {slot::EqGain + 2, EqDb(-2.0)}, {slot::EqGain + 3, EqDb(1.0)},
    }},
    {"Forge Kick Hammer", 0.0, 1.0, 1.0, {
        {"Forge Kick",       0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Anvil",      -13.0, 0.0,  -12.0, 0.0,  0.0,   0.0,  0.45, 0.0,    5000.0,  0.0,  Way::Forward},
    }, {}},
    {"Forge Kick Voltage", 7.0, 1.0, 0.3, {
        {"Forge Kick Bit",   0.0,   0.0,  -1.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 1, 1.0}, {slot::FxX + 1, 0.55}, {slot::FxY + 1, 0.6}, {slot::FilterType, kLowPass},
        {slot::FilterCutoff, Cutoff(5000.0)}, {slot::FilterResonance, 0.35}, {slot::EnvelopeDestination, kToCutoff},
        {slot::EnvelopeAmount, 0.3}, {slot::EnvelopeDecay, EnvelopeFall(0.12)},
    }},
    {"Forge Snare Plate", -0.5, 1.0, 0.9, {
        {"Forge Snare",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Sheet",      -11.0, 0.0,  7.0,   0.0,  0.0,   0.0,  0.35, 900.0,  0.0,     0.0,  Way::Forward},
    }, {}},
    {"Forge Snare Grind", -0.5, 1.0, 0.4, {
        {"Forge Snare Bit",  0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Steam",      -15.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.18, 0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 1, 1.0}, {slot::FxX + 1, 0.62}, {slot::FxY + 1, 0.8}, {slot::FxGlue, 1.0}, {slot::FxX, 0.25},
        {slot::FxY, 0.8},
    }},
    {"Forge Clap Press", -3.0, 1.0, 0.5, {
        {"Forge Clap",       0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Piston",     -5.0,  0.0,  0.0,   0.02, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Snare Bit",  -12.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  2500.0, 0.0,     0.0,  Way::Forward},
    }, {}},
    {"Forge Hat Rivet", 0.5, 0.5, 0.08, {
        {"Forge Hat Closed", 0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Chain",      -9.0,  0.0,  12.0,  0.0,  0.0,   0.0,  0.06, 6000.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kHighPass}, {slot::FilterCutoff, Cutoff(3000.0)},
    }},
    {"Forge Hat Leak", 1.0, 1.0, 0.12, {
        {"Forge Hat Open",   0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Steam",      -5.0,  0.0,  5.0,   0.0,  0.0,   0.0,  0.4,  5000.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 9, 1.0}, {slot::FxX + 9, 0.5}, {slot::FxY + 9, 0.4}, {slot::FxLfoRate + 9, FxBeats(0)},
    }},
    {"Forge Tom Tank", -4.5, 1.0, 0.9, {
        {"Forge Tom Low",    0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Pipe",       -8.0,  0.0,  -12.0, 0.0,  0.0,   0.0,  0.6,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 2, 1.0}, {slot::FxX + 2, 0.55}, {slot::FxY + 2, 0.4}, {slot::FxLfoRate + 2, FxBeats(7)},
        {slot::FxLfoAmount + 2, 0.7},
    }},
    {"Forge Tom Bolt", 1.0, 1.0, 0.5, {
        {"Forge Tom High",   0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.5,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Hat Closed", -10.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::EnvelopeDestination, kToPitch}, {slot::EnvelopeAmount, 0.45},
        {slot::EnvelopeDecay, EnvelopeFall(0.08)},
    }},
    {"Forge Anvil Toll", -5.5, 2.0, 2.0, {
        {"Forge Anvil",      0.0,   -0.3, -5.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Anvil",      -5.0,  0.4,  -17.0, 0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {}},
    {"Forge Pipe Row", -2.0, 1.0, 1.2, {
        {"Forge Pipe",       0.0,   -0.5, 0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Pipe",       -3.0,  0.1,  3.0,   0.12, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Pipe",       -5.0,  0.6,  7.0,   0.24, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kHighPass}, {slot::FilterCutoff, Cutoff(120.0)},
    }},
    {"Forge Chain Drag", 4.5, 1.0, 0.6, {
        {"Forge Chain",      0.0,   -0.4, -5.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Chain",      -2.0,  0.5,  -9.0,  0.15, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Reverse},
    }, {}},
    {"Forge Spring Tank", 7.0, 2.0, 1.5, {
        {"Forge Spring",     0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Impact",     -12.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.15, 90.0,   0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.7}, {slot::FxY + 7, 0.2},
    }},
    {"Forge Steam Valve", 7.0, 1.0, 0.5, {
        {"Forge Steam",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Piston",     -4.0,  0.0,  0.0,   0.03, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Hat Closed", -6.0,  0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(3500.0)}, {slot::FilterResonance, 0.4},
        {slot::EnvelopeDestination, kToCutoff}, {slot::EnvelopeAmount, 0.55},
        {slot::EnvelopeDecay, EnvelopeFall(0.6)},
    }},
    {"Forge Sheet Quake", -3.0, 4.0, 2.2, {
        {"Forge Sheet",      0.0,   0.0,  -7.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Impact",     -5.0,  0.2,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 3, 1.0}, {slot::FxX + 3, 0.4}, {slot::FxY + 3, 0.5}, {slot::FxLfoRate + 3, FxBeats(7)},
        {slot::FxLfoAmount + 3, 0.75},
    }},
    {"Forge Servo Arm", 16.0, 1.0, 0.5, {
        {"Forge Servo",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Servo",      -6.0,  0.5,  7.0,   0.2,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Reverse},
    }, {
        {slot::FilterType, kBandPass}, {slot::FilterCutoff, Cutoff(1100.0)}, {slot::FilterResonance, 0.3},
        {slot::LfoDestination, kToCutoff}, {slot::LfoAmount, 0.5}, {slot::LfoRate, LfoFree(6.0)},
        {slot::LfoRetrig, 1.0}, {slot::LfoShape, 0.3333},
    }},
    {"Forge Crash Wall", -1.0, 4.0, 2.0, {
        {"Forge Crash",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Crash",        -7.0,  -0.3, -4.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue, 1.0}, {slot::FxX, 0.2}, {slot::FxY, 0.9},
    }},
    {"Forge Impact Far", -9.5, 2.0, 2.5, {
        {"Forge Impact",     0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Drop",        -8.0,  0.0,  0.0,   0.0,  0.0,   0.0,  1.2,  0.0,    0.0,     0.1,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.74}, {slot::FxY + 7, 0.75}, {slot::FxGlue + 4, 1.0},
        {slot::FxX + 4, 0.75}, {slot::FxY + 4, 0.1},
    }},
    };
}
// clang-format on

} // namespace korvane::factory
