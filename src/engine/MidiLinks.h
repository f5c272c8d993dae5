// Which MIDI source moves which parameter, and the file in which that survives.
#pragma once

#include <cstdint>

#include "platform/Shared.h"

namespace korvane {

/// MIDI sources by number.
namespace source {
inline constexpr int PitchWheel = 128; // controllers before it
inline constexpr int FirstKey = 129;   // velocities of the keys 0..127
inline constexpr int Count = 257;
} // namespace source

/// The link table and what it is made from: the source and the parameter that moved last. Owned by KVSynth.
///
/// Threads: MIDI (audio thread) and whoever moves a parameter write what moved last, the editor the links; each entry
/// is one store, and a link that is made while its source moves counts from the next move on.
struct MidiLinks {
    MidiLinks() { Fill(links, std::int16_t{-1}); }

    /// Links the last source to the last parameter, or removes the link and its flag. Nothing happens before a
    /// source and a parameter have been touched.
    void Link(bool link);
    /// Marks the last source, a controller linked to the last parameter, as one whose value is ignored.
    void SetIgnoreValue(bool on);
    /// What was touched last, as the editor shows it: "---" when nothing was.
    /// buffer  256 bytes
    void GetLastSourceText(char* buffer) const;

    /// Takes what the file has; one that is missing or short leaves the rest as it is. At construction.
    /// folder  the content root
    void Read(const char* folder);
    /// False when it could not be saved, which is no error: the content root may be read-only. At destruction.
    bool Write(const char* folder) const;

    Shared<std::int16_t> links[source::Count];       // parameter 0..195, -1 none
    Shared<std::uint8_t> ignoreValue[source::Count]; // 1: the link sends 1.0 and then 0.0 instead of the value
    Shared<std::int32_t> lastSource = -1, lastParameter = -1;
};

} // namespace korvane
