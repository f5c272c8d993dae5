// The content beside the plug-in.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace korvane::render {

/// The plug-in of the build that this program belongs to.
std::string DefaultPlugin();

/// Prints grooves, programs by category and parts.
void PrintLibrary(const std::string& bundle);

/// The file of a groove or program by what the user calls it, see FindName.
std::string FindGroove(const std::string& bundle, const std::string& name);
std::string FindProgram(const std::string& bundle, const std::string& name);

/// Beats per minute that stand at the end of a groove's file name ("Night Drive 124.kvprj"), 20 to 400.
std::optional<double> TempoInName(const std::string& groove);

/// A state in which the channel of the program's kind has its sound, is selected, and nothing is sequenced.
/// state  image of a groove, as the plug-in gives it
std::vector<std::uint8_t> StateWithProgram(std::vector<std::uint8_t> state, const std::string& programFile);

} // namespace korvane::render
