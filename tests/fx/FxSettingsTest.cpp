// Effect settings: channel parameters into unit fields, LFO phase by song position.
#include <gtest/gtest.h>

#include <memory>

#include "engine/FxSettings.h"

namespace korvane {
namespace {

struct Rack {
    Rack()
    {
        for (int k = 0; k < kEffects; ++k) {
            units[k] = std::make_unique<FXUnit>(static_cast<FxType>(k));
            params[177 + k] = 0.5f;
        }
    }
    void Update() { UpdateFxSettings(params, active, units, stutter); }

    Shared<float> params[kChannelSlots];
    Shared<bool> active[kEffects];
    std::array<std::unique_ptr<FXUnit>, kEffects> units;
    FXUnit stutter{FxType::Stutter};
};

TEST(FxSettings, TurnParametersIntoFields)
{
    // clang-format off
    struct Case { int k, index; float value; const char* field; float expected; float (*read)(const FXUnit&); };
    const auto x = [](const FXUnit& u) { return u.x; };
    const auto y = [](const FXUnit& u) { return u.y; };
    const auto beats = [](const FXUnit& u) { return u.lfoBeats; };
    const auto amount = [](const FXUnit& u) { return u.lfoAmount; };
    const auto shape = [](const FXUnit& u) { return static_cast<float>(u.lfoShape); };
    const auto bypass = [](const FXUnit& u) { return static_cast<float>(u.bypass); };
    const Case cases[] = {
        {3, 120, 0.25f, "x", 0.25f, x}, {3, 120, 2.0f, "x", 1.0f, x}, {9, 136, -1.0f, "y", 0.0f, y},
        {0, 137, 0.0f,  "beats", 0.125f, beats}, {0, 137, 0.5566667f, "beats", 1.0f, beats},
        {0, 137, 0.5f,  "beats", 0.75f,  beats}, {0, 137, 1e30f,      "beats", 8.0f, beats},
        {9, 146, 1.0f,  "beats", 8.0f,   beats},
        {2, 179, 0.75f, "amount", 0.25f, amount}, {2, 179, 0.25f, "amount", -0.25f, amount},
        {2, 179, 0.5f,  "amount", 0.0f,  amount},
        {2, 159, 1.0f / 3.0f, "shape", 1.0f, shape}, {2, 159, 1.0f, "shape", 3.0f, shape},
        {2, 159, -7.0f,       "shape", 0.0f, shape},
        {5, 152, 0.1f,  "glued", 0.0f, bypass}, {5, 152, 0.0f, "released", 1.0f, bypass},
    };
    // clang-format on
    for (const Case& c : cases) {
        Rack rack;
        rack.params[c.index] = c.value;
        rack.Update();
        EXPECT_EQ(c.read(*rack.units[c.k]), c.expected) << c.field << " from " << c.value;
    }
    Rack rack;
    rack.active[4] = true;
    rack.params[176] = 0.01f;
    rack.params[146] = 1.0f;
    rack.Update();
    EXPECT_EQ(rack.units[4]->bypass, 0);
    EXPECT_EQ(rack.units[9]->lfoBeats, 32.0f);
}

TEST(FxSettings, MarkChangedEqualiserBandsAndBypassTheStutter)
{
    Rack rack;
    FXUnit& pump = *rack.units[9];
    for (int n = 0; n < 5; ++n) rack.params[207 + n] = 0.5f;
    rack.Update();
    pump.eqChanged = {};
    rack.params[206] = 1.0f;
    rack.params[209] = 0.7f;
    rack.stutter.bypass = 0;
    rack.Update();
    EXPECT_EQ(pump.eqChanged, (std::array<std::uint8_t, 5>{0, 0, 1, 0, 0}));
    EXPECT_EQ(pump.eqOn, 1);
    EXPECT_EQ(rack.stutter.bypass, 0);
    rack.params[187] = 1.0f;
    rack.Update();
    EXPECT_EQ(rack.stutter.bypass, 1);
}

TEST(SyncLfo, PutsThePhaseWhereTheSongIs)
{
    // clang-format off
    struct Case { float beats; int step; double phase; };
    const Case cases[] = {{1.0f,   0, 0.0},       {1.0f,  5,   0.25},          {0.125f, 3, 0.0},
                          {0.375f, 2, 1.0 / 3.0}, {32.0f, 127, 127.0 / 128.0}, {0.0f,   5, 0.7}};
    // clang-format on
    for (const Case& c : cases) {
        FXUnit unit(FxType::Chorus);
        unit.lfoBeats = c.beats;
        unit.lfoPhase = 0.7;
        SyncLfo(unit, c.step);
        EXPECT_NEAR(unit.lfoPhase, c.phase, 1e-9) << c.beats << " " << c.step;
    }
}

} // namespace
} // namespace korvane
