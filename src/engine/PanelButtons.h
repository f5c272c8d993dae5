// The panel's other buttons: channels, patterns, mutes, effects, stutter, moving about.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

// Any thread. Indices outside the range given are ignored.

/// Outside edit mode chooses what plays, in it marks a pattern for pasting.
/// pattern  0..7
void SelectPattern(GrooveEngine& engine, int pattern);
/// Outside edit mode holds the channel, in it selects and marks or unmarks it.
/// channel  0..12
void ChannelPress(GrooveEngine& engine, int channel);
/// Selects the channel, unless the press was part of something else.
void ChannelRelease(GrooveEngine& engine, int channel);
/// "Mute Selected Tracks": the mutes of the held channels, else of the selected one on release, are turned over.
void SetMuteModifier(GrooveEngine& engine, bool held);
/// effect  0..9
void SetFxButton(GrooveEngine& engine, int effect, bool held);
/// "FX Activate": the X/Y pad plays the selected effect.
void SetFxPad(GrooveEngine& engine, bool held);
/// button  0..4
void SetStutterButton(GrooveEngine& engine, int button, bool held);
/// Nudges held steps, else moves the edited step or the selected bar.
/// direction  -1 or 1
void Move(GrooveEngine& engine, int direction);

} // namespace korvane
