// Lights, and small switches of the panel.
#include "skin/Lights.h"

#include "skin/Images.h"
#include "skin/Measures.h"
#include "skin/Print.h"

namespace korvane::skin {

namespace {

Shade ShadeOf(LightKind kind) { return kind == LightKind::Red ? kRedLight : kAmberLight; }

void DrawLit(cairo_t* pen, double x, double y, LightKind kind)
{
    const Shade shade = ShadeOf(kind);
    Glow(pen, x, y, 6.3, Fade(shade, 0.85));
    Circle(pen, x, y, 2.9);
    Fill(pen, shade);
    Glow(pen, x - 0.4, y - 0.5, 2.6, Rgb(255, 240, 205, 0.95));
}

/// The frames off are empty: the lens on the page shows.
void DrawLightStrip(cairo_t* pen)
{
    for (const LightKind kind : {LightKind::Red, LightKind::Amber}) {
        const double left = kind == LightKind::Red ? 0 : kLightCellWidth;
        DrawLit(pen, left + kLightX, kLightCellHeight + kLightY, kind);
    }
}

/// A small square key of a light of its own: off, on and held, on, off and held.
void DrawEnableFrame(cairo_t* pen, double y, bool lit, bool held)
{
    const Box socket{1, y + 1, 12, 11};
    Rounded(pen, socket.Moved(0, 0.7), 2.5);
    Fill(pen, White(0.12));
    Rounded(pen, socket, 2.5);
    Fill(pen, kHole);
    const Box lens = socket.Inset(held ? 2 : 1.5);
    const Shade shade = lit ? kAmberLight : Rgb(66, 44, 24);
    Rounded(pen, lens, 1.5);
    FillDown(pen, lens, Lighter(shade, held ? 0 : 0.22), Darker(shade, 0.2));
    if (lit) Glow(pen, lens.MiddleX(), lens.MiddleY(), 6, Rgb(255, 240, 205, 0.8));
}

void DrawEnable(cairo_t* pen)
{
    DrawEnableFrame(pen, 0, false, false);
    DrawEnableFrame(pen, 13, true, true);
    DrawEnableFrame(pen, 26, true, false);
    DrawEnableFrame(pen, 39, false, true);
}

/// Slides up when it is on.
void DrawLinkFrame(cairo_t* pen, double y, bool on)
{
    Hole(pen, {2, y + 1, 12, 24}, 3, on ? Rgb(128, 58, 20) : kHole);
    const Box cap{3, y + (on ? 2.0 : 12.0), 10, 12};
    Rounded(pen, cap, 2);
    Fill(pen, Darker(kIvory, 0.6));
    Rounded(pen, cap.Inset(0.7), 1.5);
    FillDown(pen, cap, Lighter(kIvory, 0.2), Darker(kIvory, 0.3));
    for (const double line : {3.5, 5.5, 7.5}) cairo_rectangle(pen, cap.x + 2, cap.y + line, 6, 1);
    Fill(pen, Black(0.35));
}

/// A flat key with a lamp.
void DrawIgnoreFrame(cairo_t* pen, double y, bool on)
{
    const Box key{0.5, y + 0.5, 88, 10}, lamp{4, y + 3.5, 7, 4};
    Rounded(pen, key, 2.5);
    FillDown(pen, key, Darker(kTaupe, on ? 0.2 : 0.1), Darker(kTaupe, on ? 0.35 : 0.45));
    Rounded(pen, key, 2.5);
    Stroke(pen, kHole, 1);
    if (on) Glow(pen, lamp.MiddleX(), lamp.MiddleY(), 7, Fade(kRedLight, 0.9));
    Rounded(pen, lamp, 1.5);
    Fill(pen, on ? Rgb(255, 196, 132) : Rgb(58, 22, 14));
    Write(pen, kSmall, kCream, "IGNORE VALUE", 17, y + 5.5, Stand::Left);
}

} // namespace

void DrawLens(cairo_t* pen, double x, double y, LightKind kind)
{
    Circle(pen, x + 0.3, y + 0.7, 4.2);
    Fill(pen, White(0.14));
    Circle(pen, x, y, 4.2);
    Fill(pen, kHole);
    Circle(pen, x, y, 3.1);
    Fill(pen, Mix(Rgb(46, 24, 16), ShadeOf(kind), 0.14));
    Circle(pen, x - 1, y - 1.1, 0.8);
    Fill(pen, White(0.2));
}

bool DrawLights(Picture& picture, int id)
{
    cairo_t* const pen = picture.pen;
    switch (id) {
    case image::Led: DrawLightStrip(pen); break;
    case image::TrackEnable: DrawEnable(pen); break;
    case image::LinkSwitch:
        DrawLinkFrame(pen, 0, false);
        DrawLinkFrame(pen, 26, true);
        break;
    case image::IgnoreController:
        DrawIgnoreFrame(pen, 0, false);
        DrawIgnoreFrame(pen, 11, true);
        break;
    default: return false;
    }
    return true;
}

} // namespace korvane::skin
