// The server's keyboard: what its keys show, and how a held key speaks.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/window/KeyCodes.h"
#include "platform/window/XcbConnection.h"

namespace korvane {

class XcbKeys {
public:
    explicit XcbKeys(const XcbConnection& connection);

    /// Whether an event says that the keyboard changed; it is read anew when it is next needed.
    bool TakeChange(const xcb_generic_event_t& event);
    /// A code of key::, or 0.
    int CodeOf(const xcb_key_press_event_t& event);
    /// A held key is one press, many presses and one release; otherwise each press has its release.
    bool RepeatsWithoutReleases() const { return withoutReleases; }

private:
    void Read();
    void ReadExtended();
    void ReadCore();

    const XcbConnection& connection;
    std::uint8_t firstEvent = 0; // of the extension; 0: the server has none
    bool withoutReleases = false;
    bool known = false;
    std::vector<KeyFaces> faces; // of each key number
};

} // namespace korvane
