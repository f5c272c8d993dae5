// Volt: the electronic kit, after the circuits of analogue drum machines.
#include "Drums.h"
#include "Kits.h"

namespace korvane::factory {

namespace {

const std::vector<double> kSixSquares = {1.0, 1.5005, 1.8195, 2.5366, 2.6341, 3.9024};

Sound Hat(std::uint32_t seed, double decay, double highPass)
{
    return Cymbal({.hz = 205.0, .ratios = kSixSquares, .noise = 0.15, .highPass = highPass, .decay = decay}, seed);
}

} // namespace

// clang-format off
Kit VoltKit()
{
    return {
    {"Volt Kick", -0.5, [](auto seed) { return Kick({.hz = 49.0, .sweep = 2.2, .sweepTime = 0.028, .decay = 0.48, .click = 0.25, .drive = 1.8}, seed); }},
    {"Volt Kick Punch", -0.5, [](auto seed) { return Kick({.hz = 56.0, .sweep = 3.4, .sweepTime = 0.018, .snap = 2.0, .decay = 0.27, .click = 0.45, .clickHz = 4200.0, .drive = 2.6, .second = 0.15}, seed); }},
    {"Volt Snare", -1.0, [](auto seed) { return Snare({}, seed); }},
    {"Volt Snare Tight", -1.0, [](auto seed) { return Snare({.hz = 230.0, .toneDecay = 0.09, .bend = 1.0, .noiseDecay = 0.11, .lowHz = 1800.0, .crack = 0.8}, seed); }},
    {"Volt Rim", -2.0, [](auto seed) { return Struck({.modes = {{1720.0, 0.8, 0.05}, {455.0, 0.6, 0.05}, {2870.0, 0.3, 0.03}}, .length = 0.1, .click = 0.5, .drive = 2.0}, seed); }},
    {"Volt Clap", -1.5, [](auto seed) { return Clap({}, seed); }},
    {"Volt Hat Closed", -4.0, [](auto seed) { return Hat(seed, 0.075, 7200.0); }},
    {"Volt Hat Open", -4.0, [](auto seed) { return Hat(seed, 0.55, 6800.0); }},
    {"Volt Tom Low", -1.5, [](auto seed) { return Tom({.hz = 82.0, .decay = 0.62}, seed); }},
    {"Volt Tom Mid", -1.5, [](auto seed) { return Tom({.hz = 118.0, .decay = 0.5}, seed); }},
    {"Volt Tom High", -1.5, [](auto seed) { return Tom({.hz = 168.0, .decay = 0.4}, seed); }},
    {"Volt Cowbell", -3.0, [](auto seed) { return Struck({.length = 0.6, .click = 0.1, .squares = 1.2, .squaresDecay = 0.5}, seed); }},
    {"Volt Crash", -3.0, [](auto seed) { return Cymbal({.hz = 290.0, .ratios = kSixSquares, .noise = 0.6, .highPass = 4200.0, .attack = 0.001, .decay = 1.9, .body = 0.5, .bodyHz = 3100.0, .bodyTime = 0.5}, seed); }},
    {"Volt Shaker", -5.0, [](auto seed) { return Shaker({}, seed); }},
    };
}
// clang-format on

} // namespace korvane::factory
