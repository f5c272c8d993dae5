// Shapes of the low-frequency oscillators.
#pragma once

#include <cstdint>

namespace korvane {

/// One cycle of an LFO, in the order of its switch. All but the sine stay within 0..1. The ramp falls in a channel's
/// LFO (voice/Lfo.h) and rises in an effect's (fx/UnitControls.h).
enum class LfoShape : std::int32_t { Sine, Triangle, Ramp, Square };

} // namespace korvane
