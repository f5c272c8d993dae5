// On-level of an effect, frame by frame.
#pragma once

#include <algorithm>

#include "engine/dsp/OnLevel.h"
#include "engine/fx/UnitControls.h"

namespace korvane {

/// The unit's on-level of each frame; moves it on. Once a step no longer changes it, none will.
inline void FillLevels(UnitControls& unit, float* levels, int frames)
{
    const float target = unit.Target();
    float level = unit.mix;
    for (int n = 0; n < frames; ++n) {
        const float next = level + (target - level) * kOnStep;
        if (next == level) {
            std::fill(levels + n, levels + frames, level);
            break;
        }
        levels[n] = level = next;
    }
    unit.mix = level;
}

} // namespace korvane
