// The window's life on an X server: opening, showing, timer, other threads and every kind of end.
#include <csignal>
#include <filesystem>

#include "platform/window/OpenWindow.h"

namespace korvane {

class XcbWindowTest : public OpenWindow {
protected:
    /// An image in which no two pixels are the same, as the toolkit keeps it.
    static std::vector<std::uint32_t> Picture(Size size)
    {
        std::vector<std::uint32_t> pixels(std::size_t{1} * size.width * size.height);
        for (std::size_t n = 0; n < pixels.size(); ++n) pixels[n] = static_cast<std::uint32_t>(n * 2654435761u) >> 8;
        return pixels;
    }
    /// Whether the screen shows the image, at the latest when the server has had time for what it was sent.
    bool Shows(const PixelView& image, int scale)
    {
        const int height = image.size.height, width = image.size.width, w = width * scale;
        std::vector<std::uint32_t> expected(std::size_t{1} * w * height * scale);
        for (int n = 0; n < static_cast<int>(expected.size()); ++n)
            expected[n] = image.pixels[(height - 1 - n / w / scale) * width + n % w / scale];
        return Soon([&] { return host->Screen(w, height * scale) == expected; });
    }
    long Windows() const { return std::ssize(host->Children(host->window)); }
};

// Whatever the host's window, the scale and the way to the screen: it shows the image.
TEST_F(XcbWindowTest, TheScreenShowsTheImage)
{
    // clang-format off
    struct Case { const char* what; int depth; const char* scale; bool shares; };
    const Case cases[] = {
        {"shared memory",       24, "1", true}, {"through the socket", 24, "1", false}, {"blocks", 24, "2", true},
        {"a host with opacity", 32, "1", true}, {"both, in blocks",    32, "2", false},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        setenv("KORVANE_SCALE", c.scale, 1);
        host = std::make_unique<Host>(c.depth);
        host->Do("to 7,9");
        const Size size = {140, 190};
        auto pixels = Picture(size);
        XcbWindow shown;
        Ear painter(shown);
        painter.view = {pixels.data(), size};
        ASSERT_TRUE(shown.Open(host->Parent(), size, painter)) << shown.LastError();
        EXPECT_EQ(shown.Scale(), c.scale[0] - '0');
        EXPECT_TRUE(host->Has(Host::Number(shown.Handle()), atom::XembedInfo));
        if (!c.shares) shown.StopSharing();
        for (int n = 0; n < 10 && painter.paints == 0; ++n) shown.Serve(100);
        EXPECT_TRUE(Shows(painter.view, shown.Scale()));
        xcb_clear_area(host->server, 1, Host::Number(shown.Handle()), 0, 0, 10, 10);
        host->Now(xcb_clear_area(host->server, 1, Host::Number(shown.Handle()), 30, 0, 10, 10));
        for (int n = 0; n < 10 && painter.paints < 2; ++n) shown.Serve(100);
        EXPECT_EQ(painter.paints, 2); // what is uncovered together is painted at once
        EXPECT_TRUE(Shows(painter.view, shown.Scale()));
        for (int x = 30; x < 60; ++x) pixels[(size.height - 1 - 20) * size.width + x] = 0x123456;
        EXPECT_TRUE(shown.Copy(painter.view, {30, 20, 30, 1}, {30, 20}));
        EXPECT_TRUE(Shows(painter.view, shown.Scale()));
        EXPECT_FALSE(shown.Copy(painter.view, {30, 20, 30, 1}, {size.width, 0}));
        EXPECT_EQ(shown.ScreenSize(), (Size{600 / shown.Scale(), 800 / shown.Scale()}));
        shown.Grab(true);
        EXPECT_EQ(shown.Warp({60, 40}), (Point{60, 40}));
        shown.Warp({107 / shown.Scale(), 59 / shown.Scale()});
        EXPECT_EQ(shown.Pointer(), (Point{7 / shown.Scale(), 9 / shown.Scale()}));
        EXPECT_EQ(XcbPointer(host->server, host->window).screenPlace, (Point{107, 59})); // not the corner of its block
    }
    unsetenv("KORVANE_SCALE");
}

TEST_F(XcbWindowTest, RefusesWhatCannotBe)
{
    // clang-format off
    struct Case { const char* what; std::uintptr_t parent; Size size; };
    const Case cases[] = {
        {"no parent", 0, {9, 9}}, {"no window", 0x7654321, {9, 9}}, {"beyond 32 bits", std::uintptr_t{1} << 40, {9, 9}},
        {"no width", host->window, {9, 0}}, {"negative", host->window, {-9, 9}}, {"large", host->window, {9, 40000}},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_FALSE(window.Open(reinterpret_cast<void*>(c.parent), c.size, ear)) << c.what;
        EXPECT_FALSE(window.LastError().empty() || window.Handle() || window.Serve(0)) << c.what;
    }
}

TEST_F(XcbWindowTest, LateTicksComeOnce)
{
    ASSERT_TRUE(Open());
    window.StartTimer(20);
    const auto start = std::chrono::steady_clock::now();
    while (ear.ticks < 5) window.Serve(1000);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(80));
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    ear.ticks = 0;
    for (int n = 0; n < 4; ++n) window.Serve(0);
    EXPECT_LT(ear.ticks, 3); // on a slow machine the next is due
    window.StartTimer(0);
    ear.ticks = 0;
    Heard(50);
    EXPECT_EQ(ear.ticks, 0);
}

