// One channel's sound in an image: files, parameters, program path.
#pragma once

#include <cstdint>

#include "content/ByteWriter.h"
#include "engine/GrooveEngine.h"
#include "framework/Limits.h"

namespace korvane {

// Channel chunk, alone also a program file: tag, 7 paths, 212 floats, program path. The path may be missing.

inline constexpr int kImagePathBytes = 512;
inline constexpr int kChannelChunkBytes = 4 + (kSampleSlots + 1) * kImagePathBytes + kChannelSlots * 4;
static_assert(kChannelChunkBytes == 4948);

/// May run while other threads change the engine: every value is read once.
void WriteChannelChunk(ByteWriter& out, const GrooveEngine& engine, int channel);
/// Writes the chunk and returns its size; into a null buffer nothing.
std::int32_t SaveChannelChunk(const GrooveEngine& engine, std::uint8_t* buffer, int channel);

/// Resets the channel and takes over what the chunk has. False, and nothing has changed, for another tag or channel;
/// false after it for a chunk that ends too early. Who has the engine to itself.
bool LoadChannelChunk(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length, int channel);

} // namespace korvane
