// Where the open list of a control and its parts lie.
#pragma once

#include "platform/window/Geometry.h"

namespace korvane {

/// Rows of one height in a box, which scroll when the editor has no room for all. Rectangles are in the window; a
/// scroll position goes from 0, the first row, to 1, the last.
class OpenListLayout {
public:
    /// The rows' own size.
    struct Rows {
        int count = 0;
        int width = 0, height = 1; // pixels
    };

    /// Below the control; where the editor ends there, above it; where that is too low as well, wherever it fits.
    void Place(Rect control, Size editor, Rows newRows);

    Rect Box() const { return box; } // with the frame
    Rect View() const;               // what shows the rows
    /// Empty when there is no such row.
    Rect Row(int index, float scroll) const;
    int RowAt(int x, int y, float scroll) const; // -1: none
    /// Both empty when all rows are seen.
    Rect Bar() const;
    Rect Thumb(float scroll) const;
    float ScrollPerPixel() const; // of the thumb's way
    float ScrollPerPage() const;
    float ScrollThatCentres(int index) const;

private:
    int HiddenHeight() const; // how far the rows can scroll

    Rect box;
    Rows rows;
};

} // namespace korvane
