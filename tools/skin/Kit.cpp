// Boxes, light and shadow.
#include "skin/Kit.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>

namespace korvane::skin {

namespace {

constexpr double kPi = std::numbers::pi;

void FillBetween(cairo_t* pen, double x0, double y0, double x1, double y1, Shade from, Shade to)
{
    cairo_pattern_t* light = cairo_pattern_create_linear(x0, y0, x1, y1);
    cairo_pattern_add_color_stop_rgba(light, 0, from.red, from.green, from.blue, from.alpha);
    cairo_pattern_add_color_stop_rgba(light, 1, to.red, to.green, to.blue, to.alpha);
    cairo_set_source(pen, light);
    cairo_fill(pen);
    cairo_pattern_destroy(light);
}

} // namespace

void Rounded(cairo_t* pen, Box box, double radius)
{
    const double r = std::clamp(radius, 0.0, std::min(box.w, box.h) / 2);
    const double right = box.x + box.w, bottom = box.y + box.h;
    cairo_new_sub_path(pen);
    cairo_arc(pen, right - r, box.y + r, r, -kPi / 2, 0);
    cairo_arc(pen, right - r, bottom - r, r, 0, kPi / 2);
    cairo_arc(pen, box.x + r, bottom - r, r, kPi / 2, kPi);
    cairo_arc(pen, box.x + r, box.y + r, r, kPi, kPi * 1.5);
    cairo_close_path(pen);
}

void Circle(cairo_t* pen, double x, double y, double radius)
{
    cairo_new_sub_path(pen);
    cairo_arc(pen, x, y, radius, 0, 2 * kPi);
    cairo_close_path(pen);
}

void Line(cairo_t* pen, double fromX, double fromY, double toX, double toY)
{
    cairo_move_to(pen, fromX, fromY);
    cairo_line_to(pen, toX, toY);
}

void Fill(cairo_t* pen, Shade shade)
{
    cairo_set_source_rgba(pen, shade.red, shade.green, shade.blue, shade.alpha);
    cairo_fill(pen);
}

void FillDown(cairo_t* pen, Box box, Shade top, Shade bottom)
{
    FillBetween(pen, box.x, box.y, box.x, box.y + box.h, top, bottom);
}

void FillLit(cairo_t* pen, Box box, Shade lit, Shade shaded)
{
    FillBetween(pen, box.x, box.y, box.x + box.w, box.y + box.h, lit, shaded);
}

void Stroke(cairo_t* pen, Shade shade, double width)
{
    cairo_set_source_rgba(pen, shade.red, shade.green, shade.blue, shade.alpha);
    cairo_set_line_width(pen, width);
    cairo_stroke(pen);
}

void Shadow(cairo_t* pen, Box box, double radius, double reach, double alpha)
{
    constexpr int kLayers = 8; // each a little larger; what lies below all of them is darkest
    const double each = 1.0 - std::pow(1.0 - alpha, 1.0 / kLayers);
    for (int n = 0; n < kLayers; ++n) {
        const double out = reach * (n + 0.5) / kLayers;
        Rounded(pen, box.Inset(-out), radius + out);
        Fill(pen, Black(each));
    }
}

void Glow(cairo_t* pen, double x, double y, double reach, Shade shade)
{
    constexpr double kStops[][2] = {{0, 1}, {0.25, 0.72}, {0.5, 0.32}, {0.75, 0.09}, {1, 0}};
    cairo_pattern_t* light = cairo_pattern_create_radial(x, y, 0, x, y, reach);
    for (const auto& stop : kStops)
        cairo_pattern_add_color_stop_rgba(light, stop[0], shade.red, shade.green, shade.blue, shade.alpha * stop[1]);
    cairo_set_source(pen, light);
    Circle(pen, x, y, reach);
    cairo_fill(pen);
    cairo_pattern_destroy(light);
}

void Plate(cairo_t* pen, Box box, double radius, Shade top, Shade bottom)
{
    Shadow(pen, box.Moved(0.5, 1), radius, 2.5, 0.5);
    Rounded(pen, box, radius);
    FillDown(pen, box, Lighter(top, 0.16), Darker(bottom, 0.35)); // the edge: lit above, dark below
    Rounded(pen, box.Inset(1), radius - 1);
    FillDown(pen, box, top, bottom);
}

void Hole(cairo_t* pen, Box box, double radius, Shade ground)
{
    Rounded(pen, box.Moved(0.5, 1), radius);
    Fill(pen, White(0.13));
    Rounded(pen, box, radius);
    Fill(pen, ground);
    cairo_save(pen);
    Rounded(pen, box, radius);
    cairo_clip(pen);
    for (const double width : {1.0, 2.5, 4.5}) {
        Rounded(pen, box.Inset(-0.5).Moved(width / 6, width / 3), radius);
        Stroke(pen, Black(0.28), width);
    }
    cairo_restore(pen);
}

void Grain(Picture& picture, int x, int y, int w, int h, int amount)
{
    cairo_surface_flush(picture.surface);
    unsigned char* data = cairo_image_surface_get_data(picture.surface);
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(picture.surface);
    std::uint32_t seed = 0x2545f491u;
    for (int row = y; row < y + h; ++row)
        for (int column = x; column < x + w; ++column) {
            seed = seed * 1664525u + 1013904223u;
            const int by = static_cast<int>(seed >> 16) % (2 * amount + 1) - amount;
            unsigned char* pixel = data + row * stride + std::ptrdiff_t{4} * column;
            for (int n = 0; n < 3; ++n) pixel[n] = static_cast<unsigned char>(std::clamp(pixel[n] + by, 0, 255));
        }
    cairo_surface_mark_dirty(picture.surface);
}

} // namespace korvane::skin
