// The parameters as hosts meet them: names, texts, kinds, pages, the program switch.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "framework/ParameterTable.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

class Parameters : public SynthTest {
protected:
    std::string Display(int index)
    {
        return Written([&](char* text) { Synth().GetParameterDisplay(index, text); });
    }
    GrooveEngine& Engine() { return *Synth().engine; }
};

// Published names keep their spelling; what has none is "unknown".
TEST_F(Parameters, HaveTheirPublishedNames)
{
    // clang-format off
    const std::pair<int, const char*> names[] = {
        {0,   "Shuffle Amuont"},         {11,  "Solo Currrent Track"},        {33,  "CHANNEL 13: Synth 5"},
        {123, "SYNTH: Mix Oscllator 2"}, {153, "SAMPLER: Layer Reset Start"}, {178, "SEQ Step Bar 8"},
        {67,  "unknown"}, {179, "unknown"}, {195, "unknown"}, {196, "unknown"}, {-1, "unknown"}};
    // clang-format on
    for (const auto& [index, name] : names) {
        EXPECT_EQ(Written([&, n = index](char* text) { Synth().GetParameterName(n, text); }), name) << index;
        EXPECT_EQ(Written([&, n = index](char* text) { Synth().GetParameterLabel(n, text); }), "");
    }
    std::set<std::string> distinct;
    for (const ParameterInfo& row : kParameters) distinct.insert(row.name);
    EXPECT_EQ(distinct.size(), 178u) << "176 of the 178 named rows are unique, and two rows of them have no name";
}

TEST_F(Parameters, ShowTheirValue)
{
    // clang-format off
    struct Case { int index; float value; const char* text; };
    const Case cases[] = {
        {80,  0.75f,       "0.0 dB"},  {80,  0.0f,   "-60.0 dB"}, {81,  0.25f,       "-50.0"},
        {82,  0.5f,        "0"},       {82,  0.49f,  "0"},        {82,  0.0f,        "-24"},
        {83,  1.0f / 3.0f, "0.79"},    {83,  0.0f,   "0.13"},     {83,  1.0f,        "32.00"},
        {88,  1.0f,        "25.0 dB"}, {71,  0.5f,   "3/4"},      {71,  1.0f,        "8/1"},
        {71,  -1.0f,       "1/8"},     {105, 0.89f,  "8/1"},      {116, 0.99f,       "15"},
        {116, 1.0f,        "16"},      {130, 0.0f,   "-36"},      {131, 0.996f,      "49"},
        {85,  0.123f,      "12.3 %"},  {182, 0.25f,  "-50.0 %"},  {189, 1.0f / 6.0f, "2 smt"},
        {191, 0.0f,      "-12.00 dB"}, {195, 1.0f, "12.00 dB"},
    };
    // clang-format on
    for (const Case& c : cases) {
        Synth().SetParameter(c.index, c.value);
        EXPECT_EQ(Display(c.index), c.text) << c.index << " at " << c.value;
    }
    EXPECT_EQ(Display(-1), "0.0 %");
    EXPECT_EQ(Display(196), "0.0 %");
}

// The value that a reset gives and the one that a new channel has are two columns.
TEST_F(Parameters, HaveTwoColumnsOfDefaults)
{
    const std::tuple<int, float, float> rows[] = {{71, 0.5f, 0.5566667f}, {83, 1.0f / 3.0f, 0.44444445f},
                                                  {105, 0.5f, 0.0f},      {123, 1.0f, 0.0f},
                                                  {184, 0.0f, 1.0f},      {80, 0.75f, 0.75f}};
    for (const auto& [index, reset, fresh] : rows) {
        EXPECT_EQ(Synth().GetParameterDefault(index), reset) << index;
        EXPECT_EQ(Synth().GetParameter(index), fresh) << index;
    }
    Synth().SetParameter(param::Channel1, 1.0f), Synth().SetParameter(param::Channel1, 0.0f);
    EXPECT_EQ(Synth().GetParameter(92), 0.0f) << "samplers start with the high-pass at 0";
    EXPECT_EQ(Synth().GetParameter(95), 1.0f);
}

TEST_F(Parameters, ActByTheirKind)
{
    KVSynth& synth = Synth();
    synth.SetParameter(param::Pattern1 + 2, 1.0f);
    EXPECT_EQ(Engine().currentPattern, 2);
    Engine().currentPattern = 0;
    synth.SetParameter(param::Pattern1 + 2, 1.0f);
    EXPECT_EQ(Engine().currentPattern, 0) << "a trigger waits for its edge";
    synth.SetParameter(param::Pattern1 + 2, 0.0f), synth.SetParameter(param::Pattern1 + 2, 0.5f);
    EXPECT_EQ(Engine().currentPattern, 2);

    synth.SetParameter(param::Play, 1.0f), synth.SetParameter(param::Play, 0.3f);
    EXPECT_TRUE(Engine().playing) << "a follower compares with the engine";
    synth.SetParameter(param::PlayBar, 1.0f), synth.SetParameter(param::PlayBar, 1.0f);
    EXPECT_FALSE(Engine().playBar) << "any write ends the bar loop";
    synth.SetParameter(param::Enable1 + 3, 0.0f);
    EXPECT_TRUE(Engine().muted[3]);
    EXPECT_EQ(synth.GetParameter(param::Enable1 + 3), 0.0f);

    synth.SetParameter(param::EnvelopeNumber, 0.99f);
    EXPECT_EQ(synth.GetParameter(param::EnvelopeNumber), 0.0f);
    synth.SetParameter(param::LayerNumber, 0.5f);
    EXPECT_EQ(synth.GetParameter(param::LayerNumber), 1.0f / 3.0f);
    synth.SetParameter(param::LayerNumber, 9.0f);
    EXPECT_EQ(Engine().layerNumber, 3);
    synth.SetParameter(136, 0.125f);
    EXPECT_EQ(Engine().storedParams[8][64], 0.125f);

    synth.SetParameter(param::Step1, 1.0f), synth.SetParameter(param::Step1, 0.25f);
    EXPECT_TRUE(Engine().stepHeld[0]) << "steps know no edge";
    EXPECT_EQ(synth.GetParameter(param::Step1), 0.25f);
    for (int index : {-1, 67, 153, 154, 179, 180, 181, 196, 1 << 30}) synth.SetParameter(index, 1.0f);
    EXPECT_EQ(synth.GetParameter(67), 1.0f);
    EXPECT_EQ(synth.GetParameter(196), 0.0f);
}

// A program switch reads, reports and applies each of the 196 values, in order.
TEST_F(Parameters, AreReportedAtAProgramSwitch)
{
    Synth().SetParameter(92, 0.25f);
    host.reports.clear();
    Synth().SetProgram(7);
    ASSERT_EQ(host.reports.size(), 196u);
    for (int n = 0; n < 196; ++n) EXPECT_EQ(host.reports[static_cast<std::size_t>(n)].first, n);
    EXPECT_EQ(host.reports[92].second, 0.25f);
    EXPECT_EQ(Synth().lastParameter, 195);
    EXPECT_EQ(Engine().extIndex, 4) << "applied: the last EXT control written";
}

} // namespace
} // namespace korvane
