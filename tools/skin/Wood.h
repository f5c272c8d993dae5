// The sides of the housing.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

inline constexpr int kCheek = 20; // width of a side

void DrawCheeks(Picture& page);

} // namespace korvane::skin
