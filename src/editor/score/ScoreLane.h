// The lane of the score editor: one parameter's locks, step by step.
#pragma once

#include "editor/score/ScoreNotes.h"
#include "engine/KVSynth.h"

namespace korvane {

/// A column with a note owns the lane from its own x to the next one with a note, as its locks stay applied until that
/// one plays. The window's thread.
class ScoreLane {
public:
    ScoreLane(KVSynth& shownSynth, ScoreNotes& shownNotes) : synth(shownSynth), notes(shownNotes) {}

    /// It is a channel's parameter, so that there are locks.
    bool HasLocks() const { return Base() >= 0; }
    /// The channel's own value, 0..1; stepped parameters at their nearest step.
    float LaneValue() const;
    /// The same with the lock of a column's step.
    float LaneValue(int column) const;
    /// Draws a stroke: sets the locks of the columns with a note whose stretches it crosses. Near the channel's own
    /// value there is no lock. The parameter becomes the last touched one.
    ///
    /// from, to  relative to the open editor; above and below the lane they count as at its edge
    /// within    only columns of it, when it exists
    void Draw(Point from, Point to, const ScoreSelection& within);

    int laneParameter = 12; // the editor sets it before each opening

private:
    int Base() const;  // before banking; negative for none
    int Index() const; // of the selected member of its bank
    float Own() const;
    void SetLock(int column, int y);

    KVSynth& synth;
    ScoreNotes& notes;
};

} // namespace korvane
