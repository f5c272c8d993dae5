// What the hand does on the page of the score editor.
#include "editor/score/ScoreHand.h"

#include <algorithm>
#include <cstdlib>

#include "editor/score/ScoreMove.h"
#include "engine/Transport.h"

namespace korvane {

namespace {

constexpr int kBarWidth = kStepsPerBar * ScoreGrid::cellWidth;

Rect Between(Point a, Point b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x), std::abs(a.y - b.y)};
}

} // namespace

bool ScoreHand::Playing() const { return ShownModes(notes.engine).playing; }

// Presses

void ScoreHand::Press(Point at, bool ctrl)
{
    const Rect grid = Grid().GridRect();
    state.pressActive = true;
    pressPoint = lastPoint = at;
    Hover(at);
    if (at.y >= grid.y + grid.h) return;
    if (Grid().KeyStripRect().Contains(at.x, at.y)) {
        state.keyDrag = true;
        Move(at);
    } else if (state.hoverBar >= 0) {
        state.barPick = state.hoverBar;
        SelectBars(state.barPick, state.barPick);
    } else if (ScoreGrid::laneRect.Contains(at.x, at.y)) {
        state.laneDrag = true;
        Move(at);
    } else if (state.OnCell()) {
        PressCell(at, ctrl);
    }
}

void ScoreHand::PressCell(Point at, bool ctrl)
{
    const bool outside = !state.selection.Contains(at);
    if (outside) state.selection.Remove();
    state.pressColumn = state.hoverColumn;
    state.pressRow = state.hoverRow;
    if (!Playing() && !state.selection.Holds(Grid(), state.hoverColumn, state.hoverRow)) Audition(state.hoverRow);
    if (!ctrl && !state.selection.Exists() && notes.IsNoteAt(state.hoverColumn, state.hoverRow)) SelectNote();
    if (ctrl && outside) StartRubberBand(at);
}

/// In the piano roll the whole chord.
void ScoreHand::SelectNote()
{
    const Rect cell = Grid().CellRect(state.pressColumn, state.pressRow), grid = Grid().GridRect();
    const int inside = cell.w - 2;
    state.selection.rect =
        Grid().drumMode ? Rect{cell.x + 1, cell.y + 1, inside, cell.h - 2} : Rect{cell.x + 1, grid.y, inside, grid.h};
}

void ScoreHand::SelectBars(int first, int last)
{
    const Rect bars = Grid().ColumnsRect(first * kStepsPerBar, (last - first + 1) * kStepsPerBar);
    state.selection.rect = {bars.x + 1, bars.y + 1, bars.w - 2, bars.h - 2};
}

// Moves

void ScoreHand::Move(Point at)
{
    Hover(at);
    if (state.pressActive) Drag(at);
    lastPoint = at;
}

void ScoreHand::Hover(Point at)
{
    const bool onGrid = Grid().GridRect().Contains(at.x, at.y);
    const bool onLane = state.laneDrag && ScoreGrid::laneRect.Contains(at.x, at.y);
    const bool onBars = ScoreGrid::barStripRect.Contains(at.x, at.y);
    state.hoverColumn = onGrid || onLane ? ScoreGrid::ColumnAt(at.x) : -1;
    state.hoverRow = onGrid ? Grid().RowAt(at.y) : -1;
    state.hoverBar = onBars ? (at.x - ScoreGrid::barStripRect.x) / kBarWidth : -1;
}

void ScoreHand::Drag(Point at)
{
    const bool onPressed = state.hoverColumn == state.pressColumn && state.hoverRow == state.pressRow;
    if (!onPressed || state.rubberBand) state.dragged = true;
    if (state.keyDrag) return FollowKeys(at);
    if (state.barPick >= 0) return FollowBars(at);
    if (state.laneDrag) return lane.Draw(lastPoint, at, state.selection);
    FollowRubberBand(at);
    if (state.dragged) EndAudition();
}

void ScoreHand::FollowKeys(Point at)
{
    const int row = Grid().RowAt(at.y);
    if (row >= 0 && row != state.auditionRow) Audition(row);
}

void ScoreHand::FollowBars(Point at)
{
    const int bar = std::clamp(at.x - ScoreGrid::barStripRect.x, 0, ScoreGrid::barStripRect.w - 1) / kBarWidth;
    SelectBars(std::min(state.barPick, bar), std::max(state.barPick, bar));
}

void ScoreHand::StartRubberBand(Point origin)
{
    rubberOrigin = origin;
    state.pressColumn = state.pressRow = -1;
    state.rubberBand = true;
}

void ScoreHand::FollowRubberBand(Point at)
{
    if (!state.selection.Exists() && state.pressColumn >= 0 && state.dragged) StartRubberBand(pressPoint);
    if (state.rubberBand) state.selection.rect = Between(rubberOrigin, at);
}

// Releases

void ScoreHand::Release(Point at, bool ctrl)
{
    if (!state.pressActive) return;
    if (at != lastPoint) Move(at);
    state.pressActive = state.rubberBand = false;
    EndAudition();
    if (EndOtherDrag()) return;
    if (!state.dragged && state.OnCell()) ToggleHovered();
    if (!notes.AnyIn(state.selection)) state.selection.Remove();
    MoveSelection(ctrl);
}

/// Of keys, lane or bars; whether it was one.
bool ScoreHand::EndOtherDrag()
{
    const bool other = state.keyDrag || state.laneDrag || state.barPick >= 0;
    state.keyDrag = state.laneDrag = false;
    state.barPick = -1;
    return other;
}

void ScoreHand::ToggleHovered()
{
    const int column = state.hoverColumn, row = state.hoverRow;
    notes.SetNoteAt(column, row, !notes.IsNoteAt(column, row));
}

void ScoreHand::MoveSelection(bool copying)
{
    if (state.CarriesSelection()) ScoreMove::Carried(notes, state).Apply(notes, state.selection, copying);
    state.pressColumn = state.pressRow = -1;
}

void ScoreHand::Drop()
{
    EndAudition();
    state.pressColumn = state.pressRow = state.barPick = -1;
    state.pressActive = state.dragged = state.rubberBand = state.laneDrag = state.keyDrag = false;
}

// Listening

void ScoreHand::Audition(int row)
{
    EndAudition();
    const bool drums = Grid().drumMode;
    auditionChannel = drums ? Grid().ChannelOfRow(row) : static_cast<int>(notes.engine.selection.selectedChannel);
    auditionNote = drums ? 0 : kFirstNote + row;
    state.auditionRow = row;
    notes.engine.NoteOn(auditionChannel, auditionNote, 1.0f);
}

void ScoreHand::EndAudition()
{
    if (state.auditionRow < 0) return;
    state.auditionRow = -1;
    notes.engine.ReleaseNote(auditionChannel, auditionNote);
}

} // namespace korvane
