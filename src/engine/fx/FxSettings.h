// How a channel's parameters and the step clock set its effect units.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "engine/fx/FXUnit.h"
#include "framework/Limits.h"
#include "framework/ParameterBlock.h"
#include "platform/Shared.h"

namespace korvane {

/// Settings of the ten effects for the coming block. Audio thread, before the units run.
/// params    the channel's working block; values outside 0..1 act as the nearest end
/// fxActive  10 flags: the effect is being played on this channel
void UpdateFxSettings(const ParameterBlock& params, const Shared<bool>* fxActive,
                      const std::array<std::unique_ptr<FXUnit>, kEffects>& units);

/// Bypasses the stutter while "FX Bypass Stutter" is on, whatever the last step has set.
void HoldStutter(const ParameterBlock& params, FXUnit& stutter);

/// Sets the stutter at a step.
/// code  0 off; 1..5: 1, 3/4, 1/2, 3/8, 1/4 beat; 6..8: 1, 3/4, 1/2 beat reversed; 9: 1/8 beat. A negative code starts
///       a new recording and comes back positive
void SetStutter(FXUnit& stutter, std::int8_t& code);

/// Puts the LFO where the song position has it, so that it never drifts from the beat.
/// stepCounter  sixteenths, 0..127
void SyncLfo(FXUnit& unit, int stepCounter);

} // namespace korvane
