// The transport: play, record, edit, and a host that starts and stops.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

// Any thread; done at once by who has the engine to itself, else at the start of the next chunk, in order.

void SetPlay(GrooveEngine& engine, bool on);
void SetRecord(GrooveEngine& engine, bool on);
/// Edit mode ends recording; leaving it drops at once what was marked for editing.
void SetEdit(GrooveEngine& engine, bool on);
/// The host's transport has started or stopped. A start always begins anew at the host's position and is no recording
/// any more, a stop always leaves the sequencer stopped.
void FollowHost(GrooveEngine& engine, bool running);

// What the switches show: what was asked for last, also where it is not done yet. Any thread.

bool PlayShown(const GrooveEngine& engine);
bool RecordShown(const GrooveEngine& engine);
bool EditShown(const GrooveEngine& engine);

// Who has the engine to itself.

/// Does what other threads have asked for. The clock has the host's time.
void ServeTransport(GrooveEngine& engine);
/// The same for what had been asked for when the queue had been pushed to so many times.
void ServeTransport(GrooveEngine& engine, std::uint32_t pushed);

/// Starts at the host's position, or a recording at its own beginning; or stops.
void TogglePlay(GrooveEngine& engine);
/// Recording that began from standstill stops the sequencer when it ends.
void ToggleRecord(GrooveEngine& engine);

} // namespace korvane
