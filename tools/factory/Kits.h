// The drum kits: one row per one-shot.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "Sound.h"

namespace korvane::factory {

struct OneShot {
    const char* name; // the kit's name and what it is; also the file's name
    double peakDb;    // dBFS
    std::function<Sound(std::uint32_t seed)> make;
};
using Kit = std::vector<OneShot>;

Kit VoltKit(); // electronic, after the analogue drum machines' circuits

/// Every one-shot of every kit.
std::vector<OneShot> AllOneShots();

/// The one-shot as it is written; its noise follows from its name alone.
Sound Render(const OneShot& row);

} // namespace korvane::factory
