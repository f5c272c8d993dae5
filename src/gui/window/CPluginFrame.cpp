// The window base: what it shows, when it is locked, and the mouse that it holds.
#include "gui/window/CPluginFrame.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace korvane {

CPluginFrame::CPluginFrame(std::unique_ptr<Window> platformWindow, void* module)
    : moduleHandle(module), platform(std::move(platformWindow)), procedure(*this)
{
}

CPluginFrame::~CPluginFrame() { CloseWindow(); }

bool CPluginFrame::OpenWindow(int newHeight, int newWidth, void* parent)
{
    if (!platform->Open(parent, {newHeight, newWidth}, procedure)) return false;
    inTimer = false; // whatever ended the last opening
    redrawLock = 0;
    parentWindow = parent;
    windowHandle = platform->Handle();
    height = newHeight;
    width = newWidth;
    return true;
}

void CPluginFrame::CloseWindow()
{
    ReleaseMouse();
    platform->Close();
    windowHandle = parentWindow = nullptr;
}

std::uint32_t CPluginFrame::QueryInterface(const InterfaceId& id, void** answer)
{
    if (!answer) return kNoInterface;
    const bool known = id == kUnknownId || id == kDropTargetId;
    *answer = known ? static_cast<IDropTarget*>(this) : nullptr;
    return known ? 0 : kNoInterface;
}

std::uint32_t CPluginFrame::Drop(const char* path)
{
    constexpr std::size_t kLongestName = 1024;
    const Point place = PointerPosition();
    if (path) DropFile(std::string(path, strnlen(path, kLongestName)).c_str(), place.x, place.y);
    return 0;
}

void CPluginFrame::RedrawAll() { RedrawRect({0, 0, width, height}); }

void CPluginFrame::RedrawRect(Rect part)
{
    if (!windowHandle) return;
    redrawPending = true;
    if (redrawLock > 0) return;
    PaintRect(platform.get(), part);
    redrawPending = false;
}

void CPluginFrame::LockRedraw()
{
    if (redrawLock == 0) redrawPending = false;
    ++redrawLock;
}

void CPluginFrame::UnlockRedrawPending() { UnlockRedraw(redrawPending); }

void CPluginFrame::UnlockRedraw(bool redraw)
{
    redrawLock = std::max(redrawLock - 1, 0);
    if (redraw && redrawLock == 0) RedrawAll();
}

void CPluginFrame::CaptureMouse(bool hide)
{
    if (mouseCaptured) return;
    mouseCaptured = true;
    hidePointer = hide;
    if (hide) {
        savedScreenPointer = lastScreenPointer = platform->ScreenPointer();
        virtualPointer = PointerPosition();
    }
    platform->Grab(hide);
}

void CPluginFrame::ReleaseMouse()
{
    if (!mouseCaptured) return;
    mouseCaptured = false;
    if (hidePointer) platform->Warp(savedScreenPointer);
    platform->Ungrab();
    hidePointer = false;
}

void CPluginFrame::StartTimer(int period) { platform->StartTimer(period); }

} // namespace korvane
