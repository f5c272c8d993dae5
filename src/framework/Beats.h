// Note lengths in beats: what the synchronised LFOs and the stutter choose from.
#pragma once

#include "platform/Numbers.h"

namespace korvane {

namespace beats {
inline constexpr float Eighth = 0.125f;
inline constexpr float Quarter = 0.25f; // one step of the sequencer
inline constexpr float ThreeEighths = 0.375f;
inline constexpr float Half = 0.5f;
inline constexpr float ThreeQuarters = 0.75f;
inline constexpr float One = 1.0f;
inline constexpr float Two = 2.0f;
inline constexpr float Four = 4.0f;
inline constexpr float Eight = 8.0f;
} // namespace beats

inline constexpr float kBeatsPerBar = 4.0f;

/// Length in beats that a position of a rate knob stands for, one of nine; outside 0..1 the nearest end.
inline float SyncBeats(float value)
{
    using namespace beats;
    constexpr float kBeats[] = {Eighth, Quarter, ThreeEighths, Half, ThreeQuarters, One, Two, Four, Eight};
    return kBeats[Clamp(Truncate(9.0f * value), 0, 8)];
}

} // namespace korvane
