// Reads the keyboard's layouts, by the server's keyboard extension where it has one.
#include "platform/window/XcbKeys.h"

#include <algorithm>

// The header has a field that C++ has a meaning for.
#define explicit explicitActions
#include <xcb/xkb.h>
#undef explicit

namespace korvane {

XcbKeys::XcbKeys(const XcbConnection& theConnection) : connection(theConnection)
{
    constexpr std::uint16_t kKeyboard = XCB_XKB_ID_USE_CORE_KBD;
    constexpr std::uint16_t kChanges = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t kParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_KEY_TYPES;
    constexpr std::uint32_t kRepeat = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    if (!extension || !extension->present) return;
    const auto use = xcb_xkb_use_extension(connection, 1, 0);
    const XcbAnswer<xcb_xkb_use_extension_reply_t> used(xcb_xkb_use_extension_reply(connection, use, nullptr));
    if (!used || !used->supported) return;
    firstEvent = extension->first_event;
    xcb_xkb_select_events(connection, kKeyboard, kChanges, 0, kChanges, kParts, kParts, nullptr);
    const auto flags = xcb_xkb_per_client_flags(connection, kKeyboard, kRepeat, kRepeat, 0, 0, 0);
    const XcbAnswer<xcb_xkb_per_client_flags_reply_t> set(xcb_xkb_per_client_flags_reply(connection, flags, nullptr));
    withoutReleases = set && (set->value & kRepeat) != 0;
}

bool XcbKeys::TakeChange(const xcb_generic_event_t& event)
{
    const int kind = event.response_type & 0x7F;
    if (kind != XCB_MAPPING_NOTIFY && (firstEvent == 0 || kind != firstEvent)) return false;
    known = false;
    return true;
}

int XcbKeys::CodeOf(const xcb_key_press_event_t& event)
{
    if (!known) Read();
    const int layout = (event.state >> 13) & 3;
    return KeyCodeOf(faces[event.detail], layout, (event.state & XCB_MOD_MASK_2) != 0, event.detail);
}

void XcbKeys::Read()
{
    faces.assign(256, {});
    known = true;
    if (firstEvent != 0)
        ReadExtended();
    else
        ReadCore();
}

void XcbKeys::ReadExtended()
{
    const auto request = xcb_xkb_get_map(connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_MAP_PART_KEY_SYMS, 0, 0, 0, 0, 0,
                                         0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    const XcbAnswer<xcb_xkb_get_map_reply_t> reply(xcb_xkb_get_map_reply(connection, request, nullptr));
    if (!reply) return;
    xcb_xkb_get_map_map_t map;
    xcb_xkb_get_map_map_unpack(xcb_xkb_get_map_map(reply.get()), reply->nTypes, reply->nKeySyms, reply->nKeyActions,
                               reply->totalActions, reply->totalKeyBehaviors, reply->virtualMods,
                               reply->totalKeyExplicit, reply->totalModMapKeys, reply->totalVModMapKeys, reply->present,
                               &map);
    auto keys = xcb_xkb_get_map_map_syms_rtrn_iterator(reply.get(), &map);
    for (int number = reply->firstKeySym; keys.rem > 0 && number < 256; xcb_xkb_key_sym_map_next(&keys), ++number) {
        const int layouts = keys.data->groupInfo & 0x0F, width = keys.data->width;
        const xcb_keysym_t* const symbols = xcb_xkb_key_sym_map_syms(keys.data);
        if (layouts == 0 || width == 0 || layouts * width > keys.data->nSyms) continue;
        for (int layout = 0; layout < 4; ++layout) { // a key with fewer than the keyboard begins again
            const xcb_keysym_t* const face = symbols + layout % layouts * width;
            faces[number][layout] = {face[0], width > 1 ? face[1] : 0};
        }
    }
}

/// A server without the extension knows two layouts, of two symbols each.
void XcbKeys::ReadCore()
{
    const xcb_setup_t* const setup = xcb_get_setup(connection);
    const int first = setup->min_keycode, all = setup->max_keycode - first + 1;
    const auto request = xcb_get_keyboard_mapping(connection, setup->min_keycode, static_cast<std::uint8_t>(all));
    const XcbAnswer<xcb_get_keyboard_mapping_reply_t> reply(
        xcb_get_keyboard_mapping_reply(connection, request, nullptr));
    if (!reply) return;
    const int width = std::max<int>(reply->keysyms_per_keycode, 1);
    const int count = std::min(all, xcb_get_keyboard_mapping_keysyms_length(reply.get()) / width);
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int number = first; number < first + count; ++number, symbols += width) {
        const auto face = [&](int n) { return n < width ? symbols[n] : 0; };
        const KeyFace one = {face(0), face(1)};
        const KeyFace two = face(2) ? KeyFace{face(2), face(3)} : one;
        faces[number] = {one, two, one, two};
    }
}

} // namespace korvane
