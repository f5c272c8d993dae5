// The way from the system's events to the frame, with the drag that no edge of the screen ends.
#include "gui/window/WindowProcedure.h"

#include "gui/window/CPluginFrame.h"

namespace korvane {

void WindowProcedure::OnPaint(PixelSurface& surface, Rect part) { frame.PaintRect(&surface, part); }

void WindowProcedure::OnMouse(int kind, int notches)
{
    if (kind == mouse::Move && frame.hidePointer) {
        MoveHidden();
        return;
    }
    if (kind == mouse::LeftDown && (frame.flags & 1) != 0) frame.Platform().TakeFocus();
    const Point place = kind == mouse::Wheel ? Point{0, notches} : frame.PointerPosition();
    frame.MouseEvent(place.x, place.y, frame.Platform().Modifiers(), kind);
}

/// A pointer at an edge goes to the opposite side, a pixel from the edge, so that it can go on.
static Point AcrossTheScreen(Point place, Size screen)
{
    if (place.y == 0) return {place.x, screen.height - 2};
    if (place.y == screen.height - 1) return {place.x, 1};
    if (place.x == 0) return {screen.width - 2, place.y};
    if (place.x == screen.width - 1) return {1, place.y};
    return place;
}

void WindowProcedure::MoveHidden()
{
    Window& window = frame.Platform();
    const Point place = window.ScreenPointer();
    const int dx = place.x - frame.lastScreenPointer.x, dy = place.y - frame.lastScreenPointer.y;
    const Point next = AcrossTheScreen(place, window.ScreenSize());
    // Where the pointer cannot be moved the drag ends at the edge, and nothing jumps.
    frame.lastScreenPointer = next == place ? place : window.Warp(next);
    if (dx == 0 && dy == 0) return;
    frame.virtualPointer.x += dx;
    frame.virtualPointer.y += dy;
    frame.MouseEvent(frame.virtualPointer.x, frame.virtualPointer.y, window.Modifiers(), mouse::Move);
}

bool WindowProcedure::OnKey(int code, bool down) { return down ? frame.OnKeyDown(code) : frame.OnKeyUp(code); }

void WindowProcedure::OnTimer()
{
    if (frame.inTimer) return; // inside a dialog that a tick has opened, say
    frame.inTimer = true;
    frame.BeginTick();
    frame.Idle();
    frame.EndTick();
    frame.inTimer = false;
}

void WindowProcedure::OnFileDrop(const char* path) { frame.Drop(path); }

} // namespace korvane
