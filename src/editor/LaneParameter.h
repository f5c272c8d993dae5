// Which parameter a right click on a control brings into the score editor's lane.
#pragma once

#include "framework/ParameterTable.h"

namespace korvane {

inline constexpr int kFirstLaneParameter = 70, kLastLaneParameter = 151; // "FX Glue" to "SAMPLER: Layer 4 Bypass"

struct LaneSwitch {
    int button, parameter; // that it moves on
};

// clang-format off
inline constexpr LaneSwitch kLaneSwitches[] = {
    {param::FilterTypeSwitch, 95}, {param::EnvelopeDestinationSwitch, 99}, {param::LfoSyncSwitch, 110},
    {param::LfoDestinationSwitch, 112}, {param::LfoShapeSwitch, 114}, {param::FxLfoShapeSwitch, 74},
    {param::FxLfoSyncSwitch, 76},
};
// clang-format on

/// Whether a right click on a control with that number opens the score editor.
/// lane  becomes the control's parameter, of a switch the one that it switches; steps and bars leave it
constexpr bool OpensScore(int id, int& lane)
{
    if (id >= param::Step1 && id < param::Step1 + kNotes) return true;
    if (id < kFirstLaneParameter || id > kLastLaneParameter || id == param::EnvelopeNumber || id == param::LfoNumber)
        return false;
    lane = id;
    for (const LaneSwitch& row : kLaneSwitches)
        if (row.button == id) lane = row.parameter;
    return true;
}

} // namespace korvane
