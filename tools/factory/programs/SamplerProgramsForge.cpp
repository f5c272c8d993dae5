// The sampler programs of the Forge kit.
#include "factory/programs/SamplerPrograms.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> ForgePrograms()
{
    using enum FilterType;
    using enum LfoShape;
    return {
//     sample              dB     pan   pitch  delay attack hold  decay low-cut high-cut start way
    {.name = "Forge Kick Press", .levelDb = 0.0, .beats = 1.0, .fade = 0.3, .layers = {
        {"Forge Kick",       0.0,   0.0,  0.0,   0.0,  0.0,   0.07, 0.22, 0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Piston",     -8.0,  0.0,  0.0,   0.0,  0.0,   0.0,  0.1,  600.0,  0.0,     0.0,  Way::Forward},
        {"Forge Steam",      -17.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.12, 0.0,    0.0,     0.0,  Way::Forward},
    }, .eqDb = {2.0, -2.0, 0.0, 0.0, 0.0}},
    {.name = "Forge Kick Ruin", .levelDb = 4.5, .beats = 1.0, .fade = 0.4, .layers = {
        {"Forge Kick Hard",  0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Kick Bit",   -8.0,  0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  700.0,  0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Distortion, 0.45, 0.42}}, .eqDb = {1.0, -1.0, -2.0, 1.0, 0.0}},
    {.name = "Forge Kick Hammer", .levelDb = 0.0, .beats = 1.0, .fade = 1.0, .layers = {
        {"Forge Kick",       0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Anvil",      -13.0, 0.0,  -12.0, 0.0,  0.0,   0.0,  0.45, 0.0,    5000.0,  0.0,  Way::Forward},
    }},
    {.name = "Forge Kick Voltage", .levelDb = 7.0, .beats = 1.0, .fade = 0.3, .layers = {
        {"Forge Kick Bit",   0.0,   0.0,  -1.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {LowPass, Cutoff(5000.0), 0.35}, .envelopes = {{to::Cutoff, 0.3, 0.0, EnvelopeFall(0.12)}},
     .effects = {{Fx::Decimator, 0.55, 0.6}}},
    {.name = "Forge Snare Plate", .levelDb = -0.5, .beats = 1.0, .fade = 0.9, .layers = {
        {"Forge Snare",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Sheet",      -11.0, 0.0,  7.0,   0.0,  0.0,   0.0,  0.35, 900.0,  0.0,     0.0,  Way::Forward},
    }},
    {.name = "Forge Snare Grind", .levelDb = -0.5, .beats = 1.0, .fade = 0.4, .layers = {
        {"Forge Snare Bit",  0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Steam",      -15.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.18, 0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Decimator, 0.62, 0.8}, {Fx::Distortion, 0.25, 0.8}}},
    {.name = "Forge Clap Press", .levelDb = -3.0, .beats = 1.0, .fade = 0.5, .layers = {
        {"Forge Clap",       0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Piston",     -5.0,  0.0,  0.0,   0.02, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Snare Bit",  -12.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  2500.0, 0.0,     0.0,  Way::Forward},
    }},
    {.name = "Forge Hat Rivet", .levelDb = 0.5, .beats = 0.5, .fade = 0.08, .layers = {
        {"Forge Hat Closed", 0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Chain",      -9.0,  0.0,  12.0,  0.0,  0.0,   0.0,  0.06, 6000.0, 0.0,     0.0,  Way::Forward},
    }, .filter = {HighPass, Cutoff(3000.0)}},
    {.name = "Forge Hat Leak", .levelDb = 1.0, .beats = 1.0, .fade = 0.12, .layers = {
        {"Forge Hat Open",   0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Steam",      -5.0,  0.0,  5.0,   0.0,  0.0,   0.0,  0.4,  5000.0, 0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Pump, 0.5, 0.4, 0.125}}},
    {.name = "Forge Tom Tank", .levelDb = -4.5, .beats = 1.0, .fade = 0.9, .layers = {
        {"Forge Tom Low",    0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Pipe",       -8.0,  0.0,  -12.0, 0.0,  0.0,   0.0,  0.6,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Chorus, 0.55, 0.4, 4.0, 0.4}}},
    {.name = "Forge Tom Bolt", .levelDb = 1.0, .beats = 1.0, .fade = 0.5, .layers = {
        {"Forge Tom High",   0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.5,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Hat Closed", -10.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .envelopes = {{to::Pitch, 0.45, 0.0, EnvelopeFall(0.08)}}},
    {.name = "Forge Anvil Toll", .levelDb = -5.5, .beats = 2.0, .fade = 2.0, .layers = {
        {"Forge Anvil",      0.0,   -0.3, -5.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Anvil",      -5.0,  0.4,  -17.0, 0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }},
    {.name = "Forge Pipe Row", .levelDb = -2.0, .beats = 1.0, .fade = 1.2, .layers = {
        {"Forge Pipe",       0.0,   -0.5, 0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Pipe",       -3.0,  0.1,  3.0,   0.12, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Pipe",       -5.0,  0.6,  7.0,   0.24, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {HighPass, Cutoff(120.0)}},
    {.name = "Forge Chain Drag", .levelDb = 4.5, .beats = 1.0, .fade = 0.6, .layers = {
        {"Forge Chain",      0.0,   -0.4, -5.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Chain",      -2.0,  0.5,  -9.0,  0.15, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Reverse},
    }},
    {.name = "Forge Spring Tank", .levelDb = 7.0, .beats = 2.0, .fade = 1.5, .layers = {
        {"Forge Spring",     0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Impact",     -12.0, 0.0,  0.0,   0.0,  0.0,   0.0,  0.15, 90.0,   0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.7, 0.2}}},
    {.name = "Forge Steam Valve", .levelDb = 7.0, .beats = 1.0, .fade = 0.5, .layers = {
        {"Forge Steam",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Piston",     -4.0,  0.0,  0.0,   0.03, 0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Hat Closed", -6.0,  0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {LowPass, Cutoff(3500.0), 0.4}, .envelopes = {{to::Cutoff, 0.55, 0.0, EnvelopeFall(0.6)}}},
    {.name = "Forge Sheet Quake", .levelDb = -3.0, .beats = 4.0, .fade = 2.2, .layers = {
        {"Forge Sheet",      0.0,   0.0,  -7.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Impact",     -5.0,  0.2,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Phaser, 0.4, 0.5, 4.0, 0.5}}},
    {.name = "Forge Servo Arm", .levelDb = 16.0, .beats = 1.0, .fade = 0.5, .layers = {
        {"Forge Servo",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Forge Servo",      -6.0,  0.5,  7.0,   0.2,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Reverse},
    }, .filter = {BandPass, Cutoff(1100.0), 0.3}, .lfos = {{to::Cutoff, 0.5, Hz(6.0), Sine, true}}},
    {.name = "Forge Crash Wall", .levelDb = -1.0, .beats = 4.0, .fade = 2.0, .layers = {
        {"Forge Crash",      0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Oak Crash",        -7.0,  -0.3, -4.0,  0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Distortion, 0.2, 0.9}}},
    {.name = "Forge Impact Far", .levelDb = -9.5, .beats = 2.0, .fade = 2.5, .layers = {
        {"Forge Impact",     0.0,   0.0,  0.0,   0.0,  0.0,   0.0,  0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Drop",        -8.0,  0.0,  0.0,   0.0,  0.0,   0.0,  1.2,  0.0,    0.0,     0.1,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.74, 0.75}, {Fx::LowPass, 0.75, 0.1}}},
    };
}
// clang-format on

} // namespace korvane::factory
