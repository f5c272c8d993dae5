// Draws the open score editor.
#pragma once

#include "editor/score/ScoreButtons.h"
#include "editor/score/ScoreGridPainter.h"
#include "editor/score/ScoreLane.h"
#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

/// The images of the score editor.
struct ScoreSkin {
    const CBitmap* pages[2]; // of the piano roll, of the drum grid
    const CBitmap* buttons;
};

/// Draws everything of an open score editor anew. The window's thread.
class ScorePainter {
public:
    ScorePainter(const ScoreNotes& shownNotes, const ScoreLane& shownLane, const ScoreState& shownState)
        : notes(shownNotes), lane(shownLane), state(shownState), gridPainter(shownNotes, shownState)
    {
    }

    /// page     of the open editor's size
    /// playing  what the play button shows
    /// copying  a selection that is carried leaves a copy behind
    void Draw(CDrawBuffer& page, const ScoreSkin& skin, const char* parameterName, bool playing, bool copying) const;

private:
    void DrawLane(CDrawBuffer& page, const char* parameterName) const;
    void DrawBars(CDrawBuffer& page) const;
    void DrawHoveredBar(CDrawBuffer& page) const;
    void DrawKeyMarks(CDrawBuffer& page) const;
    bool Acts(ScoreCommand command) const;
    void DrawButtons(CDrawBuffer& page, const CBitmap* image, bool playing) const;

    const ScoreNotes& notes;
    const ScoreLane& lane;
    const ScoreState& state;
    const ScoreGridPainter gridPainter;
};

} // namespace korvane
