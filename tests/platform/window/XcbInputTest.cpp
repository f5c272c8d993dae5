// Mouse, keys and drops from the server to the listener.
#include "platform/window/OpenWindow.h"

namespace korvane {

class XcbInput : public OpenWindow {};

// Each event tells its own place, however fast they follow each other; several motions are one.
TEST_F(XcbInput, MouseEventsKeepTheirPlaces)
{
    // clang-format off
    struct Case { const char *what, *acts, *heard; };
    const Case cases[] = {
        {"press, move, release", "to 10,5 press 1 to 20,15 release 1", "move 10,5; L 10,5; move 20,15; l 20,15"},
        {"motions together",     "to 1,1 to 2,2 to 3,4",               "move 3,4"},
        {"middle, right",        "press 2 release 2 press 3 release 3", "M 3,4; m 3,4; R 3,4; r 3,4"},
        {"wheel",                "press 4 release 4 press 5 release 5", "wheel1 3,4; wheel-1 3,4"},
        {"other buttons",        "press 6 release 6 press 7 release 7 press 8 release 8", ""},
        {"held, beyond the window", "press 1 to -30,200 release 1",     "L 3,4; move -30,200; l -30,200"},
        {"outside",              "to -10,10",                           ""},
        {"Ctrl, Shift and Alt",  "to 5,5 down 37 down 50 down 64 press 1 up 64 up 50 up 37 release 1",
                                 "move 5,5; L 5,5 +7; l 5,5"},
    };
    // clang-format on
    ASSERT_TRUE(Open()) << window.LastError();
    for (const Case& c : cases) {
        host->Do(c.acts);
        EXPECT_EQ(Heard(), c.heard) << c.what;
    }
}

// A hidden drag jumps at the screen's edge without a motion of its own, and what moved before the jump is forgotten.
TEST_F(XcbInput, WarpedPointersGoOnFromThere)
{
    ASSERT_TRUE(Open());
    host->Do("to 5,5 press 1");
    Heard();
    EXPECT_FALSE(window.HasGrab());
    window.Grab(true);
    EXPECT_TRUE(window.HasGrab());
    host->Do("to 200,549");
    Heard();
    EXPECT_EQ(window.ScreenPointer(), (Point{300, 599}));
    EXPECT_EQ(window.Pointer(), (Point{200, 549}));
    host->Do("to 210,540"); // not heard yet when the pointer is moved
    EXPECT_EQ(window.Warp({300, 1}), (Point{300, 1}));
    EXPECT_EQ(Heard(), "");
    host->Do("to 201,-46 release 1");
    EXPECT_EQ(Heard(), "move 201,-46; l 201,-46");
    EXPECT_EQ(window.Warp({-5, 5000}), (Point{0, 599})); // as far as the screen goes
    EXPECT_TRUE(window.HasGrab());
    window.Ungrab();
    EXPECT_FALSE(window.HasGrab());
}

// Another program's grab is not ours; a window out of sight holds nothing, nor does it once it is seen again.
TEST_F(XcbInput, GrabsAreTrueToTheServer)
{
    XcbWindow outer, inner; // around ours: of what befalls the outer one only the lost grab tells
    ASSERT_TRUE(outer.Open(host->Parent(), {60, 80}, ear) && inner.Open(outer.Handle(), {60, 80}, ear));
    ASSERT_TRUE(window.Open(inner.Handle(), {60, 80}, ear));
    const auto others = xcb_grab_pointer(host->server, 0, host->Root(), 0, 1, 1, 0, 0, 0);
    std::free(xcb_grab_pointer_reply(host->server, others, nullptr));
    window.Grab(false);
    EXPECT_FALSE(window.HasGrab());
    host->Now(xcb_ungrab_pointer(host->server, 0));
    window.Grab(false);
    EXPECT_TRUE(window.HasGrab());
    host->Now(xcb_unmap_window(host->server, Host::Number(outer.Handle())));
    EXPECT_FALSE(window.HasGrab());
    host->Now(xcb_map_window(host->server, Host::Number(outer.Handle())));
    Heard();
    EXPECT_FALSE(window.HasGrab());
}

TEST_F(XcbInput, KeysComeUpAsTheyWentDown)
{
    ASSERT_TRUE(Open());
    window.TakeFocus();
    host->Do("down 38");
    const std::string first = Heard(1000); // repeats begin within 700 ms
    host->Do("up 38");
    EXPECT_EQ(first + " " + Heard(), "down 41 +0 up 41 +0");
    host->Do("down 50 down 38"); // Shift changes the modifiers at once, and the letter not
    EXPECT_EQ(Heard(), "down 10 +2; down 41 +2");
    const xcb_keysym_t french[] = {'q', 'Q', 'q', 'Q'};
    xcb_change_keyboard_mapping(host->server, 1, 38, 4, french);
    host->Do("up 38 up 50 down 38 up 38"); // what is down comes up as it was told
    EXPECT_EQ(Heard(), "up 41 +2; up 10 +0; down 51 +0; up 51 +0");
}

// Keys that the listener does not use, and those that were not meant for it, reach the host; others do not.
TEST_F(XcbInput, UnusedKeysReachTheHost)
{
    const auto reachedHost = [&](std::size_t letters) {
        std::ostringstream keys;
        for (int wait = 0; wait < 50 && keys.str().size() < letters; ++wait) {
            window.Serve(10);
            host->Sync();
            while (XcbEvent event{xcb_poll_for_event(host->server)})
                if (const int kind = event->response_type & 0x7F; kind == XCB_KEY_PRESS || kind == XCB_KEY_RELEASE)
                    keys << (kind == XCB_KEY_PRESS ? "+" : "-") << static_cast<int>(event->pad0);
        }
        return keys.str();
    };
    ASSERT_TRUE(Open());
    ear.unused = key::Space;
    window.TakeFocus();
    host->Do("down 65 up 65 down 38 up 38");
    EXPECT_EQ(Heard(), "down 20 +0; up 20 +0; down 41 +0; up 41 +0");
    EXPECT_EQ(reachedHost(6), "+65-65");
    host->Do("to 5,5 down 38");
    host->Focus(host->Root()); // the keyboard is gone, and with it the key
    host->Focus(host->window);
    EXPECT_EQ(Heard(), "move 5,5; down 41 +0; up 41 +0");
    host->Do("up 38 down 39 up 39"); // keys come by here now, but are the host's
    EXPECT_EQ(reachedHost(9), "-38+39-39");
    const auto number = Host::Number(window.Handle());
    xcb_key_press_event_t sent{XCB_KEY_PRESS, 38, 0, 0, host->Root(), number, 0, 0, 0, 90, 90, 0, 1, 0};
    host->Now(xcb_send_event(host->server, 0, number, XCB_EVENT_MASK_KEY_PRESS, reinterpret_cast<const char*>(&sent)));
    EXPECT_EQ(Heard(), "down 41 +0"); // a host that keeps the keyboard sends keys; they do not move the mouse
    EXPECT_EQ(window.Pointer(), (Point{5, 5}));
}

TEST_F(XcbInput, TheFocusGoesBackToTheHost)
{
    XcbWindow other;
    ASSERT_TRUE(other.Open(host->Parent(), {9, 9}, ear) && Open());
    EXPECT_NE(host->Focus(), Host::Number(window.Handle()));
    other.TakeFocus();
    window.TakeFocus();
    EXPECT_EQ(host->Focus(), Host::Number(window.Handle()));
    window.Close();
    EXPECT_EQ(host->Focus(), Host::Number(other.Handle())); // who had it before
    ASSERT_TRUE(Open());
    xcb_reparent_window(host->server, Host::Number(window.Handle()), Host::Number(other.Handle()), 0, 0);
    host->Focus(host->Root());
    Heard();
    window.TakeFocus();
    window.Close();
    EXPECT_EQ(host->Focus(), Host::Number(other.Handle())); // its parent by then
    ASSERT_TRUE(Open());
    window.TakeFocus();
    host->Focus(host->Root());
    window.Close();
    EXPECT_EQ(host->Focus(), host->Root()); // somebody else's by then
}

/// Another program drags something over the window, and writes down the answers.
class FileDrops : public OpenWindow {
protected:
    /// place   in the host's window
    /// atHost  that is what is addressed, as by programs that look at no windows within others
    std::string Drag(std::uint32_t version, int type, const std::string& what, Point place, bool atHost)
    {
        data = what;
        target = Host::Number(window.Handle());
        named = atHost ? host->window : target;
        answers.clear();
        xcb_set_selection_owner(host->server, host->window, Atom(atom::XdndSelection), XCB_CURRENT_TIME);
        Send(atom::XdndEnter, version << 24, XCB_ATOM_STRING, Atom(type));
        Send(atom::XdndPosition, 0, (place.x + 100) << 16 | (place.y + 50), XCB_CURRENT_TIME);
        Send(atom::XdndDrop, 0, 1000 + version, 0);
        for (int n = 0; n < 30 && answers.find("end") == std::string::npos; ++n) {
            window.Serve(10);
            host->Sync();
            while (XcbEvent answer{xcb_poll_for_event(host->server)}) Take(*answer);
        }
        return answers;
    }
    xcb_atom_t Atom(int index) const { return host->server.Atom(index); }
    void Send(int name, std::uint32_t b, std::uint32_t c, std::uint32_t d)
    {
        const xcb_client_message_event_t event{XCB_CLIENT_MESSAGE,
                                               32,
                                               0,
                                               named,
                                               Atom(name),
                                               {.data32 = {host->window, b, c, d, Atom(atom::XdndActionCopy)}}};
        host->Now(xcb_send_event(host->server, 0, target, 0, reinterpret_cast<const char*>(&event)));
    }
    void Take(const xcb_generic_event_t& event)
    {
        const auto& answer = reinterpret_cast<const xcb_client_message_event_t&>(event);
        const auto& wish = reinterpret_cast<const xcb_selection_request_event_t&>(event);
        if ((event.response_type & 0x7F) == XCB_CLIENT_MESSAGE && answer.data.data32[0] == named) {
            const bool copies = (answer.data.data32[2] | answer.data.data32[4]) == Atom(atom::XdndActionCopy);
            answers += answer.type == Atom(atom::XdndFinished) ? " end" : "status";
            answers += std::to_string(answer.data.data32[1]) + (copies ? "copy" : "");
        } else if (event.response_type == XCB_SELECTION_REQUEST) {
            xcb_change_property(host->server, 0, target, wish.property, wish.target, 8,
                                static_cast<std::uint32_t>(data.size()), data.data());
            const xcb_selection_notify_event_t done{
                XCB_SELECTION_NOTIFY, 0, 0, wish.time, target, wish.selection, wish.target, wish.property};
            xcb_send_event(host->server, 0, target, 0, reinterpret_cast<const char*>(&done));
        }
    }

