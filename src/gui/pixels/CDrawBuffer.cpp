// Rectangles, gradients, frames and images in a draw buffer.
#include "gui/pixels/CDrawBuffer.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

#include "gui/pixels/Mixing.h"
#include "platform/Numbers.h"

namespace korvane {

void CDrawBuffer::FillRect(Rect rect)
{
    if (!IsValid() || !ClipToClipRect(rect)) return;
    const int a = AlphaOf(fillColor);
    if (a == 0) return;
    const Color plain = fillColor & 0xFFFFFF;
    std::uint32_t* row = &pixels[static_cast<std::size_t>(height - rect.y - rect.h) * width + rect.x];
    for (int n = 0; n < rect.h; ++n, row += width) {
        if (a == 255)
            std::fill_n(row, rect.w, plain);
        else
            for (int x = 0; x < rect.w; ++x) row[x] = mixing::Mix(row[x], plain, static_cast<std::uint32_t>(a));
    }
}

namespace {

/// The four channels of a colour in 16.16 fixed point: blue, green, red, alpha.
typedef std::int32_t Channels __attribute__((vector_size(16)));

Channels Spread(Color color)
{
    const auto channel = [color](int n) { return static_cast<std::int32_t>((color >> 8 * n & 255) << 16); };
    return Channels{channel(0), channel(1), channel(2), channel(3)};
}

/// A step from one colour to another; divisions truncate.
Channels StepOf(Channels from, Channels to, int count) { return count > 0 ? (to - from) / count : Channels{}; }

void GradientRow(std::uint32_t* row, int count, Channels value, Channels step)
{
    for (int x = 0; x < count; ++x, value += step) {
        const Channels whole = value >> 16;
        const auto color = static_cast<std::uint32_t>(whole[2] << 16 | whole[1] << 8 | whole[0]);
        row[x] = mixing::Mix(row[x], color, static_cast<std::uint32_t>(whole[3]));
    }
}

} // namespace

void CDrawBuffer::FillGradient(Rect rect, Color topLeft, Color topRight, Color bottomRight, Color bottomLeft)
{
    if (!IsValid()) return;
    if (topLeft == topRight && topLeft == bottomRight && topLeft == bottomLeft) {
        const Color before = std::exchange(fillColor, topLeft);
        FillRect(rect);
        fillColor = before;
        return;
    }
    const int wholeWidth = rect.w, wholeHeight = rect.h; // the colours span what was asked for, cut or not
    if (!ClipToClipRect(rect)) return;
    Channels left = Spread(bottomLeft), right = Spread(bottomRight);
    const Channels leftStep = StepOf(left, Spread(topLeft), wholeHeight);
    const Channels rightStep = StepOf(right, Spread(topRight), wholeHeight - 1);
    std::uint32_t* row = &pixels[static_cast<std::size_t>(height - rect.y - rect.h) * width + rect.x];
    for (int n = 0; n < rect.h; ++n, row += width) {
        GradientRow(row, rect.w, left, StepOf(left, right, wholeWidth - 1));
        left += leftStep;
        right += rightStep;
    }
}

void CDrawBuffer::FillRectOrGradient(Rect rect, const Color* corners)
{
    if (corners)
        FillGradient(rect, corners[0], corners[1], corners[2], corners[3]);
    else
        FillRect(rect);
}

void CDrawBuffer::DrawFrame(Rect rect)
{
    frameWidth = std::max(1, frameWidth);
    const Color before = std::exchange(fillColor, frameColor);
    const auto sum = [](std::int64_t a, std::int64_t b) {
        return static_cast<int>(std::clamp<std::int64_t>(a + b, INT_MIN, INT_MAX));
    };
    const int line = frameWidth, inside = sum(rect.w, std::int64_t{-2} * line);
    FillRect({rect.x, rect.y, line, rect.h});
    FillRect({sum(std::int64_t{rect.x} + rect.w, -line), rect.y, line, rect.h});
    FillRect({sum(rect.x, line), rect.y, inside, line});
    FillRect({sum(rect.x, line), sum(std::int64_t{rect.y} + rect.h, -line), inside, line});
    fillColor = before;
}

void CDrawBuffer::DrawBitmap(const CBitmap* bitmap, Rect dest, Point src)
{
    if (bitmap && IsValid()) bitmap->Draw(this, dest, src);
}

void CDrawBuffer::DrawBitmapBlended(const CBitmap* bitmap, Rect dest, Point src, float opacity)
{
    const int rounded = Clamp(Truncate(std::floor(opacity * 255.0f + 0.5f)), 0, 255);
    if (bitmap && IsValid()) bitmap->DrawBlended(this, dest, src, static_cast<std::uint8_t>(rounded));
}

} // namespace korvane
