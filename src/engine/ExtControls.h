// The five external controls and what each drives.
#pragma once

#include <cstdint>

#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// A channel parameter of a channel, in one piece. Images may hold any numbers: who follows one looks whether it leads
/// anywhere.
struct alignas(8) ExtBinding {
    std::int32_t channel = 0; // 0..12
    std::int32_t param = -1;  // 0..211, -1 unbound

    bool operator==(const ExtBinding&) const = default;
    bool LeadsSomewhere() const { return param >= 0 && param < kChannelSlots && channel >= 0 && channel < kChannels; }
};

struct ExtControl {
    Shared<float> value; // 0..1
    Shared<ExtBinding> binding;
};

/// "EXT Ctrl 1" to "EXT Ctrl 5". Owned by GrooveEngine.
///
/// Threads: host, editor and MIDI (on the audio thread) write, a state load under the handshake; every thread reads. A
/// control turned while it is being bound may drive its old parameter once more.
struct ExtControls {
    /// A channel parameter has been written: an armed learn binds the control touched last to it, and those bound to it
    /// take the value.
    void Written(const ExtBinding& written, float value);
    /// All unbound, none touched. Values stay.
    void Reset();

    ExtControl extControls[kExtControls];
    Shared<std::int32_t> extIndex; // control touched last, the target of learning
    Shared<bool> extLearn;
};

} // namespace korvane
