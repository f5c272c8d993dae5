// Draws the grid of the open score editor, with what the hand does there.
#include "editor/score/ScoreGridPainter.h"

#include <bit>
#include <cstdio>
#include <iterator>

#include "editor/score/Fill.h"
#include "editor/score/ScoreMove.h"
#include "gui/controls/KeptDrawState.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

struct NoteLook {
    Color body, core; // the middle of a hit
};
constexpr NoteLook kNote{Rgb(224, 103, 4), Rgb(255, 168, 84)}, kSelectedNote{Rgb(223, 186, 4), Rgb(255, 236, 120)};
constexpr Color kPale = Rgb(244, 249, 166), kPlayColumn = Rgb(255, 0, 0, 50);
constexpr int kFaint = 60, kHoverTint = 20, kSelectionTint = 18, kSelectionFrame = 120;

constexpr int kTailHeight = 2, kCoreAcross = 2, kCoreDown = 6;
constexpr int kHintAside = 20, kHintAbove = 20, kHintAir = 4, kPlusWidth = 10;
constexpr Color kHintGround = Rgb(12, 10, 9, 170);

constexpr NoteLook Faint(NoteLook look) { return {WithAlpha(look.body, kFaint), WithAlpha(look.core, kFaint)}; }

/// Closed where the clip cuts it.
void DrawSelectionFrame(CDrawBuffer& page, Rect frame)
{
    if (!page.ClipToClipRect(frame)) return;
    page.SetFrameColor(WithAlpha(kPale, kSelectionFrame));
    page.SetFrameWidth(1);
    page.DrawFrame(frame);
}

/// A right and a bottom line of the cell stay free.
void DrawNote(CDrawBuffer& page, const ScoreGrid& grid, int column, int row, const NoteLook& look)
{
    Rect cell = grid.CellRect(column, row);
    --cell.w;
    --cell.h;
    Fill(page, cell, look.body);
    if (!grid.drumMode) return;
    Fill(page, {cell.x + kCoreAcross, cell.y + kCoreDown, cell.w - 2 * kCoreAcross, cell.h - 2 * kCoreDown}, look.core);
}

/// Calls draw (row) for each bit.
template <class DrawRow>
void ForRows(std::uint32_t bits, DrawRow draw)
{
    for (; bits != 0; bits &= bits - 1) draw(std::countr_zero(bits));
}

} // namespace

/// As they stood at one moment; a bit for each row.
struct ScoreGridPainter::ShownNotes {
    std::uint32_t all[kSteps], selected[kSteps];
};

ScoreGridPainter::ShownNotes ScoreGridPainter::Read() const
{
    ShownNotes shown{};
    const ScoreSpan columns = state.selection.Columns(*notes.grid), rows = state.selection.Rows(*notes.grid);
    for (int column = 0; column < kSteps; ++column) {
        shown.all[column] = notes.NotesIn(column, {0, notes.grid->TopRow()});
        if (columns.Holds(column)) shown.selected[column] = notes.NotesIn(column, rows);
    }
    return shown;
}

void ScoreGridPainter::Draw(CDrawBuffer& page, bool copying) const
{
    DrawCells(page);
    if (state.OnCell()) DrawHint(page, copying);
}

void ScoreGridPainter::DrawCells(CDrawBuffer& page) const
{
    KeptDrawState kept(&page);
    if (!kept.ClipTo(notes.grid->GridRect())) return;
    const ShownNotes shown = Read();
    DrawSelection(page);
    if (!notes.grid->drumMode) DrawTails(page, shown);
    DrawNotes(page, shown);
    if (Carries()) DrawCarried(page, shown);
    if (state.playColumn >= 0) Fill(page, notes.grid->ColumnsRect(state.playColumn, 1), kPlayColumn);
    if (state.OnCell()) DrawHovered(page);
}

/// Its cells are tinted, as they are what commands act on; the frame shows how far the hand has come.
void ScoreGridPainter::DrawSelection(CDrawBuffer& page) const
{
    const ScoreSpan columns = state.selection.Columns(*notes.grid), rows = state.selection.Rows(*notes.grid);
    if (columns.Empty() || rows.Empty()) return;
    const Rect corner = notes.grid->CellRect(columns.first, rows.last);
    Fill(page,
         {corner.x, corner.y, (columns.last - columns.first + 1) * corner.w, (rows.last - rows.first + 1) * corner.h},
         WithAlpha(kPale, kSelectionTint));
    DrawSelectionFrame(page, state.selection.rect);
}

