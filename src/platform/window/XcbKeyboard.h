// Keys that go down and come up, told to the listener or handed on to the host.
#pragma once

#include "platform/window/HeldKeys.h"
#include "platform/window/Window.h"
#include "platform/window/XcbKeys.h"
#include "platform/window/XcbPointer.h"

namespace korvane {

class XcbKeyboard {
public:
    /// host     the window that gets what the listener does not use
    /// pointer  whose modifiers follow the keys
    XcbKeyboard(const XcbConnection& connection, xcb_window_t window, const xcb_window_t& host, XcbPointer& pointer,
                WindowListener& listener);

    /// isOurs  the keyboard belongs to this window; what merely comes by is for the host
    void Down(const xcb_key_press_event_t& event, bool isOurs);
    void Up(const xcb_key_press_event_t& event);
    /// While something else has the user's attention: what comes up is told later, what goes down never.
    void UpUnheard(const xcb_key_press_event_t& event);
    void TellUnheard();
    /// The keyboard is somebody else's now.
    void AllUp();

    XcbKeys keys;

private:
    void Tell(const HeldKey& key);
    void HandOn(xcb_key_press_event_t event);

    const XcbConnection& connection;
    const xcb_window_t window;
    const xcb_window_t& host;
    XcbPointer& pointer;
    WindowListener& listener;
    HeldKeys held;
};

} // namespace korvane
