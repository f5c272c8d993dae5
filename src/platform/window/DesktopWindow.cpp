// Which window this desktop has.
#include "platform/window/DesktopWindow.h"

#include "platform/window/XcbWindow.h"

namespace korvane {

std::unique_ptr<Window> MakeDesktopWindow() { return std::make_unique<XcbWindow>(); }

} // namespace korvane
