// The mouse pointer over a window of the server: where it is, what it looks like, who has it.
#pragma once

#include <cstdint>

#include "platform/window/Window.h"
#include "platform/window/XcbConnection.h"

namespace korvane {

/// Positions are the server's pixels.
class XcbPointer {
public:
    XcbPointer(const XcbConnection& connection, xcb_window_t window);

    /// What key, button, motion, enter and leave events have in common: where the pointer is and what is held. False
    /// for a motion that tells nothing new: one from before a warp, or one to the place that is known.
    bool Take(const xcb_motion_notify_event_t& event);
    /// A button went down or came up; after Take, which tells what was before.
    void TakeButton(const xcb_button_press_event_t& event, bool down);
    /// The pointer entered or left: so one hears that a grab was broken.
    void TakeCrossing(const xcb_enter_notify_event_t& event);

    void Grab(bool hide);
    void Ungrab();
    void LoseGrab() { granted = untilRelease = false; }
    /// Asks the server: a window that nobody can see any longer holds nothing.
    bool HasGrab() const;
    /// Answers where the pointer is afterwards, on the screen.
    Point Warp(Point place);
    void MoveTo(Point newPlace, Point newScreenPlace);

    Point place, screenPlace; // in the window, on the screen
    Point hiddenAt;           // on the screen, where the last hiding began
    int modifiers = 0;        // of modifier::

private:
    void Ask();
    xcb_cursor_t Arrow() const;
    xcb_cursor_t Blank() const;
    void Show(xcb_cursor_t cursor) const;
    bool Viewable() const;

    const XcbConnection& connection;
    const xcb_window_t window;
    const xcb_cursor_t arrow, blank;
    int buttonsDown = 0; // a bit each
    bool granted = false;
    bool untilRelease = false;      // it is but the grab that comes with a held button
    std::uint32_t grabRequest = 0;  // number of the request
    std::uint32_t placeRequest = 0; // what was asked after the last warp: motions from before it are old
};

} // namespace korvane
