// A window of the desktop's for one editor.
#pragma once

#include <string>

#include <xcb/xcb.h>

namespace korvane::window {

/// Has the size that it is given and no other. One thread.
class HostWindow {
public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;

    /// Whether there is a display to show anything on.
    bool HasDisplay() const { return xcb_connection_has_error(connection) == 0; }
    void Open(int height, int width, const std::string& title);
    /// What a plug-in takes as its parent.
    void* Handle() const { return reinterpret_cast<void*>(static_cast<std::uintptr_t>(window)); }
    /// Returns when the user closes it, when the display is lost or when the descriptor has something to read.
    void Wait(int descriptor);

private:
    xcb_atom_t Atom(const char* name) const;
    void SetTitle(const std::string& title) const;
    void FixSize(int height, int width) const;
    bool AskedToClose() const; // among the events that have come

    xcb_connection_t* const connection; // never null
    xcb_window_t window = XCB_NONE;
    xcb_atom_t deleteWindow = XCB_NONE;
};

} // namespace korvane::window
