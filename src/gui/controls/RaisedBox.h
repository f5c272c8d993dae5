// The boxes that lie above the page: the value of a knob, the open list.
#pragma once

#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

/// Draws a soft shadow into a rectangle, for a box that fills it but for `width` pixels at its right and bottom edges.
/// The shadow is darkest along the box and fades towards the rectangle's edges.
/// opacity  0..1, of the colour's own
void DrawSoftShadow(CDrawBuffer* buffer, Rect whole, int width, Color color, float opacity);

/// Fills the box from top to bottom and frames it with a line of a pixel.
void DrawPanel(CDrawBuffer* buffer, Rect box, Color top, Color bottom, Color frame);

} // namespace korvane
