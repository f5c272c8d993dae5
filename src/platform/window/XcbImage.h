// Pixels on their way from memory to a window of the server.
#pragma once

#include <cstdint>
#include <vector>
#include <xcb/shm.h>

#include "platform/window/CopyClip.h"
#include "platform/window/Window.h"
#include "platform/window/XcbConnection.h"
#include "platform/window/XcbVisual.h"

namespace korvane {

/// Copies through memory that the server shares, where trying shows that it does, otherwise through its socket.
///
/// The shared memory is a picture of the whole window, each copy at its place. The server may read a place while a
/// later copy writes there, but that copy shows the place again: what stays on the screen is right without waiting.
class XcbImage : public PixelSurface {
public:
    /// size   of the window, in the toolkit's pixels
    /// scale  how many pixels of the screen each of these takes across and down
    XcbImage(const XcbConnection& connection, xcb_window_t window, const XcbVisual& visual, Size size, int scale);
    ~XcbImage();
    XcbImage(const XcbImage&) = delete;

    bool Copy(const PixelView& image, Rect source, Point target) override;
    void StopSharing();

private:
    void TryToShare();
    void WriteRow(const std::uint32_t* pixels, int count, std::uint32_t* out) const;
    void CopyShared(const PixelView& image, const CopyPart& part);
    void CopyInPieces(const PixelView& image, const CopyPart& part);

    const XcbConnection& connection;
    const xcb_window_t window;
    const XcbVisual visual;
    const Size size;
    const int scale;
    xcb_gcontext_t context;
    xcb_shm_seg_t segment = XCB_NONE;
    std::uint32_t* shared = nullptr;  // null: the server does not share memory
    std::vector<std::uint32_t> piece; // of an image that goes through the socket
};

} // namespace korvane
