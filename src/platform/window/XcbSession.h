// An open window: from its opening to its closing it waits for the server and tells the listener.
#pragma once

#include <atomic>
#include <chrono>
#include <deque>
#include <memory>

#include "platform/window/XcbConnection.h"
#include "platform/window/XcbDrop.h"
#include "platform/window/XcbDropProxy.h"
#include "platform/window/XcbFocus.h"
#include "platform/window/XcbImage.h"
#include "platform/window/XcbKeyboard.h"
#include "platform/window/XcbPointer.h"

namespace korvane {

using XcbEvent = XcbAnswer<xcb_generic_event_t>;

/// Stays in memory, ended, while one of its own calls to the listener is on the way. The window's thread.
class XcbSession {
public:
    struct Frame {
        xcb_window_t window, parent;
        XcbVisual visual;
        Size size; // in the toolkit's pixels
        int scale;
    };

    /// closing  another thread wants the end
    XcbSession(std::unique_ptr<XcbConnection> connection, const Frame& frame, WindowListener& listener,
               const std::atomic<bool>& closing);

    /// Gives back what the window has, and ends it.
    void End();
    /// False when it ended, whoever did that.
    bool Lives() const { return !ended && !lost; }
    bool Runs() const { return Lives() && !closing; }
    /// Until something happens, at most so long.
    /// wake     an eventfd, which is emptied
    /// another  descriptor that may become readable; -1: none
    void Wait(int milliseconds, int wake, int another);
    /// All that has happened.
    void TellAll();
    void StartTimer(int milliseconds);
    /// The listener hears that every key it knows to be held has come up.
    void TellKeysUp();

    const std::unique_ptr<XcbConnection> connection;
    const xcb_window_t window;
    xcb_window_t parent;
    XcbImage image;
    XcbPointer pointer;
    XcbFocus focus;
    xcb_timestamp_t time = XCB_CURRENT_TIME; // of the last key or button
    bool asking = false;                     // a dialog has the user's attention: no mouse, no keys, no drops

private:
    using Clock = std::chrono::steady_clock;

    int PollTime(int milliseconds) const;
    void Fetch();
    void Tell(const xcb_generic_event_t& event);
    void TellMotion(const xcb_motion_notify_event_t& event);
    void TellButton(const xcb_button_press_event_t& event);
    void TellPress(int button, bool down);
    void TellUnheard();
    void TellKey(const xcb_key_press_event_t& event);
    void TellFocus(const xcb_focus_in_event_t& event);
    void TellDrop(const xcb_selection_notify_event_t& event);
    void TellPaint();
    void TellTimer();
    bool TakeChange(const xcb_generic_event_t& event);
    void Expose(const xcb_expose_event_t& event);
    bool IsRepeat(const xcb_key_press_event_t& release) const;

    WindowListener& listener;
    const std::atomic<bool>& closing;
    const int scale;
    XcbKeyboard keyboard;
    XcbDrop drop;
    XcbDropProxy dropProxy;
    std::deque<XcbEvent> events; // have come and were not told yet
    bool moved = false;          // the pointer has, and nobody was told
    int pressed = 0;             // bits: the buttons whose press was told
    int unheardUp = 0;           // those of them that came up beside a dialog
    Rect exposed;                // what must be shown again, in the server's pixels
    int period = 0;              // of the timer, milliseconds; 0: none
    Clock::time_point due;
    bool ended = false, lost = false;
};

} // namespace korvane
