// Grounds of controls.
#include "skin/Grounds.h"

#include <cmath>
#include <numbers>

#include "framework/KnobLaws.h"
#include "skin/Icons.h"
#include "skin/Lights.h"
#include "skin/Places.h"
#include "skin/Print.h"

namespace korvane::skin {

namespace {

constexpr double kPi = std::numbers::pi;

void DrawTicks(cairo_t* pen, Box place)
{
    constexpr int kTicks = 11;
    for (int n = 0; n < kTicks; ++n) {
        const double angle = 0.75 * kPi + 1.5 * kPi * n / (kTicks - 1);
        const bool main = n % 5 == 0;
        const double x = std::cos(angle), y = std::sin(angle), from = 15.6, to = main ? 18.6 : 17.4;
        Line(pen, place.MiddleX() + x * from, place.MiddleY() + y * from, place.MiddleX() + x * to,
             place.MiddleY() + y * to);
        Stroke(pen, Fade(kCream, main ? 0.85 : 0.45), main ? 1.3 : 1);
    }
}

/// A handle of `handle` pixels goes up and down the place; ticks show its middle.
void DrawWay(cairo_t* pen, Box place, double handle, double middle, double tickFrom, double tickTo)
{
    constexpr int kTicks = 11;
    const double top = place.y + handle / 2, way = place.h - handle;
    for (int n = 0; n < kTicks; ++n) {
        const double y = std::floor(top + way * n / (kTicks - 1)) + 0.5;
        const double to = n % 5 == 0 ? tickTo : tickTo - 1.5;
        Line(pen, middle - to, y, middle - tickFrom, y);
        Line(pen, middle + tickFrom, y, middle + to, y);
        Stroke(pen, Fade(kCream, n % 5 == 0 ? 0.7 : 0.35), 1);
    }
    Hole(pen, {middle - 2.5, top - 6, 5, way + 12}, 2.5, kHole);
}

/// With a mark at 0 dB.
void DrawLevelWay(cairo_t* pen, Box place, double handle)
{
    const double middle = place.MiddleX() + 1;
    const double y = std::floor(place.y + handle / 2 + (place.h - handle) * (1 - law::MixKnob(0.0))) + 0.5;
    DrawWay(pen, place, handle, middle, 5.5, 11.5);
    for (const double side : {-1.0, 1.0}) Line(pen, middle + side * 4.5, y, middle + side * 13, y);
    Stroke(pen, kAmber, 2);
}

void DrawLengthWay(cairo_t* pen, Box place, double handle)
{
    const double left = place.x + handle / 2, way = place.w - handle, y = place.MiddleY();
    constexpr const char* kBeats[] = {"1/8", "1/4", "1/2", "1", "2", "4", "8", "16", "32"}; // each twice the last
    constexpr int kDoublings = 8;
    for (int n = 0; n <= kDoublings; ++n) {
        const double x = std::floor(left + way * n / kDoublings) + 0.5;
        for (const double side : {-1.0, 1.0}) Line(pen, x, y + side * 6, x, y + side * 11);
        Stroke(pen, Fade(kCream, 0.45), 1);
        Write(pen, kLegend, kCream, kBeats[n], x, place.y - 3);
    }
    Hole(pen, {left - 6, y - 2.5, way + 12, 5}, 2.5, kHole);
}

void DrawFlatWay(cairo_t* pen, Box place)
{
    Rounded(pen, {place.x + 0.5, place.y + 0.5, place.w - 1, place.h - 1}, 3);
    Fill(pen, White(0.15));
    Rounded(pen, {place.x + 0.5, place.y + 0.5, place.w - 1, place.h - 1}, 3);
    Stroke(pen, Fade(kInk, 0.6), 1);
    Line(pen, place.x + 7, place.MiddleY() - 0.5, place.x + place.w - 7, place.MiddleY() - 0.5);
    Stroke(pen, Fade(kInk, 0.4), 2);
}

/// Columns longer than any with a key of their own are chosen from by a click.
constexpr int kManyLights = 5;

void DrawLenses(cairo_t* pen, Box place, int count)
{
    if (count >= kManyLights) Hole(pen, {place.x - 0.5, place.y + 1.5, 12, place.h - 2}, 6, Rgb(34, 31, 29));
    for (int n = 0; n < count; ++n)
        DrawLens(pen, place.x + kLightX, place.y + kLightCellHeight * n + kLightY, LightKind::Red);
}

/// As the meter places its lights: 8 pixels apart from below, the last three red.
void DrawMeterLenses(cairo_t* pen, Box place)
{
    constexpr int kLights = 13, kOrdinary = 10;
    Hole(pen, {place.x - 0.5, place.y + 1, 12, 109}, 3, kHole);
    for (int n = 0; n < kLights; ++n)
        DrawLens(pen, place.x + kLightX, place.y + place.h - 8 * (n + 1) - 4 + kLightY,
                 n < kOrdinary ? LightKind::Amber : LightKind::Red);
}

void DrawPad(cairo_t* pen, Box place)
{
    Hole(pen, place.Inset(-3), 5, Rgb(16, 14, 13));
    Rounded(pen, place, 3);
    FillLit(pen, place, Rgb(40, 36, 34), Rgb(24, 21, 20));
    cairo_save(pen);
    Rounded(pen, place, 3);
    cairo_clip(pen);
    for (int n = 1; n < 8; ++n) {
        const double at = std::floor(place.w * n / 8) + 0.5;
        Line(pen, place.x + at, place.y, place.x + at, place.y + place.h);
        Line(pen, place.x, place.y + at, place.x + place.w, place.y + at);
        Stroke(pen, Fade(kAmber, n == 4 ? 0.34 : 0.12), 1);
    }
    Glow(pen, place.MiddleX(), place.MiddleY(), 70, Fade(kAmber, 0.1));
    cairo_restore(pen);
}

Box Wider(Box box, double by) { return {box.x - by, box.y, box.w + 2 * by, box.h}; }

void DrawFlatField(cairo_t* pen, Box place)
{
    const Box box{place.x + 0.5, place.y + 0.5, place.w - 1, place.h - 1};
    Rounded(pen, box, 2);
    Fill(pen, White(0.2));
    Rounded(pen, box, 2);
    Stroke(pen, Fade(kInk, 0.42), 1);
}

/// In the lower right corner of what drops down.
void DrawCorner(cairo_t* pen, Box box, double size, Shade shade)
{
    const double right = box.x + box.w - 2, bottom = box.y + box.h - 2;
    cairo_move_to(pen, right, bottom - size);
    cairo_line_to(pen, right, bottom);
    cairo_line_to(pen, right - size, bottom);
    cairo_close_path(pen);
    Fill(pen, shade);
}

void DrawMonitor(cairo_t* pen, Box place)
{
    Rounded(pen, place, 2);
    Fill(pen, White(0.22));
    for (int n = 1; n < 8; ++n) {
        const double x = std::floor(place.x + place.w * n / 8) + 0.5;
        Line(pen, x, place.y, x, place.y + place.h);
    }
    Stroke(pen, Fade(kSlateInk, 0.12), 1);
    Rounded(pen, place.Inset(-0.5), 2);
    Stroke(pen, Fade(kInk, 0.55), 1);
}

void DrawDarkDisplay(cairo_t* pen, Box box)
{
    Hole(pen, box, 3, kNight);
    Rounded(pen, box.Inset(1), 2);
    FillDown(pen, box, Rgb(34, 24, 18), kNight);
}

void DrawList(cairo_t* pen, const ControlRow& row, Box place)
{
    if (row.look & look::Amber) {
        DrawDarkDisplay(pen, place.Inset(-2));
        return Arrow(pen, place.x + place.w - 8, place.y + place.h - 6, 8, 0, 1, kAmber);
    }
    DrawFlatField(pen, place);
    DrawCorner(pen, place, 5, Fade(kInk, 0.8));
}

double HandleOf(const ControlRow& row, bool upright)
{
    return upright ? SizeOf(row.image).height : SizeOf(row.image).width;
}

} // namespace

void DrawGround(cairo_t* pen, const ControlRow& row, int n)
{
    const Box place = BoxOf(PlaceOf(row, n));
    switch (row.widget) {
    case Widget::Knob: return DrawTicks(pen, place);
    case Widget::Fader: return DrawWay(pen, place, HandleOf(row, true), place.MiddleX(), 9.5, 12.5);
    case Widget::LevelFader: return DrawLevelWay(pen, place, HandleOf(row, true));
    case Widget::Steps: return DrawFlatField(pen, {place.x, place.y + 1, place.w, place.h - 2});
    case Widget::LengthFader: return DrawLengthWay(pen, place, HandleOf(row, false));
    case Widget::ModulationFader: return DrawFlatWay(pen, place);
    case Widget::LedTab: return DrawLenses(pen, place, row.parts);
    case Widget::Led: // its lit frame begins as far down the image as the control is high
        return DrawLens(pen, place.x + kLightX, place.y + kLightY + kLightCellHeight - place.h, LightKind::Red);
    case Widget::Meter: return DrawMeterLenses(pen, place);
    case Widget::Pad: return DrawPad(pen, place);
    case Widget::Monitor: return DrawMonitor(pen, place);
    case Widget::DarkNumber: return DrawFlatField(pen, row.page == Page::Channel ? Wider(place, 3) : place); // "12 smt"
    case Widget::List: return DrawList(pen, row, place);
    case Widget::LightNumber: return DrawDarkDisplay(pen, place.Inset(-1));
    case Widget::Text: return DrawDarkDisplay(pen, place);
    case Widget::GlowingText:
        if (n == 0) DrawDarkDisplay(pen, {place.x - 6, place.y - 2, place.w + 10, place.h * 2 + 4});
        return;
    default: return;
    }
}

} // namespace korvane::skin
