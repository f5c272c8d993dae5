// A display server of a test's own, with a host's window on it, and a user who moves its mouse and keys.
#pragma once

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <sstream>
#include <sys/file.h>
#include <unistd.h>
#include <vector>
#include <xcb/xtest.h>

#include "platform/window/Geometry.h"
#include "platform/window/XcbConnection.h"
#include "platform/window/XcbVisual.h"

namespace korvane {

/// Xvfb on a free display, which DISPLAY then names; of 800 by 600 pixels. It begins nothing anew when nobody is
/// connected.
class DisplayServer {
public:
    static bool Installed() { return std::system("command -v Xvfb >/dev/null") == 0; }

    /// One starts at a time: two that look for a free number in the same instant may both take it.
    DisplayServer()
    {
        const int lock = open("/tmp/korvane-displays.lock", O_CREAT | O_RDWR | O_CLOEXEC, 0666);
        flock(lock, LOCK_EX);
        for (int tries = 0; tries < 3 && !Start(); ++tries) End();
        close(lock);
    }
    ~DisplayServer() { End(); }
    void Kill()
    {
        if (process > 0) kill(process, SIGTERM);
        process = 0;
        while (output && std::fgetc(output) != EOF) {} // until it has ended
    }

private:
    /// Whether it answers.
    bool Start()
    {
        output = popen("echo $$; exec Xvfb -displayfd 1 -screen 0 800x600x24 -nolisten tcp -noreset 2>/dev/null", "re");
        int number = 0;
        if (!output || std::fscanf(output, "%d %d", &process, &number) != 2) return false;
        setenv("DISPLAY", std::string(":").append(std::to_string(number)).c_str(), 1);
        return !XcbConnection().Lost();
    }
    void End()
    {
        Kill();
        if (output) pclose(output);
        output = nullptr;
    }

    std::FILE* output = nullptr;
    int process = 0;
};

/// The host's side: its window at (100, 50) of the screen, and all that a user does.
class Host {
public:
    /// depth  of the host's window: 24, or 32 with a visual of its own
    explicit Host(int depth = 24)
    {
        const XcbVisual visual = FindVisual(xcb_get_setup(server), server.screen, {depth});
        const xcb_colormap_t colours = xcb_generate_id(server);
        xcb_create_colormap(server, XCB_COLORMAP_ALLOC_NONE, colours, Root(), visual.id);
        const std::uint32_t values[] = {0, 0, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE, colours};
        xcb_create_window(server, static_cast<std::uint8_t>(depth), window, Root(), 100, 50, 400, 300, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id,
                          XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP, values);
        Now(xcb_map_window(server, window));
    }

    void* Parent() const { return reinterpret_cast<void*>(std::uintptr_t{window}); }
    static xcb_window_t Number(void* handle) { return static_cast<xcb_window_t>(std::uintptr_t(handle)); }
    void Destroy() { Now(xcb_destroy_window(server, window)); }
    void Focus(xcb_window_t owner) { Now(xcb_set_input_focus(server, XCB_INPUT_FOCUS_PARENT, owner, 0)); }
    xcb_window_t Root() const { return server.screen->root; }
    bool Has(xcb_window_t owner, int name) const { return !!server.Property(owner, server.Atom(name), false); }
    void Now(xcb_void_cookie_t) { Sync(); } // the request is done when this returns
    void Sync() { std::free(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr)); }
    /// The windows in a window, the lowest first.
    std::vector<xcb_window_t> Children(xcb_window_t of) const
    {
        const XcbAnswer<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(server, xcb_query_tree(server, of), nullptr));
        const xcb_window_t* const first = tree ? xcb_query_tree_children(tree.get()) : nullptr;
        return std::vector(first, first + (tree ? xcb_query_tree_children_length(tree.get()) : 0));
    }
    Size SizeOf(xcb_window_t of) const
    {
        const XcbAnswer<xcb_get_geometry_reply_t> box(
            xcb_get_geometry_reply(server, xcb_get_geometry(server, of), nullptr));
        return box ? Size{box->height, box->width} : Size{};
    }
    /// A property of 8 or 32 bits; empty where there is none.
    template <class Word>
    std::vector<Word> Property(xcb_window_t of, xcb_atom_t name) const
    {
        const auto reply = server.Property(of, name, false);
        const auto* const first = reply ? static_cast<Word*>(xcb_get_property_value(reply.get())) : nullptr;
        return std::vector(first, first + (reply ? reply->value_len : 0));
    }
    /// Asks the owner of a top-level window to close it, as a window manager does for its user.
    void AskToClose(xcb_window_t owner)
    {
        const auto request = xcb_intern_atom(server, 0, 12, "WM_PROTOCOLS");
        const XcbAnswer<xcb_intern_atom_reply_t> protocols(xcb_intern_atom_reply(server, request, nullptr));
        const auto known = Property<xcb_atom_t>(owner, protocols->atom); // the only one that owners here know
        xcb_client_message_event_t message{XCB_CLIENT_MESSAGE, 32, 0, owner, protocols->atom, {}};
        if (!known.empty()) message.data.data32[0] = known[0];
        Now(xcb_send_event(server, 0, owner, 0, reinterpret_cast<const char*>(&message)));
    }
    xcb_window_t Focus() const
    {
        const XcbAnswer<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
        return reply ? reply->focus : XCB_NONE;
    }

    /// One after another: "to 10,5" in the host's window, "press 1" and "release 1" of the mouse, "down 38" and "up 38"
    /// of the keyboard.
    void Do(const std::string& acts)
    {
        static const std::map<std::string, std::uint8_t> kTypes = {
            {"to", XCB_MOTION_NOTIFY}, {"press", 4}, {"release", 5}, {"down", XCB_KEY_PRESS}, {"up", XCB_KEY_RELEASE}};
        std::istringstream words(acts);
        for (std::string act; words >> act;) {
            int number = 0, y = 0;
            words >> number;
            if (act == "to") words.ignore(1) >> y;
            xcb_test_fake_input(server, kTypes.at(act), act == "to" ? 0 : static_cast<std::uint8_t>(number), 0, Root(),
                                static_cast<std::int16_t>(number + 100), static_cast<std::int16_t>(y + 50), 0);
            Sync();
        }
    }

    /// What the screen shows of the host's window; without the byte above red.
    std::vector<std::uint32_t> Screen(int w, int h) const
    {
        const auto request = xcb_get_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, Root(), 100, 50,
                                           static_cast<std::uint16_t>(w), static_cast<std::uint16_t>(h), ~0u);
        const XcbAnswer<xcb_get_image_reply_t> reply(xcb_get_image_reply(server, request, nullptr));
        std::vector<std::uint32_t> result(reply ? std::size_t{1} * w * h : 0);
        for (std::size_t n = 0; n < result.size(); ++n)
            result[n] = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(reply.get()))[n] & 0xFFFFFF;
        return result;
    }

    const XcbConnection server;
    const xcb_window_t window = xcb_generate_id(server);
};

} // namespace korvane
