// Deep: low and dark, for slow clubs: subs, felt, wood, dub rooms.
#include "factory/drums/Kits.h"
#include "factory/sound/Drums.h"
#include "factory/sound/DrumsPlayed.h"

namespace korvane::factory {

namespace {

constexpr Ratios kBrass = {1.0, 1.342, 1.6532, 1.9523, 2.1523, 2.5714};
constexpr Ratios kMinorNinth = {1.0, 1.1892, 1.4983, 1.7818, 2.2449}; // equal temperament
constexpr Treatment kHall{.room = {.seconds = 0.90, .darkHz = 4200.0, .level = 0.55, .preDelay = 0.012}};
constexpr Treatment kClapHall{.wide = true, .room = {.seconds = 0.60, .darkHz = 4500.0, .level = 0.50}};

// clang-format off
constexpr KitRow<KickShape> kKicks[] = {
//   name              peak  treated  hz    sweep time   snap hold   decay click hz      second drive low-pass
    {"Deep Kick",      -0.5, kDry,   {47.0, 1.6,  0.022, 1.2, 0.070, 0.42, 0.12, 1500.0, 0.10,  1.6,  4200.0}},
    {"Deep Kick Sub",  -0.5, kDry,   {43.0, 0.9,  0.035, 0.6, 0.120, 1.10, 0.03, 1000.0, 0.0,   1.1,  1400.0}},
    {"Deep Kick Soft", -1.0, kDry,   {54.0, 1.1,  0.016, 0.3, 0.010, 0.30, 0.06, 800.0,  0.20,  1.2,  1100.0}},
    {"Deep Kick Wood", -0.7, kDry,   {58.0, 2.8,  0.011, 1.0, 0.025, 0.25, 0.30, 1700.0, 0.30,  2.2,  6500.0}},
    {"Deep Drop",      -1.0, kDry,   {34.0, 1.9,  0.420, 0.0, 0.300, 1.90, 0.02, 1000.0, 0.0,   1.5,  1800.0}},
};
constexpr KitRow<SnareShape> kSnares[] = {
//   name               peak  treated  hz     ratio bend tone  decay noise decay low    high    crack drive
    {"Deep Snare",      -1.5, kDry,   {172.0, 1.50, 0.3, 0.70, 0.19, 0.75, 0.20, 700.0, 5200.0, 0.25, 1.6}},
    {"Deep Snare Room", -1.5, kHall,  {188.0, 1.66, 0.5, 0.55, 0.14, 0.80, 0.16, 900.0, 6000.0, 0.50, 1.6}},
};
constexpr KitRow<ClapShape> kClaps[] = {
//   name         peak  treated     hz      q    hands spacing decay bright drive
    {"Deep Clap", -1.5, kClapHall, {780.0,  1.4, 3,    0.012,  0.20, 0.12,  1.5}},
    {"Deep Snap", -2.5, kDry,      {1950.0, 2.6, 2,    0.006,  0.11, 0.15,  1.8}},
};
constexpr KitRow<CymbalShape> kCymbals[] = {
//   name               peak  treated  hz     ratios  metal noise high-pass low-pass attack  decay body  hz      time drive
    {"Deep Hat Closed", -4.0, kDry,   {392.0, kBrass, 0.5,  0.50, 5600.0,   8200.0,  0.0015, 0.09, 0.10, 3000.0, 0.6, 1.8}},
    {"Deep Hat Open",   -4.0, kDry,   {392.0, kBrass, 0.5,  0.50, 5000.0,   8000.0,  0.0020, 0.48, 0.12, 3000.0, 0.7, 1.6}},
    {"Deep Ride",       -4.0, kDry,   {517.0, kBrass, 0.8,  0.12, 4200.0,   8500.0,  0.0015, 1.60, 0.45, 2700.0, 0.8, 1.3}},
};
constexpr KitRow<SkinShape> kSkins[] = {
//   name               peak  treated  hz     bend  time  decay over  tilt damp beater hz      time   knock hz     drive
    {"Deep Conga Low",  -2.0, kDry,   {172.0, 0.12, 0.02, 0.42, 0.55, 1.2, 1.1, 0.45,  1400.0, 0.020, 0.25, 520.0, 1.3}},
    {"Deep Conga High", -2.0, kDry,   {258.0, 0.14, 0.02, 0.30, 0.70, 1.0, 1.0, 0.75,  2200.0, 0.016, 0.20, 760.0, 1.4}},
    {"Deep Tom",        -1.5, kDry,   {68.0,  0.45, 0.07, 0.85, 0.30, 1.6, 1.3, 0.12,  900.0,  0.030, 0.30, 180.0, 1.6}},
};
// hz, level, decay
constexpr Modes kRim = {{{1180.0, 0.7, 0.05}, {378.0, 0.8, 0.07}, {2240.0, 0.25, 0.03}}};
constexpr Modes kWood = {{{690.0, 1.0, 0.09}, {1565.0, 0.4, 0.05}, {2390.0, 0.15, 0.03}}};
constexpr KitRow<StruckShape> kStruck[] = {
//   name         peak  treated  modes  length click hz      time   squares hz   decay drive
    {"Deep Rim",  -2.5, kHall,  {kRim,  0.12,  0.3,  2600.0, 0.010, 0.0,    0.0, 0.0,  1.8}},
    {"Deep Wood", -2.5, kDry,   {kWood, 0.16,  0.2,  1800.0, 0.012, 0.0,    0.0, 0.0,  1.5}},
};
constexpr KitRow<ShakerShape> kShakers[] = {
//   name           peak  treated  hz      q    attack decay back at     grain
    {"Deep Shaker", -4.5, kDry,   {4300.0, 0.8, 0.035, 0.10, 0.5, 0.110, 0.85}},
};
constexpr KitRow<StabShape> kStabs[] = {
//   name         peak  treated  hz     chord        open    closed close q    decay drive
    {"Deep Stab", -2.0, kHall,  {174.6, kMinorNinth, 2600.0, 260.0, 0.09, 1.1, 0.60, 1.3}},
};
// clang-format on

} // namespace

Kit DeepKit()
{
    Kit kit;
    Add(kit, Kick, kKicks);
    Add(kit, Snare, kSnares);
    Add(kit, Clap, kClaps);
    Add(kit, Cymbal, kCymbals);
    Add(kit, Skin, kSkins);
    Add(kit, Struck, kStruck);
    Add(kit, Shaker, kShakers);
    Add(kit, Stab, kStabs);
    return kit;
}

} // namespace korvane::factory
