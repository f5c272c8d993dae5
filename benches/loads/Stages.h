// What the stages of a block take of it.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace korvane::loads {

inline constexpr std::array kStages{"settings", "modulation", "samplers", "synths", "filter", "effects", "mix"};
using StageTimes = std::array<double, kStages.size()>;

/// Nanoseconds of each in a block of 128 frames, of two seconds in which no step begins: the least of several passes.
/// stutter  on all channels
StageTimes TimesOfStages(const std::vector<std::uint8_t>& state, const std::filesystem::path& bundle, bool stutter);

} // namespace korvane::loads
