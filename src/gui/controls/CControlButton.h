// A button: on or off, in four behaviours.
#pragma once

#include "gui/controls/CControlTextDisplay.h"

namespace korvane {

namespace button {
enum : int {
    Toggle,        // frames: off, on
    ToggleOnPress, // shows that it is held. Frames: off, on and held, on, off and held
    Led,           // fades between the frames off and on
    Momentary      // on while it is held. Frames: off, on
};
}

/// Its frames stand below each other in the bitmap, each as high as the control.
class CControlButton : public CControlTextDisplay {
public:
    using CControlTextDisplay::CControlTextDisplay;

    // clang-format off
    bool SetValue(float newValue) override;
    void OnLeftDown(int x, int y) override;
    void OnLeftUp(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    void OnTick() override;
    // clang-format on

    int mode = button::Toggle;
    Color activeTextColor = Rgb(255, 0, 0); // of the text while it is on
    bool drawText = false;
    float fadeStep = 0.25f; // per tick
    bool disabled = false;  // takes no press
    float fadeLevel = 0.0f; // 0 off..1 on
    float fadeDirection = 0.0f;
    bool pressed = false; // held by the mouse

private:
    int Frame();
    void DrawFrameNumber(CDrawBuffer* buffer, int number, float opacity);
};

} // namespace korvane
