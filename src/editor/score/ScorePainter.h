// Draws the open score editor.
#pragma once

#include "editor/score/ScoreLane.h"
#include "editor/score/ScoreState.h"
#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

/// The images of the score editor; null ones are left out.
struct ScoreSkin {
    const CBitmap* pages[2]; // of the piano roll, of the drum grid
    const CBitmap* buttons;
};

/// Draws everything of an open score editor anew. The window's thread.
class ScorePainter {
public:
    ScorePainter(const ScoreNotes& shownNotes, const ScoreLane& shownLane, const ScoreState& shownState)
        : notes(shownNotes), lane(shownLane), state(shownState)
    {
    }

    /// page     of the open editor's size
    /// playing  what the play button shows
    /// copying  a selection that is carried leaves a copy behind
    void Draw(CDrawBuffer& page, const ScoreSkin& skin, const char* parameterName, bool playing, bool copying);

private:
    const ScoreNotes& notes;
    const ScoreLane& lane;
    const ScoreState& state;
};

/// What the grid says of a cell: note or channel, bar and step, counted from 1.
/// text  64 bytes
void ScoreHint(const ScoreGrid& grid, int column, int row, char* text);

} // namespace korvane
