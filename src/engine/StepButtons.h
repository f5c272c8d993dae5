// The sixteen step and eight bar buttons: live play, recording, step editing.
#pragma once

#include "engine/GrooveEngine.h"

namespace korvane {

// Any thread.

/// Outside edit mode plays, and records; in it edits steps, marks bars, or sets the notes of the edited step.
/// k  0..15 steps, 16..23 bars; any other plays note 48 + k live on the selected channel
void StepButton(GrooveEngine& engine, int k);
/// k  others than 0..23 are ignored
void StepButtonRelease(GrooveEngine& engine, int k);

/// Puts a played note into the pattern, in its second half into the next step. While recording.
void RecordPress(GrooveEngine& engine, int k);
/// Locks the length of the step recorded last to the time that its button was down.
void RecordRelease(GrooveEngine& engine, int k);

} // namespace korvane
