// Pump: envelope over the LFO period.
#include "engine/fx/Pump.h"

#include <algorithm>

#include "engine/dsp/StereoFrame.h"
#include "engine/kernels/Kernels.h"
#include "framework/KnobLaws.h"
#include "framework/Limits.h"

namespace korvane {

namespace {

constexpr int kPiece = 128; // frames

void Duck(float drop, const float* levels, const StereoBlock& block)
{
    for (float* side : {block.left, block.right})
        for (int n = 0; n < block.frames; ++n) side[n] *= 1.0f - levels[n] * drop;
}

} // namespace

void Pump::Process(UnitControls& unit, const StereoBlock& block)
{
    const EffectRun run{this, &unit, block};
    ProcessAll({&run, 1});
}

void Pump::ProcessAll(std::span<const EffectRun> runs)
{
    double phases[kChannels][kPiece];
    alignas(64) float levels[kChannels][kPiece];
    PumpJob jobs[kChannels];
    const int frames = runs.front().block.frames, count = static_cast<int>(runs.size());
    for (int from = 0; from < frames; from += kPiece) {
        const int size = std::min(frames - from, kPiece);
        for (int c = 0; c < count; ++c) {
            UnitControls& unit = *runs[c].unit;
            unit.FillPhases(phases[c], size);
            jobs[c] = {phases[c], law::PumpSpeed(unit.x), levels[c], &static_cast<Pump*>(runs[c].effect)->envelope};
        }
        kernels.pump(jobs, count, size);
        for (int c = 0; c < count; ++c)
            Duck(law::PumpDrop(runs[c].unit->y), levels[c],
                 {runs[c].block.left + from, runs[c].block.right + from, size});
    }
    for (const EffectRun& run : runs) {
        float& last = static_cast<Pump*>(run.effect)->envelope;
        last = Flushed(last);
    }
}

} // namespace korvane
