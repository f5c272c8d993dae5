// What is printed: the face, its sizes, how a text stands.
#pragma once

#include "skin/Kit.h"

namespace korvane::skin {

enum class Weight { Plain, Medium, Bold };
enum class Stand { Left, Middle, Right };

/// Size in pixels, of which capitals take 71 %; `spacing` is added behind every letter.
struct Type {
    double size;
    Weight weight = Weight::Medium;
    double spacing = 0.0;
};

/// Whether the face is installed; otherwise texts are drawn in another, which may not fit.
bool HasFace();

/// Pixels across. The text is ASCII.
double WidthOf(cairo_t* pen, Type type, const char* text);
/// x is where it begins, has its middle or ends; y the middle of its capitals.
void Write(cairo_t* pen, Type type, Shade shade, const char* text, double x, double y, Stand stand = Stand::Middle);
/// The same from below upward.
void WriteUp(cairo_t* pen, Type type, Shade shade, const char* text, double x, double y);

} // namespace korvane::skin
