// Tempo-synchronised stereo tape echo.
#pragma once

#include <cstdint>
#include <memory>

#include "engine/dsp/StereoFrame.h"
#include "engine/fx/Effect.h"
#include "engine/fx/MFXTapeDelay.h"

namespace korvane {

/// A tape per side that holds one LFO period, 15 ms to 1.485 s, with lowpass, highpass and feedback in its record
/// path; its output is added to the input. A released echo runs on while the channel sounds and for one whole tape
/// after, so that nothing that is still on the tape is lost; also one that was reset and not played yet.
/// x  send and feedback    y  filter: lowpass up to the middle, highpass from there
class Echo final : public Effect {
public:
    void Allocate(float rate) override;
    void Reset() override;
    bool Runs(const UnitControls& unit) const override;
    void Process(UnitControls& unit, const StereoBlock& block) override;

private:
    void Set(const UnitControls& unit);
    int Pass(const StereoBlock& block);
    int Play(UnitControls& unit, const StereoBlock& block);

    std::unique_ptr<TapeDelay<Stereo>> delays;
    int silentFrames = 0; // that were recorded last; at least kSilent when nothing else was
};

} // namespace korvane
