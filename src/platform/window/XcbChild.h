// A child window in a window of the host's.
#pragma once

#include <string>

#include "platform/window/Geometry.h"
#include "platform/window/XcbConnection.h"
#include "platform/window/XcbVisual.h"

namespace korvane {

/// Not mapped yet; it hears of everything that may happen to it and of its parent's end. None when the server refuses,
/// which the error then says.
/// size  in the server's pixels
xcb_window_t CreateChild(const XcbConnection& connection, xcb_window_t parent, const XcbVisual& visual, Size size,
                         std::string& error);

/// An ended parent tells.
void ListenToParent(const XcbConnection& connection, xcb_window_t parent);

} // namespace korvane
