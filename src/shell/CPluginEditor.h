// What bridges and framework ask of an editor window.
#pragma once

namespace korvane {

/// An editor of one engine. Lives as long as its bridge; its window opens and closes any number of times. All
/// operations belong to the thread that owns the window, ShowParameter and RefreshAll to any.
class CPluginEditor {
public:
    virtual ~CPluginEditor() = default;

    /// Opens the window as a child of the host's. True when it is open afterwards.
    virtual bool Open(void* parent, int height, int width) = 0;
    virtual void Close() = 0;
    virtual void GetEditorSize(int& height, int& width) const = 0;
    /// The window's number in the system, null while closed. Any thread.
    virtual void* Handle() const = 0;
    /// Shows the new value of the control bound to a parameter.
    virtual void ShowParameter(int index, float value) = 0;
    virtual void RefreshAll() = 0;
};

} // namespace korvane
