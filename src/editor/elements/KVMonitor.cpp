// The sample monitor: where it looks, and what it draws of the sample.
#include "editor/elements/KVMonitor.h"

#include <cmath>
#include <utility>
#include <vector>

#include "framework/ChannelSlots.h"
#include "gui/controls/KeptDrawState.h"
#include "gui/window/CPluginUI.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr float kNotch = 0.25f, kLargestZoom = 10.0f;
constexpr Color kSlate = Rgb(46, 70, 87);
constexpr Color kBeforeStart = WithAlpha(kSlate, 50), kCentreLine = WithAlpha(kSlate, 110);
constexpr int kLineWidth = 2;

} // namespace

// What is shown

std::shared_ptr<const CWaveSample> KVMonitor::CurrentSample() const
{
    const Selection& selection = engine.selection;
    const int slot = kFirstLayerSlot + selection.layerNumber;
    return engine.samplePool->SoundOf(
        engine.Channel(selection.selectedChannel).sound.sampleSlots[static_cast<std::size_t>(slot)]);
}

KVMonitor::Layer KVMonitor::CurrentLayer() const
{
    return {Clamp(engine.GetChannelParameter(slot::LayerStart), 0.0f, 1.0f),
            engine.GetChannelParameter(slot::LayerReverse) != 0.0f,
            engine.GetChannelParameter(slot::LayerInvert) != 0.0f};
}

void KVMonitor::OnTick()
{
    if (auto current = CurrentSample(); current != sample) {
        sample = std::move(current);
        scroll = zoom = 0.0f;
        SetDirty(true);
    }
    if (const Layer current = CurrentLayer(); current != layer) {
        layer = current;
        SetDirty(true);
    }
}

// Where it looks

double KVMonitor::FramesPerColumn() const
{
    return HasSound() ? std::exp2(-static_cast<double>(zoom)) * sample->numFrames / rect.w : 0.0;
}

void KVMonitor::OnWheel(int, int notches)
{
    CPluginUI* const window = GetWindow();
    if (!window || notches == 0) return; // each visible control hears of the wheel
    const Point pointer = window->PointerPosition();
    if (!IsCapturing() && !rect.Contains(pointer.x, pointer.y)) return;
    zoom = Clamp(zoom + static_cast<float>(notches) * kNotch, 0.0f, kLargestZoom);
    SetDirty(true);
}

void KVMonitor::OnLeftDown(int x, int y)
{
    CaptureMouse(false);
    lastDrag = {x, y};
}

void KVMonitor::OnMouseMove(int x, int y)
{
    if (!IsCapturing()) return;
    const double travel = static_cast<double>(lastDrag.x) - x;
    const double length = HasSound() ? sample->numFrames : 0;
    const auto moved = static_cast<float>(Clamp(scroll + travel * FramesPerColumn(), 0.0, length));
    if (moved != scroll) SetDirty(true);
    scroll = moved;
    lastDrag = {x, y};
}

void KVMonitor::OnLeftUp(int, int) { ReleaseMouse(); }

// Drawing

void KVMonitor::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    DrawPage(buffer, rect);
    KeptDrawState kept(buffer);
    if (!kept.ClipTo(rect)) return;
    buffer->SetFillColor(kCentreLine);
    buffer->FillRect({rect.x, rect.y + rect.h / 2, rect.w, 1});
    if (!HasSound()) return;
    buffer->SetFillColor(kBeforeStart);
    buffer->FillRect({rect.x, rect.y, ColumnsBeforeStart(), rect.h});
    DrawWave(buffer);
}

int KVMonitor::ColumnsBeforeStart() const
{
    const double start = static_cast<double>(layer.start) * sample->numFrames;
    const double column = originColumn + (start - scroll) / FramesPerColumn();
    return Truncate(Clamp(std::ceil(column), 0.0, static_cast<double>(rect.w)));
}

/// Between two frames; around the sample there is silence.
float KVMonitor::ValueAt(double frame) const
{
    const double before = std::floor(frame);
    if (!(before >= -1.0 && before < sample->numFrames)) return 0.0f;
    const int n = Truncate(before);
    const auto at = [&](int k) { return k >= 0 && k < sample->numFrames ? sample->channelData[0][k] : 0.0f; };
    return at(n) + (at(n + 1) - at(n)) * static_cast<float>(frame - before);
}

/// One point per column, so that a long sample costs no more than a short one.
void KVMonitor::DrawWave(CDrawBuffer* buffer)
{
    const double framesPerColumn = FramesPerColumn();
    const float half = static_cast<float>(rect.h) / (layer.invert ? -2.0f : 2.0f);
    std::vector<float> heights(static_cast<std::size_t>(rect.w));
    for (std::size_t n = 0; n < heights.size(); ++n) {
        const double frame = scroll + (static_cast<double>(n) - originColumn) * framesPerColumn;
        const float shown = ValueAt(layer.reverse ? sample->numFrames - frame : frame);
        heights[n] = static_cast<float>(rect.y + rect.h / 2) - shown * half;
    }
    buffer->SetFrameWidth(kLineWidth);
    for (const bool accumulate : {true, false})
        for (std::size_t n = 1; n < heights.size(); ++n) {
            const float x = static_cast<float>(rect.x) + static_cast<float>(n);
            buffer->DrawThickLine(kSlate, x - 1.0f, heights[n - 1], x, heights[n], accumulate);
        }
}

} // namespace korvane
