// Note lengths in beats: what the synchronised LFOs and the stutter choose from.
#pragma once

#include <array>
#include <cstddef>

#include "framework/Limits.h"
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

inline constexpr float kBeatsPerBar = kStepsPerBar / kStepsPerBeat;

struct SyncLength {
    float beats;
    const char* text;
};

// clang-format off
/// What a synchronised rate knob chooses from.
inline constexpr std::array<SyncLength, 9> kSyncLengths {{
    {beats::Eighth,        "1/8"},
    {beats::Quarter,       "1/4"},
    {beats::ThreeEighths,  "3/8"},
    {beats::Half,          "1/2"},
    {beats::ThreeQuarters, "3/4"},
    {beats::One,           "1/1"},
    {beats::Two,           "2/1"},
    {beats::Four,          "4/1"},
    {beats::Eight,         "8/1"},
}};
// clang-format on

/// The length that a position of a rate knob stands for; outside 0..1 the nearest end.
inline const SyncLength& SyncLengthOf(float value)
{
    constexpr int kLengths = static_cast<int>(kSyncLengths.size());
    return kSyncLengths[static_cast<std::size_t>(Clamp(Truncate(kLengths * value), 0, kLengths - 1))];
}

inline float SyncBeats(float value) { return SyncLengthOf(value).beats; }

} // namespace korvane
