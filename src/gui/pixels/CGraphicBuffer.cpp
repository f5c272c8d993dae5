// Memory, clipping and copying of pixel buffers.
#include "gui/pixels/CGraphicBuffer.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

#include "gui/pixels/Mixing.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr std::int64_t kMostPixels = 1 << 28; // 1 GiB

bool Intersect(Rect& rect, const Rect& with)
{
    const std::int64_t left = std::max(rect.x, with.x), top = std::max(rect.y, with.y);
    const std::int64_t right = std::min(std::int64_t{with.x} + with.w, std::int64_t{rect.x} + rect.w);
    const std::int64_t bottom = std::min(std::int64_t{with.y} + with.h, std::int64_t{rect.y} + rect.h);
    rect = {Saturate(left), Saturate(top), Saturate(right - left), Saturate(bottom - top)};
    return rect.w >= 1 && rect.h >= 1;
}

/// Where a rectangle's bottom row begins in memory.
std::size_t FirstPixel(const CGraphicBuffer& buffer, Point corner, int rows)
{
    return static_cast<std::size_t>(buffer.height - corner.y - rows) * buffer.width + corner.x;
}

/// Calls copyRow (place in dest, place here) for each row of a clipped copy. Within one buffer, from the end at which
/// no row is overwritten before it is read.
template <class CopyRow>
void ForRows(const CGraphicBuffer& source, const CGraphicBuffer& dest, Rect destRect, Point srcPoint, CopyRow copyRow)
{
    const std::size_t to = FirstPixel(dest, {destRect.x, destRect.y}, destRect.h);
    const std::size_t from = FirstPixel(source, srcPoint, destRect.h);
    const bool backwards = &source == &dest && to > from;
    for (int n = 0; n < destRect.h; ++n) {
        const std::size_t row = backwards ? destRect.h - 1 - n : n;
        copyRow(to + row * dest.width, from + row * source.width);
    }
}

/// Mixes each row of a clipped copy with opacityOf (place here).
template <class OpacityOf>
void MixRows(const CGraphicBuffer& source, CGraphicBuffer& dest, Rect destRect, Point srcPoint, OpacityOf opacityOf)
{
    std::vector<std::uint32_t> before(&source == &dest ? destRect.w : 0); // a row that may overlap itself
    ForRows(source, dest, destRect, srcPoint, [&](std::size_t to, std::size_t from) {
        const std::uint32_t* row = &source.pixels[from];
        if (!before.empty()) {
            std::copy_n(row, destRect.w, before.data());
            row = before.data();
        }
        mixing::MixRow(&dest.pixels[to], destRect.w, mixing::Pixels{row}, opacityOf(from));
    });
}

} // namespace

bool CGraphicBuffer::IsValid() const { return pixels && width > 0; }

bool CGraphicBuffer::Create(int newHeight, int newWidth, bool withAlpha)
{
    if (newHeight < 1 || newWidth < 1) return false;
    if (newHeight == height && newWidth == width) return true;
    Free();
    if (std::int64_t{newHeight} * newWidth > kMostPixels) return false;
    const std::size_t count = static_cast<std::size_t>(newHeight) * newWidth;
    pixels.reset(new (std::nothrow) std::uint32_t[count]());
    if (withAlpha) alpha.reset(new (std::nothrow) std::uint8_t[count]());
    if (!pixels || (withAlpha && !alpha)) {
        Free();
        return false;
    }
    height = newHeight;
    width = newWidth;
    return SetClipRect({0, 0, width, height});
}

void CGraphicBuffer::Free()
{
    pixels.reset();
    alpha.reset();
    height = width = 0;
}

void CGraphicBuffer::ResetClipRect() { clip = {0, 0, width, height}; }

bool CGraphicBuffer::SetClipRect(Rect rect)
{
    ResetClipRect();
    if (!ClipToClipRect(rect)) return false;
    clip = rect;
    return true;
}

Size CGraphicBuffer::GetSize() const { return {height, width}; }
Rect CGraphicBuffer::GetClipRect() const { return clip; }
bool CGraphicBuffer::HasAlpha() const { return alpha != nullptr; }
bool CGraphicBuffer::ClipToClipRect(Rect& rect) const { return Intersect(rect, clip); }

bool CGraphicBuffer::ClipBlit(const CGraphicBuffer* dest, Rect& destRect, Point& srcPoint) const
{
    if (!dest) return false;
    const std::int64_t dx = std::int64_t{dest->clip.x} - destRect.x, dy = std::int64_t{dest->clip.y} - destRect.y;
    Rect source{srcPoint.x, srcPoint.y, destRect.w, destRect.h};
    if (!ClipToClipRect(source)) return false;
    destRect.w = source.w;
    destRect.h = source.h;
    srcPoint = {Saturate(source.x + std::max<std::int64_t>(0, dx)), Saturate(source.y + std::max<std::int64_t>(0, dy))};
    return dest->ClipToClipRect(destRect);
}

int CGraphicBuffer::BlitToDevice(PixelSurface* device, int x, int y, int w, int h, int srcX, int srcY) const
{
    if (!IsValid() || !device) return 0;
    return device->Copy({pixels.get(), {height, width}}, {srcX, srcY, w, h}, {x, y});
}

void CGraphicBuffer::Draw(CGraphicBuffer* dest, Rect destRect, Point srcPoint) const
{
    if (!pixels || !dest || !dest->pixels || !ClipBlit(dest, destRect, srcPoint)) return;
    if (alpha)
        MixRows(*this, *dest, destRect, srcPoint, [&](std::size_t from) { return mixing::Plane{&alpha[from]}; });
    else
        ForRows(*this, *dest, destRect, srcPoint, [&](std::size_t to, std::size_t from) {
            std::memmove(&dest->pixels[to], &pixels[from], sizeof pixels[0] * destRect.w);
        });
}

void CGraphicBuffer::DrawBlended(CGraphicBuffer* dest, Rect destRect, Point srcPoint, std::uint8_t opacity) const
{
    if (opacity == 0) return;
    if (opacity == 255) {
        Draw(dest, destRect, srcPoint);
        return;
    }
    if (!pixels || !dest || !dest->pixels || !ClipBlit(dest, destRect, srcPoint)) return;
    if (alpha)
        MixRows(*this, *dest, destRect, srcPoint, [&](std::size_t from) {
            return mixing::FaintPlane{&alpha[from], opacity};
        });
    else
        MixRows(*this, *dest, destRect, srcPoint, [=](std::size_t) { return mixing::Even{opacity}; });
}

} // namespace korvane
