// A groove that crosses many corners of the instrument, and how it is played.
#pragma once

#include <cstdint>
#include <vector>

#include "render/PluginHost.h"

namespace korvane {

/// Thirteen channels that all sound, with every kind of modulation, lock, shuffle and effect, as a state image.
std::vector<std::uint8_t> CornersGroove();

/// What a player and the host do in the tenth of a second that begins now; 120 of them.
void PlayCorners(render::PluginHost& host, int tenth);

} // namespace korvane
