// The plug-in's window: groups of controls, their back buffer and the page behind them.
#pragma once

#include "gui/controls/CControlGroup.h"
#include "gui/pixels/CBitmapStorage.h"
#include "gui/window/CPluginFrame.h"

namespace korvane {

/// Knows controls and groups, not what their numbers mean. None of them ends inside a call that it makes or hears.
/// Opens and closes any number of times, on the window's thread.
class CPluginUI : public CPluginFrame {
public:
    CPluginUI(std::unique_ptr<Window> platformWindow, void* module, Size editorSize);

    // clang-format off
    void Idle() override;
    void BeginTick() override;
    void EndTick() override;
    void CancelAll() override;
    void PaintRect(PixelSurface* device, Rect part) override;
    void MouseEvent(int x, int y, int modifierBits, int type) override;
    bool DropFile(const char* path, int x, int y) override;
    ~CPluginUI() override;
    virtual void AddGroup(CControlGroup* group);           // takes it
    virtual void RemoveGroup(CControlGroup* group);        // ends it; never the main group
    virtual CControlGroup* FindGroupById(int number);      // of those after the main group, as the next one
    virtual CControlGroup* GetGroupByIndex(int index);
    virtual CControlGroup* GetMainGroup() { return groups; }
    virtual void SetActiveGroup(CControlGroup* group);     // alone gets events and ticks; null: all again
    virtual void AddControl(CControl* control);            // to the main group, which takes it
    virtual CControl* RemoveControl(CControl* control);
    virtual void DrawControl(CControl* control);           // if it is dirty, or the window
    virtual CControl* FindControl(int number);
    virtual CDrawBuffer* GetDrawBuffer() { return &backBuffer; }
    virtual CBitmap* FindBitmap(int number);
    virtual int GetBackgroundId() { return backgroundId; }
    virtual CBitmap* GetBackgroundBitmap() { return FindBitmap(backgroundId); }
    virtual void SetBackground(int number);
    virtual void SetDirty(bool on) { dirty = on; }         // the next tick draws everything
    virtual bool IsDirty() { return dirty; }
    virtual bool LoadBitmapFromFolder(const char* folder, const char* name, int number);
    virtual bool LoadBitmap(const char* path, int number); // whether the image is there
    virtual void RefreshAll();                             // every value from the engine
    virtual void ControlChanged(CControl*) {}              // the user changed it
    virtual bool CreateContent() { return false; }         // false: the window does not open
    virtual float GetParameterValue(CControl*) { return 0.0f; }
    virtual void GetParameterLabel(CControl*, char* text); // texts into 1024 bytes
    virtual void GetParameterDisplay(CControl*, char* text);
    virtual void GetParameterName(CControl*, char* text);
    virtual float GetDefaultValue(CControl*) { return 0.0f; }
    virtual void BeginEdit(CControl*) {}
    virtual void EndEdit(CControl*) {}
    virtual Size GetEditorSize() { return {editorHeight, editorWidth}; }
    virtual bool HasPendingRedraw() { return false; }
    /// parent  the host's window. True when the window is open afterwards, also when it was.
    virtual bool Open(int newHeight, int newWidth, void* parent);
    virtual void Close();
    // clang-format on

    CControlGroup* groups = nullptr; // the first is the main group
    CControlGroup* activeGroup = nullptr;
    CControlGroup* capturingGroup = nullptr;
    Point lastIdlePointer, lastMousePosition;
    CDrawBuffer backBuffer;
    int editorHeight, editorWidth;
    int backgroundId = -1;
    bool dirty = true;
    int timerPeriod = 40; // milliseconds

private:
    void DrawBackground();
    void TickGroups(bool moved);

    CControl* drawnLast = nullptr; // in a tick: covers others, of whatever group
};

} // namespace korvane
