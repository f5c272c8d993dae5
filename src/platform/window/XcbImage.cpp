// Copies to the screen: shared memory or the socket.
#include "platform/window/XcbImage.h"

#include <algorithm>
#include <sys/ipc.h>
#include <sys/shm.h>

namespace korvane {

XcbImage::XcbImage(const XcbConnection& theConnection, xcb_window_t theWindow, const XcbVisual& theVisual, Size theSize,
                   int theScale)
    : connection(theConnection), window(theWindow), visual(theVisual), size(theSize), scale(theScale),
      context(xcb_generate_id(theConnection))
{
    const std::uint32_t noEvents = 0; // for each copy
    xcb_create_gc(connection, context, window, XCB_GC_GRAPHICS_EXPOSURES, &noEvents);
    TryToShare();
}

XcbImage::~XcbImage() { StopSharing(); }

void XcbImage::StopSharing()
{
    if (!shared) return;
    xcb_shm_detach(connection, segment);
    shmdt(shared);
    shared = nullptr;
}

void XcbImage::TryToShare()
{
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_shm_id);
    if (!extension || !extension->present) return;
    const std::size_t bytes = std::size_t{4} * size.width * size.height * scale * scale;
    const int memory = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    if (memory < 0) return;
    void* const place = shmat(memory, nullptr, 0);
    const bool attached = place != reinterpret_cast<void*>(-1);
    segment = xcb_generate_id(connection);
    const bool works =
        attached &&
        connection.ErrorOf(xcb_shm_attach_checked(connection, segment, static_cast<std::uint32_t>(memory), 1)) == 0;
    shmctl(memory, IPC_RMID, nullptr); // it goes with its last user, however that ends
    if (works)
        shared = static_cast<std::uint32_t*>(place);
    else if (attached)
        shmdt(place);
}

bool XcbImage::Copy(const PixelView& image, Rect source, Point target)
{
    const CopyPart part = ClipCopy(source, target, image.size, size);
    if (!image.pixels || part.source.w < 1 || connection.Lost()) return false;
    if (shared)
        CopyShared(image, part);
    else
        CopyInPieces(image, part);
    xcb_flush(connection);
    return !connection.Lost();
}

void XcbImage::WriteRow(const std::uint32_t* pixels, int count, std::uint32_t* out) const
{
    const std::uint32_t opaque = visual.depth == 32 ? 0xFF000000 : 0;
    if (scale == 1 && opaque == 0 && !visual.swapped) {
        std::copy_n(pixels, count, out);
        return;
    }
    for (int n = 0; n < count; ++n) {
        const std::uint32_t pixel = pixels[n] | opaque;
        out = std::fill_n(out, scale, visual.swapped ? __builtin_bswap32(pixel) : pixel);
    }
}

/// A row of the image, counted from its top.
static const std::uint32_t* RowOf(const PixelView& image, int x, int y)
{
    return image.pixels + std::size_t{1} * (image.size.height - 1 - y) * image.size.width + x;
}

void XcbImage::CopyShared(const PixelView& image, const CopyPart& part)
{
    const int stride = size.width * scale, width = part.source.w * scale;
    std::uint32_t* out = shared + std::size_t{1} * part.target.y * scale * stride + part.target.x * scale;
    for (int y = 0; y < part.source.h; ++y) {
        WriteRow(RowOf(image, part.source.x, part.source.y + y), part.source.w, out);
        for (int copy = 1; copy < scale; ++copy) std::copy_n(out, width, out + copy * stride);
        out += std::size_t{1} * stride * scale;
    }
    const auto number = [](int value) { return static_cast<std::uint16_t>(value); };
    const int x = part.target.x * scale, y = part.target.y * scale;
    xcb_shm_put_image(connection, window, context, number(stride), number(size.height * scale), number(x), number(y),
                      number(width), number(part.source.h * scale), static_cast<std::int16_t>(x),
                      static_cast<std::int16_t>(y), visual.depth, XCB_IMAGE_FORMAT_Z_PIXMAP, 0, segment, 0);
}

void XcbImage::CopyInPieces(const PixelView& image, const CopyPart& part)
{
    constexpr int kHeaderWords = 7; // of a request, the longer length included
    const int width = part.source.w * scale, height = part.source.h * scale;
    const std::int64_t room = std::int64_t{xcb_get_maximum_request_length(connection)} - kHeaderWords;
    const int rows =
        static_cast<int>(std::clamp<std::int64_t>(std::min<std::int64_t>(room, 1 << 16) / width, 1, height));
    piece.resize(std::size_t{1} * rows * width);
    for (int top = 0; top < height; top += rows) {
        const int count = std::min(rows, height - top);
        for (int y = 0; y < count; ++y)
            WriteRow(RowOf(image, part.source.x, part.source.y + (top + y) / scale), part.source.w,
                     piece.data() + std::size_t{1} * y * width);
        xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, context, static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(count), static_cast<std::int16_t>(part.target.x * scale),
                      static_cast<std::int16_t>(part.target.y * scale + top), 0, visual.depth,
                      static_cast<std::uint32_t>(count) * width * 4,
                      reinterpret_cast<const std::uint8_t*>(piece.data()));
    }
}

} // namespace korvane
