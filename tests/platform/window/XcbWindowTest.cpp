// The window on an X server, as a host, a musician and the desktop meet it.
#include "platform/window/XcbWindow.h"

#include <functional>
#include <gtest/gtest.h>
#include <sstream>

#include "platform/window/Display.h"

namespace korvane {

/// Writes down what it hears, with the pointer's place.
struct Ear : WindowListener {
    explicit Ear(XcbWindow& w) : window(w) {}

    void OnPaint(PixelSurface& surface, Rect part) override
    {
        surface.Copy(view, part, {part.x, part.y});
        painted.push_back(part);
    }
    void OnMouse(int kind, int notches) override
    {
        static constexpr const char* kNames[] = {"L", "M", "R", "l", "m", "r", "move", "wheel"};
        std::ostringstream text;
        text << kNames[kind] << (notches ? std::to_string(notches) : "") << " " << Place();
        if (window.Modifiers() != 0) text << " +" << window.Modifiers();
        Say(text.str());
    }
    bool OnKey(int code, bool down) override
    {
        std::ostringstream text;
        text << (down ? "down " : "up ") << code << " +" << window.Modifiers();
        Say(text.str());
        return code != unused;
    }
    void OnTimer() override
    {
        ++ticks;
        if (onTimer) onTimer();
    }
    void OnFileDrop(const char* path) override
    {
        Say(std::string("drop ").append(path).append(" at ").append(Place()));
    }
    std::string Place() const
    {
        const Point place = window.Pointer();
        return std::to_string(place.x) + "," + std::to_string(place.y);
    }
    void Say(const std::string& text) { said += said.empty() ? text : "; " + text; }

    XcbWindow& window;
    PixelView view;
    std::vector<Rect> painted;
    std::string said;
    int ticks = 0, unused = 0;
    std::function<void()> onTimer;
};

class XcbWindowTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!DisplayServer::Installed()) GTEST_SKIP() << "Xvfb is not installed";
        server = std::make_unique<DisplayServer>();
        host = std::make_unique<Host>();
        host->Move(0, 0);
    }
    /// Until nothing comes for a while.
    std::string Heard(int quiet = 20)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(quiet);
        while (std::chrono::steady_clock::now() < end && window.Serve(quiet / 2)) {}
        return std::exchange(ear.said, {});
    }
    bool Open(Size size = {60, 80}) { return window.Open(host->Parent(), size, ear); }

    std::unique_ptr<DisplayServer> server;
    std::unique_ptr<Host> host;
    XcbWindow window;
    Ear ear{window};
};

TEST_F(XcbWindowTest, TellsWherePressesWere)
{
    ASSERT_TRUE(Open()) << window.LastError();
    Heard();
    host->Move(110, 55);
    host->Button(1, true);
    host->Move(120, 65);
    host->Button(1, false);
    EXPECT_EQ(Heard(), "move 10,5; L 10,5; move 20,15; l 20,15");
}

} // namespace korvane
