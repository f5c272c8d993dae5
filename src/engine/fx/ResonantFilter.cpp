// Resonant filters: frequency and quality, four sections.
#include "engine/fx/ResonantFilter.h"

#include <cmath>

#include "engine/fx/Crossfade.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

/// 64 Hz to 19.9 kHz.
/// d  0..1
float LowPassHz(float d) { return std::pow(2.0f, d * 8.28f + 6.0f); }

/// 32 Hz to 5.5 kHz: four fifths of the octaves up to where the lowpass ends, above which too little is left; by ear.
/// d  0..1
float HighPassHz(float d) { return std::pow(2.0f, d * 9.28f * 0.8f + 5.0f); }

/// Quality of each section, 1..3.
float ResonanceOf(float y) { return 2.0f * (y * y) + 1.0f; }

} // namespace

template <bool highPass>
void ResonantFilter<highPass>::Reset()
{
    sections = {};
}

template <bool highPass>
void ResonantFilter<highPass>::Process(UnitControls& unit, const StereoBlock& block)
{
    const float d = Clamp(unit.x + unit.BlockLfo(block.frames), 0.0f, 1.0f);
    const float q = ResonanceOf(unit.y);
    const FilterCoefficients c = highPass ? HighPassCoefficients(HighPassHz(d), q, unit.sampleRate)
                                          : LowPassCoefficients(LowPassHz(d), q, unit.sampleRate);
    auto stages = sections;
    Crossfade(unit, block, [&](Stereo dry) { return stages.template Step<highPass>(dry, c); });
    sections = stages;
}

template class ResonantFilter<false>;
template class ResonantFilter<true>;

} // namespace korvane
