// The factory grooves.
#include "factory/grooves/Grooves.h"

namespace korvane::factory {

std::vector<GrooveRow> AllGrooves()
{
    using namespace groove;
    return {
        {"Night Drive 124", NightDrive},     {"Open Window 120", OpenWindow},  {"Steel Yard 134", SteelYard},
        {"Harbour Dub 76", HarbourDub},      {"Dusty Stairs 88", DustyStairs}, {"Undertow 174", Undertow},
        {"Chrome Robots 128", ChromeRobots}, {"Slow Glass 84", SlowGlass},
    };
}

} // namespace korvane::factory
