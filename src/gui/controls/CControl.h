// The contract that every control of the editor keeps.
#pragma once

#include "gui/pixels/CDrawBuffer.h"

namespace korvane {

class CControlGroup;
class CPluginUI;

/// Something on the screen with a rectangle and, mostly, a value that belongs to a parameter. Its owner is the group
/// that it was added to. Everything happens on the window's thread. Without group, window, bitmap or buffer the
/// operations that need them do nothing, or answer as told. No control or group ends inside a call that it makes or
/// hears: an editor changes its content between events.
class CControl {
public:
    /// place   in the window
    /// number  the parameter that it is bound to; -1: none
    CControl(Rect place, int number) : rect(place), id(number) {}
    CControl(const CControl&) = delete;

    // clang-format off
    virtual bool IsDirty() { return dirty; }
    virtual void SetDirty(bool on) { dirty = on; }
    /// Whether that changed it; NaN changes nothing. The engine hears of it by NotifyChanged only.
    virtual bool SetValue(float newValue);
    virtual float GetValue() { return value; }
    virtual void SetRect(int x, int y, int w, int h) { rect = {x, y, w, h}; }
    virtual Rect GetRect() { return rect; }
    virtual void SetId(int number) { id = number; }
    virtual int GetId() { return id; }
    /// true: window and engine hear of the value.
    virtual void NotifyChanged(bool notify);
    virtual void Delete();                                 // the control ends
    virtual CBitmap* GetBackgroundBitmap();                // of the page that is shown
    virtual CDrawBuffer* GetDrawBuffer();                  // the window's back buffer
    virtual Size GetEditorSize();                          // (100, 100) without a window
    virtual void InvalidateAll();                          // the window is drawn anew on its next tick
    virtual void InvalidateRect(Rect part);                // the part is shown again, as it was drawn
    virtual CPluginUI* GetWindow();
    virtual CControlGroup* GetGroup() { return group; }
    virtual void Redraw();                                 // now
    virtual void SetFocus(bool on);                        // of the group: alone hears keys, events and ticks
    /// Texts into 1024 bytes; "undefined" when nobody knows.
    virtual void GetParameterLabel(char* text);
    virtual void GetParameterDisplay(char* text);
    virtual void GetParameterName(char* text);
    virtual float GetDefaultValue();
    /// Every mouse event comes here until ReleaseMouse, but the wheel goes to a focus first; hidden, the pointer has no
    /// end of the screen.
    virtual void CaptureMouse(bool hideCursor);
    virtual void ReleaseMouse();
    virtual bool IsCapturing();
    virtual void CancelInteraction();                      // as if all buttons were let go
    virtual void EndEdit();                                // of a gesture, as the host hears of it
    virtual void BeginEdit();
    virtual bool IsHovered() { return hovered; }
    virtual bool IsCtrlDown();                             // as of the last mouse event
    virtual bool IsAltDown();
    virtual bool IsShiftDown();
    virtual void OnLeftDown(int, int) {}                   // x, y in the window
    virtual void OnLeftUp(int, int) {}
    virtual void OnMiddleDown(int, int) {}
    virtual void OnMiddleUp(int, int) {}
    virtual void OnRightDown(int, int) {}
    virtual void OnRightUp(int, int) {}
    virtual void OnMouseMove(int, int) {}
    virtual void OnWheel(int, int) {}                      // 0, notches, up positive
    virtual void Draw(CDrawBuffer*) {}
    virtual void OnTick() {}
    virtual void OnHoverChanged() { dirty = true; }
    virtual bool OnFileDrop(const char*, int, int) { return false; } // whether it takes the file
    virtual Point GetMousePosition();                      // (-1, -1) without a window
    /// Draws beyond its rectangle while it holds the mouse: above all others of its group.
    virtual bool CoversOthers() { return false; }
    // clang-format on
    virtual ~CControl() = default;

    Rect rect;
    int id;
    float value = 0.0f; // 0..1 of a parameter, an index of a list
    bool hidden = false;
    bool hovered = false; // the pointer is inside the rectangle
    bool dirty = true;    // to be drawn
    CControl* next = nullptr;
    CControlGroup* group = nullptr; // null until added

protected:
    /// Draws the part of the page's background that lies under a rectangle.
    void DrawPage(CDrawBuffer* buffer, Rect part);
    /// Shows what Draw has drawn outside of the control's own rectangle.
    void ShowDrawn(Rect part);
};

} // namespace korvane
