// What the reverb's parameters mean at a sample rate: gains, filter coefficients, line lengths and taps.
#pragma once

#include "engine/fx/reverb/ReverbParameters.h"
#include "engine/kernels/Reverb.h"

namespace korvane {

/// rate  Hz, > 0
ReverbCoefficients ComputeReverb(const ReverbSteps& steps, float rate);

} // namespace korvane
