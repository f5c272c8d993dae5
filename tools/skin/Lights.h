// Where a light stands within its cell, lit in its image and dark on the page.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

inline constexpr int kLightCellWidth = 14, kLightCellHeight = 13;
inline constexpr double kLightX = 5.5, kLightY = 6.5; // its middle, within a cell

enum class LightKind { Red, Amber }; // the image's columns

/// The lens of a light that is off.
void DrawLens(cairo_t* pen, double x, double y, LightKind kind);

} // namespace korvane::skin
