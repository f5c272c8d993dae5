// The window's loop.
#include "platform/window/XcbSession.h"

#include <algorithm>
#include <poll.h>
#include <unistd.h>
#include <utility>

#include "platform/Files.h"
#include "platform/window/XcbChild.h"

namespace korvane {

static int KindOf(const xcb_generic_event_t& event) { return event.response_type & 0x7F; }

template <class Event>
static const Event& As(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Event&>(event);
}

XcbSession::XcbSession(std::unique_ptr<XcbConnection> theConnection, const Frame& frame, WindowListener& theListener,
                       const std::atomic<bool>& closingFlag)
    : connection(std::move(theConnection)), window(frame.window), parent(frame.parent),
      image(*connection, window, frame.visual, frame.size, frame.scale), pointer(*connection, window),
      focus(*connection, window), listener(theListener), closing(closingFlag), scale(frame.scale),
      keyboard(*connection, window, parent, pointer, theListener),
      drop(*connection, window, {frame.size.height * scale, frame.size.width * scale}), dropProxy(*connection, window)
{
    dropProxy.Install(connection->TopLevel(parent));
}

void XcbSession::End()
{
    if (!connection->Lost()) dropProxy.Remove(); // the top-level window may outlive ours
    if (Lives() && !connection->Lost()) {
        focus.GiveBack(parent);
        pointer.Ungrab();
        connection->ErrorOf(xcb_destroy_window_checked(*connection, window)); // has gone when we return
    }
    ended = true;
}

void XcbSession::TellKeysUp()
{
    keyboard.AllUp();
    keyboard.TellUnheard();
}

void XcbSession::StartTimer(int milliseconds)
{
    period = std::max(milliseconds, 0);
    due = Clock::now() + std::chrono::milliseconds(period);
}

int XcbSession::PollTime(int milliseconds) const
{
    const long long longest = events.empty() ? std::max(milliseconds, 0) : 0;
    if (period == 0) return static_cast<int>(longest);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(due - Clock::now()).count();
    return static_cast<int>(std::clamp<long long>(left, 0, longest));
}

void XcbSession::Wait(int milliseconds, int wake, int another)
{
    xcb_flush(*connection);
    Fetch();
    pollfd sources[] = {{xcb_get_file_descriptor(*connection), POLLIN, 0}, {wake, POLLIN, 0}, {another, POLLIN, 0}};
    poll(sources, std::size(sources), lost ? 0 : PollTime(milliseconds));
    std::uint64_t count = 0;
    [[maybe_unused]] const auto got = read(wake, &count, sizeof count);
    Fetch();
}

void XcbSession::Fetch()
{
    constexpr std::size_t kMany = 1000; // the timer must have its turn
    while (events.size() < kMany) {
        XcbEvent event(xcb_poll_for_event(*connection));
        if (!event) break;
        events.push_back(std::move(event));
    }
    lost = lost || connection->Lost();
}

void XcbSession::TellAll()
{
    if (!asking) TellUnheard();
    while (Runs() && !events.empty()) {
        const XcbEvent event = std::move(events.front());
        events.pop_front();
        Tell(*event);
    }
    TellPaint();
    TellTimer();
}

void XcbSession::Tell(const xcb_generic_event_t& event)
{
    if (keyboard.keys.TakeChange(event) || TakeChange(event)) return;
    switch (KindOf(event)) {
    case XCB_EXPOSE: return Expose(As<xcb_expose_event_t>(event));
    case XCB_MOTION_NOTIFY: return TellMotion(As<xcb_motion_notify_event_t>(event));
    case XCB_ENTER_NOTIFY:
    case XCB_LEAVE_NOTIFY:
        pointer.TakeCrossing(As<xcb_enter_notify_event_t>(event));
        return TellMotion(As<xcb_motion_notify_event_t>(event));
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE: return TellButton(As<xcb_button_press_event_t>(event));
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE: return TellKey(As<xcb_key_press_event_t>(event));
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT: return TellFocus(As<xcb_focus_in_event_t>(event));
    case XCB_CLIENT_MESSAGE: return drop.TakeMessage(As<xcb_client_message_event_t>(event), !asking);
    case XCB_SELECTION_NOTIFY: return TellDrop(As<xcb_selection_notify_event_t>(event));
    default: return; // errors too: a request without a check may fail
    }
}

/// What happens to the windows themselves.
bool XcbSession::TakeChange(const xcb_generic_event_t& event)
{
    if (KindOf(event) == XCB_DESTROY_NOTIFY) {
        const xcb_window_t destroyed = As<xcb_destroy_notify_event_t>(event).window;
        lost = lost || destroyed == window || destroyed == parent;
    } else if (KindOf(event) == XCB_UNMAP_NOTIFY) {
        pointer.LoseGrab();
    } else if (KindOf(event) == XCB_PROPERTY_NOTIFY) {
        dropProxy.TakeChange(As<xcb_property_notify_event_t>(event));
    } else if (KindOf(event) == XCB_REPARENT_NOTIFY && As<xcb_reparent_notify_event_t>(event).window == window) {
        parent = As<xcb_reparent_notify_event_t>(event).parent;
        lost = lost || parent == connection->screen->root; // where windows go whose host in another process ended
        ListenToParent(*connection, parent);
        dropProxy.Install(connection->TopLevel(parent));
    } else {
        return false;
    }
    return true;
}

/// Several motions at once are one. Who only leaves is told nothing, but has moved once there is a motion.
void XcbSession::TellMotion(const xcb_motion_notify_event_t& event)
{
    const int next = events.empty() ? 0 : KindOf(*events.front());
    moved = pointer.Take(event) || moved;
    if (!moved || next == XCB_MOTION_NOTIFY || (event.response_type & 0x7F) == XCB_LEAVE_NOTIFY) return;
    moved = false;
    if (!asking) listener.OnMouse(mouse::Move, 0);
}

void XcbSession::TellButton(const xcb_button_press_event_t& event)
{
    const bool down = (event.response_type & 0x7F) == XCB_BUTTON_PRESS;
    pointer.Take(reinterpret_cast<const xcb_motion_notify_event_t&>(event));
    pointer.TakeButton(event, down);
    time = event.time;
    if (event.detail >= 1 && event.detail <= 3)
        TellPress(event.detail - 1, down);
    else if (!asking && down && (event.detail == 4 || event.detail == 5))
        listener.OnMouse(mouse::Wheel, event.detail == 4 ? 1 : -1);
}

/// Whose press was told hears of the release, if need be when the dialog is over that the press has opened.
void XcbSession::TellPress(int button, bool down)
{
    const int bit = 1 << button;
    if (asking) {
        if (!down) unheardUp |= pressed & bit;
        return;
    }
    pressed = down ? pressed | bit : pressed & ~bit;
    listener.OnMouse((down ? mouse::LeftDown : mouse::LeftUp) + button, 0);
}

void XcbSession::TellUnheard()
{
    keyboard.TellUnheard();
    for (int button = 0; button < 3; ++button)
        if (std::exchange(unheardUp, unheardUp & ~(1 << button)) & 1 << button) TellPress(button, false);
}

/// A server that cannot keep it to itself tells of each repetition as a release and a press at the same time.
bool XcbSession::IsRepeat(const xcb_key_press_event_t& release) const
{
    if (keyboard.keys.RepeatsWithoutReleases() || events.empty() || KindOf(*events.front()) != XCB_KEY_PRESS)
        return false;
    const auto& next = As<xcb_key_press_event_t>(*events.front());
    return next.detail == release.detail && next.time == release.time;
}

void XcbSession::TellKey(const xcb_key_press_event_t& event)
{
    const bool isSent = (event.response_type & 0x80) != 0; // by a host that keeps the keyboard itself
    const bool down = (event.response_type & 0x7F) == XCB_KEY_PRESS;
    pointer.Take(reinterpret_cast<const xcb_motion_notify_event_t&>(event));
    time = event.time;
    if (!down && IsRepeat(event)) return;
    if (down && !asking) keyboard.Down(event, focus.has || isSent);
    if (!down && !asking) keyboard.Up(event);
    if (!down && asking) keyboard.UpUnheard(event);
}

void XcbSession::TellFocus(const xcb_focus_in_event_t& event)
{
    focus.TakeChange(event);
    if (KindOf(reinterpret_cast<const xcb_generic_event_t&>(event)) == XCB_FOCUS_OUT) keyboard.AllUp();
    if (!asking) keyboard.TellUnheard();
}

void XcbSession::TellDrop(const xcb_selection_notify_event_t& event)
{
    const std::string path = drop.TakeData(event);
    if (path.empty() || asking) return;
    pointer.MoveTo(drop.place, drop.screenPlace);
    listener.OnFileDrop(EnginePath(path.c_str()).c_str());
}

void XcbSession::Expose(const xcb_expose_event_t& event)
{
    const Rect old = exposed.w > 0 ? exposed : Rect{event.x, event.y, event.width, event.height};
    exposed.x = std::min<int>(old.x, event.x);
    exposed.y = std::min<int>(old.y, event.y);
    exposed.w = std::max(old.x + old.w, event.x + event.width) - exposed.x;
    exposed.h = std::max(old.y + old.h, event.y + event.height) - exposed.y;
}

void XcbSession::TellPaint()
{
    if (!Runs() || exposed.w < 1) return;
    const Rect part = exposed;
    exposed = {};
    const int x = part.x / scale, y = part.y / scale;
    const int right = (part.x + part.w + scale - 1) / scale, bottom = (part.y + part.h + scale - 1) / scale;
    listener.OnPaint(image, {x, y, right - x, bottom - y});
}

void XcbSession::TellTimer()
{
    const auto now = Clock::now();
    if (!Runs() || period == 0 || now < due) return;
    due += std::chrono::milliseconds(period);
    if (due <= now) due = now + std::chrono::milliseconds(period);
    listener.OnTimer();
}

} // namespace korvane
