// Images of the demo's controls.
#pragma once

#include "gui/window/CPluginUI.h"

namespace korvane::demo {

namespace image {
enum : int { Page = 9000, Knob, Led, Button, Toggle, TabRow, TabColumn, Handle, WideHandle, Panel };
}

inline constexpr int kPageHeight = 420, kPageWidth = 720, kKnobFrames = 65, kKnobSize = 44;

/// Has the window find them all. They are drawn once per process, as its storage keeps what it has read. False when
/// there is no room for their files.
bool LoadSkin(CPluginUI& window);

} // namespace korvane::demo
