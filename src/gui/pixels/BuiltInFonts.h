// The two faces that the toolkit writes with.
#pragma once

#include <cstdint>

namespace korvane {

/// A face as records: byte 0 is the line height; from byte 1 on stand 94 offsets of two bytes, little-endian, to the
/// records of "!" to "~". A record: advance width, number of inked pixels, and for each of them its place (x in the low
/// four bits, y in the high four, from the glyph's top-left corner) and its transparency (0 full ink, 255 none).
/// number  0 compact, 1 wide; null for others
const std::uint8_t* BuiltInFont(int number);

} // namespace korvane
