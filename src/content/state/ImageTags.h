// The tags by which images and their chunks are told apart.
#pragma once

namespace korvane {

// All numbers are little-endian, floats are single precision, tags stand in file order, texts are zero-padded. There is
// no version number; a chunk is preceded by its length, by which a reader steps over what it does not know.
namespace tag {
inline constexpr char kGroove[5] = "3gnS";
inline constexpr char kChannel[5] = "3nyS";
inline constexpr char kPattern[5] = "1rtP";
inline constexpr char kSamplerPart[5] = "3DtP";
inline constexpr char kSynthPart[5] = "3StP";
inline constexpr char kSequence[5] = "1qeS";
} // namespace tag

} // namespace korvane
