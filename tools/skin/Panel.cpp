// The housing.
#include "skin/Panel.h"

#include <cmath>

#include "skin/Places.h"
#include "skin/Silk.h"
#include "skin/Wood.h"

namespace korvane::skin {

namespace {

/// A plate for controls that belong together; its title stands in the upper left.
struct Group {
    Box box;
    const char* title;
};

constexpr double kLeft = 32, kRight = 1033;
// clang-format off
constexpr Group kGroups[] = {
    {{kLeft, 12, 390, 68},         "EXT CONTROL"}, {{726, 12, 170, 68},         "MIDI LINK"},
    {{898, 12, kRight - 898, 68},  "GROOVE"},
    {{kLeft, 83, 465, 189},        nullptr}, // the display
    {{kLeft, 274, 133, 172},       "FILTER"},      {{167, 274, 142, 172},       "ENVELOPES"},
    {{311, 274, 186, 172},         "LFO"},         {{499, 83, 73, 363},         "AMP"},
    {{574, 83, 68, 363},           "CHANNEL"},     {{644, 83, kRight - 644, 246}, "EFFECTS"},
    {{644, 331, kRight - 644, 115}, nullptr}, // patterns and transport
    {{kLeft, 448, 621, 83},        "SAMPLERS"},    {{655, 448, 174, 83},        "PATTERN EDIT"},
    {{831, 448, kRight - 831, 83}, "NOTE LENGTH, BEATS"},
    {{kLeft, 533, 936, 91},        "STEPS"},       {{970, 533, kRight - 970, 91}, "SHUFFLE"},
};
// clang-format on

constexpr bool StandsOnAPlate(Box place)
{
    for (const Group& group : kGroups)
        if (Holds(group.box, place)) return true;
    return false;
}

constexpr bool EveryControlStandsOnAPlate()
{
    for (const ControlRow& row : kLayout)
        for (int n = 0; n < row.count; ++n) {
            if (row.widget == Widget::Score) continue; // is not on the panel
            const Box place = BoxOf(PlaceOf(row, n));
            if (row.page == Page::All ? !StandsOnAPlate(place) : !Holds(kGlass, place)) return false;
        }
    return true;
}
static_assert(EveryControlStandsOnAPlate());

void DrawChassis(Picture& page)
{
    const double left = kCheek, right = page.width - kCheek, h = page.height;
    cairo_rectangle(page.pen, 0, 0, page.width, h);
    FillDown(page.pen, {0, 0, page.width * 1.0, h}, kChassisTop, kChassisBottom);
    DrawCheeks(page);
    cairo_t* const pen = page.pen;
    Line(pen, left, 0.5, right, 0.5);
    Stroke(pen, White(0.18), 1);
    Line(pen, left, h - 0.5, right, h - 0.5);
    Stroke(pen, Black(0.5), 1);
    for (const double x : {left, right - 1}) { // the gap between wood and metal
        cairo_rectangle(pen, x, 0, 1, h);
        Fill(pen, Black(0.75));
    }
    cairo_rectangle(pen, left + 1, 0, 1, h);
    Fill(pen, White(0.1));
}

void DrawScrew(cairo_t* pen, double x, double y)
{
    Circle(pen, x + 0.3, y + 0.8, 4.4);
    Fill(pen, White(0.1));
    Circle(pen, x, y, 4.4);
    Fill(pen, kHole);
    Circle(pen, x, y, 3.8);
    FillLit(pen, {x - 4, y - 4, 8, 8}, Rgb(120, 114, 106), Rgb(52, 48, 44));
    for (int n = 0; n < 6; ++n) {
        const double angle = n * 1.0471975512 + 0.3;
        cairo_line_to(pen, x + 1.9 * std::cos(angle), y + 1.9 * std::sin(angle));
    }
    cairo_close_path(pen);
    Fill(pen, kHole);
}

void DrawGroups(cairo_t* pen)
{
    constexpr double kTitleAt = 10, kTitleDown = 8; // to where it begins, to the middle of its capitals
    for (const Group& group : kGroups) {
        Plate(pen, group.box, 4, kPlateTop, kPlateBottom);
        if (group.title)
            Write(pen, kTitle, kTitleInk, group.title, group.box.x + kTitleAt, group.box.y + kTitleDown, Stand::Left);
    }
}

void DrawGlass(cairo_t* pen)
{
    Hole(pen, kGlass.Inset(-6), 6, Rgb(26, 23, 21));
    Rounded(pen, kGlass.Inset(-1), 4);
    Fill(pen, Black(0.8));
    Rounded(pen, kGlass, 3);
    FillDown(pen, kGlass, kGlassTop, kGlassBottom);
    cairo_save(pen);
    Rounded(pen, kGlass, 3);
    cairo_clip(pen);
    Glow(pen, kGlass.MiddleX(), kGlass.MiddleY(), kGlass.w * 0.62, Rgb(255, 246, 222, 0.4));
    for (double y = kGlass.y + 1; y < kGlass.y + kGlass.h; y += 2) cairo_rectangle(pen, kGlass.x, y, kGlass.w, 1);
    Fill(pen, Black(0.022));
    for (const double width : {2.0, 5.0, 9.0}) { // the bezel's shadow
        Rounded(pen, kGlass.Inset(-1).Moved(width / 5, width / 3), 3);
        Stroke(pen, Rgb(60, 40, 16, 0.13), width);
    }
    cairo_restore(pen);
}

} // namespace

void DrawPanel(Picture& page)
{
    DrawChassis(page);
    for (const double x : {kCheek + 6.5, page.width - kCheek - 6.5})
        for (const double y : {7.5, page.height - 7.5}) DrawScrew(page.pen, x, y);
    DrawGroups(page.pen);
    PrintSilk(page.pen);
    Grain(page, kCheek, 0, page.width - 2 * kCheek, page.height, 2);
    DrawGlass(page.pen);
}

} // namespace korvane::skin
