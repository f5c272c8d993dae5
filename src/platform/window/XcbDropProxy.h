// The host's top-level window as an address for drops.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "platform/window/XcbConnection.h"

namespace korvane {

/// Many programs look for who takes drops among top-level windows alone. As long as the host wants none itself, its
/// window names the editor's as its proxy.
class XcbDropProxy {
public:
    /// window  gets what is dropped
    XcbDropProxy(const XcbConnection& connection, xcb_window_t window);

    /// Takes the place of one before; nothing where somebody takes drops already.
    void Install(xcb_window_t newTopLevel);
    /// Takes back what is still there.
    void Remove();
    /// A host that begins to take drops gets them.
    void TakeChange(const xcb_property_notify_event_t& event);

private:
    bool Is(int atomIndex, std::initializer_list<std::uint32_t> words) const;
    bool IsAwareForUs() const;

    const XcbConnection& connection;
    const xcb_window_t window;
    xcb_window_t topLevel = XCB_NONE; // that has our properties
};

} // namespace korvane
