// What all controls have in common: their way to group, window and engine.
#include "gui/controls/CControl.h"

#include <cstring>

#include "gui/controls/CControlGroup.h"
#include "gui/window/CPluginUI.h"

namespace korvane {

bool CControl::SetValue(float newValue)
{
    if (newValue == value || newValue != newValue) return false;
    value = newValue;
    dirty = true;
    return true;
}

void CControl::NotifyChanged(bool notify)
{
    if (notify && group) group->ControlChanged(this);
}

void CControl::Delete()
{
    if (group)
        group->RemoveControl(this);
    else
        delete this;
}

CBitmap* CControl::GetBackgroundBitmap()
{
    CPluginUI* const window = GetWindow();
    return window ? window->GetBackgroundBitmap() : nullptr;
}

CDrawBuffer* CControl::GetDrawBuffer()
{
    CPluginUI* const window = GetWindow();
    return window ? window->GetDrawBuffer() : nullptr;
}

Size CControl::GetEditorSize()
{
    CPluginUI* const window = GetWindow();
    return window ? window->GetEditorSize() : Size{100, 100};
}

void CControl::InvalidateAll()
{
    if (CPluginUI* const window = GetWindow()) window->SetDirty(true);
}

void CControl::InvalidateRect(Rect part)
{
    if (CPluginUI* const window = GetWindow()) window->RedrawRect(part);
}

CPluginUI* CControl::GetWindow() { return group ? group->GetWindow() : nullptr; }

void CControl::Redraw()
{
    SetDirty(true);
    CPluginUI* const window = GetWindow();
    if (window && !hidden) window->DrawControl(this);
}

void CControl::SetFocus(bool on)
{
    if (group) group->SetFocusControl(on ? this : nullptr);
}

void CControl::GetParameterLabel(char* text)
{
    std::strcpy(text, "undefined");
    if (group) group->GetParameterLabel(this, text);
}

void CControl::GetParameterDisplay(char* text)
{
    std::strcpy(text, "undefined");
    if (group) group->GetParameterDisplay(this, text);
}

void CControl::GetParameterName(char* text)
{
    std::strcpy(text, "undefined");
    if (group) group->GetParameterName(this, text);
}

float CControl::GetDefaultValue() { return group ? group->GetDefaultValue(this) : 0.0f; }

void CControl::CaptureMouse(bool hideCursor)
{
    if (group) group->Capture(this, hideCursor);
}

void CControl::ReleaseMouse()
{
    if (group && group->capture == this) group->Release();
}

bool CControl::IsCapturing()
{
    CPluginUI* const window = GetWindow();
    return window && group->capture == this && window->IsMouseCaptured();
}

void CControl::CancelInteraction()
{
    OnLeftUp(-1, -1);
    OnRightUp(-1, -1);
    OnMiddleUp(-1, -1);
}

void CControl::EndEdit()
{
    if (CPluginUI* const window = GetWindow()) window->EndEdit(this);
}

void CControl::BeginEdit()
{
    if (CPluginUI* const window = GetWindow()) window->BeginEdit(this);
}

bool CControl::IsCtrlDown() { return group && group->modifiers & modifier::Ctrl; }

bool CControl::IsAltDown() { return group && group->modifiers & modifier::Alt; }

bool CControl::IsShiftDown() { return group && group->modifiers & modifier::Shift; }

Point CControl::GetMousePosition()
{
    CPluginUI* const window = GetWindow();
    return window ? window->lastMousePosition : Point{-1, -1};
}

void CControl::DrawPage(CDrawBuffer* buffer, Rect part)
{
    if (buffer) buffer->DrawBitmap(GetBackgroundBitmap(), part, {part.x, part.y});
}

void CControl::ShowDrawn(Rect part)
{
    CPluginUI* const window = GetWindow();
    if (window && !window->IsDirty()) InvalidateRect(part); // a dirty window is shown as a whole when its tick ends
}

} // namespace korvane
