// Which part of a copy lies both in the image and on the surface.
#pragma once

#include <algorithm>
#include <cstdint>

#include "platform/window/Geometry.h"

namespace korvane {

struct CopyPart {
    Rect source; // empty: nothing does
    Point target;
};

/// One axis: cuts off what lies outside of either.
inline void ClipAxis(std::int64_t& from, std::int64_t& to, std::int64_t& length, int image, int surface)
{
    const std::int64_t outside = std::max<std::int64_t>({0, -from, -to});
    from += outside;
    to += outside;
    length = std::min({length - outside, image - from, surface - to});
}

/// For any numbers whatever.
inline CopyPart ClipCopy(Rect source, Point target, Size image, Size surface)
{
    std::int64_t x = source.x, y = source.y, w = source.w, h = source.h, toX = target.x, toY = target.y;
    ClipAxis(x, toX, w, image.width, surface.width);
    ClipAxis(y, toY, h, image.height, surface.height);
    if (w <= 0 || h <= 0) return {};
    const auto number = [](std::int64_t value) { return static_cast<int>(value); };
    return {{number(x), number(y), number(w), number(h)}, {number(toX), number(toY)}};
}

} // namespace korvane
