// The target's part of the XDND protocol.
#include "platform/window/XcbDrop.h"

#include <algorithm>
#include <string_view>
#include <unistd.h>

#include "platform/window/DroppedFile.h"

namespace korvane {

static constexpr std::uint32_t kOldest = 3, kNewest = 5;

XcbDrop::XcbDrop(const XcbConnection& theConnection, xcb_window_t theWindow, Size theSize)
    : connection(theConnection), window(theWindow), size(theSize)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, connection.Atom(atom::XdndAware), XCB_ATOM_ATOM, 32,
                        1, &kNewest);
}

void XcbDrop::TakeMessage(const xcb_client_message_event_t& event, bool accepts)
{
    const std::uint32_t* const data = event.data.data32;
    if (event.format != 32) return;
    if (event.type == connection.Atom(atom::XdndEnter)) return Enter(event);
    if (source == XCB_NONE || data[0] != source) return;
    if (event.type == connection.Atom(atom::XdndPosition)) {
        MoveTo({static_cast<std::int16_t>(data[2] >> 16), static_cast<std::int16_t>(data[2] & 0xFFFF)});
        welcome = offersFiles && Rect{0, 0, size.width, size.height}.Contains(place.x, place.y);
        Reply(atom::XdndStatus, 4, accepts && welcome);
    } else if (event.type == connection.Atom(atom::XdndLeave)) {
        source = XCB_NONE;
    } else if (event.type == connection.Atom(atom::XdndDrop)) {
        AskForData(data[2], accepts);
    }
}

void XcbDrop::MoveTo(Point newScreenPlace)
{
    screenPlace = newScreenPlace;
    const auto request =
        xcb_translate_coordinates(connection, connection.screen->root, window, static_cast<std::int16_t>(screenPlace.x),
                                  static_cast<std::int16_t>(screenPlace.y));
    const XcbAnswer<xcb_translate_coordinates_reply_t> reply(
        xcb_translate_coordinates_reply(connection, request, nullptr));
    if (reply) place = {reply->dst_x, reply->dst_y};
}

void XcbDrop::Enter(const xcb_client_message_event_t& event)
{
    const std::uint32_t* const data = event.data.data32;
    target = event.window;
    welcome = false;
    source = data[1] >> 24 >= kOldest ? data[0] : XCB_NONE;
    offersFiles = source != XCB_NONE && OffersFiles(data);
    asked = 0;
}

bool XcbDrop::OffersFiles(const std::uint32_t* data) const
{
    const xcb_atom_t wanted = connection.Atom(atom::UriList);
    if ((data[1] & 1) == 0) return std::find(data + 2, data + 5, wanted) != data + 5;
    const auto list = connection.Property(source, connection.Atom(atom::XdndTypeList), false);
    if (!list || list->format != 32) return false;
    const auto* const types = static_cast<const xcb_atom_t*>(xcb_get_property_value(list.get()));
    const auto* const end = types + xcb_get_property_value_length(list.get()) / 4;
    return std::find(types, end, wanted) != end;
}

void XcbDrop::AskForData(xcb_timestamp_t time, bool accepts)
{
    if (!accepts || !welcome) return Finish(false);
    asked = time;
    xcb_convert_selection(connection, window, connection.Atom(atom::XdndSelection), connection.Atom(atom::UriList),
                          connection.Atom(atom::DropData), time);
    xcb_flush(connection);
}

std::string XcbDrop::TakeData(const xcb_selection_notify_event_t& event)
{
    if (source == XCB_NONE || event.selection != connection.Atom(atom::XdndSelection) || event.time != asked) return {};
    std::string path;
    const auto list = event.property ? connection.Property(window, event.property, true) : nullptr;
    if (list && list->format == 8) { // data that would come in pieces has another one
        char host[256] = "";
        gethostname(host, sizeof host - 1);
        path = FirstFileOf({static_cast<const char*>(xcb_get_property_value(list.get())),
                            static_cast<std::size_t>(xcb_get_property_value_length(list.get()))},
                           host);
    }
    Finish(!path.empty());
    return path;
}

void XcbDrop::Finish(bool taken)
{
    Reply(atom::XdndFinished, 2, taken);
    source = XCB_NONE;
}

void XcbDrop::Reply(int messageAtom, int actionIndex, bool accepted)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = source;
    event.type = connection.Atom(messageAtom);
    event.data.data32[0] = target;
    event.data.data32[1] = accepted ? 1 : 0;
    event.data.data32[actionIndex] = accepted ? connection.Atom(atom::XdndActionCopy) : XCB_NONE;
    xcb_send_event(connection, 0, source, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
}

} // namespace korvane
