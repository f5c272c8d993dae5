// How large the toolkit's pixels are on this screen.
#pragma once

#include <string_view>

namespace korvane {

/// KORVANE_SCALE where it is 1..4; otherwise what the desktop's resources say, asked for over a connection of its own;
/// 1 without a display. Any thread.
int ReadDisplayScale();

/// resources  the desktop's, a line each: "Xft.dpi: 144". From 144 dots per inch on, an ordinary screen's 96 to a step.
int ScaleFromResources(std::string_view resources);

} // namespace korvane
