// The parameters as hosts meet them: names, texts, kinds, pages, the program switch.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "support/Stage.h"

namespace korvane {
namespace {

class Parameters : public SynthTest {
protected:
    std::string Display(int index)
    {
        return Written([&](char* text) { Synth().GetParameterDisplay(index, text); });
    }
    GrooveEngine& Engine() { return *Synth().engine; }
    /// Envelope and LFO 2, layer 4, effect 5.
    void ChooseLastPages()
    {
        for (const int page : {+param::EnvelopeNumber, +param::LfoNumber, +param::LayerNumber, param::Fx1 + 4})
            Synth().SetParameter(page, 1.0f);
        Synth().SetParameter(param::Fx1 + 4, 0.0f);
    }
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
    struct Case { int setting; float value; const char* text; };
    const Case cases[] = {
        {slot::MixLevel,     0.75f,       "0.0 dB"},  {slot::MixLevel,       0.0f,   "-60.0 dB"},
        {slot::Panning,      0.25f,       "-50.0"},   {slot::Pitch,          0.0f,   "-24"},
        {slot::Pitch,        0.5f,        "0"},       {slot::Pitch,          0.49f,  "0"},
        {slot::NoteLength,   1.0f / 3.0f, "0.79"},    {slot::NoteLength,     0.0f,   "0.13"},
        {slot::NoteLength,   1.0f,        "32.00"},   {slot::AmpLevel,       1.0f,   "25.0 dB"},
        {slot::FxLfoRate,    0.5f,        "3/4"},     {slot::FxLfoRate,      1.0f,   "8/1"},
        {slot::FxLfoRate,    -1.0f,       "1/8"},     {slot::LfoRate,        0.89f,  "8/1"},
        {slot::UnisonVoices, 0.99f,       "15"},      {slot::UnisonVoices,   1.0f,   "16"},
        {slot::Osc1Pitch,    0.0f,        "-36"},     {slot::Osc1Detune,     0.996f, "49"},
        {slot::AmpDecay,     0.123f,      "12.3 %"},  {slot::VelocityAmount, 0.25f,  "-50.0 %"},
        {slot::BendRange,    1.0f / 6.0f, "2 smt"},   {slot::EqGain,         0.0f,   "-12.00 dB"},
        {slot::EqGain + 4,   1.0f,        "12.00 dB"},
    };
    // clang-format on
    for (const Case& c : cases) {
        Synth().SetParameter(Knob(c.setting), c.value);
        EXPECT_EQ(Display(Knob(c.setting)), c.text) << c.setting << " at " << c.value;
    }
    EXPECT_EQ(Display(-1), "0.0 %");
    EXPECT_EQ(Display(196), "0.0 %");
}

// The value that a reset gives and the one that a new channel has are two columns.
TEST_F(Parameters, HaveTwoColumnsOfDefaults)
{
    const std::tuple<int, float, float> rows[] = {
        {slot::FxLfoRate, 0.5f, 0.5566667f}, {slot::NoteLength, 1.0f / 3.0f, 0.44444445f},
        {slot::LfoRate, 0.5f, 0.0f},         {slot::MixOsc2, 1.0f, 0.0f},
        {slot::MixLevel, 0.75f, 0.75f},      {slot::VelocitySensitivity, 0.0f, 1.0f}};
    for (const auto& [setting, reset, fresh] : rows) {
        EXPECT_EQ(Synth().GetParameterDefault(Knob(setting)), reset) << setting;
        EXPECT_EQ(Synth().GetParameter(Knob(setting)), fresh) << setting;
    }
    Synth().SetParameter(param::Channel1, 1.0f), Synth().SetParameter(param::Channel1, 0.0f);
    EXPECT_EQ(Synth().GetParameter(Knob(slot::FilterCutoff)), 0.0f) << "samplers start with the high-pass at 0";
    EXPECT_EQ(Synth().GetParameter(Knob(slot::FilterType)), 1.0f);
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

    synth.SetParameter(param::EnvelopeNumber, 0.99f);
    EXPECT_EQ(synth.GetParameter(param::EnvelopeNumber), 0.0f);
    synth.SetParameter(param::LayerNumber, 0.5f);
    EXPECT_EQ(synth.GetParameter(param::LayerNumber), 1.0f / 3.0f);
    synth.SetParameter(param::LayerNumber, 9.0f);
    EXPECT_EQ(Engine().layerNumber, 3);
    synth.SetParameter(Knob(slot::LayerLevel), 0.125f);
    EXPECT_EQ(Engine().storedParams[8][slot::LayerLevel + 3], 0.125f);

    synth.SetParameter(param::Step1, 1.0f), synth.SetParameter(param::Step1, 0.25f);
    EXPECT_TRUE(Engine().stepHeld[0]) << "steps know no edge";
    EXPECT_EQ(synth.GetParameter(param::Step1), 0.25f);
    for (int index : {-1, 67, 153, 154, 179, 180, 181, 196, 1 << 30}) synth.SetParameter(index, 1.0f);
    EXPECT_EQ(synth.GetParameter(67), 1.0f);
    EXPECT_EQ(synth.GetParameter(196), 0.0f);
}

// Hosts know the parameters by number: which setting of the chosen page a number writes is published.
TEST_F(Parameters, WriteTheirPublishedSetting)
{
    // clang-format off
    struct Run { int first, last, setting, distance; };
    const Run runs[] = {
        {70, 70, slot::FxGlue + 4,     0}, {71, 71, slot::FxLfoRate + 4, 0}, {72, 72, slot::FxLfoAmount + 4, 0},
        {74, 74, slot::FxLfoShape + 4, 0}, {76, 76, slot::FxLfoSync + 4, 0}, {77, 77, slot::FxX + 4,         0},
        {78, 78, slot::FxY + 4,        0}, {79, 79, slot::FxBypassStutter, 0}, {80, 95, slot::MixLevel,      1},
        {99, 99, slot::EnvelopeDestination + 1, 0}, {100, 101, slot::EnvelopeAttack + 1, 2},
        {102, 103, slot::EnvelopeAmount + 1,    2}, {105, 105, slot::LfoRate + 1, 0}, {106, 106, slot::LfoAmount + 1, 0},
        {107, 107, slot::LfoRetrig + 1,         0}, {108, 108, slot::LfoInvert + 1, 0}, {110, 110, slot::LfoSync + 1, 0},
        {112, 112, slot::LfoDestination + 1,    0}, {114, 114, slot::LfoShape + 1, 0}, {115, 135, slot::MonoVoice,    1},
        {136, 145, slot::LayerLevel + 3,        4}, {146, 147, slot::LayerInvert + 3, 4}, {148, 151, slot::LayerBypass, 1},
        {182, 195, slot::VelocityAmount,        1},
    };
    // clang-format on
    ChooseLastPages();
    std::ptrdiff_t written = 0;
    for (const Run& run : runs)
        for (int index = run.first; index <= run.last; ++index, ++written) {
            Synth().SetParameter(index, 0.123f);
            EXPECT_EQ(Engine().storedParams[8][run.setting + (index - run.first) * run.distance], 0.123f) << index;
            EXPECT_EQ(Synth().GetParameter(index), 0.123f) << index;
            Synth().SetParameter(index, 0.0f);
        }
    const auto settings = std::count_if(kParameters.begin(), kParameters.end(),
                                        [](const ParameterInfo& row) { return row.slotBase >= 0; });
    EXPECT_EQ(written, settings);
}

// A switch turns its own setting, of the chosen page, through its positions and back to the first.
TEST_F(Parameters, SwitchesTurnOneSetting)
{
    constexpr float kThird = 1.0f / 3.0f;
    // clang-format off
    struct Case { int button, setting; std::vector<float> positions; };
    const Case cases[] = {
        {param::FilterTypeSwitch,          slot::FilterType,              {0.5f, 1.0f, 0.0f}},
        {param::EnvelopeDestinationSwitch, slot::EnvelopeDestination + 1, {kThird, 2 * kThird, 1.0f, 0.0f}},
        {param::LfoSyncSwitch,             slot::LfoSync + 1,             {0.5f, 1.0f, 0.0f}},
        {param::LfoDestinationSwitch,      slot::LfoDestination + 1,      {kThird, 2 * kThird, 1.0f, 0.0f}},
        {param::LfoShapeSwitch,            slot::LfoShape + 1,            {kThird, 2 * kThird, 1.0f, 0.0f}},
        {param::FxLfoShapeSwitch,          slot::FxLfoShape + 4,          {kThird, 2 * kThird, 1.0f, 0.0f}},
        {param::FxLfoSyncSwitch,           slot::FxLfoSync + 4,           {1.0f, 0.0f}},
    };
    // clang-format on
    ChooseLastPages();
    for (const Case& c : cases)
        for (const float position : c.positions) {
            std::vector<float> expected(std::begin(Engine().storedParams[8]), std::end(Engine().storedParams[8]));
            expected[static_cast<std::size_t>(c.setting)] = position;
            Synth().SetParameter(c.button, 1.0f), Synth().SetParameter(c.button, 0.0f);
            for (int n = 0; n < kChannelSlots; ++n)
                EXPECT_EQ(Engine().storedParams[8][n], expected[static_cast<std::size_t>(n)]) << c.setting << ": " << n;
        }
}

// A program switch reads, reports and applies each value, in order.
TEST_F(Parameters, AreReportedAtAProgramSwitch)
{
    const int cutoff = Knob(slot::FilterCutoff);
    Synth().SetParameter(cutoff, 0.25f);
    host.reports.clear();
    EXPECT_FALSE(Synth().SetProgramName(1, "there is one"));
    EXPECT_TRUE(Synth().SetProgramName(-5, "mine"));
    EXPECT_EQ(Written([this](char* text) { Synth().GetProgramName(0, text); }), "mine");
    Synth().SetProgram(7);
    ASSERT_EQ(host.reports.size(), kParameters.size());
    for (std::size_t n = 0; n < host.reports.size(); ++n) EXPECT_EQ(host.reports[n].first, static_cast<int>(n));
    EXPECT_EQ(host.reports[static_cast<std::size_t>(cutoff)].second, 0.25f);
    EXPECT_EQ(Synth().lastParameter, param::Count - 1);
    EXPECT_EQ(Engine().extIndex, kExtControls - 1) << "applied: the last EXT control written";
}

} // namespace
} // namespace korvane
