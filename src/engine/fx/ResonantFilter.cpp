// Resonant filters: frequency and quality.
#include "engine/fx/ResonantFilter.h"

#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

template <bool highPass>
void ResonantFilter<highPass>::Reset()
{
    this->sides.sections.chain = {};
}

template <bool highPass>
const float* ResonantFilter<highPass>::Prepare(UnitControls& unit, int frames)
{
    const float d = Clamp(unit.x + unit.BlockLfo(frames), 0.0f, 1.0f);
    if (!inputs.Moved({d, unit.y, unit.sampleRate})) return nullptr;
    const float q = law::FilterQ(unit.y);
    const FilterCoefficients c = highPass ? HighPassCoefficients(law::HighPassHz(d), q, unit.sampleRate)
                                          : LowPassCoefficients(law::LowPassHz(d), q, unit.sampleRate);
    this->sides.sections.Set(c, highPass ? kHighPassMiddle : kLowPassMiddle);
    return nullptr;
}

template class ResonantFilter<false>;
template class ResonantFilter<true>;

} // namespace korvane
