// Tags, fields and pieces of the groove, part and program images.
#pragma once

#include <cstdint>

#include "content/ByteReader.h"
#include "content/ByteWriter.h"
#include "engine/GrooveEngine.h"
#include "framework/Limits.h"

namespace korvane {

// All numbers are little-endian, floats are single precision, tags stand in file order, texts are zero-padded. There is
// no version number; a chunk is preceded by its length, by which a reader steps over what it does not know.
//
// Groove state: the header below, 13 channel chunks, 8 pattern chunks. A pattern chunk is its tag and one step record
//   for each channel, bar and step, the step innermost.
// Channel chunk, alone also a program file: tag, 7 paths, 212 floats, program path. The path may be missing.
// Part: tag by the channel's kind, channel chunk, sequence chunk (tag, 128 step records), the note length once more.
// Step record: int32 notes, int16 count, and for each lock int16 channel parameter, float offset.

namespace tag {
inline constexpr char kGroove[5] = "3gnS";
inline constexpr char kChannel[5] = "3nyS";
inline constexpr char kPattern[5] = "1rtP";
inline constexpr char kSamplerPart[5] = "3DtP";
inline constexpr char kSynthPart[5] = "3StP";
inline constexpr char kSequence[5] = "1qeS";
} // namespace tag

inline constexpr int kImagePathBytes = 512;

/// The header's fields in file order: tag; selected channel, bar, pattern, effect, envelope and LFO, one byte each;
/// mutes; play-once flags; shuffle; EXT controls of three words.
inline constexpr int kStateHeaderBytes = 4 + 6 + kChannels + kPatterns + 4 + kExtControls * 12;
static_assert(kStateHeaderBytes == 95);

inline constexpr int kShortChannelChunkBytes = 4 + kSampleSlots * kImagePathBytes + kChannelSlots * 4; // without path
inline constexpr int kChannelChunkBytes = kShortChannelChunkBytes + kImagePathBytes;
static_assert(kChannelChunkBytes == 4948);

inline constexpr int kMinImageFileBytes = 5; // shorter files are not looked into

// The writers may run while other threads change the engine: every value is read once.

void WriteState(ByteWriter& out, const GrooveEngine& engine);
void WritePart(ByteWriter& out, const GrooveEngine& engine); // of the selected channel
void WriteChannelChunk(ByteWriter& out, const GrooveEngine& engine, int channel);
void WriteStepRecord(ByteWriter& out, const GroovePattern& pattern, int channel, int step);

/// Replaces a step. False when the data ended in the record: what was there stands, the locks announced but missing are
/// locks of parameter 0 by 0. Of a list longer than a step can hold, the locks that act are kept, in order.
bool ReadStepRecord(ByteReader& in, GroovePattern& pattern, int channel, int step);

} // namespace korvane
