// The voices of a run.
#pragma once

#include <array>
#include <span>

#include "engine/voice/ChannelVoice.h"
#include "framework/Limits.h"

namespace korvane {

struct ChannelSound;

/// A voice that sounds in the run, with its channel.
struct SoundingVoice {
    ChannelSound* channel;
    ChannelVoices* voices; // all of the channel
    ChannelVoice* voice;
};

using SoundingVoices = std::span<const SoundingVoice>; // channel by channel, voice by voice

} // namespace korvane
