// The two grids of the score editor, and where things lie on them.
#pragma once

#include <cstdint>

#include "framework/Limits.h"
#include "platform/window/Geometry.h"

namespace korvane {

/// Places are relative to the open editor's top left corner, unless they say otherwise. A column is a step of the
/// pattern, rows are counted from the bottom.
struct ScoreGrid {
    static constexpr int cellWidth = 8; // pixels
    static constexpr int kLeft = 37, kWidth = kSteps * cellWidth;
    static constexpr Rect laneRect{kLeft, 10, kWidth, 128};
    static constexpr Rect barStripRect{kLeft, 138, kWidth, 16};

    bool drumMode; // a row is a sampler channel, the first on top; else a note, the lowest is kFirstNote
    int rowCount, cellHeight;
    Rect openRect;     // in the window
    int buttonsOffset; // of the buttons below the grid

    constexpr int TopRow() const { return rowCount - 1; }
    constexpr Rect GridRect() const { return {kLeft, 154, kWidth, rowCount * cellHeight}; }
    constexpr Rect KeyStripRect() const { return {0, GridRect().y, 36, GridRect().h}; }
    constexpr int ChannelOfRow(int row) const { return TopRow() - row; } // of the drum grid

    constexpr Rect CellRect(int column, int row) const
    {
        const Rect grid = GridRect();
        return {grid.x + column * cellWidth, grid.y + (TopRow() - row) * cellHeight, cellWidth, cellHeight};
    }
    /// All rows of some columns.
    constexpr Rect ColumnsRect(int column, int count) const
    {
        const Rect grid = GridRect();
        return {grid.x + column * cellWidth, grid.y, count * cellWidth, grid.h};
    }

    /// The column at x; -1 beside the grid.
    static constexpr int ColumnAt(int x)
    {
        const std::int64_t inside = std::int64_t{x} - kLeft;
        return inside >= 0 && inside < kWidth ? static_cast<int>(inside) / cellWidth : -1;
    }
    /// The row at y; -1 above and below the grid.
    constexpr int RowAt(int y) const
    {
        const std::int64_t inside = std::int64_t{y} - GridRect().y;
        return inside >= 0 && inside < GridRect().h ? TopRow() - static_cast<int>(inside) / cellHeight : -1;
    }
};

inline constexpr ScoreGrid kPianoRoll{false, kNotes, 14, {0, 81, 1065, 549}, 0};
inline constexpr ScoreGrid kDrumGrid{true, kSamplerChannels, 28, {0, 194, 1065, 436}, -113};

/// Columns or rows, first to last; none when last is before first.
struct ScoreSpan {
    int first = 0, last = -1;

    bool Empty() const { return last < first; }
    bool Holds(int n) const { return n >= first && n <= last; }
};

/// What is selected on the grid. A cell belongs to it when the two overlap or touch.
struct ScoreSelection {
    Rect rect{-1, -1, 0, 0}; // may reach beyond the grid

    bool Exists() const { return rect.w >= 1; }
    bool Contains(Point at) const { return Exists() && rect.Contains(at.x, at.y); }
    void Remove() { rect = {-1, -1, 0, 0}; }
    ScoreSpan Columns(const ScoreGrid& grid) const;
    ScoreSpan Rows(const ScoreGrid& grid) const;
    /// Whether a cell belongs to it.
    bool Holds(const ScoreGrid& grid, int column, int row) const
    {
        return Columns(grid).Holds(column) && Rows(grid).Holds(row);
    }
};

} // namespace korvane
