// The reverb's delay memory.
#pragma once

#include <cstddef>
#include <memory>

#include "engine/fx/reverb/ReverbCoefficients.h"

namespace korvane {

/// Plate after J. Dattorro, "Effect Design, Part 1" (JAES 1997), without modulation: low and high cut, four input
/// diffusers, predelay, and two cross-coupled branches of diffuser, delay, diffuser and delay; each output sums seven
/// taps of both branches. Early reflections are tapped from behind the second input diffuser.
///
/// No line is shorter than a run, so each stage works through the whole run before the next one starts; the result is
/// that of frame by frame, bit for bit.
class ReverbTank {
public:
    /// Allocates one block for all lines, at their greatest lengths, and fills it. Throws std::bad_alloc and is as
    /// before.
    /// early  with room for reflections and predelay; otherwise Fit gets coefficients without
    void Allocate(float rate, bool early);
    /// Fills the memory with a value below hearing but far above the denormal range; clears the filters. The level
    /// starts at its target.
    void Reset();
    /// Takes over new lengths; the lines are emptied when `clear` is set.
    void Fit(const ReverbCoefficients& c, bool clear);

    ReverbState state;

private:
    std::unique_ptr<float[]> memory;
    std::size_t memoryFloats = 0;
};

} // namespace korvane
