// The render loop: clock, channels, mix.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

/// Renders the next frames. Runs end where steps begin, so that ticks come at their exact frames. Audio thread;
/// allocates nothing.
/// outputs  2 × 14 pointers: main pair, then the pairs of channels 0..12; null where nobody listens. The main pair is
///          overwritten, and so are the direct pairs of channels that sound; others are left as they are
/// frames   0..kMaxRun
void RenderFrames(GrooveEngine& engine, float* const* outputs, int frames);

} // namespace korvane
