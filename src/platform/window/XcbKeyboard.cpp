// Who hears of a key.
#include "platform/window/XcbKeyboard.h"

namespace korvane {

XcbKeyboard::XcbKeyboard(const XcbConnection& theConnection, xcb_window_t theWindow, const xcb_window_t& theHost,
                         XcbPointer& thePointer, WindowListener& theListener)
    : keys(theConnection), connection(theConnection), window(theWindow), host(theHost), pointer(thePointer),
      listener(theListener)
{
}

static int ModifierOf(int code)
{
    return code == key::Ctrl    ? modifier::Ctrl
           : code == key::Shift ? modifier::Shift
           : code == key::Alt   ? modifier::Alt
                                : 0;
}

void XcbKeyboard::Down(const xcb_key_press_event_t& event, bool isOurs)
{
    if (const HeldKey* const repeated = held.Find(event.detail)) {
        if (repeated->handedOn) HandOn(event);
        return;
    }
    const int code = isOurs ? keys.CodeOf(event) : 0;
    pointer.modifiers |= ModifierOf(code);
    held.Add({event.detail, code});
    if (code != 0 && listener.OnKey(code, true)) return;
    if (HeldKey* const unused = held.Find(event.detail)) unused->handedOn = true;
    HandOn(event);
}

void XcbKeyboard::Up(const xcb_key_press_event_t& event)
{
    UpUnheard(event);
    TellUnheard();
}

void XcbKeyboard::UpUnheard(const xcb_key_press_event_t& event)
{
    HeldKey* const key = held.Find(event.detail);
    if (key) key->released = true;
    if (!key || key->handedOn) HandOn(event); // who has seen the press sees the release
}

void XcbKeyboard::TellUnheard()
{
    while (const HeldKey* const key = held.Released()) Tell(held.Remove(key->number));
}

void XcbKeyboard::AllUp() { held.ReleaseAll(); }

void XcbKeyboard::Tell(const HeldKey& key)
{
    if (!held.AnyWith(key.code)) pointer.modifiers &= ~ModifierOf(key.code);
    if (key.code != 0) listener.OnKey(key.code, false);
}

void XcbKeyboard::HandOn(xcb_key_press_event_t event)
{
    if ((event.response_type & 0x80) != 0) return; // it comes from another program, perhaps from the host itself
    event.event = host;
    event.child = window;
    const auto mask = event.response_type == XCB_KEY_PRESS ? XCB_EVENT_MASK_KEY_PRESS : XCB_EVENT_MASK_KEY_RELEASE;
    xcb_send_event(connection, 1, host, mask, reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
}

} // namespace korvane
