// A connection to the display server, with what everything that uses it needs.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace korvane {

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply, an event or an error: the library allocates them, who receives them frees them.
template <class T>
using XcbAnswer = std::unique_ptr<T, FreeMemory>;

/// Indices of XcbConnection's atoms.
namespace atom {
enum : int {
    XembedInfo,
    WmState,
    XdndAware,
    XdndProxy,
    XdndEnter,
    XdndPosition,
    XdndStatus,
    XdndLeave,
    XdndDrop,
    XdndFinished,
    XdndSelection,
    XdndTypeList,
    XdndActionCopy,
    UriList,
    DropData,
    Count
};
}

/// Nothing that goes wrong here ends the process: a connection that is lost answers every question with null.
class XcbConnection {
public:
    XcbConnection(); // to the server that DISPLAY names
    ~XcbConnection();
    XcbConnection(const XcbConnection&) = delete;

    operator xcb_connection_t*() const { return connection; }
    bool Lost() const { return xcb_connection_has_error(connection) != 0; }
    /// Waits for the server's word on a checked request: 0, the number of the X error, or -1 without a server.
    int ErrorOf(xcb_void_cookie_t request) const;
    /// Waits until the server has done all that it was sent, at most so long.
    void WaitUntilDone(std::chrono::milliseconds longest) const;
    xcb_atom_t Atom(int index) const { return atoms[index]; }
    /// A window's property of any type, at most 1 MiB of it; null where there is none.
    XcbAnswer<xcb_get_property_reply_t> Property(xcb_window_t window, xcb_atom_t property, bool andDelete) const;
    /// The window that the window manager knows above this one, or the topmost one below the root.
    xcb_window_t TopLevel(xcb_window_t window) const;

    const xcb_screen_t* screen = nullptr; // null when the connection failed

private:
    xcb_connection_t* connection; // never null
    xcb_atom_t atoms[atom::Count] = {};
};

} // namespace korvane
