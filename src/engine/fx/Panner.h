// Panner by delay and level.
#pragma once

#include <memory>

#include "engine/fx/Effect.h"
#include "engine/fx/MFXTapeDelay.h"

namespace korvane {

/// One side arrives up to 2 ms later and weaker than the other, as at two ears. Starts and stops without a fade.
/// x  position, moved by the LFO frame by frame    y  level difference
class Panner final : public Effect {
public:
    void Allocate(float rate) override;
    void Reset() override;
    bool Runs(const UnitControls& unit) const override { return !unit.bypass; }
    void Process(UnitControls& unit, const StereoBlock& block) override;

private:
    std::unique_ptr<MFXTapeDelay> delays[2]; // left, right; without feedback
    Stereo last{};                           // that was recorded
};

} // namespace korvane
