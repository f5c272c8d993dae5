// korvane-window, as desktops and shells see it.
#include <chrono>
#include <thread>

#include "desktop/Display.h"
#include "support/CommandTest.h"

namespace korvane {
namespace {

using namespace std::chrono_literals;

const std::string kWindow = "'" KORVANE_TOOLS "/korvane-window' ";

struct WindowProgram : CommandTest {};

TEST_F(WindowProgram, SaysWhyItDoesNotOpen)
{
    for (const char* where : {"env -u DISPLAY ", "DISPLAY=nowhere:7 "}) {
        const Answer none = Shell(where + kWindow);
        EXPECT_EQ(std::pair(none.status, none.errors),
                  std::pair(3, std::string("korvane-window: there is no display\n")));
    }
    EXPECT_EQ(std::pair(Shell(kWindow + "two words").status, Shell(kWindow + "--help").status), std::pair(2, 0));
}

TEST_F(WindowProgram, ShowsTheEditorUntilItIsClosed)
{
    if (!DisplayServer::Installed()) GTEST_SKIP() << "there is no Xvfb";
    const DisplayServer display;
    Host desktop;
    const Answer mistyped = Shell(kWindow + "mistyped");
    EXPECT_EQ(std::pair(mistyped.status, mistyped.Complains("mistyped")), std::pair(1, true)) << mistyped.errors;
    EXPECT_EQ(Shell("timeout --preserve-status 1 " + kWindow).status, 0) << "a signal";

    Answer closed{};
    std::thread program([&] { closed = Shell("KORVANE_SCALE=1 timeout 60 " + kWindow + "undertow"); });
    xcb_window_t window = XCB_NONE; // with the editor in it
    for (int n = 0; n < 3000 && window == XCB_NONE; ++n, std::this_thread::sleep_for(10ms))
        for (const xcb_window_t one : desktop.Children(desktop.Root()))
            if (one != desktop.window && !desktop.Children(one).empty()) window = one;
    const auto title = desktop.Property<char>(window, XCB_ATOM_WM_NAME);
    EXPECT_EQ(std::string(title.begin(), title.end()), "Korvane");
    EXPECT_EQ(desktop.Property<int>(window, XCB_ATOM_WM_NORMAL_HINTS),
              (std::vector{56, 0, 0, 1065, 630, 1065, 630, 1065, 630, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    desktop.AskToClose(window);
    program.join();
    EXPECT_EQ(std::pair(closed.status, closed.output + closed.errors), std::pair(0, std::string()));
}

} // namespace
} // namespace korvane
