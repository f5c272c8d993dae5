// Small drawings on keys and beside lights.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

enum class Icon { Play, Record, Back, Forward, Pencil, Loop, Copy, Paste, Clear };
/// In a square of `size` pixels around the point.
void Draw(cairo_t* pen, Icon icon, double x, double y, double size, Shade shade);

/// A triangle whose tip shows along (dx, dy), one of which is 0.
void Arrow(cairo_t* pen, double x, double y, double size, double dx, double dy, Shade shade);

enum class Curve { Sine, Triangle, FallingRamp, RisingRamp, Square };
/// A period, from the left edge of the box to the right one.
void Draw(cairo_t* pen, Curve curve, Box box, Shade shade, double width);

} // namespace korvane::skin
