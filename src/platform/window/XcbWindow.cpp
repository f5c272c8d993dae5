// Opens and closes the window, and what other threads may do to it.
#include "platform/window/XcbWindow.h"

#include <algorithm>
#include <climits>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include "platform/window/DisplayScale.h"
#include "platform/window/FileDialog.h"
#include "platform/window/XcbChild.h"

namespace korvane {

static int FloorDivide(int value, int divisor) { return (value - (value < 0 ? divisor - 1 : 0)) / divisor; }

static Point Divided(Point place, int divisor)
{
    return {FloorDivide(place.x, divisor), FloorDivide(place.y, divisor)};
}

XcbWindow::XcbWindow() : wakeDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

XcbWindow::~XcbWindow()
{
    End(); // the listener may be gone
    if (wakeDescriptor >= 0) close(wakeDescriptor);
}

bool XcbWindow::Refuse(const char* what)
{
    lastError = what;
    return false;
}

bool XcbWindow::Open(void* parent, Size size, WindowListener& listener)
{
    Close();
    closing = false;
    lastError.clear();
    {
        const std::lock_guard hold(guard);
        withdrawn = false;
    }
    const int factor = Scale(), largest = SHRT_MAX / factor;
    const auto number = reinterpret_cast<std::uintptr_t>(parent);
    if (wakeDescriptor < 0) return Refuse("no descriptor is left");
    if (size.width < 1 || size.height < 1 || size.width > largest || size.height > largest)
        return Refuse("no window has this size");
    if (number == 0 || number > UINT32_MAX) return Refuse("the parent is no window");

    auto connection = std::make_unique<XcbConnection>();
    if (!connection->screen) return Refuse("no connection to the display server");
    XcbSession::Frame frame = {XCB_NONE, static_cast<xcb_window_t>(number), {}, size, factor};
    frame.visual = FindVisual(xcb_get_setup(*connection), connection->screen);
    if (frame.visual.id == XCB_NONE) return Refuse("the screen has no true colours");
    frame.window =
        CreateChild(*connection, frame.parent, frame.visual, {size.height * factor, size.width * factor}, lastError);
    if (frame.window == XCB_NONE) return false;
    const auto next = std::make_shared<XcbSession>(std::move(connection), frame, listener, closing);
    if (next->connection->Lost()) return Refuse("the connection to the display server ended");
    Publish(next);
    return true;
}

/// From here on Withdraw finds the window.
void XcbWindow::Publish(std::shared_ptr<XcbSession> next)
{
    const std::lock_guard hold(guard);
    session = std::move(next);
    const XcbConnection& connection = *session->connection;
    if (!withdrawn) connection.ErrorOf(xcb_map_window_checked(connection, session->window)); // seen when we return
}

void XcbWindow::Close()
{
    const auto closed = session; // the listener, too, may close it, and open another one
    if (closed) closed->TellKeysUp();
    if (closed == session) End();
}

void XcbWindow::End()
{
    if (!session) return;
    session->End();
    std::shared_ptr<XcbSession> ended;
    const std::lock_guard hold(guard);
    ended = std::move(session);
}

void* XcbWindow::Handle() const
{
    return Living() ? reinterpret_cast<void*>(std::uintptr_t{session->window}) : nullptr;
}

bool XcbWindow::Serve(int milliseconds)
{
    const auto served = session; // outlives a Close by the listener
    if (!served || !served->Runs()) return false;
    served->Wait(milliseconds, wakeDescriptor, -1);
    served->TellAll();
    if (!served->Lives()) served->TellKeysUp(); // nobody else would tell
    return session && session->Runs();
}

void XcbWindow::StartTimer(int milliseconds)
{
    if (session) session->StartTimer(milliseconds);
}

void XcbWindow::TakeFocus()
{
    if (XcbSession* const living = Living()) living->focus.Take(living->time);
}

Point XcbWindow::Pointer() const { return Living() ? Divided(session->pointer.place, scale) : Point{-1, -1}; }

Point XcbWindow::ScreenPointer() const
{
    return Living() ? Divided(session->pointer.screenPlace, scale) : Point{-1, -1};
}

Size XcbWindow::ScreenSize() const
{
    if (!Living()) return {};
    const xcb_screen_t& screen = *session->connection->screen;
    return {(screen.height_in_pixels + scale - 1) / scale, (screen.width_in_pixels + scale - 1) / scale};
}

int XcbWindow::Modifiers() const { return Living() ? session->pointer.modifiers : 0; }

void XcbWindow::Grab(bool hidePointer)
{
    if (XcbSession* const living = Living()) living->pointer.Grab(hidePointer);
}

void XcbWindow::Ungrab()
{
    if (XcbSession* const living = Living()) living->pointer.Ungrab();
}

bool XcbWindow::HasGrab() const { return Living() && session->pointer.HasGrab(); }

Point XcbWindow::Warp(Point place)
{
    const auto scaled = [this](int value) { return std::clamp(value, SHRT_MIN, SHRT_MAX) * scale; };
    XcbSession* const living = Living();
    if (!living) return {-1, -1};
    const Point hiddenAt = living->pointer.hiddenAt; // within its block, too, the pointer comes back to where it was
    const bool comesBack = place == Divided(hiddenAt, scale);
    return Divided(living->pointer.Warp(comesBack ? hiddenAt : Point{scaled(place.x), scaled(place.y)}), scale);
}

bool XcbWindow::Copy(const PixelView& image, Rect source, Point target)
{
    return Living() && session->image.Copy(image, source, target);
}

void XcbWindow::StopSharing()
{
    if (session) session->image.StopSharing();
}

std::string XcbWindow::AskForFile(const FileQuestion& question)
{
    constexpr int kLook = 50; // milliseconds between two looks after a dialog that says nothing
    const auto asker = session;
    if (!asker || !asker->Runs() || asker->asking) return {};
    asker->pointer.Ungrab(); // or the dialog would have none
    asker->asking = true;
    FileDialog dialog(question, asker->connection->TopLevel(asker->parent));
    for (bool goes = true; goes && asker->Runs();) {
        goes = dialog.Goes();
        asker->Wait(goes ? kLook : 0, wakeDescriptor, dialog.Descriptor());
        asker->TellAll(); // at last what came while the dialog was still there
    }
    asker->asking = false;
    return asker->Runs() ? dialog.Answer() : std::string();
}

int XcbWindow::Scale() const
{
    std::call_once(scaleIsKnown, [this] { scale = ReadDisplayScale(); });
    return scale;
}

void XcbWindow::Wake()
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(wakeDescriptor, &one, sizeof one); // full: it wakes already
}

void XcbWindow::RequestClose()
{
    closing = true;
    Wake();
}

void XcbWindow::Withdraw()
{
    std::shared_ptr<const XcbSession> shown;
    {
        const std::lock_guard hold(guard);
        withdrawn = true;
        shown = session;
    }
    if (!shown) return;
    // Of the session only what never changes: its own thread may be working with the rest.
    const XcbConnection& connection = *shown->connection;
    constexpr int kPatience = 100; // milliseconds: the server may be listening to another program alone
    pollfd socket = {xcb_get_file_descriptor(connection), POLLOUT, 0};
    if (poll(&socket, 1, kPatience) < 1) return; // it is full, and writing would wait
    xcb_unmap_window(connection, shown->window);
    connection.WaitUntilDone(std::chrono::milliseconds(kPatience));
    Wake(); // events may have come with the answer, of which the other thread's poll does not know
}

} // namespace korvane
