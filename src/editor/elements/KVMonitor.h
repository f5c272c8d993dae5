// The sample monitor: the waveform of the layer that is edited.
#pragma once

#include <memory>

#include "engine/GrooveEngine.h"
#include "gui/controls/CControl.h"

namespace korvane {

/// Shows the sample of the selected channel's current layer as it is played: backwards and upside down when its layer
/// is, of two channels the left one. A drag scrolls, the wheel zooms. The window's thread; it keeps the sample that it
/// shows, whatever becomes of the slot.
class KVMonitor : public CControl {
public:
    KVMonitor(Rect place, GrooveEngine& shownEngine) : CControl(place, -1), engine(shownEngine) {}

    // clang-format off
    void OnLeftDown(int x, int y) override;
    void OnLeftUp(int x, int y) override;
    void OnMouseMove(int x, int y) override;
    void OnWheel(int, int notches) override;               // where the pointer is over it, or drags
    void Draw(CDrawBuffer* buffer) override;
    void OnTick() override;
    // clang-format on

    float scroll = 0.0f;              // frame at originColumn, 0..the sample's length
    float zoom = 0.0f;                // 0..10, each doubles; at 0 the monitor is as wide as the sample is long
    const float originColumn = 34.9f; // from the left edge, pixels

private:
    /// What the layer's values make of the picture.
    struct Layer {
        float start = 0.0f; // part of the sample, 0..1
        bool reverse = false, invert = false;
        bool operator==(const Layer&) const = default;
    };
    std::shared_ptr<const CWaveSample> CurrentSample() const;
    Layer CurrentLayer() const;
    bool HasSound() const { return sample && sample->numFrames > 0 && rect.w > 0; }
    double FramesPerColumn() const;
    float ValueAt(double frame) const;
    int ColumnsBeforeStart() const;
    void DrawWave(CDrawBuffer* buffer);

    GrooveEngine& engine;
    Point lastDrag;
    std::shared_ptr<const CWaveSample> sample; // as of the last tick, as is the layer
    Layer layer;
};

} // namespace korvane
