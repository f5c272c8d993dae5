// The window's end of drag and drop: what is dragged over it, and the file that is dropped.
#pragma once

#include <cstdint>
#include <string>

#include "platform/window/Geometry.h"
#include "platform/window/XcbConnection.h"

namespace korvane {

/// Speaks XDND, versions 3 to 5. Nothing waits for the other program: each step is the answer to an event, and the next
/// drag forgets one whose program fell silent.
class XcbDrop {
public:
    /// size  of the window, in the server's pixels
    XcbDrop(const XcbConnection& connection, xcb_window_t window, Size size);

    /// accepts  files are welcome at this moment
    void TakeMessage(const xcb_client_message_event_t& event, bool accepts);
    /// The system path of the file, when the event brings it; empty otherwise.
    std::string TakeData(const xcb_selection_notify_event_t& event);

    Point place, screenPlace; // of the drag: in the window, on the screen; in the server's pixels

private:
    void Enter(const xcb_client_message_event_t& event);
    void MoveTo(Point newScreenPlace);
    bool OffersFiles(const std::uint32_t* data) const;
    void AskForData(xcb_timestamp_t time, bool accepts);
    void Finish(bool taken);
    void Reply(int messageAtom, int actionIndex, bool accepted);

    const XcbConnection& connection;
    const xcb_window_t window;
    const Size size;
    xcb_window_t source = XCB_NONE; // of the drag; none: there is no drag
    xcb_window_t target = XCB_NONE; // of the drag: this window, or one that it stands in for
    bool offersFiles = false;
    bool welcome = false;      // offers files, over this window
    xcb_timestamp_t asked = 0; // when the data was asked for; 0: it was not
};

} // namespace korvane
