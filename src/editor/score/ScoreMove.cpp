// A move or copy of what is selected in the score editor.
#include "editor/score/ScoreMove.h"

#include <algorithm>
#include <bit>

namespace korvane {

namespace {

std::uint32_t Shifted(std::uint32_t notes, int rows) { return rows >= 0 ? notes << rows : notes >> -rows; }

/// All selected notes of all columns, by rows.
std::uint32_t SelectedRows(const ScoreNotes& notes, ScoreSpan columns, ScoreSpan rows)
{
    std::uint32_t selected = 0;
    for (int column = columns.first; column <= columns.last; ++column) selected |= notes.SelectedIn(column, rows);
    return selected;
}

void Add(ScoreNotes& notes, int column, std::uint32_t selected)
{
    for (int row = 0; row < notes.grid->rowCount; ++row)
        if (selected >> row & 1u) notes.SetNoteAt(column, row, true);
}

/// Within a column; in the piano roll in one piece, so that no tick finds it empty.
void ChangeRows(ScoreNotes& notes, int column, std::uint32_t selected, int rows)
{
    GroovePattern& pattern = notes.Pattern();
    if (!notes.grid->drumMode) {
        const std::uint32_t moved = Shifted(selected, rows);
        pattern.steps[notes.channel][column].Update([=](std::uint32_t word) { return (word & ~selected) | moved; });
        return;
    }
    for (int row = 0; row < notes.grid->rowCount; ++row)
        if (selected >> row & 1u) pattern.steps[notes.grid->ChannelOfRow(row)][column] = 0u;
    Add(notes, column, Shifted(selected, rows));
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

ScoreMove ScoreMove::Within(const ScoreNotes& notes, const ScoreSelection& selection, int columns, int rows)
{
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
    const ScoreSpan across = selection.Columns(*notes.grid), down = selection.Rows(*notes.grid);
    for (int n = across.first; n <= across.last; ++n) {
        const int column = columns > 0 ? across.last - (n - across.first) : n;
        const std::uint32_t selected = notes.SelectedIn(column, down);
        if (copying) {
            Add(notes, column + columns, Shifted(selected, rows));
            continue;
        }
        if (columns != 0) Exchange(notes, column, column + columns, down);
        if (rows != 0) ChangeRows(notes, column + columns, selected, rows);
    }
}

} // namespace korvane
