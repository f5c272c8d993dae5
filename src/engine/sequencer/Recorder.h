// What live recording remembers between a press and its release.
#pragma once

#include <cstdint>

#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// Owned by GrooveEngine. Threads: whoever presses step buttons writes, the audio thread clears the played notes at
/// every tick; all may read. Where two press in the same instant, the length of one of their notes may be measured for
/// the other's step.
struct Recorder {
    void Clear()
    {
        recordStep = recordBar = -1;
        Fill(playedThisStep, 0u);
    }

    Shared<std::int32_t> recordStep = -1, recordBar = -1; // of the note recorded last, -1 none
    Shared<std::uint32_t> playedThisStep[kChannels];      // notes already sounded live; the step's tick skips them
};

} // namespace korvane
