// The pad that plays the selected effect: what a drag writes, and its dot.
#include "editor/elements/FXControl.h"

#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

constexpr int kDot = 4, kHeldDot = 8; // pixels
constexpr Color kDotColor = Rgb(255, 0, 0), kHeldDotColor = Rgb(255, 255, 0);

/// How far along a side a place lies.
float Along(int place, int start, int length)
{
    return static_cast<float>(std::int64_t{place} - start) / static_cast<float>(length);
}

} // namespace

float FXControl::Setting(int index) const { return Clamp(synth.GetParameter(index), 0.0f, 1.0f); }

void FXControl::Move(int index, float newSetting)
{
    if (synth.GetParameter(index) == newSetting) return;
    synth.SetParameter(index, newSetting);
    if (synth.wrapper) synth.wrapper->ParameterAutomated(index, newSetting);
}

void FXControl::OnLeftDown(int x, int y)
{
    if (IsCapturing()) return;
    CaptureMouse(false);
    OnMouseMove(x, y);
    SetValue(1.0f);
    NotifyChanged(true);
}

void FXControl::OnMouseMove(int x, int y)
{
    if (!IsCapturing()) return;
    Move(param::FxX, Clamp(Along(x, rect.x, rect.w), 0.0f, 1.0f));
    Move(param::FxY, Clamp(1.0f - Along(y, rect.y, rect.h), 0.0f, 1.0f));
    Redraw();
}

void FXControl::OnLeftUp(int, int)
{
    if (!IsCapturing()) return;
    ReleaseMouse();
    SetValue(0.0f);
    NotifyChanged(true);
    SetDirty(true);
}

void FXControl::OnTick()
{
    if (Setting(param::FxX) != drawnX || Setting(param::FxY) != drawnY) SetDirty(true);
}

void FXControl::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    constexpr int kMargin = kHeldDot / 2; // of the dot at an edge
    const Rect drawn{rect.x - kMargin, rect.y - kMargin, rect.w + 2 * kMargin, rect.h + 2 * kMargin};
    DrawPage(buffer, drawn);
    drawnX = Setting(param::FxX);
    drawnY = Setting(param::FxY);
    const bool held = IsCapturing() || value != 0.0f;
    const int size = held ? kHeldDot : kDot;
    const int x = rect.x + Truncate(drawnX * static_cast<float>(rect.w));
    const int y = rect.y + Truncate((1.0f - drawnY) * static_cast<float>(rect.h));
    const Color before = buffer->GetFillColor();
    buffer->SetFillColor(held ? kHeldDotColor : kDotColor);
    buffer->FillRect({x - size / 2, y - size / 2, size, size});
    buffer->SetFillColor(before);
    ShowDrawn(drawn);
}

} // namespace korvane
