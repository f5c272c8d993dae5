// The factory grooves.
#pragma once

#include <vector>

#include "factory/notation/GrooveScore.h"

namespace korvane::factory {

struct GrooveRow {
    const char* name; // also the file's name; the tempo that it is made for stands at the end
    groove::Score (*score)();
};

std::vector<GrooveRow> AllGrooves();

/// The groove that a new instrument plays; made for 120, where hosts start.
inline constexpr const char kDefaultGroove[] = "Open Window 120";

} // namespace korvane::factory

namespace korvane::factory::groove {

Score NightDrive();   // synthwave
Score OpenWindow();   // soulful house
Score SteelYard();    // techno
Score HarbourDub();   // dub
Score DustyStairs();  // hip hop
Score Undertow();     // drum and bass
Score ChromeRobots(); // electro
Score SlowGlass();    // ambient

} // namespace korvane::factory::groove
