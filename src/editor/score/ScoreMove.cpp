// A move or copy of what is selected in the score editor.
#include "editor/score/ScoreMove.h"

#include <algorithm>
#include <bit>

namespace korvane {

namespace {

std::uint32_t Shifted(std::uint32_t notes, int rows) { return rows >= 0 ? notes << rows : notes >> -rows; }

/// Where selected notes come to lie, those that would leave the grid left out: what is recorded meanwhile may.
std::uint32_t Moved(const ScoreGrid& grid, std::uint32_t selected, int rows)
{
    return Shifted(selected, rows) & ((1u << grid.rowCount) - 1u);
}

/// All selected notes of all columns, by rows.
std::uint32_t SelectedRows(const ScoreNotes& notes, ScoreSpan columns, ScoreSpan rows)
{
    std::uint32_t selected = 0;
    for (int column = columns.first; column <= columns.last; ++column) selected |= notes.NotesIn(column, rows);
    return selected;
}

/// Within a column, which no tick finds empty meanwhile.
void ChangeRows(ScoreNotes& notes, int column, std::uint32_t selected, int rows)
{
    GroovePattern& pattern = notes.Pattern();
    const std::uint32_t moved = Moved(*notes.grid, selected, rows), left = Shifted(moved, -rows);
    if (!notes.grid->drumMode) {
        pattern.steps[notes.channel][column].Update([=](std::uint32_t word) { return (word & ~left) | moved; });
        return;
    }
    notes.SetNotes(column, moved, true);
    for (int row = 0; row < notes.grid->rowCount; ++row)
        if ((left & ~moved) >> row & 1u) pattern.steps[notes.grid->ChannelOfRow(row)][column] = 0u;
}

void Exchange(ScoreNotes& notes, int from, int to, ScoreSpan rows)
{
    const auto exchange = [&](int channel) {
        notes.SwapCells(channel, from / kStepsPerBar, from % kStepsPerBar, to / kStepsPerBar, to % kStepsPerBar);
    };
    if (!notes.grid->drumMode) return exchange(notes.channel);
    for (int row = rows.first; row <= rows.last; ++row) exchange(notes.grid->ChannelOfRow(row));
}

} // namespace

ScoreMove ScoreMove::Carried(const ScoreNotes& notes, const ScoreState& state)
{
    const ScoreSelection& selection = state.selection;
    const int columns = state.hoverColumn - state.pressColumn, rows = state.hoverRow - state.pressRow;
    const ScoreSpan across = selection.Columns(*notes.grid);
    if (across.Empty()) return {};
    const std::uint32_t selected = SelectedRows(notes, across, selection.Rows(*notes.grid));
    const int lowest = selected ? std::countr_zero(selected) : 0;
    const int highest = selected ? static_cast<int>(std::bit_width(selected)) - 1 : notes.grid->TopRow();
    const int kept = std::clamp(rows, -lowest, notes.grid->TopRow() - highest);
    return {std::clamp(columns, -across.first, kSteps - 1 - across.last),
            notes.grid->drumMode && kept != rows ? 0 : kept};
}

/// In the order in which no column is met again after it was written.
void ScoreMove::Apply(ScoreNotes& notes, const ScoreSelection& selection, bool copying) const
{
    if (copying && columns == 0 && rows == 0) return;
    const ScoreSpan across = selection.Columns(*notes.grid), down = selection.Rows(*notes.grid);
    const GroovePattern::Moving moving(notes.Pattern());
    for (int n = across.first; n <= across.last; ++n) {
        const int column = columns > 0 ? across.last - (n - across.first) : n;
        const std::uint32_t selected = notes.NotesIn(column, down);
        if (copying) {
            notes.SetNotes(column + columns, Moved(*notes.grid, selected, rows), true);
            continue;
        }
        Exchange(notes, column, column + columns, down); // also with itself: hits take their own step's bit
        if (rows != 0) ChangeRows(notes, column + columns, selected, rows);
    }
}

} // namespace korvane
