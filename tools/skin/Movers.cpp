// Knobs, a frame for each position, and the handles of faders.
#include <cmath>
#include <numbers>

#include "skin/Images.h"
#include "skin/Measures.h"

namespace korvane::skin {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kFirstAngle = 0.75 * kPi, kSweep = 1.5 * kPi; // 7 o'clock to 5 o'clock, clockwise from 3 o'clock

double AngleOf(int frame, int frames) { return kFirstAngle + kSweep * frame / (frames - 1); }

void Ray(cairo_t* pen, double x, double y, double angle, double from, double to)
{
    const double right = std::cos(angle), down = std::sin(angle);
    Line(pen, x + right * from, y + down * from, x + right * to, y + down * to);
}

/// The skirt's grip turns with the pointer.
void DrawGrip(cairo_t* pen, double x, double y, double angle)
{
    constexpr int kNotches = 20;
    for (int n = 0; n < kNotches; ++n) {
        const double at = angle + 2 * kPi * (n + 0.5) / kNotches;
        const double towardsLight = std::cos(at - 1.25 * kPi);
        Ray(pen, x, y, at, 11.6, 13.6);
        Stroke(pen, towardsLight > 0 ? White(0.05 + 0.14 * towardsLight) : Black(0.3), 1.3);
    }
}

void DrawKnobFrame(cairo_t* pen, double x, double y, double angle)
{
    const Box body{x - 14, y - 14, 28, 28}, top{x - 11, y - 11, 22, 22};
    Glow(pen, x + 1.2, y + 2.2, 17, Black(0.62));
    Circle(pen, x, y, 14);
    FillLit(pen, body, Rgb(98, 91, 84), Rgb(22, 20, 18));
    Circle(pen, x, y, 13.2);
    FillLit(pen, body, Rgb(66, 61, 56), Rgb(30, 27, 25));
    DrawGrip(pen, x, y, angle);
    Circle(pen, x, y, 11.2);
    Fill(pen, Black(0.55));
    Circle(pen, x, y, 10.8);
    FillLit(pen, top, Rgb(118, 110, 101), Rgb(38, 35, 32));
    Circle(pen, x, y, 9.9);
    FillLit(pen, top, Rgb(84, 78, 72), Rgb(56, 52, 48));
    cairo_set_line_cap(pen, CAIRO_LINE_CAP_ROUND);
    Ray(pen, x, y, angle, 4.6, 11.6);
    Stroke(pen, Black(0.5), 3.8);
    Ray(pen, x, y, angle, 4.6, 11.6);
    Stroke(pen, Rgb(250, 234, 206), 2.3);
}

/// Flat, as the lit display shows it.
void DrawFlatKnobFrame(cairo_t* pen, double x, double y, double angle)
{
    cairo_set_line_cap(pen, CAIRO_LINE_CAP_BUTT);
    cairo_new_path(pen);
    cairo_arc(pen, x, y, 9.6, kFirstAngle, kFirstAngle + kSweep);
    Stroke(pen, Fade(kInk, 0.45), 1.2);
    Circle(pen, x, y, 7.4);
    Fill(pen, kInk);
    cairo_set_line_cap(pen, CAIRO_LINE_CAP_ROUND);
    Ray(pen, x, y, angle, 2.2, 6.2);
    Stroke(pen, Rgb(240, 228, 200), 1.9);
    cairo_set_line_cap(pen, CAIRO_LINE_CAP_BUTT);
    Ray(pen, x, y, angle, 8.4, 10.8);
    Stroke(pen, kInk, 1.9);
}

template <void (*frame)(cairo_t*, double, double, double)>
void DrawStrip(Picture& strip)
{
    const int side = strip.width, frames = strip.height / side;
    for (int n = 0; n < frames; ++n) {
        cairo_save(strip.pen);
        cairo_rectangle(strip.pen, 0, n * side, side, side);
        cairo_clip(strip.pen);
        frame(strip.pen, side / 2.0, n * side + side / 2.0, AngleOf(n, frames));
        cairo_restore(strip.pen);
    }
}

/// A cap with a groove for the finger and a line that shows where it is.
void DrawCapHandle(cairo_t* pen, Box cap, Shade shade, bool upright)
{
    Shadow(pen, cap.Moved(0.8, 1.6), 2, 1.8, 0.55);
    Rounded(pen, cap, 2.5);
    Fill(pen, Darker(shade, 0.62));
    const Box face = cap.Inset(0.8);
    Rounded(pen, face, 2);
    if (upright) { // the sides slope down from the middle
        const double half = face.h / 2;
        FillDown(pen, face, Lighter(shade, 0.24), Darker(shade, 0.34));
        Rounded(pen, {face.x + 1, face.MiddleY() - half * 0.42, face.w - 2, half * 0.84}, 1.5);
        FillDown(pen, {face.x, face.MiddleY() - half * 0.42, face.w, half * 0.84}, Darker(shade, 0.3),
                 Lighter(shade, 0.12));
        cairo_rectangle(pen, face.x + 1, std::floor(face.MiddleY()) - 0.5, face.w - 2, 2);
    } else {
        const double half = face.w / 2;
        FillLit(pen, {face.x, face.MiddleY(), face.w, 1}, Lighter(shade, 0.24), Darker(shade, 0.34));
        const Box groove{face.MiddleX() - half * 0.42, face.y + 1, half * 0.84, face.h - 2};
        Rounded(pen, groove, 1.5);
        FillLit(pen, {groove.x, groove.MiddleY(), groove.w, 1}, Darker(shade, 0.3), Lighter(shade, 0.12));
        cairo_rectangle(pen, std::floor(face.MiddleX()) - 1, face.y + 1, 2, face.h - 2);
    }
    Fill(pen, Rgb(250, 234, 206));
}

void DrawFlatHandle(cairo_t* pen, Box box)
{
    Rounded(pen, box, 2);
    Fill(pen, kInk);
    cairo_rectangle(pen, std::floor(box.MiddleX()) - 1, box.y + 3, 2, box.h - 6);
    Fill(pen, Rgb(240, 228, 200));
}

} // namespace

bool DrawMovers(Picture& picture, int id)
{
    cairo_t* const pen = picture.pen;
    const double w = picture.width, h = picture.height;
    switch (id) {
    case image::Knob: DrawStrip<DrawKnobFrame>(picture); break;
    case image::KnobLcd: DrawStrip<DrawFlatKnobFrame>(picture); break;
    case image::FaderHandle: DrawCapHandle(pen, {1.5, 1.5, w - 3.5, h - 5}, kIvory, true); break;
    case image::FaderLevel: DrawCapHandle(pen, {5, 2, w - 9, h - 6}, kIvory, true); break;
    case image::StepFaderHandle: DrawCapHandle(pen, {2, 2, w - 5, h - 6}, kIvory, false); break;
    case image::FaderLcdHandle: DrawFlatHandle(pen, {1, 1, w - 2, h - 2}); break;
    default: return false;
    }
    return true;
}

} // namespace korvane::skin
