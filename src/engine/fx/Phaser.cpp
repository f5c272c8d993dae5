// Phaser: sweep and feedback.
#include "engine/fx/Phaser.h"

#include <algorithm>

#include "framework/KnobLaws.h"

namespace korvane {

namespace {

constexpr float kLowestHz = 50.0f, kHighestHz = 20000.0f; // of the sweep
constexpr float kNoDepth = -1.0f;                         // takes the target at once

} // namespace

void Phaser::Reset()
{
    for (auto& side : sides) {
        std::ranges::fill(side.stages, 0.0f);
        side.last = 0.0f;
        side.depth = kNoDepth;
    }
}

const float* Phaser::Prepare(UnitControls& unit, int frames)
{
    if (inputs.Moved({unit.x, unit.y, unit.sampleRate})) {
        const float feedback = law::PhaserFeedback(unit.y);
        for (auto& side : sides) {
            side.depthTarget = law::PhaserDepth(unit.x);
            side.feedback = feedback;
            side.lowest = kLowestHz / unit.sampleRate;
            side.span = (kHighestHz - kLowestHz) / unit.sampleRate;
        }
    }
    for (auto& side : sides)
        if (side.depth < 0.0f) side.depth = side.depthTarget;
    unit.FillLfo(lfo, frames);
    return lfo;
}

} // namespace korvane
