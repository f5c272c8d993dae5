// Caps of keys.
#include "skin/Caps.h"

#include <algorithm>

namespace korvane::skin {

namespace {

constexpr double kTravel = 1.0; // pixels that a face goes down
constexpr double kSkirt = 2.5;  // of the cap that shows below its face

Shade FaceShade(const CapLook& look)
{
    const Shade own = look.down ? Darker(look.cap, 0.14) : look.cap;
    return Mix(own, look.down ? Darker(look.light, 0.05) : look.light, look.lit);
}

/// Light from below gathers in the middle of the face.
void FillFace(cairo_t* pen, Box face, double radius, const CapLook& look)
{
    const Shade shade = FaceShade(look);
    Rounded(pen, face, radius);
    if (look.down)
        FillDown(pen, face, Darker(shade, 0.16), Lighter(shade, 0.03));
    else
        FillDown(pen, face, Lighter(shade, 0.12), Darker(shade, 0.12));
    if (look.lit <= 0) return;
    cairo_save(pen);
    Rounded(pen, face, radius);
    cairo_clip(pen);
    Glow(pen, face.MiddleX(), face.MiddleY(), std::max(face.w, face.h) * 0.7,
         Fade(Lighter(look.light, 0.5), 0.4 * look.lit));
    cairo_restore(pen);
}

void EdgeFace(cairo_t* pen, Box face, double radius, const CapLook& look)
{
    cairo_save(pen);
    Rounded(pen, face, radius);
    cairo_clip(pen);
    if (look.down) {
        for (const double width : {1.0, 3.0, 6.0}) {
            Rounded(pen, face.Inset(-0.5).Moved(0, width / 3), radius);
            Stroke(pen, Black(0.16 - 0.07 * look.lit), width);
        }
    } else {
        Rounded(pen, face.Inset(0.5), radius - 0.5);
        FillDown(pen, face, White(0), White(0));
        Rounded(pen, {face.x + 0.5, face.y + 0.5, face.w - 1, face.h + 6}, radius);
        Stroke(pen, White(look.lit > 0.5 ? 0.4 : 0.2), 1);
    }
    cairo_restore(pen);
}

} // namespace

Box DrawCap(cairo_t* pen, Box cell, const CapLook& look)
{
    const double radius = std::min(cell.w, cell.h) > 24 ? 3.0 : 2.0;
    const Box socket = cell.Inset(1);
    Rounded(pen, socket.Moved(0, 0.8), radius + 1);
    Fill(pen, White(0.1));
    Rounded(pen, socket, radius + 1);
    Fill(pen, kHole);
    if (look.lit > 0) {
        Rounded(pen, socket.Inset(0.5), radius + 0.5);
        Stroke(pen, Fade(look.light, 0.5 * look.lit), 1);
    }
    const Box cap = socket.Inset(1.5);
    Box face{cap.x, cap.y, cap.w, cap.h - kSkirt};
    if (look.down) {
        face = face.Inset(0.5).Moved(0, kTravel + 0.5);
    } else {
        Rounded(pen, cap, radius);
        Fill(pen, Darker(FaceShade(look), 0.5));
    }
    FillFace(pen, face, radius, look);
    EdgeFace(pen, face, radius, look);
    return face;
}

Shade InkOn(const CapLook& look)
{
    const Shade shade = Mix(look.cap, look.light, look.lit);
    return 0.3 * shade.red + 0.59 * shade.green + 0.11 * shade.blue > 0.44 ? kDarkInk : kCream;
}

} // namespace korvane::skin
