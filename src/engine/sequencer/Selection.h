// What is shown, selected and marked for editing.
#pragma once

#include <cstdint>

#include "framework/Limits.h"
#include "platform/Shared.h"

namespace korvane {

/// What buttons and knobs act on. Owned by GrooveEngine.
///
/// Threads: host, editor and MIDI (on the audio thread) write, every thread reads. Of two that choose in the same
/// instant one stands, of two that move on one step is lost: hands see it and press again. A knob turned while another
/// thread selects may still reach what was selected before, or the edited step of the bar before.
struct Selection {
    /// The channel parameter that a base addresses now: those that are banked plus the selected envelope, LFO, layer
    /// or effect, others as they are.
    int ChannelIndexOf(int base) const;
    /// The pattern step of a step of the selected bar.
    int StepInPattern(int step) const { return selectedBar * kStepsPerBar + step; }
    bool OnSampler() const { return selectedChannel < kSamplerChannels; }
    /// Selected, or marked for an edit of several channels.
    bool Chosen(int channel) const { return channel == selectedChannel || channelMarked[channel]; }
    /// Selects and marks a bar; the marked one loses its mark.
    void MarkBar(int bar);
    void ClearMarks() { Fill(channelMarked, false); } // of channels
    /// Nothing is edited or marked any more.
    void EndEditing();
    /// Moves the edited step, else the selected bar, by one; not beyond the pattern.
    /// direction  -1 or 1
    void Move(int direction);
    /// As in an empty groove.
    void Reset();

    Shared<std::int32_t> selectedChannel = kSamplerChannels; // 0..12
    Shared<std::int32_t> selectedBar;                        // 0..7
    Shared<std::int32_t> selectedFx;                         // 0..9
    Shared<std::int8_t> envelopeNumber, lfoNumber;           // 0..1
    Shared<std::int8_t> layerNumber;                         // 0..3
    Shared<std::int32_t> editStep = -1;                      // of the selected bar, being edited; -1 none
    Shared<std::int32_t> selectedBarMark = -1, selectedPatternMark = -1;
    Shared<bool> channelMarked[kChannels];
};

} // namespace korvane
