// A level meter: a column of lights.
#pragma once

#include "gui/controls/CControl.h"

namespace korvane {

/// Shows a peak and falls by 6 dB each time it is drawn. Whoever knows the peaks raises `level` and marks the meter
/// dirty on each tick.
class KVMeter : public CControl {
public:
    /// lights  an unlit row above a lit one, the colour of the upper lights left of that of the lower; null: none
    KVMeter(Rect place, CBitmap* lights) : CControl(place, -1), leds(lights) {}

    // clang-format off
    void Draw(CDrawBuffer* buffer) override;
    void OnHoverChanged() override {}
    // clang-format on

    float level = 0.0f; // linear peak, full scale 1

private:
    CBitmap* const leds;
};

} // namespace korvane
