// What was copied in a score editor.
#pragma once

#include <mutex>

#include "editor/score/ScoreGrid.h"
#include "engine/sequencer/GroovePattern.h"

namespace korvane {

/// A whole pattern, of which some columns and one channel, or all sampler channels, are meant. There is one in the
/// process, so that notes go from one instance to the other. Any window's thread; each waits for what another does
/// here at that moment.
class ScoreClipboard {
public:
    /// Takes the pattern's words and, in the order of the parameters, its locks: one for each parameter 0..211.
    /// columns  not empty
    void Copy(const GroovePattern& from, int channel, ScoreSpan columns);
    /// Something was copied from a grid of that kind.
    bool Fits(const ScoreGrid& grid) const;
    /// Puts the copied columns into those of the selection, one after the other until either is at its end: words, as
    /// they are, and locks. In the piano roll they go to `channel`, in the drum grid to the channels of the selected
    /// rows. Only when it fits.
    void Paste(GroovePattern& to, const ScoreGrid& grid, int channel, const ScoreSelection& selection) const;

private:
    bool Matches(const ScoreGrid& grid) const;

    mutable std::mutex turn;
    GroovePattern copied;
    int clipFirstColumn = -1, clipLastColumn = -1, clipChannel = -1;
};

ScoreClipboard& CopiedScore();

} // namespace korvane
