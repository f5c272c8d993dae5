// Properties on the host's top-level window.
#include "platform/window/XcbDropProxy.h"

#include <algorithm>

namespace korvane {

static constexpr std::uint32_t kVersion = 5; // of XDND

XcbDropProxy::XcbDropProxy(const XcbConnection& theConnection, xcb_window_t theWindow)
    : connection(theConnection), window(theWindow)
{
    // A proxy that does not name itself is taken for one whose program ended.
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, connection.Atom(atom::XdndProxy), XCB_ATOM_WINDOW,
                        32, 1, &window);
}

/// Whether a property of the top-level window is these words.
bool XcbDropProxy::Is(int atomIndex, std::initializer_list<std::uint32_t> words) const
{
    const auto property = connection.Property(topLevel, connection.Atom(atomIndex), false);
    if (!property || property->format != 32 || property->value_len != words.size()) return false;
    return std::equal(words.begin(), words.end(),
                      static_cast<const std::uint32_t*>(xcb_get_property_value(property.get())));
}

bool XcbDropProxy::IsAwareForUs() const { return Is(atom::XdndAware, {kVersion, connection.Atom(atom::UriList)}); }

void XcbDropProxy::Install(xcb_window_t newTopLevel)
{
    Remove();
    if (newTopLevel == connection.screen->root) return; // an editor without a host
    for (const int index : {atom::XdndAware, atom::XdndProxy})
        if (connection.Property(newTopLevel, connection.Atom(index), false)) return;
    topLevel = newTopLevel;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY; // also as the parent
    const std::uint32_t aware[] = {kVersion, connection.Atom(atom::UriList)}; // hosts name no types: so it is known
    xcb_change_window_attributes(connection, topLevel, XCB_CW_EVENT_MASK, &events);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, topLevel, connection.Atom(atom::XdndProxy), XCB_ATOM_WINDOW,
                        32, 1, &window);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, topLevel, connection.Atom(atom::XdndAware), XCB_ATOM_ATOM,
                        32, 2, aware);
}

void XcbDropProxy::Remove()
{
    if (topLevel == XCB_NONE) return;
    if (Is(atom::XdndProxy, {window})) xcb_delete_property(connection, topLevel, connection.Atom(atom::XdndProxy));
    if (IsAwareForUs()) // a connection that ends at once would take the request along
        connection.ErrorOf(xcb_delete_property_checked(connection, topLevel, connection.Atom(atom::XdndAware)));
    topLevel = XCB_NONE;
}

void XcbDropProxy::TakeChange(const xcb_property_notify_event_t& event)
{
    const bool concerns = event.window == topLevel && event.atom == connection.Atom(atom::XdndAware);
    if (concerns && !IsAwareForUs()) Remove();
}

} // namespace korvane
