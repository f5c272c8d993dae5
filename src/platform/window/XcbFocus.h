// The keyboard, as the window and the host hand it to each other.
#pragma once

#include "platform/window/XcbConnection.h"

namespace korvane {

class XcbFocus {
public:
    XcbFocus(const XcbConnection& theConnection, xcb_window_t theWindow) : connection(theConnection), window(theWindow)
    {
    }

    /// time  of the event that is the reason
    void Take(xcb_timestamp_t time);
    /// To the host's window that had it, or else to the parent; nothing when somebody else has it by now.
    void GiveBack(xcb_window_t parent);
    /// FocusIn and FocusOut.
    void TakeChange(const xcb_focus_in_event_t& event);

    bool has = false; // keys are meant for this window

private:
    xcb_window_t Owner() const;
    bool Give(xcb_window_t owner, xcb_timestamp_t time) const;

    const XcbConnection& connection;
    const xcb_window_t window;
    xcb_window_t before = XCB_NONE; // who had it
};

} // namespace korvane