/// From where a note ends to how far it sounds.
void ScoreGridPainter::DrawTails(CDrawBuffer& page, const ShownNotes& shown) const
{
    const ScoreGrid& grid = *notes.grid;
    for (int column = 0; column < kSteps; ++column) {
        if (shown.all[column] == 0) continue;
        const int length = Truncate(notes.Beats(column) * kStepsPerBeat * ScoreGrid::cellWidth);
        if (length <= ScoreGrid::cellWidth) continue;
        ForRows(shown.all[column], [&](int row) {
            const Rect cell = grid.CellRect(column, row);
            const bool selected = (shown.selected[column] >> row & 1u) != 0;
            Fill(page, {cell.x + cell.w - 1, cell.y + (cell.h - kTailHeight) / 2, length - cell.w + 1, kTailHeight},
                 selected ? kSelectedNote.body : kNote.body);
        });
    }
}

void ScoreGridPainter::DrawNotes(CDrawBuffer& page, const ShownNotes& shown) const
{
    for (int column = 0; column < kSteps; ++column) {
        const std::uint32_t selected = shown.selected[column];
        ForRows(shown.all[column], [&](int row) {
            DrawNote(page, *notes.grid, column, row, (selected >> row & 1u) != 0 ? kSelectedNote : kNote);
        });
    }
}

/// What is selected once more, where it would go.
void ScoreGridPainter::DrawCarried(CDrawBuffer& page, const ShownNotes& shown) const
{
    const ScoreMove move = ScoreMove::Carried(notes, state);
    for (int column = 0; column < kSteps; ++column)
        ForRows(shown.selected[column], [&](int row) {
            DrawNote(page, *notes.grid, column + move.columns, row + move.rows, Faint(kSelectedNote));
        });
    Rect frame = state.selection.rect;
    frame.x += move.columns * ScoreGrid::cellWidth;
    frame.y -= move.rows * notes.grid->cellHeight;
    DrawSelectionFrame(page, frame);
}

/// What a click would set, as long as there is nothing.
void ScoreGridPainter::DrawHovered(CDrawBuffer& page) const
{
    const ScoreGrid& grid = *notes.grid;
    const bool free = grid.drumMode ? !notes.IsNoteAt(state.hoverColumn, state.hoverRow)
                                    : !notes.HasNoteInColumn(state.hoverColumn, notes.channel);
    if (!free || state.rubberBand) return;
    DrawNote(page, grid, state.hoverColumn, state.hoverRow, Faint(kNote));
    Fill(page, grid.ColumnsRect(state.hoverColumn, 1), WithAlpha(kPale, kHoverTint));
}

// Hint

namespace {

constexpr const char* kHints[] = {
    "C; Bar %d; Step %d",  "C#; Bar %d; Step %d", "D; Bar %d; Step %d",  "D#; Bar %d; Step %d",
    "E; Bar %d; Step %d",  "F; Bar %d; Step %d",  "F#; Bar %d; Step %d", "G; Bar %d; Step %d",
    "G#; Bar %d; Step %d", "A; Bar %d; Step %d",  "A#; Bar %d; Step %d", "B; Bar %d; Step %d",
};
constexpr int kOctave = std::size(kHints);

void DrawPlus(CDrawBuffer& page, Point corner)
{
    Fill(page, {corner.x, corner.y + 3, 7, 1}, kPale);
    Fill(page, {corner.x + 3, corner.y, 1, 7}, kPale);
}

} // namespace

void ScoreHint(const ScoreGrid& grid, int column, int row, char* text)
{
    const int inside = Clamp(column, 0, kSteps - 1), key = Clamp(row, 0, grid.TopRow());
    const int bar = inside / kStepsPerBar + 1, step = inside % kStepsPerBar + 1;
    if (grid.drumMode)
        std::snprintf(text, 64, "Sampler %d; Bar %d; Step %d", grid.ChannelOfRow(key) + 1, bar, step);
    else
        std::snprintf(text, 64, kHints[key % kOctave], bar, step);
}

/// Beside the cell, on the page. A copy is marked with a plus.
void ScoreGridPainter::DrawHint(CDrawBuffer& page, bool copying) const
{
    char text[64];
    ScoreHint(*notes.grid, state.hoverColumn, state.hoverRow, text);
    page.SetFont(0);
    page.SetTextColor(kPale);
    const Size size = page.DrawText(text, 0, 0, 0, 0, align::Left, true);
    const Rect cell = notes.grid->CellRect(state.hoverColumn, state.hoverRow);
    const int x = Clamp(cell.x + kHintAside, 0, page.width - size.width);
    const int y = Clamp(cell.y - kHintAbove, 0, page.height - size.height);
    const bool plus = copying && Carries();
    const int before = plus ? kHintAir + kPlusWidth : kHintAir;
    Fill(page, {x - before, y - 2, before + size.width + kHintAir, size.height + 4}, kHintGround);
    page.DrawText(text, x, y, size.width, size.height, align::Left, false);
    if (plus) DrawPlus(page, {x - kPlusWidth, y + 2});
}

} // namespace korvane
