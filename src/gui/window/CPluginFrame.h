// The editor's frame: a window of the system, its mouse, its timer and what is shown of the back buffer.
#pragma once

#include <memory>

#include "gui/window/IDropTarget.h"
#include "gui/window/WindowProcedure.h"
#include "platform/window/Window.h"

namespace korvane {

/// Base of the plug-in's window. Everything happens on the window's thread.
class CPluginFrame : public IDropTarget {
public:
    /// platformWindow  closed
    /// module          the plug-in library
    CPluginFrame(std::unique_ptr<Window> platformWindow, void* module);
    CPluginFrame(const CPluginFrame&) = delete;

    // clang-format off
    std::uint32_t QueryInterface(const InterfaceId& id, void** answer) override;
    std::uint32_t AddRef() override { return 0; }          // nobody counts
    std::uint32_t Release() override { return 0; }
    std::uint32_t DragEnter() override { return 0; }
    std::uint32_t DragOver() override { return 0; }
    std::uint32_t DragLeave() override { return 0; }
    std::uint32_t Drop(const char* path) override;
    virtual void RedrawAll();
    /// Shows a part of the back buffer, or, while redraws are locked, remembers that.
    virtual void RedrawRect(Rect part);
    virtual void LockRedraw();
    virtual void UnlockRedrawPending();                    // shows all if something was to be shown meanwhile
    virtual void UnlockRedraw(bool redraw);
    virtual void Idle() {}                                 // what is done on each tick
    virtual void BeginTick() {}
    virtual void EndTick() {}
    /// Nothing when captured already. Hidden, the pointer moves on without end: virtualPointer.
    virtual void CaptureMouse(bool hide);
    virtual void ReleaseMouse();
    virtual bool IsMouseCaptured() { return mouseCaptured; }
    virtual void StartTimer(int period);                   // milliseconds
    virtual bool OnKeyDown(int) { return false; }          // a code of key::; whether it is used
    virtual bool OnKeyUp(int) { return false; }
    virtual void CancelAll() {}
    virtual void PaintRect(PixelSurface*, Rect) {}
    virtual void MouseEvent(int, int, int, int) {}         // x, y, of modifier::, of mouse::
    virtual bool DropFile(const char*, int, int) { return false; }
    virtual ~CPluginFrame();
    // clang-format on

    /// The pointer in the window; (-1, -1) while closed.
    Point PointerPosition() const { return platform->Pointer(); }
    Window& Platform() { return *platform; }

    int flags = 3; // bit 0: a left press takes the keyboard
    void* parentWindow = nullptr;
    void* windowHandle = nullptr; // null while closed
    int height = 0, width = 0;
    bool mouseCaptured = false, hidePointer = false;
    bool inTimer = false;
    int redrawLock = 0; // depth
    bool redrawPending = false;
    Point savedScreenPointer; // where a hidden capture began
    Point virtualPointer;     // in the window, during a hidden capture
    Point lastScreenPointer;
    void* moduleHandle;

protected:
    bool OpenWindow(int newHeight, int newWidth, void* parent);
    void CloseWindow();

private:
    std::unique_ptr<Window> platform;
    WindowProcedure procedure;
};

} // namespace korvane
