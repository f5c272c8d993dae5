// The step notation of clips.
#pragma once

#include <cstdint>
#include <vector>

namespace korvane::factory::groove {

struct Clip;

/// A step that plays.
struct Hit {
    int step;                // 0..15
    std::uint32_t notes = 0; // synths, bits as in a step word
    int length = 1;          // steps
    double levelDb = 0.0;
    int semitones = 0;
    bool glides = false;
};
using Bar = std::vector<Hit>;

/// The clip's bars, eight at most. A slip of the pen ends the process with a message.
std::vector<Bar> Bars(const Clip& clip);

} // namespace korvane::factory::groove
