// The content beside the plug-in.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace korvane::render {

/// Prints grooves, programs by category and parts.
void PrintLibrary(const std::string& bundle);

/// The file of a groove or program by its name. Throws Failure that lists the names when there is none.
std::string FindGroove(const std::string& bundle, const std::string& name);
std::string FindProgram(const std::string& bundle, const std::string& name);

/// A state in which the channel of the program's kind has its sound, is selected, and nothing is sequenced.
/// state  image of a groove, as the plug-in gives it
std::vector<std::uint8_t> StateWithProgram(std::vector<std::uint8_t> state, const std::string& programFile);

} // namespace korvane::render
