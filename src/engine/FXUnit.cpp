// Effect unit: buffers, reset, LFO and the choice of the type.
#include "engine/FXUnit.h"

namespace korvane {

FXUnit::FXUnit(FxType unitType) : type(unitType), bypass(unitType == FxType::Stutter ? 1 : 0) {}

FXUnit::~FXUnit() = default;

void FXUnit::AllocateBuffers() {}

void FXUnit::Reset(float newRate)
{
    if (newRate != 0.0f) sampleRate = newRate;
    audible = 0;
    lfoPhase = 0.0;
}

void FXUnit::Process(float*, float*, int, float) { audible = 0; }

} // namespace korvane
