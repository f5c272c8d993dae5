// What the system tells of the window, turned into the frame's operations.
#pragma once

#include "platform/window/Window.h"

namespace korvane {

class CPluginFrame;

/// The frame's ear. The window's thread.
class WindowProcedure : public WindowListener {
public:
    explicit WindowProcedure(CPluginFrame& owner) : frame(owner) {}

    void OnPaint(PixelSurface& surface, Rect part) override;
    void OnMouse(int kind, int notches) override;
    bool OnKey(int code, bool down) override;
    void OnTimer() override;
    void OnFileDrop(const char* path) override;

private:
    void MoveHidden();

    CPluginFrame& frame;
};

} // namespace korvane
