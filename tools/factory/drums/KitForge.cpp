// Forge: machines and metal in a hall.
#include "factory/drums/Kits.h"
#include "factory/sound/Drums.h"
#include "factory/sound/DrumsPlayed.h"

namespace korvane::factory {

namespace {

constexpr Ratios kScrap = {1.0, 1.219, 1.483, 1.771, 2.317, 3.137};
constexpr Treatment kCrushed{.crushHold = 2.6, .crushBits = 7, .drive = 2.5};
constexpr Treatment kBroken{.crushHold = 5.5, .crushBits = 5, .drive = 1.5};
constexpr Treatment kHot{.drive = 3.0};
constexpr Treatment kHotHall{.drive = 2.5,
                             .room = {.seconds = 0.70, .darkHz = 7000.0, .level = 0.45, .preDelay = 0.008}};
constexpr Treatment kHall{.room = {.seconds = 1.20, .darkHz = 6500.0, .level = 0.50, .preDelay = 0.015}};
constexpr Treatment kHotWide{.wide = true, .drive = 2.5};

// clang-format off
constexpr KitRow<KickShape> kKicks[] = {
//   name               peak  treated    hz    sweep time   snap hold   decay click hz      second drive low-pass
    {"Forge Kick",      -0.5, kHot,     {51.0, 3.2,  0.020, 2.0, 0.060, 0.30, 0.50, 3500.0, 0.20,  4.0,  9000.0}},
    {"Forge Kick Hard", -0.5, kHot,     {54.0, 3.8,  0.045, 2.0, 0.120, 0.34, 0.30, 5000.0, 0.0,   9.0,  11000.0}},
    {"Forge Kick Bit",  -0.5, kCrushed, {47.0, 2.4,  0.030, 1.5, 0.040, 0.36, 0.40, 2500.0, 0.30,  2.5,  10000.0}},
};
constexpr KitRow<SnareShape> kSnares[] = {
//   name               peak  treated    hz     ratio bend tone  decay noise decay low     high     crack drive
    {"Forge Snare",     -0.8, kHotHall, {198.0, 1.83, 1.2, 0.70, 0.15, 1.00, 0.20, 800.0,  10000.0, 0.8,  2.6}},
    {"Forge Snare Bit", -1.0, kBroken,  {224.0, 1.47, 0.8, 0.60, 0.13, 1.00, 0.22, 1200.0, 11000.0, 0.5,  1.8}},
};
constexpr KitRow<ClapShape> kClaps[] = {
//   name          peak  treated    hz      q    hands spacing decay bright drive
    {"Forge Clap", -1.0, kHotWide, {1450.0, 2.2, 5,    0.016,  0.30, 0.50,  2.0}},
};
constexpr KitRow<CymbalShape> kCymbals[] = {
//   name                peak  treated    hz     ratios  metal noise high-pass low-pass attack  decay body  hz      time drive
    {"Forge Hat Closed", -3.0, kHot,     {533.0, kScrap, 0.9,  0.10, 5200.0,   12000.0, 0.0006, 0.07, 0.25, 4100.0, 0.7, 2.0}},
    {"Forge Hat Open",   -3.0, kCrushed, {533.0, kScrap, 0.9,  0.20, 4800.0,   12000.0, 0.0010, 0.42, 0.25, 4100.0, 0.8, 1.5}},
};
constexpr KitRow<PlateShape> kPlates[] = {
//   name           peak  treated  metal count low    high     tilt  low-decay high-decay bloom  wash  hz      stick hz      drive
    {"Forge Sheet", -2.0, kWide,  {71,   90,   130.0, 9000.0,  -3.0, 2.10,     0.80,      0.060, 0.10, 3000.0, 0.40, 1800.0, 3.0}},
    {"Forge Crash", -2.0, kWide,  {83,   300,  450.0, 14500.0, 0.0,  1.70,     1.10,      0.012, 0.45, 3500.0, 0.30, 5000.0, 4.0}},
};
constexpr KitRow<StruckShape> kStruck[] = {
//   name           peak  treated  modes                    length click hz      time   squares hz   decay drive
    {"Forge Anvil", -2.0, kHall,  {Bar(1130.0, 1.30, 0.80), 1.5,   0.40, 5500.0, 0.010, 0.0,    0.0, 0.0,  1.8}},
    {"Forge Pipe",  -2.0, kHall,  {Bar( 236.0, 0.90, 0.90), 1.1,   0.30, 2500.0, 0.014, 0.0,    0.0, 0.0,  2.2}},
};
constexpr KitRow<ClangShape> kClangs[] = {
//   name              peak  treated   hz     ratio  index bend  time  decay index noise hz      decay drive
    {"Forge Tom Low",  -1.5, kHot,    {74.0,  2.413, 2.2,  0.9,  0.05, 0.70, 0.22, 0.10, 1500.0, 0.08, 1.6}},
    {"Forge Tom High", -1.5, kHot,    {131.0, 2.413, 2.6,  0.9,  0.05, 0.50, 0.18, 0.12, 2200.0, 0.07, 1.6}},
    {"Forge Servo",    -3.0, kBroken, {410.0, 0.507, 5.0,  -1.6, 0.14, 0.55, 0.60, 0.05, 4000.0, 0.30, 1.5}},
    {"Forge Impact",   -0.5, kHall,   {39.0,  2.713, 6.0,  1.6,  0.06, 1.30, 0.30, 0.50, 700.0,  0.22, 3.0}},
};
constexpr KitRow<JinglesShape> kJingles[] = {
//   name           peak  treated  metal count low     high    ring  hits spread back at   noise hz      drive
    {"Forge Chain", -3.0, kWide,  {91,   20,   1900.0, 8500.0, 0.11, 13,  0.240, 0.0, 0.0, 0.20, 5000.0, 2.0}},
};
constexpr KitRow<SweepShape> kSweeps[] = {
//   name            peak  treated  from    to      time  q    attack decay flutter depth drive
    {"Forge Steam",  -4.0, kWide,  {9000.0, 3200.0, 0.25, 0.9, 0.006, 0.65, 47.0,   0.2,  1.6}},
    {"Forge Piston", -2.0, kHot,   {300.0,  1900.0, 0.05, 1.6, 0.060, 0.13, 23.0,   0.8,  2.0}},
};
constexpr KitRow<SpringShape> kSprings[] = {
//   name            peak  treated  stretch sections coefficient echoes time   loss  hz      low-pass drive
    {"Forge Spring", -2.5, kDry,   {5,      80,      0.62,       10,    0.052, 0.80, 1900.0, 4200.0,  1.5}},
};
// clang-format on

} // namespace

Kit ForgeKit()
{
    Kit kit;
    Add(kit, Kick, kKicks);
    Add(kit, Snare, kSnares);
    Add(kit, Clap, kClaps);
    Add(kit, Cymbal, kCymbals);
    Add(kit, Plate, kPlates);
    Add(kit, Struck, kStruck);
    Add(kit, Clang, kClangs);
    Add(kit, Jingles, kJingles);
    Add(kit, Sweep, kSweeps);
    Add(kit, Spring, kSprings);
    return kit;
}

} // namespace korvane::factory
