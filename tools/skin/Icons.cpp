// Small drawings.
#include "skin/Icons.h"

#include <cmath>
#include <numbers>

namespace korvane::skin {

namespace {

constexpr double kPi = std::numbers::pi;

void DrawPencil(cairo_t* pen, double size, Shade shade)
{
    const double u = size / 12;
    cairo_rotate(pen, kPi / 4);
    cairo_rectangle(pen, -1.8 * u, -7 * u, 3.6 * u, 1.8 * u);
    cairo_rectangle(pen, -1.8 * u, -4.4 * u, 3.6 * u, 7.2 * u);
    cairo_move_to(pen, -1.8 * u, 3.6 * u);
    cairo_line_to(pen, 1.8 * u, 3.6 * u);
    cairo_line_to(pen, 0, 7.4 * u);
    cairo_close_path(pen);
    Fill(pen, shade);
}

void DrawLoop(cairo_t* pen, double size, Shade shade)
{
    const double u = size / 12;
    cairo_set_line_cap(pen, CAIRO_LINE_CAP_ROUND);
    for (const double turn : {0.0, kPi}) {
        cairo_save(pen);
        cairo_rotate(pen, turn);
        cairo_move_to(pen, -5 * u, 0.5 * u);
        cairo_arc(pen, -2.4 * u, -0.6 * u, 2.6 * u, kPi, kPi * 1.5);
        cairo_line_to(pen, 2.6 * u, -3.2 * u);
        Stroke(pen, shade, 1.5);
        Arrow(pen, 3.6 * u, -3.2 * u, 5.4 * u, 1, 0, shade);
        cairo_restore(pen);
    }
}

void DrawSheets(cairo_t* pen, double size, Shade shade)
{
    const double u = size / 12;
    Rounded(pen, {-5 * u, -5.5 * u, 7 * u, 8 * u}, u);
    Stroke(pen, shade, 1.2);
    Rounded(pen, {-2 * u, -2.5 * u, 7 * u, 8 * u}, u);
    Fill(pen, shade);
}

void DrawBoard(cairo_t* pen, double size, Shade shade)
{
    const double u = size / 12;
    Rounded(pen, {-4.5 * u, -4.5 * u, 9 * u, 10 * u}, u);
    Stroke(pen, shade, 1.2);
    Rounded(pen, {-2.2 * u, -6 * u, 4.4 * u, 3 * u}, u);
    Fill(pen, shade);
    for (const double y : {-0.8, 1.4, 3.6}) Line(pen, -2.4 * u, y * u, 2.4 * u, y * u);
    Stroke(pen, shade, 1);
}

void DrawCross(cairo_t* pen, double size, Shade shade)
{
    const double r = size / 2 - 1.5;
    cairo_set_line_cap(pen, CAIRO_LINE_CAP_ROUND);
    Line(pen, -r, -r, r, r);
    Line(pen, r, -r, -r, r);
    Stroke(pen, shade, 1.8);
}

double Height(Curve curve, double phase)
{
    switch (curve) {
    case Curve::Sine: return std::sin(2 * kPi * phase);
    case Curve::Triangle: return 1 - 4 * std::fabs(phase - 0.5);
    case Curve::FallingRamp: return phase > 0.02 && phase < 0.98 ? 1 - 2 * phase : 0;
    case Curve::RisingRamp: return phase > 0.02 && phase < 0.98 ? 2 * phase - 1 : 0;
    default: return 0;
    }
}

} // namespace

void Arrow(cairo_t* pen, double x, double y, double size, double dx, double dy, Shade shade)
{
    const double half = size / 2, back = size * 0.4;
    cairo_move_to(pen, x + dx * back, y + dy * back);
    cairo_line_to(pen, x - dx * back + dy * half, y - dy * back - dx * half);
    cairo_line_to(pen, x - dx * back - dy * half, y - dy * back + dx * half);
    cairo_close_path(pen);
    Fill(pen, shade);
}

void Draw(cairo_t* pen, Icon icon, double x, double y, double size, Shade shade)
{
    cairo_save(pen);
    cairo_translate(pen, x, y);
    switch (icon) {
    case Icon::Play: Arrow(pen, 0.5, 0, size, 1, 0, shade); break;
    case Icon::Record:
        Circle(pen, 0, 0, size / 2 - 0.5);
        Fill(pen, shade);
        break;
    case Icon::Back:
    case Icon::Forward: {
        const double side = icon == Icon::Back ? -1 : 1;
        Arrow(pen, -size * 0.32, 0, size * 0.8, side, 0, shade);
        Arrow(pen, size * 0.32, 0, size * 0.8, side, 0, shade);
        break;
    }
    case Icon::Pencil: DrawPencil(pen, size, shade); break;
    case Icon::Loop: DrawLoop(pen, size, shade); break;
    case Icon::Copy: DrawSheets(pen, size, shade); break;
    case Icon::Paste: DrawBoard(pen, size, shade); break;
    case Icon::Clear: DrawCross(pen, size, shade); break;
    }
    cairo_restore(pen);
}

void Draw(cairo_t* pen, Curve curve, Box box, Shade shade, double width)
{
    const double middle = box.MiddleY(), half = box.h / 2;
    cairo_set_line_join(pen, CAIRO_LINE_JOIN_MITER);
    if (curve == Curve::Square) {
        cairo_move_to(pen, box.x, middle);
        cairo_line_to(pen, box.x, box.y);
        cairo_line_to(pen, box.MiddleX(), box.y);
        cairo_line_to(pen, box.MiddleX(), box.y + box.h);
        cairo_line_to(pen, box.x + box.w, box.y + box.h);
        cairo_line_to(pen, box.x + box.w, middle);
    } else {
        constexpr int kPoints = 64;
        for (int n = 0; n <= kPoints; ++n) {
            const double phase = static_cast<double>(n) / kPoints;
            cairo_line_to(pen, box.x + box.w * phase, middle - half * Height(curve, phase));
        }
    }
    Stroke(pen, shade, width);
}

} // namespace korvane::skin
