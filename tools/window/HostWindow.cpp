// A window of the desktop's for one editor.
#include "window/HostWindow.h"

#include <poll.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace korvane::window {

HostWindow::HostWindow() : connection(xcb_connect(nullptr, nullptr)) {}

HostWindow::~HostWindow() { xcb_disconnect(connection); }

void HostWindow::Open(int height, int width, const std::string& title)
{
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL, &screen->black_pixel);
    SetTitle(title);
    FixSize(height, width);
    deleteWindow = Atom("WM_DELETE_WINDOW");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, Atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, 32, 1,
                        &deleteWindow);
    xcb_map_window(connection, window);
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr)); // the server has it
}

xcb_atom_t HostWindow::Atom(const char* name) const
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection, cookie, nullptr);
    const xcb_atom_t atom = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    std::free(reply);
    return atom;
}

void HostWindow::SetTitle(const std::string& title) const
{
    const auto set = [this](xcb_atom_t property, xcb_atom_t type, const std::string& text) {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
    };
    set(XCB_ATOM_WM_NAME, XCB_ATOM_STRING, title);
    set(Atom("_NET_WM_NAME"), Atom("UTF8_STRING"), title);
    set(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, std::string("korvane\0Korvane\0", 16)); // instance, class
}

void HostWindow::FixSize(int height, int width) const
{
    constexpr std::int32_t kSize = 8, kMinimum = 16, kMaximum = 32; // bits of the first word
    std::int32_t hints[18] = {kSize | kMinimum | kMaximum};
    for (const int at : {3, 5, 7}) {
        hints[at] = width;
        hints[at + 1] = height;
    }
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, 32,
                        std::size(hints), hints);
}

bool HostWindow::AskedToClose() const
{
    bool asked = false;
    while (xcb_generic_event_t* event = xcb_poll_for_event(connection)) {
        const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event);
        asked |= (event->response_type & 127) == XCB_CLIENT_MESSAGE && message->data.data32[0] == deleteWindow;
        std::free(event);
    }
    return asked;
}

void HostWindow::Wait(int descriptor)
{
    pollfd sources[] = {{xcb_get_file_descriptor(connection), POLLIN, 0}, {descriptor, POLLIN, 0}};
    while (!AskedToClose() && HasDisplay() && sources[1].revents == 0) poll(sources, std::size(sources), -1);
}

} // namespace korvane::window
