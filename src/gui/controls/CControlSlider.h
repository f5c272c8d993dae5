// A handle on a track.
#pragma once

#include "gui/controls/CControlKnob.h"

namespace korvane {

/// Drawn over its bitmap or its background colour; what a knob's strip and pointer are for, the handle does here.
class CControlSlider : public CControlKnob {
public:
    CControlSlider(Rect place, int number) : CControlKnob(place, number), track(place) {}

    // clang-format off
    void OnLeftDown(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    // clang-format on

    CBitmap* handle = nullptr; // crossfade: placed finer than by a pixel
    Rect track;                // in the window
    Point handleOffset;        // only along the track; across it the handle is centred
    bool jumpToClick = false;
    bool horizontalTrack = false; // false: the handle moves along x; true: along y, and 1 is at the top

private:
    void DrawHandle(CDrawBuffer* buffer);
};

} // namespace korvane
