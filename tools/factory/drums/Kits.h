// The drum kits: one row per one-shot, one table per model.
#pragma once

#include "factory/sound/OneShot.h"

namespace korvane::factory {

Kit VoltKit();  // electronic, after the analogue drum machines' circuits
Kit DeepKit();  // low and dark, for slow clubs
Kit OakKit();   // a drum set in a room
Kit ForgeKit(); // machines and metal

/// Every one-shot of every kit.
std::vector<OneShot> AllOneShots();

} // namespace korvane::factory
