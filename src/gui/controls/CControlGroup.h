// A page or layer of the editor: its controls in order, and who of them hears an event.
#pragma once

#include "gui/controls/CControl.h"

namespace korvane {

/// Owns its controls. The window's thread. No control ends inside an event, nor the group: an
/// editor changes its content between events.
class CControlGroup {
public:
    explicit CControlGroup(CPluginUI* owner, int number = -1) : window(owner), id(number) {}
    CControlGroup(const CControlGroup&) = delete;

    // clang-format off
    virtual ~CControlGroup();
    virtual int GetId() { return id; }
    virtual void SetId(int number) { id = number; }
    /// Takes the control, gives it its parameter's value and appends it. Nothing when null or already here.
    virtual void AddControl(CControl* control);
    /// Ends the control and answers the one after it; null when it is not of this group.
    virtual CControl* RemoveControl(CControl* control);
    virtual void Clear();                                  // ends all
    virtual CControl* FindControlById(int number);
    virtual CControl* GetControlByIndex(int index);
    virtual CBitmap* GetBitmap(int number);
    virtual void RefreshValues();                          // from the engine
    virtual void CancelAll();                              // every control's interaction
    virtual bool DropFile(const char* path, int x, int y); // whether somebody takes it
    virtual bool IsActive();
    virtual void SetActive(bool on);
    virtual void SetFocusControl(CControl* control);       // null: none
    virtual void Delete();
    /// type  of mouse::; for a wheel, y is the notches
    virtual void MouseEvent(int x, int y, int modifierBits, int type);
    virtual void Capture(CControl* control, bool hideCursor);
    virtual void Release();
    virtual void Tick(bool pointerMoved, int x, int y);
    virtual void OnTickBegin() {}
    virtual void OnTickEnd() {}
    virtual void ControlChanged(CControl* control);
    virtual void GetParameterName(CControl* control, char* text);
    virtual void GetParameterDisplay(CControl* control, char* text);
    virtual void GetParameterLabel(CControl* control, char* text);
    virtual float GetDefaultValue(CControl* control);
    virtual CPluginUI* GetWindow() { return window; }
    // clang-format on
    void CancelCapture(); // ends the interaction of who holds the mouse

    /// The one that an event at this place goes to while nobody holds mouse or focus; null: none.
    CControl* ControlAt(int x, int y);

    CControl* capture = nullptr; // holds the mouse
    CControl* focus = nullptr;   // has the keyboard
    CControlGroup* next = nullptr;
    CControl* controls = nullptr; // the first
    CPluginUI* window;
    int id;
    int modifiers = 0;      // of the last mouse event
    bool wasActive = false; // before a control had the focus

private:
    void Route(CControl* control, int x, int y, int type);
    void Wheel(int x, int y);
    void Hover(CControl& control, int x, int y);
    void DrawBehindFocus();
};

} // namespace korvane
