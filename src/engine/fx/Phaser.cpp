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
    std::ranges::fill(sides.stages, Stereo{});
    sides.last = Stereo{};
    sides.depth = Both(kNoDepth);
}

const float* Phaser::Prepare(UnitControls& unit, int frames)
{
    if (inputs.Moved({unit.x, unit.y, unit.sampleRate})) {
        sides.depthTarget = Both(law::PhaserDepth(unit.x));
        sides.feedback = Both(law::PhaserFeedback(unit.y));
        sides.lowest = Both(kLowestHz / unit.sampleRate);
        sides.span = Both((kHighestHz - kLowestHz) / unit.sampleRate);
    }
    if (sides.depth[0] < 0.0f) sides.depth = sides.depthTarget;
    unit.FillLfo(lfo, frames);
    return lfo;
}

} // namespace korvane
