// Stutter: repeats the slice that was recorded first.
#pragma once

#include "engine/fx/Effect.h"
#include "engine/fx/StutterLoop.h"

namespace korvane {

/// Records from its reset on and, from the second slice on, plays the first again and again. A slice is one LFO period.
/// Released, it goes on until mix is back at the input, at least for a moment.
class Stutter final : public Effect {
public:
    void Allocate(float rate) override;
    void Reset() override { loop.Restart(); }
    void Wipe() override { loop.Wipe(); }
    bool Runs(const UnitControls& unit) const override { return !unit.FadedOut() || unit.holdFrames > 0; }
    void Process(UnitControls& unit, const StereoBlock& block) override;

private:
    void Play(UnitControls& unit, const StereoBlock& block);

    StutterLoop loop;
};

} // namespace korvane
