// The sampler programs of the Oak kit.
#include "factory/programs/SamplerPrograms.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> OakPrograms()
{
    using enum FilterType;
    return {
//     sample             dB     pan    pitch delay  attack hold  decay low-cut high-cut start way
    {.name = "Oak Kick Tight", .levelDb = 0.5, .beats = 1.0, .fade = 0.25, .layers = {
        {"Oak Kick",        0.0,   0.0,   0.0,  0.0,   0.0,   0.05, 0.2,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick",        -8.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.05, 1800.0, 0.0,     0.0,  Way::Forward},
    }, .eqDb = {2.0, -4.0, -1.0, 3.0, 0.0}},
    {.name = "Oak Kick Room", .levelDb = 1.0, .beats = 1.0, .fade = 1.2, .layers = {
        {"Oak Kick",        0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick Felt",   -6.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare Soft",  -20.0, 0.0,   0.0,  0.012, 0.0,   0.0,  0.0,  1500.0, 0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.66, 0.35}}, .eqDb = {0.0, 0.0, 0.0, 3.0, 2.0}},
    {.name = "Oak Kick Pillow", .levelDb = 0.5, .beats = 1.0, .fade = 0.5, .layers = {
        {"Oak Kick Felt",   0.0,   0.0,   -1.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Brush",       -24.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.15, 0.0,    3000.0,  0.08, Way::Forward},
        {"Oak Tom Low",     -17.0, 0.0,   -2.0, 0.0,   0.0,   0.0,  0.3,  90.0,   0.0,     0.0,  Way::Forward},
    }, .eqDb = {1.5, 3.0, 0.0, 0.0, 0.0}},
    {.name = "Oak Snare Full", .levelDb = -2.0, .beats = 1.0, .fade = 0.6, .layers = {
        {"Oak Snare",       0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare Deep",  -5.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Cross Stick", -14.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  700.0,  0.0,     0.0,  Way::Forward},
    }, .eqDb = {0.0, 1.0, -1.0, 1.5, 1.0}},
    {.name = "Oak Snare Ghost", .levelDb = 5.5, .beats = 1.0, .fade = 0.3, .layers = {
        {"Oak Snare Soft",  0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Brush",       -3.0,  0.0,   0.0,  0.006, 0.0,   0.0,  0.2,  0.0,    0.0,     0.08, Way::Forward},
        {"Oak Hat Foot",    -10.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {LowPass, Cutoff(8500.0)}, .velocity = {Target::Cutoff, 0.24}},
    {.name = "Oak Snare Flam", .levelDb = 1.0, .beats = 1.0, .fade = 0.6, .layers = {
        {"Oak Snare Soft",  -3.0,  -0.25, 0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare",       0.0,   0.1,   0.0,  0.028, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }},
    {.name = "Oak Snare Lazy", .levelDb = -1.0, .beats = 1.0, .fade = 0.8, .layers = {
        {"Oak Snare Deep",  0.0,   0.0,   -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Clap",        -9.0,  0.0,   0.0,  0.015, 0.0,   0.0,  0.0,  0.0,    4500.0,  0.0,  Way::Forward},
    }, .eqDb = {2.0, 2.0, 0.0, -2.0, 0.0}},
    {.name = "Oak Brush Sweep", .levelDb = -0.5, .beats = 1.0, .fade = 0.5, .layers = {
        {"Oak Brush",       0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Brush",       -5.0,  0.5,   -5.0, 0.14,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Snare Soft",  -13.0, 0.0,   0.0,  0.004, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Panner, 0.5, 0.6, 2.0, 0.6}}},
    {.name = "Oak Stick Room", .levelDb = 4.5, .beats = 1.0, .fade = 1.2, .layers = {
        {"Oak Cross Stick", 0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Block",       -12.0, 0.0,   -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.55, 0.3}}},
    {.name = "Oak Hat Crisp", .levelDb = -4.0, .beats = 0.5, .fade = 0.08, .layers = {
        {"Oak Hat Closed",  0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  1500.0, 0.0,     0.0,  Way::Forward},
        {"Oak Hat Foot",    -9.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .eqDb = {0.0, 0.0, -3.0, 2.0, 2.0}},
    {.name = "Oak Hat Loose", .levelDb = -3.0, .beats = 1.0, .fade = 0.15, .layers = {
        {"Oak Hat Half",    0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Hat Open",    -6.0,  0.2,   0.0,  0.0,   0.0,   0.0,  0.35, 0.0,    0.0,     0.0,  Way::Forward},
    }},
    {.name = "Oak Hat Foot Click", .levelDb = 6.5, .beats = 0.5, .fade = 0.1, .layers = {
        {"Oak Hat Foot",    0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Hat Closed",  -10.0, 0.0,   -7.0, 0.0,   0.0,   0.0,  0.03, 0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {LowPass, Cutoff(7500.0)}},
    {.name = "Oak Hat Wash", .levelDb = -4.0, .beats = 2.0, .fade = 0.3, .layers = {
        {"Oak Hat Open",    0.0,   -0.2,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Hat Half",    -3.0,  0.4,   -2.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .eqDb = {0.0, 0.0, -2.0, 0.0, 2.0}},
    {.name = "Oak Tom Thunder", .levelDb = 1.0, .beats = 2.0, .fade = 1.2, .layers = {
        {"Oak Tom Low",     0.0,   0.0,   -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Tom Mid",     -6.0,  0.3,   -5.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick",        -8.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.05, 1500.0, 0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.6, 0.6}}},
    {.name = "Oak Tom Dry", .levelDb = 8.5, .beats = 1.0, .fade = 0.3, .layers = {
        {"Oak Tom High",    0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.3,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Block",       -18.0, 0.0,   -7.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .eqDb = {0.0, -3.0, 0.0, 3.0, 0.0}},
    {.name = "Oak Tom Roll", .levelDb = 0.0, .beats = 1.0, .fade = 0.8, .layers = {
        {"Oak Tom High",    -4.0,  0.5,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Tom Mid",     -2.0,  0.0,   0.0,  0.11,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Tom Low",     0.0,   -0.5,  0.0,  0.22,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }},
    {.name = "Oak Ride Ping", .levelDb = -1.0, .beats = 2.0, .fade = 1.5, .layers = {
        {"Oak Ride",        0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Ride Bell",   -11.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.9,  0.0,    9000.0,  0.0,  Way::Forward},
    }, .eqDb = {-6.0, -3.0, -2.0, 2.0, 1.0}},
    {.name = "Oak Bell Ring", .levelDb = -3.0, .beats = 2.0, .fade = 1.5, .layers = {
        {"Oak Ride Bell",   0.0,   0.15,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Ride",        -8.0,  0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  3000.0, 0.0,     0.0,  Way::Forward},
    }, .filter = {HighPass, Cutoff(350.0)}},
    {.name = "Oak Crash Big", .levelDb = -1.5, .beats = 4.0, .fade = 2.5, .layers = {
        {"Oak Crash",       0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Crash",       -5.0,  -0.5,  -3.0, 0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Kick Felt",   -14.0, 0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }},
    {.name = "Oak Hand Beads", .levelDb = 2.0, .beats = 1.0, .fade = 0.3, .layers = {
        {"Oak Tambourine",  0.0,   0.0,   0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Shaker",      -4.0,  -0.4,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.05, Way::Forward},
    }, .eqDb = {0.0, 0.0, 0.0, -2.0, 2.0}},
    {.name = "Oak Clap Crowd", .levelDb = 1.5, .beats = 1.0, .fade = 0.9, .layers = {
        {"Oak Clap",        0.0,   -0.2,  0.0,  0.0,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Clap",        -3.0,  0.6,   -2.0, 0.011, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Clap",        -5.0,  -0.7,  3.0,  0.023, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.5, 0.4}}},
    };
}
// clang-format on

} // namespace korvane::factory
