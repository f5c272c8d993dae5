// Points, sizes and rectangles on a screen.
#pragma once

#include <cstdint>

namespace korvane {

/// A position in pixels; y grows downward.
struct Point {
    int x = 0, y = 0;

    bool operator==(const Point&) const = default;
};

/// The height comes first, wherever a size is returned or passed.
struct Size {
    int height = 0, width = 0;

    bool operator==(const Size&) const = default;
};

/// Left, top, width and height in pixels. Empty when width or height is below 1.
struct Rect {
    int x = 0, y = 0, w = 0, h = 0;

    bool operator==(const Rect&) const = default;
    bool Contains(int px, int py) const
    {
        return px >= x && py >= y && px < std::int64_t{x} + w && py < std::int64_t{y} + h;
    }
};

} // namespace korvane
