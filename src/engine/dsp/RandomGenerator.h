// The engine's random numbers.
#pragma once

#include <cstdint>

namespace korvane {

/// Linear congruential generator of period 2^32, shared by the whole engine; audio thread, or under the program-switch
/// handshake. It starts at 0 in every instance, so that two fresh instances render the same bytes.
struct RandomGenerator {
    static constexpr std::uint32_t kMultiplier = 196314165u;
    static constexpr std::uint32_t kIncrement = 907633515u;

    std::uint32_t state = 0;

    std::uint32_t Next()
    {
        state = state * kMultiplier + kIncrement;
        return state;
    }
};

} // namespace korvane
