// The single cycles of the synth oscillators.
#include "factory/waves/Waves.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <utility>

namespace korvane::factory {

namespace {

using namespace wave;

constexpr double kTurn = 2.0 * std::numbers::pi;

using Cycles = std::vector<Cycle>;

double Fraction(double x) { return x - std::floor(x); }

/// A number 0..1 for every harmonic, the same on every machine.
double Scatter(int h, std::uint32_t seed)
{
    std::uint32_t x = (static_cast<std::uint32_t>(h) + seed * 977u) * 2654435761u;
    x ^= x >> 15, x *= 2246822519u, x ^= x >> 13; // mixing steps of xxHash
    return static_cast<double>(x) / 4294967296.0;
}

bool Prime(int h)
{
    for (int n = 2; n * n <= h; ++n)
        if (h % n == 0) return false;
    return h > 1;
}

double Fall(int h, double exponent) { return std::pow(h, -exponent); }
double Below(int h, double corner, double steepness) { return 1.0 / (1.0 + std::pow(h / corner, steepness)); }
double Hill(int h, double top, double width) { return std::exp(-0.5 * (h - top) * (h - top) / (width * width)); }
/// A string plucked or struck at 1/period of its length: every harmonic with a node there is missing.
double Struck(int h, double period) { return std::abs(std::sin(std::numbers::pi * h / period)); }
double Shards(int h) { return h == 1 ? 1.0 : std::pow(1.17 * Scatter(h, 3), 3.0) * Fall(h, 0.6); }
double Ripple(int h) { return std::pow(std::cos(2.1 * std::log2(h)), 8.0); }

// clang-format off
Cycles Analogue()
{
    return {
        {"Saw",           Slope(1.0)},
        {"Square",        Pulse(0.5)},
        {"Triangle",      Shape([](double t) { return t < 0.5 ? 4.0 * t - 1.0 : 3.0 - 4.0 * t; })},
        {"Sine",          Partials({{1, 1.0}})},
        {"Pulse 40",      Pulse(0.40)},
        {"Pulse 33",      Pulse(1.0 / 3.0)},
        {"Pulse 25",      Pulse(0.25)},
        {"Pulse 12",      Pulse(0.12)},
        {"Pulse 5",       Pulse(0.05)},
        {"Soft Saw",      Mellow(Slope(1.0), 5.0, 2.0)},
        {"Soft Square",   Mellow(Pulse(0.5), 9.0, 3.0)},
        {"Parabola",      Slope(2.0)},
        {"Half Sine",     Shape([](double t) { return std::max(0.0, std::sin(kTurn * t)); })},
        {"Saw Octaves",   Blend(Slope(1.0), Blend(Raised(Slope(1.0), 2), Raised(Slope(1.0), 4), 0.5), 0.65)},
        {"Saw Fifth",     Blend(Partials({{1, 1.0}}), Blend(Raised(Slope(1.0), 2), Raised(Slope(1.0), 3), 0.45), 0.85)},
    };
}

Cycles Sub()
{
    return {
        {"Sub Round",     Partials({{1, 1.0}, {2, 0.22}, {3, 0.06}})},
        {"Sub Octave",    Partials({{1, 1.0}, {2, 0.9}})},
        {"Sub Fifth",     Partials({{1, 1.0}, {3, 0.6}})},
        {"Sub Stack",     Partials({{1, 1.0}, {2, 0.7}, {4, 0.5}, {8, 0.32}, {16, 0.2}, {32, 0.1}})},
        {"Sub Saw",       Blend(Partials({{1, 1.0}}), Mellow(Slope(0.8), 24.0, 2.0), 0.3)},
        {"Sub Pulse",     Blend(Partials({{1, 1.0}}), Mellow(Pulse(0.2), 14.0, 3.0), 0.5)},
    };
}

Cycles Organ()
{
    return {
        {"Organ Quint",   Drawbars("004080600")},
        {"Organ Jazz",    Drawbars("888000000")},
        {"Organ Gospel",  Drawbars("886000478")},
        {"Organ Full",    Drawbars("888888888")},
        {"Organ Ballad",  Drawbars("008808000")},
        {"Organ Theatre", Drawbars("608088080")},
        {"Organ Whistle", Drawbars("004000888")},
        {"Organ Reed",    Drawbars("004767534")},
    };
}

Cycles Voice() // formants of a man's voice after Peterson and Barney
{
    return {
        {"Vowel A",       Formants(0.7, {{730, 1.0, 100}, {1090, 0.60, 110}, {2440, 0.12, 160}, {3400, 0.07, 250}})},
        {"Vowel E",       Formants(0.7, {{530, 1.0,  90}, {1840, 0.45, 130}, {2480, 0.22, 170}, {3500, 0.09, 250}})},
        {"Vowel I",       Formants(0.7, {{270, 1.0,  80}, {2290, 0.40, 150}, {3010, 0.28, 190}, {3700, 0.10, 250}})},
        {"Vowel O",       Formants(0.7, {{570, 1.0,  90}, { 840, 0.75, 100}, {2410, 0.04, 160}})},
        {"Vowel U",       Formants(0.7, {{300, 1.0,  80}, { 870, 0.25, 100}, {2240, 0.02, 160}})},
        {"Vowel Er",      Formants(0.7, {{490, 1.0,  90}, {1350, 0.55, 120}, {1690, 0.45, 140}, {3300, 0.05, 250}})},
        {"Choir Ah",      Formants(1.0, {{660, 1.0, 400}, {1150, 0.80, 500}, {2800, 0.70, 900}})},
    };
}

Cycles Bell()
{
    return {
        {"Bell Glass",    Partials({{1, 0.5}, {4, 1.0}, {11, 0.55}, {21, 0.4}, {34, 0.22}})},
        {"Bell Tower",    Partials({{1, 0.6}, {2, 1.0}, {5, 0.75}, {6, 0.2}, {8, 0.6}, {11, 0.3}, {13, 0.25},
                                    {17, 0.2}})},
        {"Bell Chime",    Partials({{2, 0.2}, {1, 0.3}, {9, 0.6}, {16, 1.0}, {25, 0.7}, {36, 0.4}, {49, 0.25}})},
        {"Bell Gong",     Spread(Partials({{1, 1.0}, {3, 0.8}, {7, 0.7}, {10, 0.6}, {13, 0.7}, {19, 0.5},
                                            {22, 0.5}, {29, 0.4}, {31, 0.4}, {43, 0.3}}))},
        {"Bell Kalimba",  Partials({{1, 1.0}, {6, 0.35}, {14, 0.16}, {17, 0.1}})},
        {"Bell Celesta",  Partials({{1, 1.0}, {3, 0.12}, {4, 0.6}, {12, 0.25}, {20, 0.12}})},
    };
}

Cycles Modulated()
{
    return {
        {"FM Bass",       Fm(1, 1, 1.1)},
        {"FM Brass",      Fm(1, 1, 4.5)},
        {"FM Hollow",     Fm(1, 2, 3.6)},
        {"FM Tine",       Blend(Fm(1, 1, 0.6), Fm(1, 14, 1.2), 0.5)},
        {"FM Growl",      Fm(1, 3, 5.0)},
        {"FM Metal",      Blend(Partials({{1, 1.0}}), Fm(5, 7, 3.2), 0.75)},
        {"FM Twang",      Fm(2, 3, 2.6)},
        {"FM Wire",       Fm(1, 5, 3.0)},
    };
}

Cycles Bright()
{
    return {
        {"Bright Buzz",   Levels([](int h) { return h <= 48 ? 1.0 : 0.0; })},
        {"Bright Comb",   Levels([](int h) { return h % 5 == 1 ? Fall(h, 0.65) : 0.0; })},
        {"Bright Pins",   Levels([](int h) { return h == 1 || Prime(h) ? Fall(h, 0.6) : 0.0; })},
        {"Bright Shards", Levels(Shards)},
        {"Bright Prism",  Levels([](int h) { return Ripple(h) * Fall(h, 0.75) + 0.002; })},
        {"Bright Sync",   Shape([](double t) { return 2.0 * Fraction(2.6 * t) - 1.0; })},
        {"Bright Razor",  Shape([](double t) { return (2.0 * Fraction(6.4 * t) - 1.0) * (1.0 - t); })},
        {"Bright Fold",   Shape([](double t) { return std::sin(7.5 * std::sin(kTurn * t) + 0.4); })},
        {"Bright Spiral", Shape([](double t) { return std::sin(kTurn * 12.0 * t * t) * (1.0 - 0.7 * t); })},
    };
}

Cycles Dark()
{
    return {
        {"Dark Wool",     Levels([](int h) { return Hill(h, 1.0, 2.0); })},
        {"Dark Drone",    Partials({{1, 1.0}, {2, 0.3}, {3, 0.7}, {5, 0.35}, {7, 0.25}, {8, 0.1}, {9, 0.12}})},
        {"Dark Cave",     Levels([](int h) { return h == 1 ? 1.0 : h <= 12 ? Scatter(h, 11) * Fall(h, 0.5) : 0.0; })},
        {"Dark Steps",    Mellow(Shape([](double t) { return std::round(2.5 * std::sin(kTurn * t)); }), 9.0, 1.0)},
        {"Dark Bottle",   Partials({{1, 1.0}, {4, 0.12}, {5, 0.2}, {6, 0.12}})},
        {"Dark Moss",     Levels([](int h) { return h < 8 ? 1.0 - 0.08 * h : 0.0; })},
    };
}

Cycles Acoustic() // after published long-term spectra, simplified
{
    return {
        {"Strings",       Levels([](int h) { return (h % 3 ? 1.0 : 0.5) * (Fall(h, 1.1) + 0.1 * Hill(h, 6.0, 2.0)); })},
        {"Horn",          Levels([](int h) { return Hill(h, 2.5, 2.0) + 0.02 * std::exp(-0.12 * h); })},
        {"Trumpet",       Levels([](int h) { return Hill(h, 6.0, 4.0) + 0.4 * std::exp(-0.15 * h); })},
        {"Oboe",          Levels([](int h) { return h < 3 ? 0.2 * h : Hill(h, 4.5, 1.8) + 0.09 * Hill(h, 11, 5); })},
        {"Clarinet",      Levels([](int h) { return (h % 2 ? 1.0 : 0.02 * h) * Fall(h, 0.9) * Below(h, 11.0, 4.0); })},
        {"Accordion",     Levels([](int h) { return (0.05 + Struck(h, 4.3)) * Fall(h, 0.75) * Below(h, 26.0, 4.0); })},
        {"Piano",         Levels([](int h) { return Struck(h, 7.6) * Fall(h, 1.2) * Below(h, 22.0, 3.0); })},
        {"Harp",          Levels([](int h) { return Struck(h, 2.7) * Fall(h, 1.7); })},
    };
}
// clang-format on

} // namespace

std::vector<Cycle> AllCycles()
{
    std::vector<Cycle> all;
    for (const auto family : {Analogue, Sub, Organ, Voice, Bell, Modulated, Bright, Dark, Acoustic})
        for (Cycle& cycle : family()) all.push_back(std::move(cycle));
    return all;
}

} // namespace korvane::factory
