// The sampler programs of the Oak kit.
#include "factory/programs/SamplerPrograms.h"

#include "framework/ParameterTable.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> OakPrograms()
{
    return {
//  name, gain dB, length beats, fade s; its layers:
//     sample             dB     pan    pitch delay  attack hold  decay low-cut high-cut start way
    {"Oak Kick Tight", 0.5, 1.0, 0.25, {
        {"Oak Kick",        0.0,   0.0,   0.0,  0.0,   0.0,   0.05, 0.2,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick",        -8.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.05, 1800.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(2.0)}, {slot::EqGain + 1, EqDb(-4.0)}, {slot::EqGain + 2, EqDb(-1.0)},
        {slot::EqGain + 3, EqDb(3.0)},
    }},
    {"Oak Kick Room", 1.0, 1.0, 1.2, {
        {"Oak Kick",        0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick Felt",   -6.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare Soft",  -20.0, 0.0,   0.0,  0.012, 0.0,   0.0,  0.0,  1500.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.66}, {slot::FxY + 7, 0.35}, {slot::EqOn, 1.0},
        {slot::EqGain + 3, EqDb(3.0)}, {slot::EqGain + 4, EqDb(2.0)},
    }},
    {"Oak Kick Pillow", 0.5, 1.0, 0.5, {
        {"Oak Kick Felt",   0.0,   0.0,   -1.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Brush",       -24.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.15, 0.0,    3000.0,  0.08, Way::Forward},
        {"Oak Tom Low",     -17.0, 0.0,   -2.0, 0.0,   0.0,   0.0,  0.3,  90.0,   0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(1.5)}, {slot::EqGain + 1, EqDb(3.0)},
    }},
    {"Oak Snare Full", -2.0, 1.0, 0.6, {
        {"Oak Snare",       0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare Deep",  -5.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Cross Stick", -14.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  700.0,  0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 1, EqDb(1.0)}, {slot::EqGain + 2, EqDb(-1.0)},
        {slot::EqGain + 3, EqDb(1.5)}, {slot::EqGain + 4, EqDb(1.0)},
    }},
    {"Oak Snare Ghost", 5.5, 1.0, 0.3, {
        {"Oak Snare Soft",  0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Brush",       -3.0,  0.0,   0.0,  0.006, 0.0,   0.0,  0.2,  0.0,    0.0,     0.08, Way::Forward},
        {"Oak Hat Foot",    -10.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(8500.0)},
        {slot::VelocityDestination, kVelocityToCutoff}, {slot::VelocityAmount, 0.62},
    }},
    {"Oak Snare Flam", 1.0, 1.0, 0.6, {
        {"Oak Snare Soft",  -3.0,  -0.25, 0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare",       0.0,   0.1,   0.0,  0.028, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {}},
    {"Oak Snare Lazy", -1.0, 1.0, 0.8, {
        {"Oak Snare Deep",  0.0,   0.0,   -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Clap",        -9.0,  0.0,   0.0,  0.015, 0.0,   0.0,  0.0,  0.0,    4500.0,  0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(2.0)}, {slot::EqGain + 1, EqDb(2.0)}, {slot::EqGain + 3, EqDb(-2.0)},
    }},
    {"Oak Brush Sweep", -0.5, 1.0, 0.5, {
        {"Oak Brush",       0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Brush",       -5.0,  0.5,   -5.0, 0.14,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare Soft",  -13.0, 0.0,   0.0,  0.004, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 8, 1.0}, {slot::FxX + 8, 0.5}, {slot::FxY + 8, 0.6}, {slot::FxLfoRate + 8, FxBeats(6)},
        {slot::FxLfoAmount + 8, 0.8},
    }},
    {"Oak Stick Room", 4.5, 1.0, 1.2, {
        {"Oak Cross Stick", 0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Block",       -12.0, 0.0,   -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.55}, {slot::FxY + 7, 0.3},
    }},
    {"Oak Hat Crisp", -4.0, 0.5, 0.08, {
        {"Oak Hat Closed",  0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  1500.0, 0.0,     0.0,  Way::Forward},
        {"Oak Hat Foot",    -9.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 2, EqDb(-3.0)}, {slot::EqGain + 3, EqDb(2.0)},
        {slot::EqGain + 4, EqDb(2.0)},
    }},
    {"Oak Hat Loose", -3.0, 1.0, 0.15, {
        {"Oak Hat Half",    0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Hat Open",    -6.0,  0.2,   0.0,  0.0,   0.0,   0.0,  0.35, 0.0,    0.0,     0.0,  Way::Forward},
    }, {}},
    {"Oak Hat Foot Click", 6.5, 0.5, 0.1, {
        {"Oak Hat Foot",    0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Hat Closed",  -10.0, 0.0,   -7.0, 0.0,   0.0,   0.0,  0.03, 0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kLowPass}, {slot::FilterCutoff, Cutoff(7500.0)},
    }},
    {"Oak Hat Wash", -4.0, 2.0, 0.3, {
        {"Oak Hat Open",    0.0,   -0.2,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Hat Half",    -3.0,  0.4,   -2.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 2, EqDb(-2.0)}, {slot::EqGain + 4, EqDb(2.0)},
    }},
    {"Oak Tom Thunder", 1.0, 2.0, 1.2, {
        {"Oak Tom Low",     0.0,   0.0,   -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Tom Mid",     -6.0,  0.3,   -5.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick",        -8.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.05, 1500.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.6}, {slot::FxY + 7, 0.6},
    }},
    {"Oak Tom Dry", 8.5, 1.0, 0.3, {
        {"Oak Tom High",    0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.3,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Block",       -18.0, 0.0,   -7.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 1, EqDb(-3.0)}, {slot::EqGain + 3, EqDb(3.0)},
    }},
    {"Oak Tom Roll", 0.0, 1.0, 0.8, {
        {"Oak Tom High",    -4.0,  0.5,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Tom Mid",     -2.0,  0.0,   0.0,  0.11,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Tom Low",     0.0,   -0.5,  0.0,  0.22,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {}},
    {"Oak Ride Ping", -1.0, 2.0, 1.5, {
        {"Oak Ride",        0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Ride Bell",   -11.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.9,  0.0,    9000.0,  0.0,  Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain, EqDb(-6.0)}, {slot::EqGain + 1, EqDb(-3.0)}, {slot::EqGain + 2, EqDb(-2.0)},
        {slot::EqGain + 3, EqDb(2.0)}, {slot::EqGain + 4, EqDb(1.0)},
    }},
    {"Oak Bell Ring", -3.0, 2.0, 1.5, {
        {"Oak Ride Bell",   0.0,   0.15,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Ride",        -8.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  3000.0, 0.0,     0.0,  Way::Forward},
    }, {
        {slot::FilterType, kHighPass}, {slot::FilterCutoff, Cutoff(350.0)},
    }},
    {"Oak Crash Big", -1.5, 4.0, 2.5, {
        {"Oak Crash",       0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Crash",       -5.0,  -0.5,  -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick Felt",   -14.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {}},
    {"Oak Hand Beads", 2.0, 1.0, 0.3, {
        {"Oak Tambourine",  0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Shaker",      -4.0,  -0.4,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.05, Way::Forward},
    }, {
        {slot::EqOn, 1.0}, {slot::EqGain + 3, EqDb(-2.0)}, {slot::EqGain + 4, EqDb(2.0)},
    }},
    {"Oak Clap Crowd", 1.5, 1.0, 0.9, {
        {"Oak Clap",        0.0,   -0.2,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Clap",        -3.0,  0.6,   -2.0, 0.011, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Clap",        -5.0,  -0.7,  3.0,  0.023, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, {
        {slot::FxGlue + 7, 1.0}, {slot::FxX + 7, 0.5}, {slot::FxY + 7, 0.4},
    }},
    };
}
// clang-format on

} // namespace korvane::factory
