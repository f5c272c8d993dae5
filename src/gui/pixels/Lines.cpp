// Lines with soft edges: a walk of unit steps that spreads its coverage over four pixels.
#include <algorithm>
#include <cmath>

#include "gui/pixels/CDrawBuffer.h"
#include "gui/pixels/Mixing.h"

namespace korvane {

namespace {

constexpr double kFar = 1 << 30;       // beyond it nothing is drawn
constexpr float kLineDistance = 0.83f; // of the parallel lines of a thick one, in pixels; by eye
constexpr int kMostLines = 4096;       // of a thick one; wider than any page

/// A coordinate along the line in 16.16 fixed point.
struct Walk {
    std::int64_t start, step;

    std::int64_t At(std::int64_t n) const { return start + n * step; }
};

std::int64_t Fixed(double value) { return static_cast<std::int64_t>(value * 65536.0); }

/// Cuts the steps [first, last) to those whose pixel, or the one after it, lies in [low, low + count).
void CutSteps(const Walk& walk, int low, int count, std::int64_t& first, std::int64_t& last)
{
    const std::int64_t begin = (std::int64_t{low} - 2) * 65536, end = (std::int64_t{low} + count + 1) * 65536;
    if (walk.step == 0) {
        if (walk.start < begin || walk.start > end) last = first;
        return;
    }
    std::int64_t enter = (begin - walk.start) / walk.step, leave = (end - walk.start) / walk.step;
    if (enter > leave) std::swap(enter, leave);
    first = std::max(first, enter - 1); // truncation may be a step off, either way
    last = std::min(last, leave + 2);
}

} // namespace

void CDrawBuffer::DrawLine(Color color, float x0, float y0, float x1, float y1, bool accumulate)
{
    if (!IsValid()) return;
    for (const float value : {x0, y0, x1, y1})
        if (!(std::abs(value) < kFar)) return;
    if (std::max(x0, x1) < static_cast<double>(clip.x) || std::min(x0, x1) >= static_cast<double>(clip.x + clip.w) ||
        std::max(y0, y1) < static_cast<double>(clip.y) || std::min(y0, y1) >= static_cast<double>(clip.y + clip.h))
        return;
    const double dx = double{x1} - x0, dy = double{y1} - y0, length = std::sqrt(dx * dx + dy * dy);
    if (!(length > 0.0)) return;
    const Walk x{Fixed(x0), Fixed(dx / length)}, y{Fixed(y0), Fixed(dy / length)};
    std::int64_t first = 0, last = (Fixed(length) + 65535) / 65536;
    CutSteps(x, clip.x, clip.w, first, last);
    CutSteps(y, clip.y, clip.h, first, last);

    const auto cover = [&](int px, int py, std::uint32_t coverage) {
        if (!clip.Contains(px, py)) return;
        std::uint32_t& pixel = pixels[static_cast<std::size_t>(height - 1 - py) * width + px];
        const std::uint32_t stored = pixel >> 24;
        if (accumulate)
            pixel = (pixel & 0xFFFFFF) | std::min(stored + coverage, 255u) << 24;
        else
            pixel = mixing::Mix(pixel & 0xFFFFFF, color, stored * static_cast<std::uint32_t>(AlphaOf(color)) >> 8);
    };
    for (std::int64_t n = first; n < last; ++n) {
        const std::int64_t atX = x.At(n), atY = y.At(n);
        const int px = static_cast<int>(atX >> 16), py = static_cast<int>(atY >> 16);
        const auto fx = static_cast<std::uint32_t>(atX >> 8 & 255), fy = static_cast<std::uint32_t>(atY >> 8 & 255);
        cover(px, py, (255 - fx) * (255 - fy) >> 8);
        cover(px + 1, py, (fx * 255 - fx * fy) >> 8);
        cover(px, py + 1, (fy * 255 - fx * fy) >> 8);
        cover(px + 1, py + 1, fx * fy >> 8);
    }
}

void CDrawBuffer::DrawThickLine(Color color, float x0, float y0, float x1, float y1, bool accumulate)
{
    const float dx = x1 - x0, dy = y1 - y0, length = std::sqrt(dx * dx + dy * dy);
    if (!(length > 0.0f)) return;
    const float normalX = dy / length * kLineDistance, normalY = -dx / length * kLineDistance;
    const int count = std::clamp(frameWidth, 1, kMostLines);
    for (int n = 0; n < count; ++n) {
        const float place = static_cast<float>(n) - static_cast<float>(count) / 2.0f + 0.5f;
        const float offX = normalX * place, offY = normalY * place;
        DrawLine(color, x0 + offX, y0 + offY, x1 + offX, y1 + offY, accumulate);
    }
}

} // namespace korvane
