// A value that is dragged; its text reads it.
#include "gui/controls/CControlNumber.h"

#include "platform/Numbers.h"

namespace korvane {

void CControlNumber::ResetToDefault()
{
    BeginEdit();
    SetValue(GetDefaultValue());
    NotifyChanged(true);
    EndEdit();
}

void CControlNumber::OnLeftDown(int x, int y)
{
    if (IsAltDown()) return ResetToDefault();
    BeginEdit();
    dragFactor = IsCtrlDown() ? fineFactor : 1.0f;
    dragStart = {x, y};
    const float position = 2.0f * value - 1.0f;
    dragOrigin = position > 0.0f ? position + centreDetent : position < 0.0f ? position - centreDetent : 0.0f;
    firstMove = true;
    CaptureMouse(hideCursor);
    SetDirty(true);
}

void CControlNumber::OnMouseMove(int x, int y)
{
    if (!IsCapturing()) return;
    const std::int64_t distance =
        horizontal ? std::int64_t{dragStart.x} - x : std::int64_t{y} - dragStart.y; // against the value's direction
    if (distance == 0) return;
    const float edge = centreDetent;
    if (firstMove && dragOrigin >= -edge && dragOrigin <= edge) dragOrigin = distance < 0 ? edge : -edge;
    firstMove = false;
    float position = dragOrigin - static_cast<float>(distance) * sensitivity * dragFactor;
    position = position >= edge ? position - edge : position <= -edge ? position + edge : 0.0f;
    if (!SetValue(Clamp(position * 0.5f + 0.5f, 0.0f, 1.0f))) return;
    NotifyChanged(true);
    Redraw();
}

void CControlNumber::OnLeftUp(int, int)
{
    if (!IsCapturing()) return;
    EndEdit();
    ReleaseMouse();
    SetDirty(true);
}

void CControlNumber::OnRightDown(int, int) { ResetToDefault(); }

void CControlNumber::Draw(CDrawBuffer* buffer)
{
    if (!buffer) return;
    GetParameterDisplay(text);
    const bool dragged = IsCapturing();
    DrawTextBox(buffer, dragged ? dragBackgroundColor : backgroundColor, dragged ? dragTextColor : textColor);
}

} // namespace korvane
