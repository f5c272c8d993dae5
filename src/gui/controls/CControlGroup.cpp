// A page or layer of the editor: its controls in order, and who of them hears an event.
#include "gui/controls/CControlGroup.h"

#include "gui/window/CPluginUI.h"

namespace korvane {

CControlGroup::~CControlGroup() { CControlGroup::Clear(); }

void CControlGroup::AddControl(CControl* control)
{
    CControl** place = &controls;
    for (; *place; place = &(*place)->next)
        if (*place == control) return;
    if (!control) return;
    control->group = this;
    if (window) control->SetValue(window->GetParameterValue(control));
    control->next = nullptr;
    *place = control;
}

CControl* CControlGroup::RemoveControl(CControl* control)
{
    CControl** place = &controls;
    while (*place && *place != control) place = &(*place)->next;
    if (!control || !*place) return nullptr;
    if (capture == control) CancelCapture();
    if (focus == control) SetFocusControl(nullptr);
    CControl* const after = control->next;
    *place = after;
    control->group = nullptr;
    control->Delete();
    if (window) window->SetDirty(true);
    return after;
}

void CControlGroup::Clear()
{
    CancelCapture();
    while (controls) RemoveControl(controls);
}

CControl* CControlGroup::FindControlById(int number)
{
    CControl* control = controls;
    while (control && control->GetId() != number) control = control->next;
    return control;
}

CControl* CControlGroup::GetControlByIndex(int index)
{
    CControl* control = index < 0 ? nullptr : controls;
    for (; control && index > 0; --index) control = control->next;
    return control;
}

CBitmap* CControlGroup::GetBitmap(int number) { return window ? window->FindBitmap(number) : nullptr; }

void CControlGroup::RefreshValues()
{
    if (!window) return;
    window->LockRedraw();
    for (CControl* control = controls; control; control = control->next)
        control->SetValue(window->GetParameterValue(control));
    window->UnlockRedrawPending();
}

void CControlGroup::CancelAll()
{
    for (CControl* control = controls; control; control = control->next) control->CancelInteraction();
    if (capture) Release();
}

void CControlGroup::CancelCapture()
{
    if (capture) capture->CancelInteraction();
    Release(); // also what holds the mouse for nobody
}

bool CControlGroup::DropFile(const char* path, int x, int y)
{
    if (focus) return focus->OnFileDrop(path, x, y);
    for (CControl* control = controls; control; control = control->next)
        if (!control->hidden && control->OnFileDrop(path, x, y)) return true;
    return false;
}

bool CControlGroup::IsActive() { return window && window->activeGroup == this; }

void CControlGroup::SetActive(bool on)
{
    if (window && on != IsActive()) window->SetActiveGroup(on ? this : nullptr);
}

void CControlGroup::SetFocusControl(CControl* control)
{
    if (!control && !focus) return;
    if (!focus) wasActive = IsActive();
    focus = control;
    if (control || !wasActive) SetActive(control); // another group may have become the active one meanwhile
}

void CControlGroup::Delete() { delete this; }

void CControlGroup::MouseEvent(int x, int y, int modifierBits, int type)
{
    modifiers = modifierBits;
    if (window && window->capturingGroup != this) capture = nullptr; // the window has taken it back
    if (type == mouse::Wheel)
        Wheel(x, y);
    else
        Route(capture ? capture : focus ? focus : ControlAt(x, y), x, y, type);
}

CControl* CControlGroup::ControlAt(int x, int y)
{
    CControl* control = controls;
    while (control && (control->hidden || !control->GetRect().Contains(x, y))) control = control->next;
    return control;
}

void CControlGroup::Route(CControl* control, int x, int y, int type)
{
    if (!control) return;
    switch (type) {
    case mouse::LeftDown: return control->OnLeftDown(x, y);
    case mouse::MiddleDown: return control->OnMiddleDown(x, y);
    case mouse::RightDown: return control->OnRightDown(x, y);
    case mouse::LeftUp: return control->OnLeftUp(x, y);
    case mouse::MiddleUp: return control->OnMiddleUp(x, y);
    case mouse::RightUp: return control->OnRightUp(x, y);
    case mouse::Move: return control->OnMouseMove(x, y);
    default: return;
    }
}

void CControlGroup::Wheel(int x, int y)
{
    if (CControl* const holder = focus ? focus : capture) return holder->OnWheel(x, y);
    for (CControl* control = controls; control; control = control->next)
        if (!control->hidden) control->OnWheel(x, y);
}

void CControlGroup::Capture(CControl* control, bool hideCursor)
{
    capture = control;
    if (!window) return;
    window->capturingGroup = this;
    window->CaptureMouse(hideCursor);
}

void CControlGroup::Release()
{
    capture = nullptr;
    if (!window || window->capturingGroup != this) return;
    window->capturingGroup = nullptr;
    window->ReleaseMouse();
}

void CControlGroup::Tick(bool pointerMoved, int x, int y)
{
    DrawBehindFocus();
    for (CControl* control = controls; control; control = control->next) {
        if (control->hidden) control->hovered = false; // also when it is shown again
        if (control->hidden || (focus && control != focus)) continue;
        if (pointerMoved) Hover(*control, x, y);
        control->OnTick();
        if (window) window->DrawControl(control);
    }
}

void CControlGroup::Hover(CControl& control, int x, int y)
{
    const bool inside = control.GetRect().Contains(x, y);
    if (inside == control.hovered) return;
    control.hovered = inside;
    control.OnHoverChanged();
}

/// With the focus goes the sole right to ticks, and what has it may cover the others: they are drawn below it, and only
/// when the whole window is.
void CControlGroup::DrawBehindFocus()
{
    if (!focus || !window || !window->IsDirty()) return;
    for (CControl* control = controls; control; control = control->next)
        if (control != focus && !control->hidden) window->DrawControl(control);
}

void CControlGroup::ControlChanged(CControl* control)
{
    if (window) window->ControlChanged(control);
}

void CControlGroup::GetParameterName(CControl* control, char* text)
{
    if (window) window->GetParameterName(control, text);
}

void CControlGroup::GetParameterDisplay(CControl* control, char* text)
{
    if (window) window->GetParameterDisplay(control, text);
}

void CControlGroup::GetParameterLabel(CControl* control, char* text)
{
    if (window) window->GetParameterLabel(control, text);
}

float CControlGroup::GetDefaultValue(CControl* control) { return window ? window->GetDefaultValue(control) : 0.0f; }

} // namespace korvane
