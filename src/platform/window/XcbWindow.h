// The window on an X server.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <string>

#include "platform/window/Window.h"
#include "platform/window/XcbSession.h"

namespace korvane {

/// A child window with a connection of its own, so that nothing of it touches what the host does with the server. No
/// error of the server's ends the process. Opening takes no keyboard focus: only a press in the window does.
class XcbWindow : public Window {
public:
    XcbWindow();
    ~XcbWindow() override;

    bool Open(void* parent, Size size, WindowListener& listener) override;
    void Close() override;
    void* Handle() const override;
    bool Serve(int milliseconds) override;
    void StartTimer(int milliseconds) override;
    void TakeFocus() override;
    Point Pointer() const override;
    Point ScreenPointer() const override;
    Size ScreenSize() const override;
    int Modifiers() const override;
    void Grab(bool hidePointer) override;
    void Ungrab() override;
    bool HasGrab() const override;
    Point Warp(Point place) override;
    bool Copy(const PixelView& image, Rect source, Point target) override;
    std::string AskForFile(const FileQuestion& question) override;
    int Scale() const override;
    void Wake() override;
    void RequestClose() override;
    void Withdraw() override;

    /// Why the last Open was refused; empty when it was not.
    const std::string& LastError() const { return lastError; }
    /// Copies go through the socket from now on, as on a server that shares no memory.
    void StopSharing();

private:
    void End();
    bool Refuse(const char* what);
    XcbSession* Living() const { return session && session->Lives() ? session.get() : nullptr; }
    void Publish(std::shared_ptr<XcbSession> next);

    std::string lastError;
    mutable std::once_flag scaleIsKnown;
    mutable int scale = 1;

    const int wakeDescriptor; // an eventfd; readable when Serve shall return
    std::atomic<bool> closing{false};

    std::mutex guard;                    // of the pointer, for who is not the window's thread
    std::shared_ptr<XcbSession> session; // null while closed; only the window's thread writes it
    bool withdrawn = false;              // under the guard
};

} // namespace korvane
