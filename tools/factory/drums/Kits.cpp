// The drum kits.
#include "factory/drums/Kits.h"

#include <utility>

namespace korvane::factory {

std::vector<OneShot> AllOneShots()
{
    std::vector<OneShot> all;
    for (const auto kit : {&VoltKit, &DeepKit, &OakKit, &ForgeKit})
        for (OneShot& row : kit()) all.push_back(std::move(row));
    return all;
}

} // namespace korvane::factory
