// The pad that plays the selected effect.
#pragma once

#include "engine/KVSynth.h"
#include "gui/controls/CControl.h"

namespace korvane {

/// Its own parameter says that it is held; where it is held moves the selected effect's "FX Param X" and "FX Param Y",
/// which stay there afterwards. Host and engine hear of these as they move, the host of no gesture: it is the effect
/// that is played here, their knobs are beside the pad.
class FXControl : public CControl {
public:
    FXControl(Rect place, int number, KVSynth& playedSynth) : CControl(place, number), synth(playedSynth) {}

    // clang-format off
    void OnLeftDown(int x, int y) override;
    void OnLeftUp(int x, int y) override;
    void OnMouseMove(int x, int y) override;
    void Draw(CDrawBuffer* buffer) override;
    void OnTick() override;
    // clang-format on

private:
    float Setting(int index) const; // of the engine, within 0..1
    void Move(int index, float newSetting);

    KVSynth& synth;
    float drawnX = 0.0f, drawnY = 0.0f;
};

} // namespace korvane
