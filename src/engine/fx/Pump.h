// Tempo-synchronised volume pump.
#pragma once

#include "engine/fx/Effect.h"

namespace korvane {

/// The level drops at the start of each LFO period and comes back, as under a compressor that a bass drum drives.
/// Starts and stops without a fade; stands still without a period.
/// x  release    y  drop level
class Pump final : public Effect {
public:
    void Reset() override { envelope = 0.0f; }
    bool Runs(const UnitControls& unit) const override { return !unit.bypass && unit.lfoBeats > 0.0f; }
    void Process(UnitControls& unit, const StereoBlock& block) override;
    void ProcessAll(std::span<const EffectRun> runs) override;

private:
    float envelope = 0.0f; // smoothed; 1 where the level has dropped
};

} // namespace korvane
