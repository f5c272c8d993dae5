// Oak: a drum set in a room, played by hands and sticks.
#include "factory/drums/Kits.h"
#include "factory/sound/Drums.h"
#include "factory/sound/DrumsPlayed.h"

namespace korvane::factory {

namespace {

constexpr Treatment kClose{.room = {.seconds = 0.25, .darkHz = 6000.0, .level = 0.16, .preDelay = 0.006}};
constexpr Treatment kRoom{.room = {.seconds = 0.50, .darkHz = 7000.0, .level = 0.30, .preDelay = 0.009}};
constexpr Treatment kHands{.wide = true, .room = {.seconds = 0.45, .darkHz = 7500.0, .level = 0.40}};

// clang-format off
constexpr KitRow<SkinShape> kSkins[] = {
//   name             peak  treated  hz     bend  time   decay over  tilt damp beater hz      time   knock hz     drive
    {"Oak Kick",      -0.5, kClose, {54.0,  0.55, 0.022, 0.38, 0.55, 1.3, 1.5, 0.90,  2800.0, 0.030, 0.50, 240.0, 1.6}},
    {"Oak Kick Felt", -1.0, kClose, {48.0,  0.35, 0.030, 0.62, 0.40, 1.8, 1.4, 0.12,  900.0,  0.035, 0.45, 130.0, 1.2}},
    {"Oak Tom Low",   -1.5, kClose, {82.0,  0.22, 0.060, 0.95, 0.70, 0.8, 1.1, 0.60,  1900.0, 0.025, 0.30, 240.0, 1.4}},
    {"Oak Tom Mid",   -1.5, kClose, {112.0, 0.22, 0.055, 0.75, 0.70, 0.8, 1.1, 0.65,  2200.0, 0.022, 0.28, 310.0, 1.4}},
    {"Oak Tom High",  -1.5, kClose, {151.0, 0.22, 0.050, 0.58, 0.70, 0.8, 1.1, 0.70,  2500.0, 0.020, 0.26, 400.0, 1.4}},
};
constexpr KitRow<SnareDrumShape> kSnares[] = {
//   name              peak  treated   hz     bend  time  decay over  tilt damp beater hz      time   knock hz     drive skin  wires decay low     presence high     buzz drive
    {"Oak Snare",      -1.0, kRoom,  {{193.0, 0.25, 0.02, 0.24, 0.80, 0.8, 0.9, 0.60,  3400.0, 0.018, 0.25, 420.0, 1.2}, 0.62, 1.15, 0.30, 1500.0, 4200.0,  10500.0, 0.6, 1.5}},
    {"Oak Snare Soft", -4.0, kClose, {{186.0, 0.08, 0.02, 0.18, 0.60, 1.2, 1.0, 0.20,  2200.0, 0.016, 0.15, 380.0, 1.0}, 0.50, 0.85, 0.20, 1900.0, 3800.0,  9000.0,  0.8, 1.1}},
    {"Oak Snare Deep", -1.0, kRoom,  {{168.0, 0.18, 0.03, 0.36, 0.70, 0.9, 0.8, 0.45,  2600.0, 0.022, 0.40, 330.0, 1.3}, 0.80, 0.95, 0.38, 1100.0, 3200.0,  9000.0,  0.5, 1.5}},
};
constexpr KitRow<PlateShape> kPlates[] = {
//   name              peak  treated  metal count low    high     tilt  low-decay high-decay bloom  wash  hz      stick hz      drive
    {"Oak Hat Closed", -3.0, kWide,  {11,   220,  900.0, 15000.0, 4.0,  0.09,     0.11,      0.001, 0.35, 6500.0, 0.20, 6000.0, 2.0}},
    {"Oak Hat Half",   -3.0, kWide,  {11,   220,  700.0, 15000.0, 3.5,  0.30,     0.34,      0.002, 0.45, 5800.0, 0.15, 6000.0, 2.4}},
    {"Oak Hat Open",   -3.0, kWide,  {11,   240,  600.0, 15000.0, 3.0,  0.95,     0.80,      0.004, 0.40, 5500.0, 0.12, 6000.0, 2.0}},
    {"Oak Hat Foot",   -5.0, kWide,  {11,   160,  800.0, 11000.0, 0.5,  0.13,     0.10,      0.003, 0.20, 4500.0, 0.05, 2500.0, 1.4}},
    {"Oak Crash",      -2.0, kWide,  {23,   420,  320.0, 15500.0, -1.0, 2.20,     1.30,      0.022, 0.30, 4000.0, 0.08, 4500.0, 2.2}},
    {"Oak Ride",       -3.0, kWide,  {37,   200,  420.0, 14000.0, -2.5, 2.30,     1.00,      0.006, 0.12, 6000.0, 0.55, 5200.0, 1.4}},
};
// hz, level, decay
constexpr Modes kCrossStick = {{{510.0, 0.7, 0.07}, {1240.0, 0.9, 0.045}, {1915.0, 0.5, 0.04}, {3380.0, 0.25, 0.025}}};
constexpr Modes kRideBell = {{{632.0, 0.5, 1.7}, {1423.0, 0.8, 1.3}, {2415.0, 0.7, 1.0}, {3560.0, 0.6, 0.75}, {4870.0, 0.5, 0.55}, {7420.0, 0.3, 0.35}}};
constexpr Modes kBlock = {{{905.0, 1.0, 0.08}, {2210.0, 0.5, 0.05}, {3120.0, 0.2, 0.03}}};
constexpr KitRow<StruckShape> kStruck[] = {
//   name               peak  treated  modes        length click hz      time   squares hz   decay drive
    {"Oak Cross Stick", -2.0, kRoom,  {kCrossStick, 0.14,  0.35, 3600.0, 0.008, 0.0,    0.0, 0.0,  1.7}},
    {"Oak Ride Bell",   -3.0, kClose, {kRideBell,   2.1,   0.30, 6500.0, 0.010, 0.0,    0.0, 0.0,  1.3}},
    {"Oak Block",       -2.5, kClose, {kBlock,      0.16,  0.25, 2600.0, 0.008, 0.0,    0.0, 0.0,  1.5}},
};
constexpr KitRow<JinglesShape> kJingles[] = {
//   name              peak  treated  metal count low     high     ring  hits spread back at     noise hz      drive
    {"Oak Tambourine", -3.0, kWide,  {51,   24,   5200.0, 13000.0, 0.16, 22,  0.055, 0.5, 0.085, 0.50, 8000.0, 1.6}},
};
constexpr KitRow<ShakerShape> kShakers[] = {
//   name          peak  treated  hz      q    attack decay back at     grain
    {"Oak Shaker", -4.0, kWide,  {7600.0, 0.7, 0.028, 0.08, 0.6, 0.095, 0.75}},
};
constexpr KitRow<SweepShape> kSweeps[] = {
//   name         peak  treated  from    to      time  q    attack decay flutter depth drive
    {"Oak Brush", -4.0, kWide,  {2200.0, 5200.0, 0.10, 0.6, 0.045, 0.34, 31.0,   0.5,  1.3}},
};
constexpr KitRow<ClapShape> kClaps[] = {
//   name        peak  treated  hz      q    hands spacing decay bright drive
    {"Oak Clap", -2.0, kHands, {1350.0, 1.1, 6,    0.007,  0.15, 0.35,  1.4}},
};
// clang-format on

} // namespace

Kit OakKit()
{
    Kit kit;
    Add(kit, Skin, kSkins);
    Add(kit, SnareDrum, kSnares);
    Add(kit, Plate, kPlates);
    Add(kit, Struck, kStruck);
    Add(kit, Jingles, kJingles);
    Add(kit, Shaker, kShakers);
    Add(kit, Sweep, kSweeps);
    Add(kit, Clap, kClaps);
    return kit;
}

} // namespace korvane::factory
