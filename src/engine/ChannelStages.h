// What a run does to all channels, stage by stage.
#pragma once

#include <bitset>
#include <span>

#include "engine/GrooveChannel.h"

namespace korvane {

/// Channels in their order, each once, refreshed for the run.
using RunChannels = std::span<GrooveChannel* const>;

// Audio thread. frames: 0..kMaxRun.

/// Renders the active voices into their own buffers.
void RenderVoices(RunChannels channels, int frames);

/// Adds the active voices to the mix buffers of their channels through their filters: channel by channel, voice by
/// voice.
/// pool   the mix buffers and the cutoff table
/// first  the number of the first channel
void FilterChannels(RunChannels channels, SamplePool& pool, int frames, int first = 0);

/// Runs the stutters and the effects over the mix buffers, in place: the same effect of all channels at once. Which
/// channels are mixed: a voice or an effect ran.
std::bitset<kChannels> ProcessRacks(RunChannels channels, SamplePool& pool, int frames, float tempo);

} // namespace korvane
