// The whole groove as one image, for groove files and hosts.
#pragma once

#include <cstdint>
#include <vector>

#include "content/ByteReader.h"
#include "content/ByteWriter.h"
#include "content/state/ChannelChunk.h"
#include "engine/GrooveEngine.h"
#include "framework/Limits.h"

namespace korvane {

// Groove state: the header below, 13 channel chunks, 8 pattern chunks. A pattern chunk is its tag and one step record
// for each channel, bar and step, the step innermost.

/// The header's fields in file order: tag; selected channel, bar, pattern, effect, envelope and LFO, one byte each;
/// mutes; play-once flags; shuffle; EXT controls of three words.
inline constexpr int kStateHeaderBytes = 4 + 6 + kChannels + kPatterns + 4 + kExtControls * 12;
static_assert(kStateHeaderBytes == 95);

// Saving may run while other threads change the engine: every value is read once.

void WriteState(ByteWriter& out, const GrooveEngine& engine);
/// Writes the image and returns its size; into a null buffer nothing.
std::int32_t SaveState(const GrooveEngine& engine, std::uint8_t* buffer);

/// A groove on its way from an image into the engine; its patterns lie in the engine's spare set.
struct GrooveState {
    explicit GrooveState(const GrooveEngine& engine);

    ByteReader header{nullptr, 0}; // behind the tag, in the image
    std::vector<ChannelSettings> channels;
    bool begun = false; // the tag was right: the groove is replaced, whatever comes
};

/// Takes over what the image has and fills the spare patterns. False for another tag, or an image that ends too early.
/// The loader.
/// in  over bytes that outlive the state
bool ReadState(ByteReader in, GrooveEngine& engine, GrooveState& state);

/// The engine plays a groove that has begun, but for its files. Takes some ten microseconds, however much is in it. Who
/// has the engine to itself.
void PutState(GrooveEngine& engine, const GrooveState& state);

/// All of it in one, with requests for its files. False, and nothing has changed, for another tag; false, and what came
/// before the fault stands, for an image that ends too early. Who has the engine to itself.
bool LoadState(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length);

} // namespace korvane
