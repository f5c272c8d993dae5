// From what a key of the keyboard shows to the toolkit's key codes.
#pragma once

#include <array>
#include <cstdint>

namespace korvane {

/// What one key shows in one of the keyboard's layouts, as the X protocol numbers symbols: alone, and with Shift.
struct KeyFace {
    std::uint32_t plain = 0, shifted = 0;
};

/// The layouts among which a musician switches; those that the keyboard has not are empty.
using KeyFaces = std::array<KeyFace, 4>;

/// The code of key::, or 0 where the toolkit has none.
///
/// The letter that the key shows in the layout in force. Where that is no Latin one, what it shows in another layout,
/// at last what is printed at this place of an American keyboard. Digits that need Shift count without it too.
///
/// layout   in force, 0..3
/// numLock  keypad keys are digits
/// number   of the key, as Linux numbers them for X
int KeyCodeOf(const KeyFaces& faces, int layout, bool numLock, int number);

} // namespace korvane
