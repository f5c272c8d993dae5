// Where sound ends.
#pragma once

namespace korvane {

/// -80 dB of full scale: gains, levels and samples up to here are not heard.
inline constexpr float kSilence = 0.0001f;

} // namespace korvane
