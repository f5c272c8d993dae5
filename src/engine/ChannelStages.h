// What a run does to all channels, stage by stage.
#pragma once

#include <cstdint>
#include <span>

#include "engine/GrooveChannel.h"

namespace korvane {

/// Channels that are not at rest in their order, each once, refreshed for the run.
using RunChannels = std::span<GrooveChannel* const>;

// Audio thread. frames: 0..kMaxRun.

/// Renders the active voices into their own buffers.
void RenderVoices(RunChannels channels, int frames);

/// Adds the active voices to the mix buffers of their channels through their filters: channel by channel, voice by
/// voice.
/// pool  has the cutoff table
void FilterChannels(RunChannels channels, SamplePool& pool, int frames);

/// Runs the stutters and the effects over the mix buffers, in place: the same effect of all channels at once. Units
/// that are at rest and have nothing to do are left out.
/// Returns a bit for each of the channels that is mixed: a voice or an effect ran
std::uint32_t ProcessRacks(RunChannels channels, int frames, float tempo);

} // namespace korvane
