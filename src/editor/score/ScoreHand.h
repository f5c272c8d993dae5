// What the hand does on the page of the score editor.
#pragma once

#include "editor/score/ScoreLane.h"
#include "editor/score/ScoreNotes.h"
#include "editor/score/ScoreState.h"

namespace korvane {

/// Presses, drags and releases become notes, locks, selections and moves of what is selected, or are heard. Places are
/// relative to the open editor. The window's thread.
class ScoreHand {
public:
    ScoreHand(ScoreNotes& heldNotes, ScoreLane& heldLane, ScoreState& shownState)
        : notes(heldNotes), lane(heldLane), state(shownState)
    {
    }

    /// On the page, not on a button.
    void Press(Point at, bool ctrl);
    void Move(Point at);
    /// Of a press on the page; others are nothing.
    void Release(Point at, bool ctrl);
    /// Lets go what is held, without effect.
    void Drop();

private:
    const ScoreGrid& Grid() const { return *notes.grid; }
    bool Playing() const;

    void Hover(Point at);
    void PressCell(Point at, bool ctrl);
    void SelectNote();
    void SelectBars(int first, int last);

    void Drag(Point at);
    void FollowKeys(Point at);
    void FollowBars(Point at);
    void FollowRubberBand(Point at);
    void StartRubberBand(Point origin);

    bool EndOtherDrag();
    void ToggleHovered();
    void MoveSelection(bool copying);

    void Audition(int row);
    void EndAudition();

    ScoreNotes& notes;
    ScoreLane& lane;
    ScoreState& state;
    Point pressPoint, lastPoint, rubberOrigin;
    int auditionChannel = 0, auditionNote = 0; // what sounds while state.auditionRow is one
};

} // namespace korvane
