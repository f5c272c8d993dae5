// What a window tells: kinds of mouse events, modifier keys, key codes.
#pragma once

namespace korvane {

namespace mouse {
enum : int { LeftDown, MiddleDown, RightDown, LeftUp, MiddleUp, RightUp, Move, Wheel };
}

/// Bits, or-ed.
namespace modifier {
enum : int { Ctrl = 1, Shift = 2, Alt = 4 };
}

/// Key codes. Letters and digits are their capital's ASCII code.
namespace key {
// clang-format off
enum : int {
    Backspace = 0x08, Tab = 0x09, Enter = 0x0D, Shift = 0x10, Ctrl = 0x11, Alt = 0x12, Escape = 0x1B, Space = 0x20,
    PageUp = 0x21, PageDown = 0x22, End = 0x23, Home = 0x24, Left = 0x25, Up = 0x26, Right = 0x27, Down = 0x28,
    Insert = 0x2D, Delete = 0x2E, F1 = 0x70 // F2 to F12 follow
};
// clang-format on
} // namespace key

} // namespace korvane
