// Fade of an effect between its input and its own signal.
#pragma once

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/Effect.h"

namespace korvane {

/// Fades between the input and wet(input), by the unit's mix.
/// wet  called once per frame, Stereo to Stereo
template <class Wet>
void Crossfade(UnitControls& unit, const StereoBlock& block, Wet wet)
{
    const float target = unit.Target();
    float level = unit.mix;
    for (int n = 0; n < block.frames; ++n) {
        const Stereo dry = LoadFrame(block.left, block.right, n);
        const Stereo out = wet(dry);
        level += (target - level) * UnitControls::kOnStep;
        StoreFrame((1.0f - level) * dry + level * out, block.left, block.right, n);
    }
    unit.mix = level;
}

} // namespace korvane
