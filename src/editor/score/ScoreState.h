// What the score editor shows besides the notes, and what the hand on it is doing.
#pragma once

#include "editor/score/ScoreGrid.h"

namespace korvane {

/// Hand and control write it, the painters read it.
struct ScoreState {
    ScoreSelection selection;
    int hoverColumn = -1, hoverRow = -1; // the cell under the pointer, -1 none; over the lane the column alone
    int hoverBar = -1;
    int pressColumn = -1, pressRow = -1; // the cell that the press began on, -1 none
    int playColumn = -1;                 // the step that plays; -1 while stopped
    int auditionRow = -1;                // whose note sounds under the hand
    int barPick = -1;                    // the bar that the press began on
    bool pressActive = false;            // inside, on no button
    bool dragged = false;                // the pointer has left the pressed cell
    bool rubberBand = false, laneDrag = false, keyDrag = false;
    int flash[3] = {}; // of the copy, paste and clear buttons, 255 down to 0

    bool OnCell() const { return hoverColumn >= 0 && hoverRow >= 0; }
    /// The hand has what is selected, and is on the grid with it.
    bool CarriesSelection() const { return pressColumn >= 0 && selection.Exists() && OnCell(); }
};

} // namespace korvane
