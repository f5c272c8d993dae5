// A display server of a test's own, with a host's window on it, and a user who moves its mouse and keys.
#pragma once

#include <csignal>
#include <cstdio>
#include <map>
#include <sstream>
#include <vector>
#include <xcb/xtest.h>

#include "platform/window/XcbConnection.h"
#include "platform/window/XcbVisual.h"

namespace korvane {

/// Xvfb on a free display, which DISPLAY then names; of 800 by 600 pixels.
class DisplayServer {
public:
    static bool Installed() { return std::system("command -v Xvfb >/dev/null") == 0; }

    DisplayServer()
    {
        int number = 0;
        if (std::fscanf(output, "%d %d", &process, &number) == 2)
            setenv("DISPLAY", std::string(":").append(std::to_string(number)).c_str(), 1);
    }
    ~DisplayServer()
    {
        Kill();
        pclose(output);
    }
    void Kill()
    {
        if (process > 0) kill(process, SIGTERM);
        process = 0;
        while (std::fgetc(output) != EOF) {} // until it has ended
    }

private:
    std::FILE* const output =
        popen("echo $$; exec Xvfb -displayfd 1 -screen 0 800x600x24 -nolisten tcp 2>/dev/null", "re");
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
