// A buffer of 32-bit pixels.
#pragma once

#include <cstdint>
#include <memory>

#include "gui/pixels/Color.h"
#include "platform/window/Window.h"

namespace korvane {

/// Pixels with an optional plane of alpha and a clip rectangle, which bounds all that is drawn into the buffer.
///
/// Rows stand bottom-up in memory, `width` pixels each; every operation takes y downward from the top. A pixel's bytes
/// are blue, green, red and one that is not part of the colour. Rectangles and points may lie anywhere within int.
/// An empty buffer, a null one or an empty rectangle is drawn as nothing.
///
/// One thread at a time writes; what others only draw from, any number of threads may read.
class CGraphicBuffer {
public:
    CGraphicBuffer() = default;
    CGraphicBuffer(const CGraphicBuffer&) = delete;

    // clang-format off
    virtual ~CGraphicBuffer() = default;
    virtual bool IsValid() const;
    /// New memory of that size, all bytes 0, clip over all of it. With the size that it has, nothing changes, not even
    /// whether it has an alpha plane. False when one is below 1: nothing changes; or when there is no memory or the
    /// pixels would take more than 1 GiB: the buffer is empty then.
    virtual bool Create(int newHeight, int newWidth, bool withAlpha);
    virtual void ResetClipRect();
    /// The part of the rectangle inside the buffer becomes the clip. False when there is none: the clip is the whole
    /// buffer.
    virtual bool SetClipRect(Rect rect);
    virtual Size GetSize() const;
    virtual Rect GetClipRect() const;
    virtual bool HasAlpha() const;
    /// Cuts the rectangle to the clip; whether anything is left.
    virtual bool ClipToClipRect(Rect& rect) const;
    /// Cuts a copy from here into `dest` to both clips; whether anything is left.
    virtual bool ClipBlit(const CGraphicBuffer* dest, Rect& destRect, Point& srcPoint) const;
    /// Shows the rectangle w x h at (srcX, srcY) at (x, y) of the device. 1 when it is shown, 0 otherwise.
    virtual int BlitToDevice(PixelSurface* device, int x, int y, int w, int h, int srcX, int srcY) const;
    /// Copies the part of destRect's size at srcPoint to destRect of the destination, mixed by the opacity and by the
    /// alpha plane if there is one. Within one buffer they may overlap: what is read is what was there.
    virtual void DrawBlended(CGraphicBuffer* dest, Rect destRect, Point srcPoint, std::uint8_t opacity) const;
    virtual void Draw(CGraphicBuffer* dest, Rect destRect, Point srcPoint) const;
    virtual void Free();
    // clang-format on

    int height = 0, width = 0; // both 0 when empty
    Rect clip;
    std::unique_ptr<std::uint32_t[]> pixels;
    std::unique_ptr<std::uint8_t[]> alpha; // rows as of the pixels; null without
};

} // namespace korvane
