// What happens at each tick of the step clock.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

/// Plays a step. Audio thread.
/// late  the delayed tick of an odd step, on which shuffled channels sound; else the tick at the step's beginning,
///       which moves the position on
void SequencerTick(GrooveEngine& engine, bool late);

} // namespace korvane
