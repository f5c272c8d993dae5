// Host parameters by what they turn.
#pragma once

#include "framework/ParameterTable.h"

namespace korvane {

/// The index under which hosts turn a channel parameter.
constexpr int ParamOf(int slotBase)
{
    for (const ParameterInfo& row : kParameters)
        if (row.slotBase == slotBase) return row.index;
    return -1;
}

} // namespace korvane
