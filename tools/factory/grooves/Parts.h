// The factory parts.
#pragma once

#include <vector>

#include "factory/notation/Part.h"

namespace korvane::factory {

std::vector<Part> AllParts();

} // namespace korvane::factory
