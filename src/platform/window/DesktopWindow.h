// The window of this desktop.
#pragma once

#include <memory>

#include "platform/window/Window.h"

namespace korvane {

/// Closed; the thread that opens it is its own.
std::unique_ptr<Window> MakeDesktopWindow();

} // namespace korvane
