// What is printed: the face, its sizes, how a text stands.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

enum class Weight { Plain, Medium, Bold };
enum class Stand { Left, Middle, Right };

/// Size in pixels; `spacing` is added behind every letter, `breadth` of their width they take. Fitted letters stand on
/// whole rows: capitals of 8.25 to 9.75 are 7 rows high. Others have 71 % of the size.
struct Type {
    double size;
    Weight weight = Weight::Medium;
    double spacing = 0.0;
    double breadth = 1.0;
    bool fitted = true;
};

// The smallest that is printed
inline constexpr Type kLegend{8.25, Weight::Bold, 0.25}, kDense{8.25, Weight::Bold, 0.1, 0.9};
inline constexpr Type kSmall{8.44, Weight::Bold, 0.0, 0.86, false}; // 6 rows, where 7 find no room

/// Whether the face is installed; otherwise texts are drawn in another, which may not fit.
bool HasFace();

/// Pixels across. The text is ASCII.
double WidthOf(cairo_t* pen, Type type, const char* text);
/// x is where it begins, has its middle or ends; y the middle of its capitals.
void Write(cairo_t* pen, Type type, Shade shade, const char* text, double x, double y, Stand stand = Stand::Middle);
/// The same from below upward.
void WriteUp(cairo_t* pen, Type type, Shade shade, const char* text, double x, double y);

} // namespace korvane::skin
