// Printing beside the controls, wherever the layout has them.
#include "skin/Legends.h"

#include <algorithm>

#include "skin/Lights.h"
#include "skin/Panel.h"
#include "skin/Places.h"
#include "skin/Print.h"

namespace korvane::skin {

namespace {

constexpr Type kHeading{9.5, Weight::Bold, 0.6};
constexpr double kGap = 5.5; // from a control's edge up or down to the middle of its capitals
constexpr double kAside = 3; // to the left or right to where it begins or ends

constexpr Placed PlacedOf(const Legend& legend)
{
    return legend.id == kNoId ? Find(legend.role, legend.n) : Find(legend.id);
}

constexpr bool EveryLegendHasItsControl()
{
    for (const Legend& legend : kLegends)
        if (!PlacedOf(legend).found) return false;
    for (const LightLegend& legend : kLightLegends)
        if (!Find(legend.id).found) return false;
    for (const CurveLegend& legend : kCurveLegends)
        if (!Find(legend.id).found) return false;
    for (const Heading& heading : kHeadings)
        if (!Find(heading.firstId).found || !Find(heading.lastId).found) return false;
    return true;
}
static_assert(EveryLegendHasItsControl());

bool Shows(Page shown, Page page) { return page == Page::All || page == shown; }

Type TypeFor(const ControlRow& row)
{
    if (row.page == Page::Synth && row.image == image::ButtonLcd) return kSmall; // between a knob and its switch
    const bool close = row.widget == Widget::Fader || row.page == Page::Sampler; // beside each other
    return close ? kDense : kLegend;
}

void Print(cairo_t* pen, const Placed& found, const Legend& legend)
{
    const Box at = found.Place();
    const bool onGlass = Holds(kGlass, at);
    const Type type = TypeFor(*found.row);
    const double x = at.MiddleX() + legend.dx, y = at.MiddleY() + legend.dy;
    const Shade ink = onGlass ? kInk : kCream;
    const double gap = found.row->widget == Widget::Knob ? kGap + 1 : kGap; // its ticks reach out
    switch (legend.side) {
    case Side::Above: return Write(pen, type, ink, legend.text, x, at.y + legend.dy - gap);
    case Side::Below: return Write(pen, type, ink, legend.text, x, at.y + at.h + legend.dy + gap);
    case Side::Left: return Write(pen, type, ink, legend.text, at.x + legend.dx - kAside, y, Stand::Right);
    case Side::Right: return Write(pen, type, ink, legend.text, at.x + at.w + legend.dx + kAside, y, Stand::Left);
    }
}

void PrintLights(cairo_t* pen)
{
    for (const LightLegend& legend : kLightLegends) {
        const Placed found = Find(legend.id);
        const Box at = found.Place();
        for (int n = 0; n < found.row->parts; ++n)
            Write(pen, kDense, kCream, legend.texts[n], at.x + at.w, at.y + kLightCellHeight * n + kLightY,
                  Stand::Left);
    }
    for (const CurveLegend& legend : kCurveLegends) {
        const Box at = Find(legend.id).Place();
        for (int n = 0; n < 4; ++n)
            Draw(pen, legend.curves[n], {at.x + at.w + 1.5, at.y + kLightCellHeight * n + 3.5, 16, 7}, kCream, 1.3);
    }
}

void PrintHeading(cairo_t* pen, const Heading& heading)
{
    const Box over = Around(Find(heading.firstId).Place(), Find(heading.lastId).Place());
    constexpr double kShortest = 6; // of the lines
    const double middle = over.MiddleX(), half = WidthOf(pen, kHeading, heading.text) / 2 + 3;
    const double reach = std::max(over.w / 2, half + kShortest);
    Write(pen, kHeading, kInk, heading.text, middle, heading.y);
    Line(pen, middle - reach, heading.y + 0.5, middle - half, heading.y + 0.5);
    Line(pen, middle + half, heading.y + 0.5, middle + reach, heading.y + 0.5);
    Stroke(pen, Fade(kInk, 0.6), 1);
}

} // namespace

void ShadeFields(cairo_t* pen, Page page)
{
    for (const Field& field : kFields) {
        if (field.page != page) continue;
        for (const Box& box : field.boxes) Rounded(pen, box, 4);
        Fill(pen, Fade(kInk, 0.11));
    }
}

void PrintLegends(cairo_t* pen, Page page)
{
    for (const Legend& legend : kLegends) {
        const Placed found = PlacedOf(legend);
        if (Shows(page, found.row->page)) Print(pen, found, legend);
    }
    PrintLights(pen);
    for (const Heading& heading : kHeadings)
        if (heading.page == page) PrintHeading(pen, heading);
}

} // namespace korvane::skin
