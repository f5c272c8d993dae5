// What everything is drawn with: boxes, light and shadow.
#pragma once

#include <cairo.h>

#include "demo/Picture.h"
#include "skin/Palette.h"

namespace korvane::skin {

using demo::Picture;

/// Pixels; y grows downward.
struct Box {
    double x, y, w, h;

    constexpr Box Inset(double by) const { return {x + by, y + by, w - 2 * by, h - 2 * by}; }
    constexpr Box Moved(double dx, double dy) const { return {x + dx, y + dy, w, h}; }
    constexpr double MiddleX() const { return x + w / 2; }
    constexpr double MiddleY() const { return y + h / 2; }
};

// Paths
void Rounded(cairo_t* pen, Box box, double radius);
void Circle(cairo_t* pen, double x, double y, double radius);
void Line(cairo_t* pen, double fromX, double fromY, double toX, double toY);

// What becomes of the path
void Fill(cairo_t* pen, Shade shade);
void FillDown(cairo_t* pen, Box box, Shade top, Shade bottom);
/// From the upper left, where the light comes from, to the lower right.
void FillLit(cairo_t* pen, Box box, Shade lit, Shade shaded);
void Stroke(cairo_t* pen, Shade shade, double width);

/// Fades out over `reach` pixels around the box.
void Shadow(cairo_t* pen, Box box, double radius, double reach, double alpha);
/// A light that fades from its middle to nothing at `reach`.
void Glow(cairo_t* pen, double x, double y, double reach, Shade shade);
/// A panel that stands a pixel above its ground.
void Plate(cairo_t* pen, Box box, double radius, Shade top, Shade bottom);
/// A hole with a shadow below its upper left edge and light on its lower right one.
void Hole(cairo_t* pen, Box box, double radius, Shade ground);

/// Roughness: every pixel of the box a little darker or lighter, by up to `amount` of 255.
void Grain(Picture& picture, int x, int y, int w, int h, int amount);

} // namespace korvane::skin
