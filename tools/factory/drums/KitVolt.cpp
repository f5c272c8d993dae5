// Volt: the electronic kit, after the circuits of analogue drum machines.
#include "factory/drums/Kits.h"
#include "factory/sound/Drums.h"

namespace korvane::factory {

namespace {

constexpr Ratios kSixSquares = {1.0, 1.5005, 1.8195, 2.5366, 2.6341, 3.9024};
constexpr Treatment kClapRoom{.wide = true, .room = {.seconds = 0.35, .darkHz = 6500.0, .level = 0.35}};

// clang-format off
constexpr KitRow<KickShape> kKicks[] = {
//   name               peak  treated  hz    sweep time   snap hold   decay click hz      second drive low-pass
    {"Volt Kick",       -0.5, kDry,   {49.0, 2.2,  0.028, 1.5, 0.020, 0.55, 0.25, 3000.0, 0.0,   1.8,  12000.0}},
    {"Volt Kick Punch", -0.5, kDry,   {56.0, 3.4,  0.018, 2.0, 0.035, 0.27, 0.45, 4200.0, 0.15,  2.6,  14000.0}},
    {"Volt Kick Long",  -0.5, kDry,   {46.0, 1.3,  0.040, 2.5, 0.060, 1.70, 0.12, 2200.0, 0.0,   1.3,  6000.0}},
    {"Volt Zap",        -2.0, kDry,   {95.0, 6.2,  0.045, 0.5, 0.000, 0.32, 0.10, 6000.0, 0.25,  2.2,  16000.0}},
};
constexpr KitRow<SnareShape> kSnares[] = {
//   name                peak  treated  hz     ratio bend tone  decay noise decay low     high     crack drive
    {"Volt Snare",       -1.0, kDry,   {185.0, 1.72, 0.6, 0.55, 0.16, 1.05, 0.26, 900.0,  9000.0,  0.5,  1.4}},
    {"Volt Snare Tight", -1.0, kDry,   {230.0, 1.72, 1.0, 0.60, 0.09, 0.95, 0.14, 1800.0, 9000.0,  0.8,  1.4}},
    {"Volt Snare Noise", -1.0, kWide,  {205.0, 1.58, 0.4, 0.45, 0.12, 1.30, 0.42, 1400.0, 11000.0, 0.3,  1.8}},
};
constexpr KitRow<ClapShape> kClaps[] = {
//   name              peak  treated     hz      q    hands spacing decay bright drive
    {"Volt Clap",      -1.5, kDry,      {1050.0, 1.6, 4,    0.010,  0.24, 0.30,  1.6}},
    {"Volt Clap Wide", -1.5, kClapRoom, {900.0,  1.2, 5,    0.013,  0.38, 0.45,  1.4}},
};
constexpr KitRow<CymbalShape> kCymbals[] = {
//   name               peak  treated  hz     ratios       metal noise high-pass low-pass attack  decay body  hz      time drive
    {"Volt Hat Closed", -3.0, kDry,   {205.0, kSixSquares, 0.8,  0.15, 7000.0,   11500.0, 0.0010, 0.10, 0.05, 5200.0, 0.5, 2.2}},
    {"Volt Hat Open",   -3.0, kDry,   {205.0, kSixSquares, 0.8,  0.15, 6600.0,   11500.0, 0.0010, 0.62, 0.06, 5200.0, 0.8, 2.0}},
    {"Volt Crash",      -3.0, kWide,  {290.0, kSixSquares, 0.7,  0.60, 4200.0,   11000.0, 0.0015, 1.95, 0.40, 3100.0, 0.6, 1.6}},
    {"Volt Ride",       -3.0, kDry,   {365.0, kSixSquares, 0.9,  0.10, 6000.0,   12000.0, 0.0010, 1.30, 0.35, 4300.0, 0.5, 1.4}},
};
constexpr KitRow<TomShape> kToms[] = {
//   name             peak  treated  hz     bend  time  decay overtone skin  hz      drive
    {"Volt Tom Low",  -1.5, kDry,   {82.0,  0.70, 0.05, 0.62, 0.25,    0.15, 1800.0, 1.3}},
    {"Volt Tom Mid",  -1.5, kDry,   {118.0, 0.70, 0.05, 0.50, 0.25,    0.15, 1800.0, 1.3}},
    {"Volt Tom High", -1.5, kDry,   {168.0, 0.70, 0.05, 0.40, 0.25,    0.15, 1800.0, 1.3}},
};
// hz, level, decay
constexpr Modes kRim = {{{1720.0, 0.8, 0.06}, {455.0, 0.6, 0.06}, {2870.0, 0.3, 0.04}}};
constexpr Modes kClave = {{{2480.0, 1.0, 0.085}, {2512.0, 0.2, 0.05}}};
constexpr KitRow<StruckShape> kStruck[] = {
//   name            peak  treated  modes    length click hz      time   squares hz     decay drive
    {"Volt Rim",     -2.0, kDry,   {kRim,    0.12,  0.5,  4000.0, 0.006, 0.0,    0.0,   0.0,  2.0}},
    {"Volt Clave",   -2.0, kDry,   {kClave,  0.13,  0.2,  5000.0, 0.004, 0.0,    0.0,   0.0,  1.5}},
    {"Volt Cowbell", -3.0, kDry,   {Modes{}, 0.60,  0.1,  4000.0, 0.006, 1.2,    540.0, 0.5,  1.2}},
};
constexpr KitRow<ShakerShape> kShakers[] = {
//   name           peak  treated  hz      q    attack decay back at    grain
    {"Volt Shaker", -4.0, kDry,   {6500.0, 0.9, 0.020, 0.09, 0.3, 0.07, 0.5}},
};
// clang-format on

} // namespace

Kit VoltKit()
{
    Kit kit;
    Add(kit, Kick, kKicks);
    Add(kit, Snare, kSnares);
    Add(kit, Clap, kClaps);
    Add(kit, Cymbal, kCymbals);
    Add(kit, Tom, kToms);
    Add(kit, Struck, kStruck);
    Add(kit, Shaker, kShakers);
    return kit;
}

} // namespace korvane::factory
