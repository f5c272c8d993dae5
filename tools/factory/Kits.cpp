// The drum kits: one row per one-shot.
#include "Kits.h"

namespace korvane::factory {

namespace {

constexpr double kLongest = 2.9; // seconds

/// FNV-1a
std::uint32_t SeedOf(const char* name)
{
    std::uint32_t hash = 2166136261u;
    for (; *name; ++name) hash = (hash ^ static_cast<unsigned char>(*name)) * 16777619u;
    return hash;
}

} // namespace

std::vector<OneShot> AllOneShots()
{
    std::vector<OneShot> all;
    for (const auto kit : {&VoltKit})
        for (OneShot& row : kit()) all.push_back(std::move(row));
    return all;
}

Sound Render(const OneShot& row) { return Finished(row.make(SeedOf(row.name)), row.peakDb, kLongest); }

} // namespace korvane::factory
