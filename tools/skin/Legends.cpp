// Printing beside the controls, wherever the layout has them.
#include "skin/Legends.h"

#include <optional>

#include "skin/Panel.h"
#include "skin/Print.h"

namespace korvane::skin {

namespace {

constexpr Type kType{8.5, Weight::Bold, 0.25}, kDense{8, Weight::Bold}, kDensest{7.5, Weight::Bold};
constexpr double kGap = 5; // from a control's edge to the middle of its capitals

struct Found {
    Rect place;
    Page page;
    Widget widget;
    int image;
};

std::optional<Found> FindPlace(int id, Role role = Role::None, int number = 0)
{
    for (const ControlRow& row : kLayout) {
        const int n = id == kNoId ? number - row.first : id - row.id;
        const bool meant = id == kNoId ? row.role == role : row.id != kNoId;
        if (meant && n >= 0 && n < row.count) return Found{PlaceOf(row, n), row.page, row.widget, row.image};
    }
    return std::nullopt;
}

bool Shows(Page shown, Page page) { return page == Page::All || page == shown; }

Shade InkAt(double x, double y) { return OnGlass(x, y) ? kInk : kCream; }

/// Where controls stand closely beside each other.
Type TypeFor(const Found& found)
{
    const bool heads = found.widget == Widget::List || found.image == image::ProgramArrows; // of the whole display
    const bool large = found.page == Page::All && heads;
    if (OnGlass(found.place.x, found.place.y)) return large ? kType : kDensest;
    const bool next = found.image == image::ButtonSynth || found.image == image::ButtonSynthLed;
    return next || found.widget == Widget::Fader || found.widget == Widget::LedTab ? kDense : kType;
}

void Print(cairo_t* pen, const Found& found, const Legend& legend)
{
    const Type type = TypeFor(found);
    const Rect& at = found.place;
    const double x = at.x + at.w / 2.0 + legend.dx, y = at.y + at.h / 2.0 + legend.dy;
    const Shade ink = InkAt(at.x, at.y);
    switch (legend.side) {
    case Side::Above: return Write(pen, type, ink, legend.text, x, at.y + legend.dy - kGap);
    case Side::Below: return Write(pen, type, ink, legend.text, x, at.y + at.h + legend.dy + kGap);
    case Side::Left: return Write(pen, type, ink, legend.text, at.x + legend.dx - 3, y, Stand::Right);
    case Side::Right: return Write(pen, type, ink, legend.text, at.x + at.w + legend.dx + 3, y, Stand::Left);
    }
}

void PrintLights(cairo_t* pen)
{
    for (const LightLegend& legend : kLightLegends) {
        const Rect at = FindPlace(legend.id).value().place;
        for (int n = 0; n < at.h / 13; ++n)
            Write(pen, kDense, kCream, legend.texts[n], at.x + at.w, at.y + 13 * n + 6.5, Stand::Left);
    }
    for (const CurveLegend& legend : kCurveLegends) {
        const Rect at = FindPlace(legend.id).value().place;
        for (int n = 0; n < 4; ++n)
            Draw(pen, legend.curves[n], {at.x + at.w + 1.0, at.y + 13 * n + 3.0, 16, 7}, kCream, 1.2);
    }
}

void PrintHeading(cairo_t* pen, const Heading& heading)
{
    const Rect first = FindPlace(heading.firstId).value().place, last = FindPlace(heading.lastId).value().place;
    const double left = first.x, right = last.x + last.w, middle = (left + right) / 2;
    const double half = WidthOf(pen, kType, heading.text) / 2 + 3;
    Write(pen, kType, Fade(kInk, 0.8), heading.text, middle, heading.y);
    if (middle - half - left < 3) return;
    Line(pen, left, heading.y + 0.5, middle - half, heading.y + 0.5);
    Line(pen, middle + half, heading.y + 0.5, right, heading.y + 0.5);
    Stroke(pen, Fade(kInk, 0.5), 1);
}

} // namespace

void PrintLegends(cairo_t* pen, Page page)
{
    for (const Legend& legend : kLegends) {
        const Found found = FindPlace(legend.id, legend.role, legend.n).value();
        if (Shows(page, found.page)) Print(pen, found, legend);
    }
    PrintLights(pen);
    for (const Heading& heading : kHeadings)
        if (heading.page == page) PrintHeading(pen, heading);
}

} // namespace korvane::skin
