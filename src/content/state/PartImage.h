// One channel with its steps as an image, for part files.
#pragma once

#include <cstdint>

#include "content/ByteWriter.h"
#include "engine/GrooveEngine.h"

namespace korvane {

// Part: tag by the channel's kind, channel chunk, sequence chunk (tag, 128 step records), the note length once more.

/// Of the selected channel and the current pattern. May run while other threads change the engine.
void WritePart(ByteWriter& out, const GrooveEngine& engine);
/// Writes the image and returns its size; into a null buffer nothing.
std::int32_t SavePart(const GrooveEngine& engine, std::uint8_t* buffer);

/// Into the selected channel and the current pattern. False for another kind of channel, or an image that ends too
/// early, of which what came before stands. Who has the engine to itself.
bool LoadPart(GrooveEngine& engine, const std::uint8_t* data, std::int32_t length);

} // namespace korvane
