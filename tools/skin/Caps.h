// A key's cap: raised or down, dark or lit from below.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

struct CapLook {
    Shade cap, light;
    double lit; // 0..1
    bool down;
};

/// Draws the key into its cell. The face, where its legend stands.
Box DrawCap(cairo_t* pen, Box cell, const CapLook& look);
/// What is printed on such a face.
Shade InkOn(const CapLook& look);

} // namespace korvane::skin
