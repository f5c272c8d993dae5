// A button: on or off, in four behaviours.
#include "gui/controls/CControlButton.h"

#include "gui/controls/KeptDrawState.h"
#include "platform/Numbers.h"

namespace korvane {

bool CControlButton::SetValue(float newValue)
{
    const bool changed = CControlTextDisplay::SetValue(newValue);
    if (mode == button::Led) fadeDirection = value != 0.0f ? 1.0f : -1.0f;
    return changed;
}

void CControlButton::OnLeftDown(int, int)
{
    if (disabled) return;
    const bool held = mode == button::ToggleOnPress || mode == button::Momentary;
    const bool gesture = mode != button::Momentary;
    pressed = held;
    if (gesture) BeginEdit();
    SetValue(value == 0.0f || mode == button::Momentary ? 1.0f : 0.0f);
    NotifyChanged(true);
    if (held)
        CaptureMouse(false);
    else
        EndEdit();
}

void CControlButton::OnLeftUp(int, int)
{
    if (!pressed) return;
    pressed = false;
    ReleaseMouse();
    SetDirty(true);
    if (mode != button::Momentary) return EndEdit();
    SetValue(0.0f);
    NotifyChanged(true);
}

void CControlButton::OnTick()
{
    if (mode != button::Led) return;
    const float level = Clamp(fadeLevel + fadeDirection * fadeStep, 0.0f, 1.0f);
    if (level == fadeLevel) return;
    fadeLevel = level;
    SetDirty(true);
}

int CControlButton::Frame()
{
    const bool on = value != 0.0f;
    if (mode != button::ToggleOnPress) return on ? 1 : 0;
    return pressed ? (on ? 1 : 3) : (on ? 2 : 0);
}

void CControlButton::DrawFrameNumber(CDrawBuffer* buffer, int number, float opacity)
{
    const Point source{imageOffset.x, Saturate(imageOffset.y + std::int64_t{number} * rect.h)};
    buffer->DrawBitmapBlended(bitmap, rect, source, opacity);
}

void CControlButton::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    const KeptDrawState kept(buffer);
    DrawPageBehind(buffer);
    if (!bitmap && drawText) {
        buffer->SetFillColor(backgroundColor);
        buffer->FillRect(rect);
    }
    if (mode == button::Led) {
        DrawFrameNumber(buffer, 0, 1.0f - fadeLevel);
        DrawFrameNumber(buffer, 1, fadeLevel);
    } else {
        DrawFrameNumber(buffer, Frame(), 1.0f);
    }
    if (drawText) WriteText(buffer, value != 0.0f ? activeTextColor : textColor);
}

} // namespace korvane
