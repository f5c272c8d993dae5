// Where the window has the controls, by what they are bound to.
#pragma once

#include "skin/Kit.h"
#include "skin/Measures.h"

namespace korvane::skin {

constexpr Box BoxOf(Rect rect) { return {rect.x * 1.0, rect.y * 1.0, rect.w * 1.0, rect.h * 1.0}; }

/// A control of the layout.
struct Placed {
    const ControlRow* row = nullptr;
    int n = 0;
    bool found = false; // otherwise there is no row

    constexpr Box Place() const { return BoxOf(PlaceOf(*row, n)); }
};

/// The control of a parameter.
constexpr Placed Find(int id)
{
    for (const ControlRow& row : kLayout)
        if (row.id != kNoId && id >= row.id && id < row.id + row.count) return {&row, id - row.id, true};
    return {};
}

/// The n-th control of a role.
constexpr Placed Find(Role role, int number)
{
    for (const ControlRow& row : kLayout)
        if (row.role == role && number >= row.first && number < row.first + row.count)
            return {&row, number - row.first, true};
    return {};
}

/// From the one to the other.
constexpr Box Around(Box first, Box last)
{
    const auto least = [](double a, double b) { return a < b ? a : b; };
    const auto most = [](double a, double b) { return a < b ? b : a; };
    const double x = least(first.x, last.x), y = least(first.y, last.y);
    return {x, y, most(first.x + first.w, last.x + last.w) - x, most(first.y + first.h, last.y + last.h) - y};
}

constexpr bool Holds(Box outer, Box inner)
{
    return inner.x >= outer.x && inner.y >= outer.y && inner.x + inner.w <= outer.x + outer.w &&
           inner.y + inner.h <= outer.y + outer.h;
}

} // namespace korvane::skin
