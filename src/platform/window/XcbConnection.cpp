// Connecting to the display server.
#include "platform/window/XcbConnection.h"

#include <cstring>
#include <mutex>
#include <thread>
#include <xcb/xcbext.h>

namespace korvane {

static const xcb_screen_t* ScreenOf(xcb_connection_t* connection, int number)
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (number-- > 0 && screens.rem > 1) xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data : nullptr;
}

/// One at a time: the library that finds the server's key keeps the name of its file in a place that threads share.
static xcb_connection_t* Connect(int& screen)
{
    static std::mutex guard;
    const std::lock_guard hold(guard);
    return xcb_connect(nullptr, &screen);
}

XcbConnection::XcbConnection()
{
    static constexpr const char* kNames[atom::Count] = {
        "_XEMBED_INFO",  "WM_STATE",     "XdndAware",      "XdndProxy",     "XdndEnter",
        "XdndPosition",  "XdndStatus",   "XdndLeave",      "XdndDrop",      "XdndFinished",
        "XdndSelection", "XdndTypeList", "XdndActionCopy", "text/uri-list", "KORVANE_DROP"};
    int number = 0;
    connection = Connect(number);
    if (Lost()) return;
    screen = ScreenOf(connection, number);
    xcb_intern_atom_cookie_t requests[atom::Count];
    for (int n = 0; n < atom::Count; ++n)
        requests[n] = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(kNames[n])), kNames[n]);
    for (int n = 0; n < atom::Count; ++n) {
        const XcbAnswer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, requests[n], nullptr));
        if (reply) atoms[n] = reply->atom;
    }
}

XcbConnection::~XcbConnection() { xcb_disconnect(connection); }

int XcbConnection::ErrorOf(xcb_void_cookie_t request) const
{
    const XcbAnswer<xcb_generic_error_t> error(xcb_request_check(connection, request));
    return error ? error->error_code : Lost() ? -1 : 0;
}

void XcbConnection::WaitUntilDone(std::chrono::milliseconds longest) const
{
    const auto end = std::chrono::steady_clock::now() + longest;
    const auto question = xcb_get_input_focus(connection);
    xcb_flush(connection);
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    while (xcb_poll_for_reply(connection, question.sequence, &reply, &error) == 0) {
        if (std::chrono::steady_clock::now() > end) return xcb_discard_reply(connection, question.sequence);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    std::free(reply);
    std::free(error);
}

XcbAnswer<xcb_get_property_reply_t> XcbConnection::Property(xcb_window_t window, xcb_atom_t property,
                                                            bool andDelete) const
{
    const auto request =
        xcb_get_property(connection, andDelete, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 1 << 18);
    XcbAnswer<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, request, nullptr));
    if (reply && reply->type == XCB_NONE) reply.reset();
    return reply;
}

xcb_window_t XcbConnection::TopLevel(xcb_window_t window) const
{
    xcb_window_t managed = XCB_NONE;
    for (;;) {
        if (Property(window, Atom(atom::WmState), false)) managed = window;
        const auto request = xcb_query_tree(connection, window);
        const XcbAnswer<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(connection, request, nullptr));
        if (!tree || tree->parent == XCB_NONE || tree->parent == tree->root) return managed ? managed : window;
        window = tree->parent;
    }
}

} // namespace korvane
