// A rotary control: frames of a strip, or a pointer, and the value above the page while it is dragged.
#pragma once

#include <memory>

#include "gui/controls/CControlNumber.h"

namespace korvane {

/// Its frames stand in a strip of the bitmap from `imageOffset` on. The value is written into a pop-up that opens below
/// the control while it is dragged, or above it where the editor ends.
class CControlKnob : public CControlNumber {
public:
    /// Pixels, finer than a Rect.
    struct Box {
        float x, y, w, h;
    };

    CControlKnob(Rect place, int number);

    // clang-format off
    bool SetValue(float newValue) override;
    void OnLeftDown(int x, int y) override;
    void OnLeftUp(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    void OnTick() override;
    bool CoversOthers() override { return popup != nullptr; }
    virtual void DrawValuePopup(CDrawBuffer* buffer);      // nothing while it is closed
    // clang-format on

    Box imageRect;             // the pointer turns around its centre
    bool verticalStrip = true; // frames below each other, else side by side
    bool inverted = false;     // draws 1 minus the value
    bool crossfade = false;    // between neighbouring frames
    int frameCount = 0;
    int frameSize;           // from frame to frame, pixels
    int steps = 0;           // draws so many steps; 0: all values
    bool springBack = false; // to the default when it is let go
    float smoothing = 0.0f;  // part of the way to the value that the drawing goes per tick; 0: shows the value at once
    bool drawPointer = false;
    float pointerRadius;
    float sweep = 4.712389f; // radians from 0 to 1, clockwise around the top
    float angleOffset = 0.0f;
    int pointerWidth = 1;
    Color pointerColor = kBlack;
    float pointerInner = 0.0f, pointerOuter = 1.0f; // its ends, in radii
    bool pointerShadow = false;
    Color pointerShadowColor = Rgb(0, 0, 0, 128);
    bool showValuePopup = false;
    int popupPadX = 2, popupPadY = 6;
    int popupFont = 0;
    Color popupTextColor = kBlack;
    Color popupTopColor = Rgb(249, 249, 235), popupBottomColor = Rgb(249, 249, 235);
    Color popupFrameColor = kBlack;
    int popupShadow = 5; // pixels
    Color popupShadowColor = kBlack;
    Rect popupRect;                     // with the shadow
    std::unique_ptr<CDrawBuffer> popup; // null when closed
    float shownValue = -1.0f;           // until the first SetValue

protected:
    float ShownPosition(); // 0..1, as it is drawn

private:
    void DrawFrames(CDrawBuffer* buffer, float position);
    void DrawPointerLines(CDrawBuffer* buffer, float position);
    bool LayOutPopup(CDrawBuffer* page);
    void OpenPopup();
    void ClosePopup();

    bool springing = false;
};

} // namespace korvane
