// One queued MIDI message.
#pragma once

#include <cstdint>

namespace korvane {

struct MidiEvent {
    std::uint8_t status;      // kind, channel nibble cleared
    std::uint8_t data1;       // 0..127
    std::uint8_t data2;       // 0..127
    std::uint8_t data3;       // 0..127, carried but never read
    std::int32_t deltaFrames; // frame inside the host block
};
static_assert(sizeof(MidiEvent) == 8);

} // namespace korvane
