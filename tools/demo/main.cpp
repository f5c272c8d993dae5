// korvane-demo: the demo's window inside a plain window of its own, as a host would hold it.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <xcb/xcb.h>

#include "demo/DemoEditor.h"
#include "gui/window/EditorThread.h"
#include "platform/window/DesktopWindow.h"

namespace korvane {
namespace {

/// A host's window, which ends when the desktop says so.
class Host {
public:
    Host() : connection(xcb_connect(nullptr, nullptr)) {}
    ~Host() { xcb_disconnect(connection); }

    bool Open(int height, int width)
    {
        if (xcb_connection_has_error(connection)) return false;
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        window = xcb_generate_id(connection);
        const std::uint32_t values[] = {screen->black_pixel,
                                        XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_KEY_PRESS};
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0,
                          static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK,
                          values);
        static constexpr char kTitle[] = "Korvane demo";
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                            sizeof kTitle - 1, kTitle);
        protocols = Atom("WM_PROTOCOLS");
        deleteWindow = Atom("WM_DELETE_WINDOW");
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, protocols, XCB_ATOM_ATOM, 32, 1, &deleteWindow);
        xcb_map_window(connection, window);
        return xcb_flush(connection) > 0;
    }

    /// Until the window is closed.
    void Wait()
    {
        while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
            const int type = event->response_type & 127;
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event);
            if (type == XCB_KEY_PRESS) std::puts("The host hears a key that the editor does not use");
            const bool over = type == XCB_CLIENT_MESSAGE && message->data.data32[0] == deleteWindow;
            std::free(event);
            if (over) return;
        }
    }

    void* Handle() const { return reinterpret_cast<void*>(static_cast<std::uintptr_t>(window)); }

private:
    xcb_atom_t Atom(const char* name)
    {
        const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
        xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection, cookie, nullptr);
        const xcb_atom_t atom = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
        std::free(reply);
        return atom;
    }

    xcb_connection_t* const connection;
    xcb_window_t window = 0;
    xcb_atom_t protocols = 0, deleteWindow = 0;
};

/// Opens and closes the editor so many times, then once more until its window is closed.
int Show(int openings)
{
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ); // what the host hears is read as it happens
    EditorThread editor(std::make_unique<demo::DemoEditor>(MakeDesktopWindow()));
    int height = 0, width = 0;
    editor.GetEditorSize(height, width);
    Host host;
    if (!host.Open(height, width)) {
        std::fputs("korvane-demo: there is no display\n", stderr);
        return 1;
    }
    for (int n = 0; n <= openings; ++n) {
        if (!editor.Open(host.Handle(), height, width)) {
            std::fputs("korvane-demo: the window does not open\n", stderr);
            return 1;
        }
        if (n < openings) editor.Close();
    }
    host.Wait();
    editor.Close();
    return 0;
}

} // namespace
} // namespace korvane

int main(int count, char** words)
{
    if (count > 2 || (count == 2 && std::atoi(words[1]) < 1)) {
        std::fputs("Usage: korvane-demo [N]   opens and closes the editor N times before it stays\n", stderr);
        return 2;
    }
    return korvane::Show(count == 2 ? std::atoi(words[1]) : 0);
}
