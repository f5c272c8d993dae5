// Parameter values as users write them.
#pragma once

#include <string>

namespace korvane::render {

/// The value that a text stands for: a number from 0 to 1 is the value itself; then what the instrument shows, with its
/// unit ("-6 dB", "25 %", "1/4"), the name of a position ("LP"), "on" and "off" of a switch. Where the instrument shows
/// no unit, one may be written ("1 st"), for 0 to 1 it must be. Throws Failure.
/// index  of the parameter
float ParameterValue(int index, const std::string& text);

/// What makes the text that the instrument shows unmistakable: a space and the unit that it leaves out, or nothing.
std::string UnshownUnit(int index);

} // namespace korvane::render
