// The sampler programs of the Deep kit.
#include "factory/programs/SamplerPrograms.h"

namespace korvane::factory {

// clang-format off
std::vector<SamplerProgram> DeepPrograms()
{
    using enum FilterType;
    using enum LfoShape;
    return {
//     sample             dB     pan    pitch  delay  attack hold decay low-cut high-cut start way
    {.name = "Deep Kick Club", .levelDb = 1.0, .beats = 1.0, .fade = 0.4, .layers = {
        {"Deep Kick",       0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Kick Wood",  -6.0,  0.0,   0.0,   0.0,   0.0,   0.0, 0.08, 500.0,  0.0,     0.0,  Way::Forward},
        {"Deep Wood",       -15.0, 0.0,   -5.0,  0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Shaker",     -24.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.06, 0.0,    0.0,     0.05, Way::Forward},
    }, .eqDb = {1.0, -1.5, 2.0, 0.0, 0.0}},
    {.name = "Deep Sub Floor", .levelDb = 2.0, .beats = 2.0, .fade = 0.8, .layers = {
        {"Deep Kick Sub",   0.0,   0.0,   -2.0,  0.0,   0.006, 0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Drop",       -12.0, 0.0,   5.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.08, Way::Forward},
    }, .filter = {LowPass, Cutoff(420.0)}},
    {.name = "Deep Kick Heart", .levelDb = 4.5, .beats = 2.0, .fade = 0.6, .layers = {
        {"Deep Kick Soft",  0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Kick Soft",  -6.0,  0.0,   -3.0,  0.18,  0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Kick",       -10.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.06, 200.0,  900.0,   0.0,  Way::Forward},
    }},
    {.name = "Deep Kick Dust", .levelDb = -1.5, .beats = 1.0, .fade = 0.3, .layers = {
        {"Deep Kick Wood",  0.0,   0.0,   -3.0,  0.0,   0.0,   0.0, 0.0,  0.0,    2200.0,  0.0,  Way::Forward},
        {"Deep Shaker",     -20.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.1,  0.0,    3500.0,  0.05, Way::Forward},
    }, .effects = {{Fx::Decimator, 0.42, 0.3}}, .eqDb = {2.0, 0.0, 0.0, 0.0, 0.0}},
    {.name = "Deep Snare Warm", .levelDb = 9.0, .beats = 1.0, .fade = 0.4, .layers = {
        {"Deep Snare",      0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snap",       -12.0, 0.0,   0.0,   0.004, 0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {LowPass, Cutoff(4200.0), 0.1}, .velocity = {Target::Cutoff, 0.2}},
    {.name = "Deep Snare Hall", .levelDb = 2.0, .beats = 1.0, .fade = 1.6, .layers = {
        {"Deep Snare Room", 0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snare",      -9.0,  0.0,   -5.0,  0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.74, 0.35}}, .eqDb = {-6.0, 0.0, 0.0, 0.0, 0.0}},
    {.name = "Deep Rim Dub", .levelDb = 5.0, .beats = 1.0, .fade = 2.0, .layers = {
        {"Deep Rim",        0.0,   0.0,   2.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {HighPass, Cutoff(220.0)}, .effects = {{Fx::Echo, 0.7, 0.36, 0.75}}},
    {.name = "Deep Clap Late", .levelDb = 3.0, .beats = 1.0, .fade = 0.7, .layers = {
        {"Deep Clap",       0.0,   -0.15, 0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snap",       -5.0,  0.4,   0.0,   0.018, 0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Clap",       -10.0, 0.5,   3.0,   0.09,  0.0,   0.0, 0.0,  800.0,  0.0,     0.0,  Way::Forward},
    }},
    {.name = "Deep Hat Felt", .levelDb = 16.0, .beats = 0.5, .fade = 0.08, .layers = {
        {"Deep Hat Closed", 0.0,   0.0,   0.0,   0.0,   0.004, 0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Shaker",     -10.0, 0.3,   0.0,   0.0,   0.0,   0.0, 0.08, 0.0,    0.0,     0.12, Way::Forward},
    }, .filter = {LowPass, Cutoff(9500.0)}},
    {.name = "Deep Hat Breath", .levelDb = 5.0, .beats = 1.0, .fade = 0.15, .layers = {
        {"Deep Hat Open",   0.0,   -0.2,  0.0,   0.0,   0.012, 0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Shaker",     -4.0,  0.4,   3.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .filter = {LowPass, Cutoff(9000.0)}, .lfos = {{to::Cutoff, 0.3, Hz(3.0), Sine, true}}},
    {.name = "Deep Conga Slap", .levelDb = 2.0, .beats = 1.0, .fade = 0.3, .layers = {
        {"Deep Conga High", 0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Snap",       -12.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.05, 1500.0, 0.0,     0.0,  Way::Forward},
    }, .envelopes = {{to::Pitch, 0.3, 0.0, EnvelopeFall(0.06)}}, .velocity = {Target::Env1Amount, 0.3}},
    {.name = "Deep Conga Flam", .levelDb = 0.5, .beats = 1.0, .fade = 0.5, .layers = {
        {"Deep Conga Low",  0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Conga High", -7.0,  0.45,  0.0,   0.085, 0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Conga High", -4.0,  -0.4,  -2.0,  0.17,  0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }},
    {.name = "Deep Tom Cave", .levelDb = 1.0, .beats = 2.0, .fade = 2.0, .layers = {
        {"Deep Tom",        0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Wood",       -15.0, 0.0,   -12.0, 0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
    }, .effects = {{Fx::Reverb, 0.7, 0.6}}},
    {.name = "Deep Wood Talk", .levelDb = 15.5, .beats = 1.0, .fade = 0.3, .layers = {
        {"Deep Wood",       0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Wood",       -4.0,  -0.5,  -5.0,  0.11,  0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Rim",        -14.0, 0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  900.0,  0.0,     0.0,  Way::Forward},
    }, .filter = {BandPass, Cutoff(900.0), 0.25}, .lfos = {{to::Pitch, 0.9, Hz(5.0), Sine, true}}},
    {.name = "Deep Stab Dub", .levelDb = 7.0, .beats = 1.0, .fade = 2.2, .layers = {
        {"Deep Stab",       0.0,   -0.1,  0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Stab",       -9.0,  0.4,   12.0,  0.0,   0.0,   0.0, 0.0,  0.0,    1800.0,  0.0,  Way::Forward},
    }, .filter = {LowPass, Cutoff(500.0), 0.3}, .envelopes = {{to::Cutoff, 0.5, 0.0, EnvelopeFall(0.5)}},
     .effects = {{Fx::Echo, 0.68, 0.45, 0.75}}},
    {.name = "Deep Drop Slow", .levelDb = -6.0, .beats = 4.0, .fade = 1.5, .layers = {
        {"Deep Drop",       0.0,   0.0,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.0,  Way::Forward},
        {"Deep Ride",       -19.0, 0.3,   0.0,   0.0,   0.0,   0.0, 0.0,  0.0,    0.0,     0.35, Way::Reverse},
    }, .eqDb = {2.0, 0.0, 0.0, 0.0, 0.0}},
    };
}
// clang-format on

} // namespace korvane::factory
