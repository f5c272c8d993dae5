// Positions, cursors, grabs and warps of the mouse pointer.
#include "platform/window/XcbPointer.h"

#include <algorithm>
#include <cstring>

namespace korvane {

/// Whether a came before b; the numbers wrap.
static bool IsBefore(std::uint32_t a, std::uint32_t b) { return static_cast<std::int32_t>(a - b) < 0; }

/// The number of the last request that the server had done when it made the event.
template <class Event>
static std::uint32_t SequenceOf(const Event& event)
{
    return reinterpret_cast<const xcb_generic_event_t&>(event).full_sequence;
}

static int ModifiersOf(int state)
{
    return (state & XCB_MOD_MASK_CONTROL ? modifier::Ctrl : 0) | (state & XCB_MOD_MASK_SHIFT ? modifier::Shift : 0) |
           (state & XCB_MOD_MASK_1 ? modifier::Alt : 0);
}

/// A bit each for the first five.
static int ButtonsOf(int state) { return state >> 8 & 0x1F; }

XcbPointer::XcbPointer(const XcbConnection& theConnection, xcb_window_t theWindow)
    : connection(theConnection), window(theWindow), arrow(Arrow()), blank(Blank())
{
    Show(arrow);
    Ask();
}

/// The standard arrow; a server without that font shows the parent's cursor.
xcb_cursor_t XcbPointer::Arrow() const
{
    constexpr std::uint16_t kArrow = 68, kItsMask = 69, kWhite = 0xFFFF;
    constexpr char kFont[] = "cursor";
    const xcb_font_t font = xcb_generate_id(connection);
    if (connection.ErrorOf(xcb_open_font_checked(connection, font, std::strlen(kFont), kFont)) != 0) return XCB_NONE;
    const xcb_cursor_t cursor = xcb_generate_id(connection);
    xcb_create_glyph_cursor(connection, cursor, font, font, kArrow, kItsMask, 0, 0, 0, kWhite, kWhite, kWhite);
    xcb_close_font(connection, font);
    return cursor;
}

xcb_cursor_t XcbPointer::Blank() const
{
    const xcb_pixmap_t pixmap = xcb_generate_id(connection);
    const xcb_gcontext_t context = xcb_generate_id(connection);
    const xcb_cursor_t cursor = xcb_generate_id(connection);
    const std::uint32_t nothing = 0;
    const xcb_rectangle_t all = {0, 0, 1, 1};
    xcb_create_pixmap(connection, 1, pixmap, window, 1, 1);
    xcb_create_gc(connection, context, pixmap, XCB_GC_FOREGROUND, &nothing);
    xcb_poly_fill_rectangle(connection, pixmap, context, 1, &all);
    xcb_create_cursor(connection, cursor, pixmap, pixmap, 0, 0, 0, 0, 0, 0, 0, 0);
    xcb_free_gc(connection, context);
    xcb_free_pixmap(connection, pixmap);
    return cursor;
}

void XcbPointer::Show(xcb_cursor_t cursor) const
{
    xcb_change_window_attributes(connection, window, XCB_CW_CURSOR, &cursor);
}

void XcbPointer::MoveTo(Point newPlace, Point newScreenPlace)
{
    place = newPlace;
    screenPlace = newScreenPlace;
}

void XcbPointer::Ask()
{
    const auto request = xcb_query_pointer(connection, window);
    placeRequest = request.sequence;
    const XcbAnswer<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(connection, request, nullptr));
    if (!reply) return;
    MoveTo({reply->win_x, reply->win_y}, {reply->root_x, reply->root_y});
    modifiers = ModifiersOf(reply->mask);
}

bool XcbPointer::Take(const xcb_motion_notify_event_t& event)
{
    const int kind = event.response_type & 0x7F;
    const bool isButtonOrKey = kind >= XCB_KEY_PRESS && kind <= XCB_BUTTON_RELEASE;
    if (!isButtonOrKey && IsBefore(SequenceOf(event), placeRequest)) return false;
    const Point oldPlace = place, oldScreenPlace = screenPlace;
    const bool isFromProgram = (event.response_type & 0x80) != 0; // a host sends keys, with any place
    if (!isFromProgram) MoveTo({event.event_x, event.event_y}, {event.root_x, event.root_y});
    modifiers = ModifiersOf(event.state);
    buttonsDown = ButtonsOf(event.state);
    return isButtonOrKey || oldPlace != place || oldScreenPlace != screenPlace;
}

void XcbPointer::TakeButton(const xcb_button_press_event_t& event, bool down)
{
    const int bit = event.detail <= 5 ? 1 << event.detail >> 1 : 0;
    buttonsDown = down ? buttonsDown | bit : buttonsDown & ~bit;
    if (untilRelease && buttonsDown == 0) granted = untilRelease = false;
}

void XcbPointer::TakeCrossing(const xcb_enter_notify_event_t& event)
{
    // Taking the pointer makes such events too, before the answer to the request.
    const std::uint32_t number = SequenceOf(event);
    const bool ended = event.mode == XCB_NOTIFY_MODE_UNGRAB && !IsBefore(number, grabRequest);
    const bool taken = event.mode == XCB_NOTIFY_MODE_GRAB && IsBefore(grabRequest, number);
    if (granted && !untilRelease && (ended || taken)) granted = false;
}

void XcbPointer::Grab(bool hide)
{
    constexpr std::uint16_t kEvents = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                      XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW |
                                      XCB_EVENT_MASK_LEAVE_WINDOW;
    const xcb_cursor_t cursor = hide ? blank : arrow;
    if (hide) hiddenAt = screenPlace;
    Show(cursor);
    const auto request = xcb_grab_pointer(connection, 0, window, kEvents, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                                          XCB_NONE, cursor, XCB_CURRENT_TIME);
    grabRequest = request.sequence;
    const XcbAnswer<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(connection, request, nullptr));
    const bool active = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    untilRelease = !active && buttonsDown != 0;
    granted = active || untilRelease;
}

void XcbPointer::Ungrab()
{
    granted = untilRelease = false;
    xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
    Show(arrow);
    xcb_flush(connection);
}

bool XcbPointer::Viewable() const
{
    const auto request = xcb_get_window_attributes(connection, window);
    const XcbAnswer<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(connection, request, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool XcbPointer::HasGrab() const { return granted && Viewable(); }

Point XcbPointer::Warp(Point target)
{
    const auto number = [](int value) { return static_cast<std::int16_t>(std::clamp(value, -32768, 32767)); };
    xcb_warp_pointer(connection, XCB_NONE, connection.screen->root, 0, 0, 0, 0, number(target.x), number(target.y));
    Ask();
    return screenPlace;
}

} // namespace korvane
