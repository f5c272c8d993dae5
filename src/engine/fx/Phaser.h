// Phaser whose notches the LFO sweeps.
#pragma once

#include "engine/fx/SidesEffect.h"

namespace korvane {

/// x  depth, moved by the LFO frame by frame    y  feedback
class Phaser final : public SidesEffect<PhaserSide, &Kernels::phase> {
public:
    Phaser() { Reset(); }
    void Reset() override;

protected:
    const float* Prepare(UnitControls& unit, int frames) override;

private:
    LastInputs<3> inputs;
    alignas(64) float lfo[kMaxRun];
};

} // namespace korvane
