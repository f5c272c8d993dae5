// A channel's send into a reverb of its own.
#pragma once

#include <limits>
#include <memory>

#include "engine/fx/Effect.h"
#include "engine/fx/reverb/fxReverb.h"

namespace korvane {

/// The faded input goes through an fxReverb, whose output is added to the channel. A released send runs on while the
/// channel sounds and for a quarter of a second after.
/// x  decay, and with it the level    y  damping
class ReverbSend final : public Effect {
public:
    void Allocate(float rate) override;
    void Reset() override;
    bool Runs(const UnitControls& unit) const override;
    void Process(UnitControls& unit, const StereoBlock& block) override;
    void ProcessAll(std::span<const EffectRun> runs) override;

private:
    void Set(const UnitControls& unit);

    static constexpr float kUnset = std::numeric_limits<float>::quiet_NaN(); // unlike every number

    float setX = kUnset, setY = kUnset; // what the parameters were computed of
    std::unique_ptr<fxReverb> reverb;
};

} // namespace korvane
