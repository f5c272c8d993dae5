// A value that is dragged; its text reads it.
#pragma once

#include "gui/controls/CControlTextDisplay.h"

namespace korvane {

/// A drag goes by its distance from where the button went down. The value counts as a position of -1..1 meanwhile;
/// for `centreDetent` to each side of where the drag crosses the centre, the value stays there.
class CControlNumber : public CControlTextDisplay {
public:
    using CControlTextDisplay::CControlTextDisplay;

    // clang-format off
    void OnLeftDown(int x, int y) override;                // with Alt, and right: the default
    void OnLeftUp(int x, int y) override;
    void OnRightDown(int x, int y) override;
    void OnMouseMove(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    // clang-format on

    float sensitivity = 0.005f; // of the position, per pixel
    float fineFactor = 0.2f;    // of the sensitivity with Ctrl
    Color dragBackgroundColor = Rgb(100, 100, 100);
    Color dragTextColor = Rgb(255, 100, 100);
    float centreDetent = 0.0f; // half of the dead zone's width
    bool hideCursor = true;    // while it is dragged
    bool horizontal = false;   // to the right, else upward
    Point dragStart;
    float dragOrigin = 0.0f; // the position at dragStart
    float dragFactor = 1.0f;
    bool firstMove = false;

private:
    void ResetToDefault();
};

} // namespace korvane
