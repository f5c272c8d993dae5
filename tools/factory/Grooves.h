// The grooves, the default groove among them.
#pragma once

#include <functional>
#include <vector>

#include "engine/GrooveEngine.h"

namespace korvane::factory {

/// Fills an empty groove with the groove that a new instrument plays.
void DefaultGroove(GrooveEngine& engine);

} // namespace korvane::factory
