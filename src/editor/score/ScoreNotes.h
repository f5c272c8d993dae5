// The notes that the score editor shows and changes.
#pragma once

#include <cstdint>

#include "editor/score/ScoreGrid.h"
#include "engine/GrooveEngine.h"

namespace korvane {

/// One channel of one pattern, in the drum grid all sampler channels, as they stand in the engine, where sequencer and
/// recording go on. Patterns move while a groove loads: none is kept here. Single columns, rows and channels outside
/// their ranges mean the nearest one. The window's thread.
class ScoreNotes {
public:
    explicit ScoreNotes(GrooveEngine& playing) : engine(playing) {}

    GroovePattern& Pattern() const;
    bool IsNoteAt(int column, int row) const;
    void SetNoteAt(int column, int row, bool on);
    /// Any note of the channel; in the drum grid only of sampler channels.
    bool HasNoteInColumn(int column, int ofChannel) const;
    /// The first column after this one with a note of `channel`; kSteps when there is none.
    int NextNote(int column) const;

    /// Beats that the notes of a column last, by the channel's length and the step's lock.
    float Beats(int column) const;
    /// Moves the step's lock on "CHN: Note Length", within -1..1; whether that changed it.
    bool ChangeNoteLength(int column, float delta);

    /// Exchanges two steps of a channel, words and locks; those of a sampler hold their own step's bit afterwards.
    void SwapCells(int ofChannel, int bar1, int step1, int bar2, int step2);
    /// Takes the notes of the selection out, then empties the locks of all columns of `channel` without a note;
    /// whether there is such a column.
    bool Clear(const ScoreSelection& selection);
    /// The notes of a column in some rows, a bit each, the lowest row's first.
    std::uint32_t NotesIn(int column, ScoreSpan rows) const;
    /// Sets or takes these in one column; in the piano roll in one piece.
    void SetNotes(int column, std::uint32_t rows, bool on);
    /// Whether a note is left in the selection: of the piano roll in its columns, of the drum grid in its cells.
    bool AnyIn(const ScoreSelection& selection) const;

    GrooveEngine& engine;
    const ScoreGrid* grid = &kPianoRoll;
    int pattern = 0, channel = 0; // being edited

private:
    struct Cell {
        int channel, column;
        std::uint32_t bit;
    };

    Cell CellAt(int column, int row) const;
};

} // namespace korvane
