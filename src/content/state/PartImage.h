// One channel with its steps as an image, for part files.
#pragma once

#include <cstdint>
#include <optional>

#include "content/ByteReader.h"
#include "content/ByteWriter.h"
#include "content/state/ChannelChunk.h"
#include "engine/GrooveEngine.h"

namespace korvane {

// Part: tag by the channel's kind, channel chunk, sequence chunk (tag, 128 step records), the note length once more.

/// Of a channel and the current pattern. May run while other threads change the engine.
void WritePart(ByteWriter& out, const GrooveEngine& engine, int channel);
/// Of the selected channel. Writes the image and returns its size; into a null buffer nothing.
std::int32_t SavePart(const GrooveEngine& engine, std::uint8_t* buffer);

/// A part on its way from an image into the engine; its steps lie in the first of the engine's spare patterns.
struct PartState {
    PartState(const GrooveEngine& engine, int toChannel) : settings(engine, toChannel), channel(toChannel) {}

    ChannelSettings settings;
    const int channel;
    int steps = 0; // that are there, with one that was cut
    std::optional<float> noteLength;
};

/// Takes over what the image has. False for another kind of channel, or an image that ends too early. The loader.
bool ReadPart(ByteReader in, GrooveEngine& engine, PartState& part);

/// Into its channel and the current pattern, but for the files. Who has the engine to itself.
void PutPart(GrooveEngine& engine, const PartState& part);

/// All of it in one, into the selected channel, with requests for its files. False for another kind of channel, or an
/// image that ends too early, of which what came before stands. Who has the engine to itself.
bool LoadPart(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length);

} // namespace korvane