    xcb_window_t target, named;
    std::string data, answers;
};

TEST_F(FileDrops, ReachTheWindow)
{
    // clang-format off
    struct Case { const char* what; std::uint32_t version; int type; const char *data, *answers, *heard; Point place{12, 34};
                  bool atHost = false; };
    const Case cases[] = {
        {"a file",         5, atom::UriList, "file:///a%20b.wav\r\n",     "status1copy end1copy", "\\a b.wav 12,34"},
        {"an old program", 3, atom::UriList, "file:///a\r\n",             "status1copy end1copy", "\\a 12,34"},
        {"a text",         5, atom::WmState, "file:///a\r\n",             "status0 end0",         ""},
        {"no file",        5, atom::UriList, "http://a/b\r\n",            "status1copy end0",     ""},
        {"too old",        2, atom::UriList, "file:///a\r\n",             "",                     ""},
        {"two files",      4, atom::UriList, "file:///1\r\nfile:///2",     "status1copy end1copy", "\\1 12,34"},
        {"to the host",    5, atom::UriList, "file:///a\r\n",             "status1copy end1copy", "\\a 9,9", {9, 9}, true},
        {"beside us",      5, atom::UriList, "file:///a\r\n",             "status0 end0",         "", {80, 34}, true},
    };
    // clang-format on
    ASSERT_TRUE(Open());
    for (const Case& c : cases) {
        EXPECT_EQ(Drag(c.version, c.type, c.data, c.place, c.atHost), c.answers) << c.what;
        EXPECT_EQ(Heard(), c.heard) << c.what;
    }
    EXPECT_TRUE(host->Has(host->window, atom::XdndAware) && host->Has(host->window, atom::XdndProxy));
    window.Close();
    EXPECT_FALSE(host->Has(host->window, atom::XdndAware) || host->Has(host->window, atom::XdndProxy));
    ASSERT_TRUE(Open());
    const xcb_atom_t version = 5; // the host wants drops itself
    xcb_change_property(host->server, 0, host->window, Atom(atom::XdndAware), 4, 32, 1, &version);
    EXPECT_TRUE(Soon([&] { return !window.Serve(10) || !host->Has(host->window, atom::XdndProxy); }));
    window.Close();
    EXPECT_TRUE(host->Has(host->window, atom::XdndAware));

    xcb_delete_property(host->server, host->window, Atom(atom::XdndAware));
    const xcb_window_t frame = xcb_generate_id(host->server); // in the host's, and ends before it
    xcb_create_window(host->server, 0, frame, host->window, 0, 0, 9, 9, 0, 0, 0, 0, nullptr);
    host->Sync();
    ASSERT_TRUE(window.Open(reinterpret_cast<void*>(std::uintptr_t{frame}), {9, 9}, ear));
    xcb_destroy_window(host->server, frame);
    host->Sync();
    EXPECT_TRUE(Soon([&] { return !window.Serve(10); }));
    window.Close();
    EXPECT_FALSE(host->Has(host->window, atom::XdndAware));
}

} // namespace korvane
