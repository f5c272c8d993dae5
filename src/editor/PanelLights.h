// What the panel's lights and lit buttons say of the engine.
#pragma once

#include <cstdint>

#include "engine/GrooveEngine.h"

namespace korvane {

// Any thread; what the engine does meanwhile is seen a tick later.

/// How a button with several states is lit; blinking goes between a light and the one below it.
enum class Light : std::uint8_t { Off = 0, BlinkHalf = 2, BlinkFull = 3, Full = 4, Half = 5 };

/// The row of a button's image for its light: 0 dark, 2 half, 4 full. The row after each has the button held.
/// blink  the dark part of the cycle
constexpr int ImageRow(Light light, bool blink)
{
    constexpr int kDark = 0, kHalf = 2, kFull = 4;
    switch (light) {
    case Light::BlinkHalf: return blink ? kHalf : kDark;
    case Light::BlinkFull: return blink ? kFull : kHalf;
    case Light::Full: return kFull;
    case Light::Half: return kHalf;
    default: return kDark;
    }
}

/// Full: selected; half: sounds; in edit mode blinks while it is marked.
Light ChannelLight(const GrooveEngine& engine, int channel);
/// Half: holds notes of the selected channel, full: and is edited; blinks where it plays, and dimly when it is edited
/// and empty. Bars: half with notes, full the selected one, which blinks while it is marked.
/// k  0..15 steps, 16..23 bars
Light StepLight(const GrooveEngine& engine, int k);
/// Half: it plays; blinks while it is marked.
Light PatternLight(const GrooveEngine& engine, int pattern);

/// Under a step or bar button: the notes of a synth's step while it is edited, else where the sequencer plays, else
/// that the button is down.
bool StepLed(const GrooveEngine& engine, int k);
/// Effect's button or pad held, or glued to the selected channel.
bool FxLed(const GrooveEngine& engine, int effect);

/// What the pad's axes do: of the selected effect. Other numbers: "---".
const char* PadAxisName(int effect, bool vertical);

} // namespace korvane
