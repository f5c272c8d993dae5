// What tests of the X window share: a display, a host, a window and an ear that writes down what it hears.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <thread>

#include "desktop/Display.h"
#include "platform/window/XcbWindow.h"
#include "support/Waiting.h"

namespace korvane {

/// Writes down each event with the pointer's place and the modifiers.
struct Ear : WindowListener {
    explicit Ear(XcbWindow& w) : window(w) {}

    void OnPaint(PixelSurface& surface, Rect part) override
    {
        ++paints;
        surface.Copy(view, part, {part.x, part.y});
    }
    void OnMouse(int kind, int notches) override
    {
        static constexpr const char* kNames[] = {"L", "M", "R", "l", "m", "r", "move", "wheel"};
        Say() << kNames[kind] << (notches ? std::to_string(notches) : "") << Place();
        if (onMouse) onMouse(kind);
    }
    bool OnKey(int code, bool down) override
    {
        Say() << (down ? "down " : "up ") << std::hex << code << std::dec << " +" << window.Modifiers();
        return code != unused;
    }
    void OnTimer() override
    {
        ++ticks;
        if (onTimer) onTimer();
    }
    void OnFileDrop(const char* path) override { Say() << path << Place(); }

    std::ostream& Say() { return said << (said.tellp() > 0 ? "; " : ""); }
    std::string Place() const
    {
        std::ostringstream text;
        text << " " << window.Pointer().x << "," << window.Pointer().y;
        if (window.Modifiers() != 0) text << " +" << window.Modifiers();
        return text.str();
    }

    XcbWindow& window;
    PixelView view;
    std::ostringstream said;
    int paints = 0, ticks = 0, unused = 0;
    std::function<void(int)> onMouse;
    std::function<void()> onTimer;
};

class OpenWindow : public testing::Test {
protected:
    void SetUp() override
    {
        if (!DisplayServer::Installed()) GTEST_SKIP() << "Xvfb is not installed";
        server = std::make_unique<DisplayServer>();
        host = std::make_unique<Host>();
        host->Do("to -100,-50");
    }
    bool Open(Size size = {60, 80})
    {
        const bool opened = window.Open(host->Parent(), size, ear);
        Heard();
        return opened;
    }
    /// At the latest when other programs have had their time.
    static bool Soon(const std::function<bool()>& happened) { return Within(std::chrono::seconds(5), happened); }
    std::string Heard(int milliseconds = 40)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        while (window.Serve(milliseconds / 4) && std::chrono::steady_clock::now() < end) {}
        return std::exchange(ear.said, std::ostringstream()).str();
    }

    std::unique_ptr<DisplayServer> server;
    std::unique_ptr<Host> host;
    XcbWindow window;
    Ear ear{window};
};

} // namespace korvane