// The host ends its window, or the server ends: the editor counts as closed, and may be closed once more.
TEST_F(XcbWindowTest, SurvivesTheEndOfHostAndServer)
{
    std::signal(SIGPIPE, SIG_IGN); // as on the editor's thread
    const std::function<void()> ends[] = {
        [&] { host->Destroy(); },
        [&] { host->Now(xcb_reparent_window(host->server, Host::Number(window.Handle()), host->Root(), 0, 0)); },
        [&] { server->Kill(); }};
    const auto pixels = Picture({60, 80});
    for (const auto& end : ends) {
        host = std::make_unique<Host>();
        ear.view = {pixels.data(), {60, 80}};
        ASSERT_TRUE(Open());
        window.TakeFocus();
        host->Do("up 38 down 38");
        EXPECT_EQ(Heard(), "down 41 +0");
        end();
        for (int n = 0; n < 3; ++n) window.Copy(ear.view, {0, 0, 1, 1}, {}); // before anybody has noticed
        EXPECT_EQ(Heard(500), "up 41 +0");
        window.Grab(true);
        EXPECT_FALSE(window.Handle() || window.HasGrab() || window.Copy(ear.view, {0, 0, 1, 1}, {}));
        EXPECT_EQ(window.Pointer(), (Point{-1, -1}));
        window.Withdraw();
        window.Close();
        EXPECT_FALSE(window.Serve(0));
    }
    EXPECT_FALSE(Open()); // nowhere to open any more
}

TEST_F(XcbWindowTest, ListenersMayCloseAndOpenAgain)
{
    ASSERT_TRUE(Open());
    ear.onMouse = [&](int kind) {
        if (kind == mouse::LeftDown) window.Close();
        if (kind == mouse::RightDown) window.Open(host->Parent(), {30, 30}, ear);
    };
    host->Do("to 5,5 press 3 release 3");
    EXPECT_EQ(Heard().substr(0, 14), "move 5,5; R 5,");
    host->Do("press 1 release 1");
    EXPECT_EQ(Heard(), "L 5,5"); // what came after it is nobody's any more
    EXPECT_EQ(Windows(), 0);
}

// The host's thread ends the window while its own is held up in the listener; it has gone at once.
TEST_F(XcbWindowTest, OtherThreadsEndIt)
{
    const auto start = std::chrono::steady_clock::now();
    for (int n = 0; n < 5; ++n) {
        ASSERT_TRUE(Open());
        const auto number = Host::Number(window.Handle());
        std::atomic<bool> held{false}, go{false};
        ear.onTimer = [&] {
            window.StartTimer(0);
            held = true;
            while (!go) std::this_thread::yield();
            window.Copy(ear.view, {0, 0, 5, 5}, {});
        };
        window.StartTimer(1);
        std::thread hosts([&] {
            while (!held) window.Wake();
            if (n == 0) host->Now(xcb_grab_server(host->server)); // no answer before the end of it
            window.Withdraw();
            if (n == 0) host->Now(xcb_ungrab_server(host->server));
            const XcbAnswer<xcb_get_window_attributes_reply_t> state(xcb_get_window_attributes_reply(
                host->server, xcb_get_window_attributes(host->server, number), nullptr));
            EXPECT_TRUE(n == 0 || (state && state->map_state == XCB_MAP_STATE_UNMAPPED));
            go = true;
            for (int m = 0; m < 100; ++m) window.Withdraw();
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            window.RequestClose();
        });
        while (window.Serve(10000)) {}
        window.Close();
        hosts.join();
        ear.onTimer = nullptr;
    }
    EXPECT_EQ(Windows(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
}

} // namespace korvane
