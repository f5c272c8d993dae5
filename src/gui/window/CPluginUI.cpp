// The plug-in's window: opening, routing of events, the tick and what it draws.
#include "gui/window/CPluginUI.h"

#include <cstring>
#include <string>
#include <utility>

namespace korvane {

CPluginUI::CPluginUI(std::unique_ptr<Window> platformWindow, void* module, Size editorSize)
    : CPluginFrame(std::move(platformWindow), module), editorHeight(editorSize.height), editorWidth(editorSize.width)
{
    backBuffer.SetFrameColor(kBlack);
    backBuffer.SetTextColor(kBlack);
    backBuffer.SetFillColor(kBlack);
}

CPluginUI::~CPluginUI() { CPluginUI::Close(); }

bool CPluginUI::Open(int newHeight, int newWidth, void* parent)
{
    if (windowHandle) return true;
    if (!OpenWindow(newHeight, newWidth, parent)) return false;
    bool opened = backBuffer.Create(newHeight, newWidth, false);
    if (opened) {
        lastIdlePointer = lastMousePosition = PointerPosition();
        groups = new CControlGroup(this);
        opened = CreateContent();
    }
    if (!opened) {
        Close();
        return false;
    }
    RefreshAll();
    Idle();
    StartTimer(timerPeriod);
    return true;
}

void CPluginUI::Close()
{
    CloseWindow();
    activeGroup = capturingGroup = nullptr;
    while (groups) {
        CControlGroup* group = groups;
        groups = group->next;
        group->Delete();
    }
    backgroundId = -1;
}

void CPluginUI::PaintRect(PixelSurface* device, Rect part)
{
    backBuffer.BlitToDevice(device, part.x, part.y, part.w, part.h, part.x, part.y);
}

// Groups

void CPluginUI::AddGroup(CControlGroup* group)
{
    if (!group) return;
    CControlGroup** end = &groups;
    for (; *end; end = &(*end)->next)
        if (*end == group) return;
    group->next = nullptr;
    *end = group;
    SetDirty(true);
}

void CPluginUI::RemoveGroup(CControlGroup* group)
{
    if (!group || !groups) return;
    CControlGroup** link = &groups->next; // the main group stays
    while (*link && *link != group) link = &(*link)->next;
    if (!*link) return;
    if (capturingGroup == group) group->CancelCapture();
    *link = group->next;
    group->Delete();
    if (activeGroup == group) activeGroup = nullptr;
    SetDirty(true);
}

CControlGroup* CPluginUI::FindGroupById(int number)
{
    CControlGroup* group = groups ? groups->next : nullptr;
    while (group && group->GetId() != number) group = group->next;
    return group;
}

CControlGroup* CPluginUI::GetGroupByIndex(int index)
{
    CControlGroup* group = groups && index >= 0 ? groups->next : nullptr;
    for (; group && index > 0; --index) group = group->next;
    return group;
}

void CPluginUI::SetActiveGroup(CControlGroup* group)
{
    if (capturingGroup) capturingGroup->CancelCapture();
    ReleaseMouse();
    capturingGroup = nullptr;
    activeGroup = group;
}

void CPluginUI::AddControl(CControl* control)
{
    if (groups) groups->AddControl(control);
}

CControl* CPluginUI::RemoveControl(CControl* control) { return groups ? groups->RemoveControl(control) : nullptr; }

CControl* CPluginUI::FindControl(int number)
{
    for (CControlGroup* group = groups; group; group = group->next)
        if (CControl* control = group->FindControlById(number)) return control;
    return nullptr;
}

// Events and ticks

void CPluginUI::MouseEvent(int x, int y, int modifierBits, int type)
{
    if (type != mouse::Wheel) lastMousePosition = {x, y};
    if (CControlGroup* only = capturingGroup ? capturingGroup : activeGroup) {
        only->MouseEvent(x, y, modifierBits, type);
        return;
    }
    for (CControlGroup* group = groups; group; group = group->next) group->MouseEvent(x, y, modifierBits, type);
}

bool CPluginUI::DropFile(const char* path, int x, int y)
{
    if (activeGroup) return activeGroup->DropFile(path, x, y);
    for (CControlGroup* group = groups; group; group = group->next)
        if (group->DropFile(path, x, y)) return true;
    return false;
}

void CPluginUI::CancelAll()
{
    for (CControlGroup* group = groups; group; group = group->next) group->CancelAll();
    ReleaseMouse();
}

void CPluginUI::BeginTick()
{
    for (CControlGroup* group = groups; group; group = group->next) group->OnTickBegin();
}

void CPluginUI::EndTick()
{
    for (CControlGroup* group = groups; group; group = group->next) group->OnTickEnd();
}

void CPluginUI::Idle()
{
    if (mouseCaptured && !Platform().HasGrab()) CancelAll();
    bool moved = false;
    if (!mouseCaptured) {
        const Point pointer = PointerPosition();
        moved = pointer != lastIdlePointer;
        lastIdlePointer = pointer;
    }
    CControl* const holder = capturingGroup ? capturingGroup->capture : nullptr;
    if (holder && holder->hidden) holder->CancelInteraction(); // nobody sees it any more
    const bool whole = dirty;
    if (whole) DrawBackground();
    TickGroups(moved);
    if (dirty || HasPendingRedraw()) {
        dirty = dirty && !whole; // what became dirty within this tick has no page behind it yet
        RedrawAll();
    }
}

void CPluginUI::DrawBackground()
{
    backBuffer.ResetClipRect();
    backBuffer.DrawBitmap(GetBackgroundBitmap(), {0, 0, width, height}, {0, 0});
}

void CPluginUI::TickGroups(bool moved)
{
    const auto [x, y] = lastIdlePointer;
    CControl* const holder = capturingGroup ? capturingGroup->capture : nullptr;
    drawnLast = holder && holder->CoversOthers() ? holder : nullptr;
    if (drawnLast) LockRedraw(); // one copy shows what changes below it and itself
    if (activeGroup)
        activeGroup->Tick(moved, x, y);
    else
        for (CControlGroup* group = groups; group; group = group->next) group->Tick(moved, x, y);
    CControl* const last = std::exchange(drawnLast, nullptr);
    if (!last) return;
    if (redrawPending) last->SetDirty(true);
    DrawControl(last);
    UnlockRedrawPending();
}

void CPluginUI::DrawControl(CControl* control)
{
    if (!control || control == drawnLast || !(control->IsDirty() || dirty)) return;
    control->Draw(&backBuffer);
    control->SetDirty(false);
    if (!dirty) RedrawRect(control->GetRect());
}

// Pages and images

CBitmap* CPluginUI::FindBitmap(int number) { return Bitmaps().FindBitmap(number); }

void CPluginUI::SetBackground(int number)
{
    if (number == backgroundId) return;
    backgroundId = number;
    SetDirty(true);
}

bool CPluginUI::LoadBitmapFromFolder(const char* folder, const char* name, int number)
{
    if (!folder || !name) return false;
    std::string path = folder;
    if (path.empty() || path.back() != '\\') path += '\\';
    return LoadBitmap((path + name).c_str(), number);
}

bool CPluginUI::LoadBitmap(const char* path, int number) { return Bitmaps().LoadBitmap(path, number); }

// Values

void CPluginUI::RefreshAll()
{
    if (activeGroup) {
        activeGroup->RefreshValues();
        return;
    }
    LockRedraw();
    for (CControlGroup* group = groups; group; group = group->next) group->RefreshValues();
    SetDirty(true);
    UnlockRedraw(false);
}

void CPluginUI::GetParameterLabel(CControl*, char* text) { std::strcpy(text, "undefined"); }
void CPluginUI::GetParameterDisplay(CControl*, char* text) { std::strcpy(text, "undefined"); }
void CPluginUI::GetParameterName(CControl*, char* text) { std::strcpy(text, "undefined"); }

} // namespace korvane
