// Which buttons of the panel are down.
#pragma once

#include <cstdint>

#include "engine/sequencer/StutterButtons.h"
#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// The state of the held buttons. Owned by GrooveEngine.
///
/// Threads: host, editor and MIDI (on the audio thread) press and release, every thread reads; `stutterCode` is turned
/// positive by the tick. Of two that press in the same instant each is seen; two that press and release the same button
/// leave it as one of them would.
struct Buttons {
    /// The channel that a step or bar button plays live: of samplers the first whose pad key it is, else the selected.
    int PlayedChannel(int k, int selectedChannel) const;
    /// A channel hears effect buttons, pad and stutter: it is selected or held.
    bool Reaches(int channel, int selectedChannel) const { return channel == selectedChannel || channelHeld[channel]; }
    /// Gives each channel the code that the stutter buttons ask of it; a new one starts at the next tick.
    void RefreshStutterCodes(int selectedChannel);
    /// A start or a stop lets the stutter go.
    void ClearStutter();
    /// No button is down but the pad and what a channel button has begun, which their releases end; default pad keys.
    void Reset();

    Shared<bool> channelHeld[kChannels];
    Shared<bool> markedSelection; // channel buttons were pressed while others are marked
    Shared<bool> muteModifier, muteModifierUsed;
    Shared<bool> stepHeld[kNotes];                 // 16 steps, 8 bars
    Shared<std::int8_t> padKeys[kSamplerChannels]; // button that plays each sampler channel live
    Shared<bool> fxOn[kEffects];                   // effect button held
    Shared<bool> fxPad;                            // the X/Y pad is held
    StutterButtons stutterButtons;
    Shared<std::int8_t> stutterCode[kChannels]; // 1..9, 0 off, negative: restart at the next tick
};

} // namespace korvane
