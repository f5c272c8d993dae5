// Colours of 32 bits.
#pragma once

#include <cstdint>

namespace korvane {

/// 0xAARRGGBB: byte 0 blue, 1 green, 2 red, 3 alpha (255 opaque, 0 invisible).
using Color = std::uint32_t;

constexpr Color Rgb(int red, int green, int blue, int alpha = 255)
{
    return static_cast<Color>(alpha) << 24 | static_cast<Color>(red) << 16 | static_cast<Color>(green) << 8 |
           static_cast<Color>(blue);
}

constexpr int AlphaOf(Color color) { return static_cast<int>(color >> 24); }
constexpr Color WithAlpha(Color color, int alpha) { return (color & 0xFFFFFF) | static_cast<Color>(alpha) << 24; }

inline constexpr Color kBlack = Rgb(0, 0, 0), kWhite = Rgb(255, 255, 255);

} // namespace korvane
