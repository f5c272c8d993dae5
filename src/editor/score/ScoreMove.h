// A move or copy of what is selected in the score editor.
#pragma once

#include <cstdint>

#include "editor/score/ScoreNotes.h"
#include "editor/score/ScoreState.h"

namespace korvane {

/// How far the hand carries a selection: as far as all of it stays on the grid. Of the rows of the piano roll notes
/// alone count; in the drum grid hits change rows together or not at all.
struct ScoreMove {
    int columns = 0, rows = 0;

    /// From the pressed to the hovered cell, which both exist.
    static ScoreMove Carried(const ScoreNotes& notes, const ScoreState& state);

    /// Exchanges each column with the one that it goes to, locks included, or, copying, adds its selected notes there;
    /// what was selected then changes rows, and takes no locks to another sampler.
    void Apply(ScoreNotes& notes, const ScoreSelection& selection, bool copying) const;
};

} // namespace korvane
