// Mutes, solo and click of the mixer.
#pragma once

#include "engine/mix/Click.h"
#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// What the mixer does to all channels; each has its own strip. Owned by GrooveEngine.
///
/// Threads: host, editor and MIDI (on the audio thread) write the flags, the audio thread reads them once per run.
struct Mixer {
    bool Silences(int channel, int selectedChannel) const
    {
        return muted[channel] || (soloSelected && channel != selectedChannel);
    }
    /// As in an empty groove.
    void Reset()
    {
        Fill(muted, false);
        soloSelected = false;
    }

    Shared<bool> muted[kChannels];
    Shared<bool> soloSelected;
    Click click;
};

} // namespace korvane
