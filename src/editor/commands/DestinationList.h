// The list of modulation destinations.
#pragma once

#include "gui/controls/CControlDropDownList.h"

namespace korvane {

/// An item's position is the destination's code; its list's value is passed to the engine as it is.
void FillDestinationList(CControlDropDownList& list);

} // namespace korvane
