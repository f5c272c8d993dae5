// The two grids of the score editor, and where things lie on them.
#include "editor/score/ScoreGrid.h"

#include <algorithm>

namespace korvane {

namespace {

/// The cells that a span of pixels overlaps or touches.
/// start, length  of the span, from the first cell's beginning
ScoreSpan Touched(std::int64_t start, std::int64_t length, int cell, int count)
{
    const std::int64_t end = start + length;
    if (end < 0) return {};
    const std::int64_t first = start <= 0 ? 0 : (start - 1) / cell; // a cell ends where the next begins
    return {static_cast<int>(std::min<std::int64_t>(first, count)),
            static_cast<int>(std::min<std::int64_t>(end / cell, count - 1))};
}

} // namespace

ScoreSpan ScoreSelection::Columns(const ScoreGrid& grid) const
{
    if (!Exists()) return {};
    return Touched(std::int64_t{rect.x} - grid.GridRect().x, rect.w, ScoreGrid::cellWidth, kSteps);
}

ScoreSpan ScoreSelection::Rows(const ScoreGrid& grid) const
{
    if (!Exists()) return {};
    const ScoreSpan down = Touched(std::int64_t{rect.y} - grid.GridRect().y, rect.h, grid.cellHeight, grid.rowCount);
    return {grid.TopRow() - down.last, grid.TopRow() - down.first};
}

} // namespace korvane
