// Sums of equal steps, to the bit, without making every step.
#pragma once

namespace korvane {

/// Adds step to value, once for each frame, until it is at 1 or above or the frames are through; at least once.
/// value   0 or more
/// step    0 or more
/// frames  1 or more
/// sums    the value before each frame; null where nobody wants them
/// Returns how many frames that took.
int StepBelowOne(double& value, double step, int frames, double* sums = nullptr);

} // namespace korvane
