// Resonant filters: frequency and quality, four sections.
#include "engine/fx/ResonantFilter.h"

#include "engine/fx/Crossfade.h"
#include "framework/KnobLaws.h"
#include "platform/Numbers.h"

namespace korvane {

template <bool highPass>
void ResonantFilter<highPass>::Reset()
{
    sections = {};
}

template <bool highPass>
void ResonantFilter<highPass>::Process(UnitControls& unit, const StereoBlock& block)
{
    const float d = Clamp(unit.x + unit.BlockLfo(block.frames), 0.0f, 1.0f);
    const float q = law::FilterQ(unit.y);
    const FilterCoefficients c = highPass ? HighPassCoefficients(law::HighPassHz(d), q, unit.sampleRate)
                                          : LowPassCoefficients(law::LowPassHz(d), q, unit.sampleRate);
    auto stages = sections;
    Crossfade(unit, block, [&](Stereo dry) { return stages.template Step<highPass>(dry, c); });
    sections = stages;
}

template class ResonantFilter<false>;
template class ResonantFilter<true>;

} // namespace korvane
