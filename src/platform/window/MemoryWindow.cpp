// The window that tests and pictures use.
#include "platform/window/MemoryWindow.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/window/CopyClip.h"

namespace korvane {

// What a user does

void MemoryWindow::Post(std::function<void()> event)
{
    {
        std::lock_guard guard(lock);
        events.push_back(std::move(event));
    }
    news.notify_one();
}

void MemoryWindow::MoveTo(int x, int y)
{
    Post([=, this] {
        pointer = {origin.x + x, origin.y + y};
        listener->OnMouse(mouse::Move, 0);
    });
}

void MemoryWindow::MoveToScreen(int x, int y)
{
    Post([=, this] {
        pointer = {std::clamp(x, 0, screen.width - 1), std::clamp(y, 0, screen.height - 1)};
        listener->OnMouse(mouse::Move, 0);
    });
}

void MemoryWindow::Press(int kind)
{
    Post([=, this] { listener->OnMouse(kind, 0); });
}

void MemoryWindow::Wheel(int notches)
{
    Post([=, this] { listener->OnMouse(mouse::Wheel, notches); });
}

void MemoryWindow::Key(int code, bool down)
{
    Post([=, this] {
        std::erase(heldKeys, code);
        if (down) heldKeys.push_back(code);
        usedKeys.push_back(listener->OnKey(code, down));
    });
}

void MemoryWindow::HoldModifiers(int bits)
{
    Post([=, this] { modifiers = bits; });
}

void MemoryWindow::Drop(const std::string& path)
{
    Post([=, this] { listener->OnFileDrop(path.c_str()); });
}

void MemoryWindow::Advance(int milliseconds)
{
    Post([=, this] {
        if (timerPeriod == 0 || (untilTimer -= milliseconds) > 0) return;
        untilTimer = timerPeriod;
        listener->OnTimer();
    });
}

void MemoryWindow::Expose(Rect part)
{
    Post([=, this] { listener->OnPaint(*this, part); });
}

void MemoryWindow::StealGrab()
{
    Post([this] { grabbed = false; });
}

void MemoryWindow::LoseParent()
{
    Post([this] { open = false; });
}

// What the toolkit does

bool MemoryWindow::Open(void*, Size windowSize, WindowListener& hears)
{
    if (open || windowSize.height < 1 || windowSize.width < 1) return false;
    size = windowSize;
    shown.assign(static_cast<std::size_t>(size.height) * size.width, 0);
    copies.clear();
    listener = &hears;
    withdrawn = false;
    {
        std::lock_guard guard(lock);
        events.clear();
        closing = false;
    }
    return open = true;
}

void MemoryWindow::Close()
{
    for (const int code : std::exchange(heldKeys, {})) listener->OnKey(code, false);
    open = focused = grabbed = pointerHidden = false;
    timerPeriod = 0;
}

bool MemoryWindow::Serve(int milliseconds)
{
    std::unique_lock guard(lock);
    news.wait_for(guard, std::chrono::milliseconds(milliseconds),
                  [this] { return !events.empty() || woken || closing; });
    woken = false;
    while (open && !closing && !events.empty()) {
        const auto event = std::move(events.front());
        events.pop_front();
        guard.unlock(); // the listener may do anything
        event();
        guard.lock();
    }
    return open && !closing;
}

void MemoryWindow::StartTimer(int milliseconds) { timerPeriod = untilTimer = std::max(milliseconds, 0); }

Point MemoryWindow::Pointer() const { return open ? Point{pointer.x - origin.x, pointer.y - origin.y} : Point{-1, -1}; }

void MemoryWindow::Grab(bool hidePointer)
{
    grabbed = true;
    pointerHidden = hidePointer;
}

Point MemoryWindow::Warp(Point place)
{
    if (warps) pointer = place;
    return pointer;
}

std::string MemoryWindow::AskForFile(const FileQuestion& question)
{
    return answerQuestion ? answerQuestion(question) : std::string();
}

bool MemoryWindow::Copy(const PixelView& image, Rect source, Point target)
{
    if (!open || !image.pixels) return false;
    copies.push_back({target.x, target.y, source.w, source.h});
    const CopyPart part = ClipCopy(source, target, image.size, size);
    for (int y = 0; y < part.source.h; ++y)
        for (int x = 0; x < part.source.w; ++x) {
            const int row = image.size.height - 1 - (part.source.y + y);
            shown[static_cast<std::size_t>(part.target.y + y) * size.width + part.target.x + x] =
                image.pixels[static_cast<std::size_t>(row) * image.size.width + part.source.x + x] & 0xFFFFFF;
        }
    return true;
}

void MemoryWindow::Wake()
{
    {
        std::lock_guard guard(lock);
        woken = true;
    }
    news.notify_one();
}

void MemoryWindow::RequestClose()
{
    {
        std::lock_guard guard(lock);
        closing = true;
    }
    news.notify_one();
}

} // namespace korvane
