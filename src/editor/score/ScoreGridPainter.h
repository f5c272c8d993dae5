// Draws the grid of the open score editor, with what the hand does there.
#pragma once

#include "editor/score/ScoreNotes.h"
#include "editor/score/ScoreState.h"
#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

/// From below: selection, lengths and notes, those that are carried, the step that plays, the cell under the pointer.
/// The window's thread.
class ScoreGridPainter {
public:
    ScoreGridPainter(const ScoreNotes& shownNotes, const ScoreState& shownState) : notes(shownNotes), state(shownState)
    {
    }

    /// page     of the open editor's size
    /// copying  a selection that is carried leaves a copy behind
    void Draw(CDrawBuffer& page, bool copying) const;

private:
    struct ShownNotes;

    ShownNotes Read() const;
    void DrawCells(CDrawBuffer& page) const;
    void DrawSelection(CDrawBuffer& page) const;
    void DrawTails(CDrawBuffer& page, const ShownNotes& shown) const;
    void DrawNotes(CDrawBuffer& page, const ShownNotes& shown) const;
    void DrawCarried(CDrawBuffer& page, const ShownNotes& shown) const;
    void DrawHovered(CDrawBuffer& page) const;
    void DrawHint(CDrawBuffer& page, bool copying) const;
    bool Carries() const { return state.dragged && state.CarriesSelection(); }

    const ScoreNotes& notes;
    const ScoreState& state;
};

/// What the grid says of a cell: note or channel, bar and step, counted from 1.
/// text  64 bytes
void ScoreHint(const ScoreGrid& grid, int column, int row, char* text);

} // namespace korvane
