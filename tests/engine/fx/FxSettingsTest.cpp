// Effect settings: channel parameters into unit fields, LFO phase by song position.
#include <gtest/gtest.h>

#include <memory>

#include "engine/fx/FxSettings.h"
#include "framework/ParameterTable.h"

namespace korvane {
namespace {

struct Rack {
    Rack()
    {
        for (int k = 0; k < kEffects; ++k) {
            units[k] = std::make_unique<FXUnit>(static_cast<FxType>(k));
            params[slot::FxLfoAmount + k] = 0.5f;
        }
    }
    FXUnit& Unit(FxType type) { return *units[static_cast<std::size_t>(type)]; }
    void Update()
    {
        UpdateFxSettings(params, active, units);
        HoldStutter(params, stutter);
    }

    ParameterBlock params;
    Shared<bool> active[kEffects];
    std::array<std::unique_ptr<FXUnit>, kEffects> units;
    FXUnit stutter{FxType::Stutter};
};

TEST(FxSettings, TurnParametersIntoFields)
{
    using enum FxType;
    // clang-format off
    struct Field { const char* name; float (*read)(const FXUnit&); };
    const Field x{"x", [](const FXUnit& u) { return u.x; }}, y{"y", [](const FXUnit& u) { return u.y; }},
        beats{"beats", [](const FXUnit& u) { return u.lfoBeats; }},
        amount{"amount", [](const FXUnit& u) { return u.lfoAmount; }},
        shape{"shape", [](const FXUnit& u) { return static_cast<float>(u.lfoShape); }},
        bypass{"bypass", [](const FXUnit& u) { return static_cast<float>(u.bypass); }};
    const struct { FxType type; int base; float value; Field field; float expected; } cases[] = {
        {Phaser,     slot::FxX,         0.25f,  x,      0.25f},  {Phaser,     slot::FxX,         2.0f,   x,      1.0f},
        {Pump,       slot::FxY,         0.75f,  y,      0.75f},  {Pump,       slot::FxY,         -1.0f,  y,      0.0f},
        {Distortion, slot::FxLfoRate,   0.0f,   beats,  0.125f}, {Distortion, slot::FxLfoRate,   0.2f,   beats,  0.25f},
        {Distortion, slot::FxLfoRate,   0.3f,   beats,  0.375f}, {Distortion, slot::FxLfoRate,   0.4f,   beats,  0.5f},
        {Distortion, slot::FxLfoRate,   0.5f,   beats,  0.75f},  {Distortion, slot::FxLfoRate,   0.557f, beats,  1.0f},
        {Distortion, slot::FxLfoRate,   0.7f,   beats,  2.0f},   {Distortion, slot::FxLfoRate,   0.8f,   beats,  4.0f},
        {Pump,       slot::FxLfoRate,   1.0f,   beats,  8.0f},   {Distortion, slot::FxLfoRate,   1e30f,  beats,  8.0f},
        {Pump,       slot::FxLfoSync,   0.1f,   beats,  0.5f},   {Chorus,     slot::FxLfoAmount, 0.0f,   amount, -1.0f},
        {Chorus,     slot::FxLfoAmount, 0.75f,  amount, 0.25f},  {Chorus,     slot::FxLfoAmount, 0.25f,  amount, -.25f},
        {Chorus,     slot::FxLfoAmount, 0.5f,   amount, 0.0f},   {Chorus,     slot::FxLfoAmount, 9.0f,   amount, 1.0f},
        {Chorus,     slot::FxLfoShape,  0.334f, shape,  1.0f},   {Chorus,     slot::FxLfoShape,  0.99f,  shape,  2.0f},
        {Chorus,     slot::FxLfoShape,  7.0f,   shape,  3.0f},   {Chorus,     slot::FxLfoShape,  -7.0f,  shape,  0.0f},
        {HighPass,   slot::FxGlue,      0.1f,   bypass, 0.0f},   {HighPass,   slot::FxGlue,      0.0f,   bypass, 1.0f},
    };
    // clang-format on
    for (const auto& c : cases) {
        Rack rack;
        rack.params[c.base + static_cast<int>(c.type)] = c.value;
        rack.Update();
        EXPECT_EQ(c.field.read(rack.Unit(c.type)), c.expected) << c.field.name << " from " << c.value;
    }
    Rack rack;
    rack.active[static_cast<int>(LowPass)] = true;
    rack.Update();
    for (const auto& unit : rack.units) EXPECT_EQ(unit->bypass, unit->type != LowPass);
}

TEST(FxSettings, MarkChangedEqualiserBandsAndBypassTheStutter)
{
    Rack rack;
    FXUnit& pump = rack.Unit(FxType::Pump);
    for (int n = 0; n < 5; ++n) rack.params[slot::EqGain + n] = 0.5f;
    rack.Update();
    pump.eqChanged = {};
    rack.params[slot::EqOn] = 1.0f;
    rack.params[slot::EqGain + 2] = 0.7f;
    rack.stutter.bypass = 0;
    rack.Update();
    EXPECT_EQ(pump.eqGains[2], 0.7f);
    EXPECT_EQ(pump.eqChanged, (std::array<std::uint8_t, 5>{0, 0, 1, 0, 0}));
    EXPECT_EQ(pump.eqOn, 1);
    EXPECT_EQ(rack.stutter.bypass, 0);
    rack.params[slot::FxBypassStutter] = 1.0f;
    rack.Update();
    EXPECT_EQ(rack.stutter.bypass, 1);
}

TEST(SyncLfo, PutsThePhaseWhereTheSongIs)
{
    // clang-format off
    const struct { float beats; int step; double phase; } cases[] = {
        {1.0f,   0, 0.0},       {1.0f,  5,   0.25},          {0.125f, 3, 0.0},
        {0.375f, 2, 1.0 / 3.0}, {32.0f, 127, 127.0 / 128.0}, {0.0f,   5, 0.7}};
    // clang-format on
    for (const auto& c : cases) {
        FXUnit unit(FxType::Chorus);
        unit.lfoBeats = c.beats;
        unit.lfoPhase = 0.7;
        SyncLfo(unit, c.step);
        EXPECT_NEAR(unit.lfoPhase, c.phase, 1e-9) << c.beats << " " << c.step;
    }
}

} // namespace
} // namespace korvane
