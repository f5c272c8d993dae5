// The housing: wood, metal, plates, displays, logo.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

/// The lit display's glass.
inline constexpr Box kGlass{42, 95, 445, 168};

void DrawPanel(Picture& page);

} // namespace korvane::skin
