// Rectangles, gradients, frames and images in a draw buffer.
#include "gui/pixels/CDrawBuffer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "gui/pixels/Mixing.h"
#include "platform/Numbers.h"

namespace korvane {

void CDrawBuffer::FillRect(Rect rect)
{
    if (!IsValid() || !ClipToClipRect(rect)) return;
    const auto a = static_cast<std::uint8_t>(AlphaOf(fillColor));
    if (a == 0) return;
    const Color plain = fillColor & 0xFFFFFF;
    std::uint32_t* row = &pixels[static_cast<std::size_t>(height - rect.y - rect.h) * width + rect.x];
    for (int n = 0; n < rect.h; ++n, row += width) {
        if (a == 255)
            std::fill_n(row, rect.w, plain);
        else
            mixing::MixRow(row, rect.w, mixing::OneColor{plain}, mixing::Even{a});
    }
}

namespace {

using mixing::Channels;

Channels Spread(Color color)
{
    const auto channel = [color](int n) { return static_cast<std::int32_t>((color >> 8 * n & 255) << 16); };
    return Channels{channel(0), channel(1), channel(2), channel(3)};
}

/// A step from one colour to another; divisions truncate.
Channels StepOf(Channels from, Channels to, int count) { return count > 0 ? (to - from) / count : Channels{}; }

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
        mixing::MixGradient(row, rect.w, left, StepOf(left, right, wholeWidth - 1));
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
    const std::int64_t line = frameWidth, right = std::int64_t{rect.x} + rect.w, bottom = std::int64_t{rect.y} + rect.h;
    const int left = Saturate(rect.x + line), inside = Saturate(rect.w - 2 * line);
    FillRect({rect.x, rect.y, frameWidth, rect.h});
    FillRect({Saturate(right - line), rect.y, frameWidth, rect.h});
    FillRect({left, rect.y, inside, frameWidth});
    FillRect({left, Saturate(bottom - line), inside, frameWidth});
    fillColor = before;
}

void CDrawBuffer::DrawBitmap(const CBitmap* bitmap, Rect dest, Point src)
{
    if (bitmap && IsValid()) bitmap->Draw(this, dest, src);
}

void CDrawBuffer::DrawBitmapBlended(const CBitmap* bitmap, Rect dest, Point src, float opacity)
{
    const int rounded = Clamp(Truncate(std::round(opacity * 255.0f)), 0, 255);
    if (bitmap && IsValid()) bitmap->DrawBlended(this, dest, src, static_cast<std::uint8_t>(rounded));
}

} // namespace korvane
