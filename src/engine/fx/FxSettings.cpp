// Effect settings: channel parameters and step clock into unit fields.
#include "engine/fx/FxSettings.h"

#include <cmath>
#include <cstddef>

#include "framework/Beats.h"
#include "framework/KnobLaws.h"
#include "framework/ParameterTable.h"
#include "platform/Numbers.h"

namespace korvane {

namespace {

// clang-format off
constexpr struct {
    float lengthBeats;
    std::uint8_t reverse;
} kStutterSettings[] = { // of the codes 1 to 9
    {beats::One,           0},
    {beats::ThreeQuarters, 0},
    {beats::Half,          0},
    {beats::ThreeEighths,  0},
    {beats::Quarter,       0},
    {beats::One,           1},
    {beats::ThreeQuarters, 1},
    {beats::Half,          1},
    {beats::Eighth,        0},
};
// clang-format on

LfoShape ShapeOf(float value)
{
    constexpr int kLast = slot::LastPosition(slot::FxLfoShape);
    return static_cast<LfoShape>(Clamp(law::Position(value, kLast), 0, kLast));
}

void UpdateEqualiser(FXUnit& unit, const ParameterBlock& params)
{
    unit.eqOn = params[slot::EqOn] != 0.0f;
    for (std::size_t band = 0; band < kEqBands; ++band) {
        const float gain = params[slot::EqGain + static_cast<int>(band)];
        if (gain == unit.eqGains[band]) continue;
        unit.eqGains[band] = gain;
        unit.eqChanged[band] = 1;
    }
}

} // namespace

void UpdateFxSettings(const ParameterBlock& params, const Shared<bool>* fxActive,
                      const std::array<std::unique_ptr<FXUnit>, kEffects>& units)
{
    for (int k = 0; k < kEffects; ++k) {
        FXUnit& unit = *units[static_cast<std::size_t>(k)];
        unit.bypass = !fxActive[k] && params[slot::FxGlue + k] == 0.0f;
        unit.x = Clamp<float>(params[slot::FxX + k], 0.0f, 1.0f);
        unit.y = Clamp<float>(params[slot::FxY + k], 0.0f, 1.0f);
        unit.lfoAmount = law::FxLfoDepth(params[slot::FxLfoAmount + k]);
        unit.lfoShape = ShapeOf(params[slot::FxLfoShape + k]);
        unit.lfoBeats =
            SyncBeats(params[slot::FxLfoRate + k]) * (params[slot::FxLfoSync + k] != 0.0f ? kBeatsPerBar : 1.0f);
        if (unit.type == FxType::Pump) UpdateEqualiser(unit, params);
    }
}

void HoldStutter(const ParameterBlock& params, FXUnit& stutter)
{
    if (params[slot::FxBypassStutter] != 0.0f) stutter.bypass = 1;
}

void SetStutter(FXUnit& stutter, std::int8_t& code)
{
    if (code < 0) {
        stutter.Reset(0.0f);
        code = static_cast<std::int8_t>(-code);
    }
    stutter.bypass = code < 1 || code > 9;
    if (stutter.bypass) return;
    const auto& setting = kStutterSettings[code - 1];
    stutter.lfoBeats = setting.lengthBeats;
    stutter.reverse = setting.reverse;
}

void SyncLfo(FXUnit& unit, int stepCounter)
{
    if (!(unit.lfoBeats > 0.0f)) return;
    const double periods = stepCounter / (static_cast<double>(unit.lfoBeats) * kStepsPerBeat);
    unit.lfoPhase = periods - std::floor(periods);
}

} // namespace korvane
