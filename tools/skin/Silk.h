// What is printed on the panel beyond the legends of single controls.
#pragma once

#include "skin/Kit.h"
#include "skin/Print.h"

namespace korvane::skin {

inline constexpr Type kTitle{9.5, Weight::Bold, 1.0};

/// The name over its line; y is the middle of its capitals.
void PrintWordmark(cairo_t* pen, double size, double middle, double y);
void PrintSilk(cairo_t* pen);

} // namespace korvane::skin
