// What the page shows where a control stands: ways of faders, lenses, fields, displays.
#pragma once

#include "skin/Kit.h"
#include "skin/Measures.h"

namespace korvane::skin {

/// Of the n-th control of a row.
void DrawGround(cairo_t* pen, const ControlRow& row, int n);

} // namespace korvane::skin
