// The sampler programs of the Volt kit.
#include "factory/programs/SamplerPrograms.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> VoltPrograms()
{
    using enum FilterType;
    return {
//     sample              dB     pan   pitch delay   attack hold  decay low-cut high-cut start way
    {.name = "Volt Kick Solid", .levelDb = 2.5, .beats = 1.0, .fade = 0.35, .layers = {
        {"Volt Kick",        0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Kick Punch",  -7.0,  0.0,  0.0,  0.0,    0.0,   0.0,  0.14, 120.0,  0.0,     0.0,  Way::Forward},
        {"Volt Rim",         -16.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.02, 1500.0, 0.0,     0.0,  Way::Forward},
    }, .eqDb = {1.5, -2.0, 0.0, 1.0, 0.0}},
    {.name = "Volt Kick Boom", .levelDb = 1.0, .beats = 4.0, .fade = 0.9, .layers = {
        {"Volt Kick Long",   0.0,   0.0,  -1.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Kick Punch",  -7.0,  0.0,  0.0,  0.0,    0.0,   0.0,  0.09, 160.0,  0.0,     0.0,  Way::Forward},
        {"Volt Rim",         -13.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.03, 900.0,  0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Distortion, 0.18, 0.55}}, .eqDb = {2.0, -1.0, 0.0, 3.0, 0.0}},
    {.name = "Volt Kick Dirt", .levelDb = -1.0, .beats = 1.0, .fade = 0.3, .layers = {
        {"Volt Kick Punch",  0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Snare Noise", -22.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.06, 0.0,    2500.0,  0.0,  Way::Forward},
    }, .effects = {{Fx::Distortion, 0.36, 0.35}}, .eqDb = {2.0, 0.0, -2.0, 0.0, 0.0}},
    {.name = "Volt Kick Tick", .levelDb = 5.0, .beats = 1.0, .fade = 0.15, .layers = {
        {"Volt Kick Punch",  0.0,   0.0,  4.0,  0.0,    0.0,   0.0,  0.16, 0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clave",       -14.0, 0.0,  10.0, 0.0,    0.0,   0.0,  0.03, 0.0,    0.0,     0.0,  Way::Forward},
    }},
    {.name = "Volt Snare Fat", .levelDb = 2.0, .beats = 1.0, .fade = 0.4, .layers = {
        {"Volt Snare",       0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Snare Tight", -5.0,  0.0,  -4.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clap",        -11.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  900.0,  0.0,     0.0,  Way::Forward},
    }, .eqDb = {0.0, 2.0, -2.0, 1.0, 0.0}},
    {.name = "Volt Snare Gated", .levelDb = -4.0, .beats = 1.0, .fade = 0.05, .layers = {
        {"Volt Snare Noise", 0.0,   0.0,  0.0,  0.0,    0.0,   0.17, 0.03, 0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clap Wide",   -4.0,  0.0,  0.0,  0.0,    0.0,   0.16, 0.03, 0.0,    0.0,     0.08, Way::Forward},
        {"Volt Snare",       -5.0,  0.0,  0.0,  0.0,    0.0,   0.15, 0.04, 0.0,    0.0,     0.0,  Way::Forward},
    }, .eqDb = {0.0, 2.0, 0.0, 1.5, 0.0}},
    {.name = "Volt Snare Snap", .levelDb = 5.0, .beats = 1.0, .fade = 0.15, .layers = {
        {"Volt Snare Tight", 0.0,   0.0,  2.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clave",       -14.0, 0.0,  -5.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {HighPass, Cutoff(160.0)}, .velocity = {Target::Cutoff, -0.16}},
    {.name = "Volt Clap Stack", .levelDb = 2.0, .beats = 1.0, .fade = 0.5, .layers = {
        {"Volt Clap Wide",   0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clap",        -4.0,  -0.5, 0.0,  0.012,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Snare Noise", -12.0, 0.5,  0.0,  0.02,   0.0,   0.0,  0.0,  2500.0, 0.0,     0.0,  Way::Forward},
    }},
    {.name = "Volt Rim Echo", .levelDb = 2.5, .beats = 1.0, .fade = 1.5, .layers = {
        {"Volt Rim",         0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Clave",       -8.0,  0.0,  -7.0, 0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Echo, 0.62, 0.42, 0.75}}},
    {.name = "Volt Hat Tight", .levelDb = 12.5, .beats = 0.5, .fade = 0.06, .layers = {
        {"Volt Hat Closed",  0.0,   0.0,  1.0,  0.0,    0.0,   0.0,  0.06, 0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Shaker",      -14.0, 0.0,  0.0,  0.0,    0.0,   0.0,  0.05, 6000.0, 0.0,     0.1,  Way::Forward},
    }, .velocity = {Target::Env1Amount, 0.2}},
    {.name = "Volt Hat Sizzle", .levelDb = -7.5, .beats = 1.0, .fade = 0.12, .layers = {
        {"Volt Hat Open",    0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Crash",       -8.0,  0.3,  5.0,  0.0,    0.0,   0.0,  0.7,  7000.0, 0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Phaser, 0.25, 0.3, 4.0}}},
    {.name = "Volt Tom Dive", .levelDb = 1.5, .beats = 1.0, .fade = 0.6, .layers = {
        {"Volt Tom Mid",     0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Tom Low",     -5.0,  0.0,  3.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .envelopes = {{to::Pitch, 0.62, 0.0, EnvelopeFall(0.25)}}},
    {.name = "Volt Bell Pair", .levelDb = 3.0, .beats = 1.0, .fade = 0.4, .layers = {
        {"Volt Cowbell",     0.0,   -0.4, 0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Cowbell",     -2.0,  0.5,  5.0,  0.0005, 0.0,   0.0,  0.3,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {HighPass, Cutoff(250.0)}},
    {.name = "Volt Crash Swell", .levelDb = 10.0, .beats = 2.0, .fade = 1.2, .layers = {
        {"Volt Crash",       0.0,   -0.2, 0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.62, Way::Reverse},
        {"Volt Hat Open",    -6.0,  0.4,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.3,  Way::Reverse},
    }, .attack = 0.05},
    {.name = "Volt Laser", .levelDb = -5.5, .beats = 1.0, .fade = 0.4, .layers = {
        {"Volt Zap",         0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Zap",         -5.0,  0.5,  12.0, 0.06,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Zap",         -9.0,  -0.5, 7.0,  0.12,   0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Chorus, 0.3, 0.5, 2.0, 0.6}}},
    {.name = "Volt Ride Steady", .levelDb = 0.5, .beats = 2.0, .fade = 1.0, .layers = {
        {"Volt Ride",        0.0,   0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Volt Hat Closed",  -6.0,  0.0,  0.0,  0.0,    0.0,   0.0,  0.0,  5000.0, 0.0,     0.0,  Way::Forward},
    }, .eqDb = {0.0, 0.0, -3.0, 0.0, 2.0}},
    };
}
// clang-format on

} // namespace korvane::factory
