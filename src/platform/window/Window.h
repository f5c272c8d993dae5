// A window of the editor, as the system supplies it: the toolkit draws and listens through this alone.
#pragma once

#include <cstdint>
#include <string>

#include "platform/window/FileQuestion.h"
#include "platform/window/Geometry.h"
#include "platform/window/WindowEvents.h"

namespace korvane {

/// Pixels in memory: rows bottom-up without padding, 0x00RRGGBB each.
struct PixelView {
    const std::uint32_t* pixels = nullptr;
    Size size;
};

/// What pixels can be shown on.
class PixelSurface {
public:
    /// Shows a rectangle of the image (its y counted from the image's top) with its corner at `target`. Parts that lie
    /// outside the image or the surface are left out. False when nothing could be shown.
    virtual bool Copy(const PixelView& image, Rect source, Point target) = 0;

protected:
    ~PixelSurface() = default;
};

/// Who hears what happens to a window. All calls come on the window's thread, from within Serve, AskForFile or Close;
/// each may close the window.
class WindowListener {
public:
    /// The part must be shown again.
    virtual void OnPaint(PixelSurface& surface, Rect part) = 0;
    /// kind     of mouse::; where the pointer is and which modifiers are held, the window tells
    /// notches  of a wheel, up positive; 0 for the other kinds
    virtual void OnMouse(int kind, int notches) = 0;
    /// A key of key:: goes down or up; held down it goes down once. True when it is used: other presses are handed on
    /// to the host.
    virtual bool OnKey(int code, bool down) = 0;
    virtual void OnTimer() = 0;
    /// A file was dropped where the pointer is; of several the first. The path is as the engine writes paths.
    virtual void OnFileDrop(const char* path) = 0;

protected:
    ~WindowListener() = default;
};

/// A child window of a fixed size in a window of the host's; opens and closes any number of times. Lengths and
/// positions are in the toolkit's pixels, of which the screen may show each as a block.
///
/// Everything belongs to the window's thread, which is the one that calls Open, but for the operations at the end.
class Window : public PixelSurface {
public:
    virtual ~Window() = default;

    /// Shows the window at the parent's top-left corner; the keyboard stays with the host until TakeFocus. False, and
    /// still closed, when the system refuses.
    /// parent    the host's window: its number in the system
    /// listener  hears of everything until Close
    virtual bool Open(void* parent, Size size, WindowListener& listener) = 0;
    /// Also ends a dialog, a grab and the timer; the listener is told that held keys are up. Nothing when closed.
    virtual void Close() = 0;
    /// The window's number in the system; null while closed.
    virtual void* Handle() const = 0;

    /// Waits until something happens, at most so long, and tells the listener of all that has. False when the window is
    /// closed or lost (its parent ended, or the server did; Handle is null then, Close is harmless) or RequestClose was
    /// called.
    virtual bool Serve(int milliseconds) = 0;
    /// OnTimer is called every so many milliseconds from now on, within Serve and AskForFile; what comes too late comes
    /// once. 0: never.
    virtual void StartTimer(int milliseconds) = 0;

    virtual void TakeFocus() = 0;            // of the keyboard
    virtual Point Pointer() const = 0;       // relative to the window, as of the event that is told; (-1, -1) closed
    virtual Point ScreenPointer() const = 0; // the same place on the screen
    virtual Size ScreenSize() const = 0;
    virtual int Modifiers() const = 0; // as of the event that is told

    /// All mouse events come here, wherever the pointer is, until Ungrab. When nothing grants that, HasGrab tells.
    virtual void Grab(bool hidePointer) = 0;
    virtual void Ungrab() = 0; // the pointer is seen again
    virtual bool HasGrab() const = 0;
    /// Moves the pointer to a place of the screen. Answers where it is afterwards: some systems leave it where it was.
    /// Makes no OnMouse of its own.
    virtual Point Warp(Point place) = 0;

    /// The desktop's own file dialog, in front of this window, which goes on painting and ticking meanwhile and hears
    /// neither mouse nor keys; what came up is told afterwards. The chosen path as the engine writes paths; empty when
    /// the user cancels, when the window closes meanwhile or when the desktop has no dialog. Asks before it answers a
    /// file to write that exists; a name without an extension of the filters gets the first one of the chosen filter.
    virtual std::string AskForFile(const FileQuestion& question) = 0;

    // --- any thread

    /// How many pixels of the screen each of the toolkit's takes, across and down: 1..4. Does not change.
    virtual int Scale() const = 0;
    /// Ends the waiting of Serve.
    virtual void Wake() = 0;
    /// Serve and AskForFile come to their end and Serve answers false from now on, until the next Open.
    virtual void RequestClose() = 0;
    /// Takes the window from the screen at once, whatever its thread is doing; that one still has to Close it.
    virtual void Withdraw() = 0;
};

} // namespace korvane
