// The five external controls and what each drives.
#pragma once

#include <cstdint>

#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

struct ExtControl {
    Shared<float> value;             // 0..1
    Shared<std::int32_t> channel;    // 0..12
    Shared<std::int32_t> param = -1; // channel parameter 0..211, -1 unbound
};

/// "EXT Ctrl 1" to "EXT Ctrl 5". Owned by GrooveEngine.
///
/// Threads: host, editor and MIDI (on the audio thread) write, a state load under the handshake; every thread reads. A
/// control turned while it is being bound may drive its old parameter once more.
struct ExtControls {
    /// Channel parameter `param` of `channel` has been written: an armed learn binds the control touched last to it,
    /// and those bound to it take the value.
    void Written(int channel, int param, float value);
    /// As in an empty groove; values stay.
    void Reset();

    ExtControl extControls[kExtControls];
    Shared<std::int32_t> extIndex; // control touched last, the target of learning
    Shared<bool> extLearn;
};

} // namespace korvane
