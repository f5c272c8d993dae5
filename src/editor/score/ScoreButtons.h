// The buttons below the score editor's grid.
#pragma once

#include <cstdint>

#include "editor/score/ScoreGrid.h"

namespace korvane {

enum class ScoreCommand : std::uint8_t { Copy, Paste, Clear, Play };

struct ScoreButton {
    ScoreCommand command;
    int x, y, h;         // in the open piano roll
    int imageColumn;     // of "1_NoteEditorButtons.tga"
    int imageRow, onRow; // at rest; flashing or playing

    static constexpr int kWidth = 69; // pixels

    /// Relative to the open editor.
    constexpr Rect PlaceOn(const ScoreGrid& grid) const { return {x, y + grid.buttonsOffset, kWidth, h}; }
};

// clang-format off
/// In the order of ScoreCommand, which ScoreState::flash has too.
inline constexpr ScoreButton kScoreButtons[] = {
//   command              x    y    h  column row  on
    {ScoreCommand::Copy,   30, 500, 34, 149,  6, 56},
    {ScoreCommand::Paste, 130, 500, 34,  75,  6, 56},
    {ScoreCommand::Clear, 230, 500, 34,   3,  6, 56},
    {ScoreCommand::Play,  330, 495, 45, 223,  0, 49},
};
// clang-format on

} // namespace korvane
