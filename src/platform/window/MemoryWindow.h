// A window without a screen: events come from a program, the clock moves by hand, the pixels stay in memory.
#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <vector>

#include "platform/window/Window.h"

namespace korvane {

/// For tests and for pictures of an editor. What a user or the desktop does are the operations in front: any thread may
/// call them, and the window's thread tells its listener at the next Serve. The fields belong to the window's thread.
class MemoryWindow : public Window {
public:
    explicit MemoryWindow(int pixelScale = 1) : scale(pixelScale) {}

    void MoveTo(int x, int y);       // relative to the window
    void MoveToScreen(int x, int y); // cut to the screen
    void Press(int kind);            // of mouse::, where the pointer is
    void Wheel(int notches);
    void Key(int code, bool down);
    void HoldModifiers(int bits);
    void Drop(const std::string& path);
    void Advance(int milliseconds); // the clock; the timer runs once if it is due
    void Expose(Rect part);
    void StealGrab();  // somebody else takes the mouse
    void LoseParent(); // the host's window ends, and this one with it

    bool Open(void* parent, Size windowSize, WindowListener& hears) override;
    void Close() override;
    void* Handle() const override { return open ? const_cast<MemoryWindow*>(this) : nullptr; }
    bool Serve(int milliseconds) override;
    void StartTimer(int milliseconds) override;
    void TakeFocus() override { focused = true; }
    Point Pointer() const override;
    Point ScreenPointer() const override { return pointer; }
    Size ScreenSize() const override { return screen; }
    int Modifiers() const override { return modifiers; }
    void Grab(bool hidePointer) override;
    void Ungrab() override { grabbed = pointerHidden = false; }
    bool HasGrab() const override { return grabbed; }
    Point Warp(Point place) override;
    std::string AskForFile(const FileQuestion& question) override;
    bool Copy(const PixelView& image, Rect source, Point target) override;
    int Scale() const override { return scale; }
    void Wake() override;
    void RequestClose() override;
    void Withdraw() override { withdrawn = true; }

    const int scale;
    Size screen{1080, 1920};
    Point origin{100, 50}; // of the window on the screen
    Point pointer{0, 0};   // on the screen
    bool warps = true;     // false: Warp leaves the pointer where it is
    bool focused = false, grabbed = false, pointerHidden = false;
    int modifiers = 0;
    int timerPeriod = 0; // 0: none
    Size size;
    std::vector<std::uint32_t> shown;                               // what is on the screen, rows from the top
    std::vector<Rect> copies;                                       // in their order
    std::vector<int> heldKeys;                                      // are told up when the window closes
    std::vector<bool> usedKeys;                                     // what the listener answered
    std::function<std::string(const FileQuestion&)> answerQuestion; // none: every dialog is cancelled
    std::atomic<bool> withdrawn{false};                             // any thread

private:
    void Post(std::function<void()> event);

    WindowListener* listener = nullptr;
    bool open = false;
    int untilTimer = 0; // milliseconds
    std::mutex lock;    // the rest is under it
    std::condition_variable news;
    std::deque<std::function<void()>> events;
    bool woken = false;
    bool closing = false;
};

} // namespace korvane
