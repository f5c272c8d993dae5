// Short modulated tape delays.
#pragma once

#include <memory>

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/Effect.h"
#include "engine/fx/MFXTapeDelay.h"

namespace korvane {

/// Three tapes of 2 ms in series per side, each with feedback, all at one speed; their output is added to the input.
/// x  depth, moved by the LFO frame by frame    y  feedback
class Chorus final : public Effect {
public:
    void Allocate(float rate) override;
    void Reset() override;
    void Process(UnitControls& unit, const StereoBlock& block) override;
    void ProcessAll(std::span<const EffectRun> runs) override;

private:
    static void ProcessSome(std::span<const EffectRun> runs);

    std::unique_ptr<TapeDelay<StereoChain>> delays; // lanes 0..2: the three of a side
};

} // namespace korvane
