// One channel's sound in an image: files, parameters, program path.
#pragma once

#include <cstdint>

#include "content/ByteReader.h"
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

/// One channel's sound as an image has it: those of a reset channel, until they are read.
struct ChannelSettings {
    explicit ChannelSettings(const GrooveEngine& engine, int channel);

    char paths[kSampleSlots][kImagePathBytes]; // empty: no file
    float values[kChannelSlots];
    char programPath[kImagePathBytes] = "";
    bool begun = false; // the tag was right: the channel is reset, whatever comes
    bool whole = false; // the values are all there; else the channel sounds as a reset one until it is refreshed
};

/// Takes over what the chunk has. False for another tag, or a chunk that ends too early. Any thread.
bool ReadChannelChunk(ByteReader in, ChannelSettings& settings);

/// The channel gets the settings that have begun, but for files and texts. Who has the engine to itself.
void PutSettings(GrooveEngine& engine, int channel, const ChannelSettings& settings);
/// Its slots are asked for the files, its texts set.
void AskFiles(GrooveEngine& engine, int channel, const ChannelSettings& settings);

/// All of it in one. False, and nothing has changed, for another tag or channel; false after it for a chunk that ends
/// too early. Who has the engine to itself.
bool LoadChannelChunk(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length, int channel);

} // namespace korvane
