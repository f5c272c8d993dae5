// Draws the open score editor.
#pragma once

#include "editor/score/ScoreButtons.h"
#include "editor/score/ScoreLane.h"
#include "editor/score/ScoreState.h"
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
        : notes(shownNotes), lane(shownLane), state(shownState)
    {
    }

    /// page     of the open editor's size
    /// playing  what the play button shows
    /// copying  a selection that is carried leaves a copy behind
    void Draw(CDrawBuffer& page, const ScoreSkin& skin, const char* parameterName, bool playing, bool copying) const;

private:
    struct ShownNotes;

    // The grid.
    ShownNotes Read() const;
    void DrawGrid(CDrawBuffer& page) const;
    void DrawSelection(CDrawBuffer& page) const;
    void DrawTails(CDrawBuffer& page, const ShownNotes& shown) const;
    void DrawNotes(CDrawBuffer& page, const ShownNotes& shown) const;
    void DrawCarried(CDrawBuffer& page, const ShownNotes& shown) const;
    void DrawHovered(CDrawBuffer& page) const;
    void DrawHint(CDrawBuffer& page, bool copying) const;
    bool Carries() const { return state.dragged && state.CarriesSelection(); }

    // What is around it.
    void DrawLane(CDrawBuffer& page, const char* parameterName) const;
    void DrawBars(CDrawBuffer& page) const;
    void DrawHoveredBar(CDrawBuffer& page) const;
    void DrawKeyMarks(CDrawBuffer& page) const;
    bool Acts(ScoreCommand command) const;
    void DrawButtons(CDrawBuffer& page, const CBitmap* image, bool playing) const;

    const ScoreNotes& notes;
    const ScoreLane& lane;
    const ScoreState& state;
};

/// What the grid says of a cell: note or channel, bar and step, counted from 1.
/// text  64 bytes
void ScoreHint(const ScoreGrid& grid, int column, int row, char* text);

} // namespace korvane
