// What a buffer shows, for tests.
#pragma once

#include <algorithm>
#include <vector>

#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

using Words = std::vector<std::uint32_t>;

inline std::uint32_t& PixelAt(const CGraphicBuffer& buffer, int x, int y)
{
    return buffer.pixels[static_cast<std::size_t>(buffer.height - 1 - y) * buffer.width + x];
}

/// The top row first.
inline Words Shown(const CGraphicBuffer& buffer)
{
    Words words;
    for (int y = 0; y < buffer.height; ++y)
        for (int x = 0; x < buffer.width; ++x) words.push_back(PixelAt(buffer, x, y));
    return words;
}

struct Filled : CDrawBuffer {
    Filled(int rows, int columns, std::uint32_t word, bool withAlpha = false)
    {
        Create(rows, columns, withAlpha);
        std::fill_n(pixels.get(), rows * columns, word);
    }
    /// Words and opacities that are all unlike.
    void Scatter()
    {
        for (int n = 0; n < height * width; ++n) {
            pixels[n] = static_cast<std::uint32_t>(n + 1) * 2654435769u;
            if (alpha) alpha[n] = static_cast<std::uint8_t>(pixels[n] >> 16);
        }
    }
};

} // namespace korvane
