// One step of one channel in an image: notes and parameter locks.
#pragma once

#include "content/ByteReader.h"
#include "content/ByteWriter.h"
#include "engine/sequencer/GroovePattern.h"

namespace korvane {

// Step record: int32 notes, int16 count, and for each lock int16 channel parameter, float offset.

void WriteStepRecord(ByteWriter& out, const GroovePattern& pattern, int channel, int step);

/// Replaces a step of a pattern that the caller has alone. False when the data ended in the record: what was there
/// stands, the locks announced but missing are locks of parameter 0 by 0. Of a list longer than a step can hold, the
/// locks that act are kept, in order.
bool ReadStepRecord(ByteReader& in, GroovePattern& pattern, int channel, int step);

} // namespace korvane
