// Taking the keyboard and giving it back.
#include "platform/window/XcbFocus.h"

namespace korvane {

xcb_window_t XcbFocus::Owner() const
{
    const auto request = xcb_get_input_focus(connection);
    const XcbAnswer<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(connection, request, nullptr));
    return reply ? reply->focus : XCB_NONE;
}

/// Has it when this returns, so that the next key goes there; false when it cannot.
bool XcbFocus::Give(xcb_window_t owner, xcb_timestamp_t time) const
{
    return connection.ErrorOf(xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_PARENT, owner, time)) == 0;
}

void XcbFocus::Take(xcb_timestamp_t time)
{
    const xcb_window_t owner = Owner();
    if (owner != window) before = owner;
    Give(window, time);
}

void XcbFocus::GiveBack(xcb_window_t parent)
{
    if (Owner() != window) return;
    const bool isHosts = before > XCB_INPUT_FOCUS_POINTER_ROOT && before != connection.screen->root &&
                         connection.TopLevel(before) == connection.TopLevel(parent);
    if (!isHosts || !Give(before, XCB_CURRENT_TIME)) Give(parent, XCB_CURRENT_TIME);
}

void XcbFocus::TakeChange(const xcb_focus_in_event_t& event)
{
    // While the pointer is over it a window hears of changes that are not its own.
    if (event.detail >= XCB_NOTIFY_DETAIL_POINTER) return;
    has = (event.response_type & 0x7F) == XCB_FOCUS_IN;
}

} // namespace korvane
