// The computer keyboard as the panel's buttons.
#pragma once

#include "framework/ParameterTable.h"
#include "platform/window/WindowEvents.h"

namespace korvane {

struct PanelKey {
    int code;      // of key::
    int parameter; // 1 while the key is down
    bool toggles;  // turns the parameter over instead; the release does nothing
    const char* name;
};

// clang-format off
inline constexpr PanelKey kPanelKeys[] = {
    {key::Enter, param::Edit,         true,  "Enter"},
    {key::Ctrl,  param::Edit,         false, "Ctrl"},
    {key::Space, param::Play,         true,  "Space"},
    {key::Left,  param::Back,         false, "Left"},
    {key::Right, param::Forward,      false, "Right"},
    {'1', param::Channel1,      false, "1"}, {'2', param::Channel1 + 1,  false, "2"},
    {'3', param::Channel1 + 2,  false, "3"}, {'4', param::Channel1 + 3,  false, "4"},
    {'5', param::Channel1 + 4,  false, "5"}, {'6', param::Channel1 + 5,  false, "6"},
    {'7', param::Channel1 + 6,  false, "7"}, {'8', param::Channel1 + 7,  false, "8"},
    {'Q', param::Channel1 + 8,  false, "Q"}, {'W', param::Channel1 + 9,  false, "W"},
    {'E', param::Channel1 + 10, false, "E"}, {'R', param::Channel1 + 11, false, "R"},
    {'T', param::Channel1 + 12, false, "T"},
    {'A', param::Pattern1,      false, "A"}, {'S', param::Pattern1 + 1,  false, "S"},
    {'D', param::Pattern1 + 2,  false, "D"}, {'F', param::Pattern1 + 3,  false, "F"},
    {'G', param::Pattern1 + 4,  false, "G"}, {'H', param::Pattern1 + 5,  false, "H"},
    {'J', param::Pattern1 + 6,  false, "J"}, {'K', param::Pattern1 + 7,  false, "K"},
    {'C', param::Copy,          false, "C"}, {'V', param::Paste,         false, "V"},
    {'X', param::Clear,         false, "X"}, {'M', param::MuteSelected,  false, "M"},
};
// clang-format on

/// Null for keys that do nothing.
constexpr const PanelKey* PanelKeyOf(int code)
{
    for (const PanelKey& row : kPanelKeys)
        if (row.code == code) return &row;
    return nullptr;
}

} // namespace korvane
