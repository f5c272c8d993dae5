// The notes that the score editor shows and changes.
#include "editor/score/ScoreNotes.h"

#include <algorithm>

#include "framework/ChannelSlots.h"
#include "framework/KnobLaws.h"

namespace korvane {

namespace {

int Column(int n) { return std::clamp(n, 0, kSteps - 1); }
int Channel(int n) { return std::clamp(n, 0, kChannels - 1); }
int StepAt(int bar, int step)
{
    return std::clamp(bar, 0, kBars - 1) * kStepsPerBar + std::clamp(step, 0, kStepsPerBar - 1);
}

/// The bits of some rows of the piano roll.
std::uint32_t BitsOf(ScoreSpan rows)
{
    std::uint32_t bits = 0;
    for (int row = rows.first; row <= rows.last; ++row) bits |= 1u << row;
    return bits;
}

} // namespace

GroovePattern& ScoreNotes::Pattern() const { return *engine.score.patterns[std::clamp(pattern, 0, kPatterns - 1)]; }

ScoreNotes::Cell ScoreNotes::CellAt(int column, int row) const
{
    const int near = std::clamp(row, 0, grid->TopRow()), at = Column(column);
    if (grid->drumMode) return {grid->ChannelOfRow(near), at, SamplerBit(at)};
    return {Channel(channel), at, 1u << near};
}

bool ScoreNotes::IsNoteAt(int column, int row) const
{
    const Cell cell = CellAt(column, row);
    const std::uint32_t word = Pattern().steps[cell.channel][cell.column];
    return grid->drumMode ? word != 0 : (word & cell.bit) != 0;
}

void ScoreNotes::SetNoteAt(int column, int row, bool on)
{
    const Cell cell = CellAt(column, row);
    if (on)
        Pattern().SetNotes(cell.channel, cell.column, cell.bit);
    else
        Pattern().ClearNotes(cell.channel, cell.column, cell.bit);
}

bool ScoreNotes::HasNoteInColumn(int column, int ofChannel) const
{
    if (grid->drumMode && ofChannel >= kSamplerChannels) return false;
    return Pattern().steps[Channel(ofChannel)][Column(column)] != 0;
}

int ScoreNotes::NextNote(int column) const
{
    int next = std::max(column, -1) + 1;
    while (next < kSteps && !HasNoteInColumn(next, channel)) ++next;
    return next;
}

// Lengths

float ScoreNotes::Beats(int column) const
{
    const float length = engine.StepParameter(Pattern(), Channel(channel), Column(column), slot::NoteLength);
    return law::NoteBeats(Clamp(length, 0.0f, 1.0f));
}

bool ScoreNotes::ChangeNoteLength(int column, float delta)
{
    const int step = Column(column);
    const float offset = Pattern().locks[Channel(channel)][step].Offset(slot::NoteLength);
    const float changed = Clamp(offset + delta, -1.0f, 1.0f);
    if (changed == offset) return false;
    Pattern().SetLock(Channel(channel), step, slot::NoteLength, changed);
    Pattern().SettleLocks();
    return true;
}

// Many at once

void ScoreNotes::SetNotes(int column, std::uint32_t rows, bool on)
{
    if (grid->drumMode) {
        for (int row = 0; row < grid->rowCount; ++row)
            if (rows >> row & 1u) SetNoteAt(column, row, on);
    } else if (on) {
        Pattern().SetNotes(Channel(channel), Column(column), rows);
    } else {
        Pattern().ClearNotes(Channel(channel), Column(column), rows);
    }
}

void ScoreNotes::SwapCells(int ofChannel, int bar1, int step1, int bar2, int step2)
{
    Pattern().SwapSteps(Channel(ofChannel), StepAt(bar1, step1), StepAt(bar2, step2));
    Pattern().SettleLocks();
}

std::uint32_t ScoreNotes::NotesIn(int column, ScoreSpan rows) const
{
    if (!grid->drumMode) return Pattern().steps[Channel(channel)][Column(column)] & BitsOf(rows);
    std::uint32_t selected = 0;
    for (int row = rows.first; row <= rows.last; ++row)
        if (IsNoteAt(column, row)) selected |= 1u << row;
    return selected;
}

bool ScoreNotes::Clear(const ScoreSelection& selection)
{
    const ScoreSpan columns = selection.Columns(*grid), rows = selection.Rows(*grid);
    for (int column = columns.first; column <= columns.last; ++column) SetNotes(column, BitsOf(rows), false);
    bool any = false;
    for (int column = 0; column < kSteps; ++column) {
        if (Pattern().steps[Channel(channel)][column] != 0) continue;
        Pattern().ClearLocks(Channel(channel), column);
        Pattern().SettleLocks();
        any = true;
    }
    return any;
}

bool ScoreNotes::AnyIn(const ScoreSelection& selection) const
{
    const ScoreSpan columns = selection.Columns(*grid);
    const ScoreSpan rows = grid->drumMode ? selection.Rows(*grid) : ScoreSpan{0, grid->TopRow()};
    for (int column = columns.first; column <= columns.last; ++column)
        if (NotesIn(column, rows) != 0) return true;
    return false;
}

} // namespace korvane
