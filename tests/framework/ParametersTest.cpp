// The parameters as hosts meet them: names, texts, kinds, pages, the program switch.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/Parameters.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

class Parameters : public SynthTest {
protected:
    std::string Display(int index)
    {
        return Written([&](char* text) { Synth().GetParameterDisplay(index, text); });
    }
    void Press(int button)
    {
        for (const float value : {1.0f, 0.0f}) Synth().SetParameter(button, value);
    }
    std::vector<float> Settings() { return {std::begin(Engine().storedParams[8]), std::end(Engine().storedParams[8])}; }
    /// Envelope and LFO 2, layer 4, effect 5.
    void ChooseLastPages()
    {
        for (const int page : {param::EnvelopeNumber, param::LfoNumber, param::LayerNumber})
            Synth().SetParameter(page, 1.0f);
        Press(param::Fx1 + 4);
    }
};

// Published names keep their spelling; what has none is "unknown".
TEST_F(Parameters, HaveTheirPublishedNames)
{
    // clang-format off
    const std::pair<int, const char*> names[] = {
        {0,   "Shuffle Amuont"},         {11,  "Solo Currrent Track"},        {33,  "CHANNEL 13: Synth 5"},
        {123, "SYNTH: Mix Oscllator 2"}, {153, "SAMPLER: Layer Reset Start"}, {178, "SEQ Step Bar 8"},
        {67,  "unknown"}, {179, "unknown"}, {195, "unknown"}, {param::Count, "unknown"}, {-1, "unknown"}};
    // clang-format on
    for (const auto& [index, name] : names) {
        EXPECT_EQ(Written([&, n = index](char* text) { Synth().GetParameterName(n, text); }), name) << index;
        EXPECT_EQ(Written([&, n = index](char* text) { Synth().GetParameterLabel(n, text); }), "");
    }
}

TEST_F(Parameters, ShowTheirValue)
{
    // clang-format off
    struct Case { int setting; float value; const char* text; };
    const Case cases[] = {
        {slot::MixLevel, 0.75f, "0.0 dB"}, {slot::MixLevel, 0.0f, "-60.0 dB"}, {slot::Panning, 0.25f, "-50.0"},
        {slot::Pitch, 0.0f, "-24"}, {slot::Pitch, 0.5f, "0"}, {slot::Pitch, 0.49f, "0"},
        {slot::NoteLength, 1.0f / 3.0f, "0.79"}, {slot::NoteLength, 0.0f, "0.13"}, {slot::NoteLength, 1.0f, "32.00"},
        {slot::AmpLevel, 1.0f, "25.0 dB"}, {slot::FxLfoRate, 0.5f, "3/4"}, {slot::FxLfoRate, 1.0f, "8/1"},
        {slot::FxLfoRate, -1.0f, "1/8"}, {slot::LfoRate, 0.89f, "8/1"}, {slot::UnisonVoices, 0.99f, "15"},
        {slot::UnisonVoices, 1.0f, "16"}, {slot::Osc1Pitch, 0.0f, "-36"}, {slot::Osc1Detune, 0.996f, "49"},
        {slot::AmpDecay, 0.123f, "12.3 %"}, {slot::VelocityAmount, 0.25f, "-50.0 %"}, {slot::EqGain, 0.0f, "-12.00 dB"},
        {slot::BendRange, 1.0f / 6.0f, "2 smt"}, {slot::EqGain + 4, 1.0f, "12.00 dB"},
    };
    // clang-format on
    for (const Case& c : cases) {
        Synth().SetParameter(ParamOf(c.setting), c.value);
        EXPECT_EQ(Display(ParamOf(c.setting)), c.text) << c.setting << " at " << c.value;
    }
    EXPECT_EQ(Display(-1), "0.0 %");
    EXPECT_EQ(Display(param::Count), "0.0 %");
}

// The value that a reset gives and the one that a new channel has are two columns.
TEST_F(Parameters, HaveTwoColumnsOfDefaults)
{
    const std::tuple<int, float, float> rows[] = {
        {slot::FxLfoRate, 0.5f, 0.5566667f}, {slot::NoteLength, 1.0f / 3.0f, 0.44444445f}, {slot::LfoRate, 0.5f, 0.0f},
        {slot::MixLevel, 0.75f, 0.75f},      {slot::VelocitySensitivity, 0.0f, 1.0f},      {slot::MixOsc2, 1.0f, 0.0f}};
    for (const auto& [setting, reset, fresh] : rows) {
        EXPECT_EQ(Synth().GetParameterDefault(ParamOf(setting)), reset) << setting;
        EXPECT_EQ(Synth().GetParameter(ParamOf(setting)), fresh) << setting;
    }
    Press(param::Channel1);
    EXPECT_EQ(Synth().GetParameter(ParamOf(slot::FilterCutoff)), 0.0f) << "samplers start with the high-pass at 0";
    EXPECT_EQ(Synth().GetParameter(ParamOf(slot::FilterType)), 1.0f);
}

TEST_F(Parameters, ActByTheirKind)
{
    constexpr int kSwitch = param::FilterTypeSwitch, kType = ParamOf(slot::FilterType);
    // clang-format off
    struct Case { const char* what; std::vector<std::pair<int, float>> writes; int read; float value; };
    const Case cases[] = {
        {"triggers act on an edge",  {{kSwitch, 1.0f}, {kSwitch, 1.0f}},               kType,                 0.5f},
        {"and on the next",          {{kSwitch, 0.0f}, {kSwitch, 0.5f}},               kType,                 1.0f},
        {"followers ask the engine", {{param::Play, 1.0f}, {param::Play, 0.3f}},       param::Play,           1.0f},
        {"writes end a bar loop",    {{param::PlayBar, 1.0f}, {param::PlayBar, 1.0f}}, param::PlayBar,        0.0f},
        {"pages are whole",          {{param::EnvelopeNumber, 0.99f}},                 param::EnvelopeNumber, 0.0f},
        {"layers come in thirds",    {{param::LayerNumber, 0.5f}},                     param::LayerNumber,    1.0f / 3},
        {"beyond the last layer",    {{param::LayerNumber, 9.0f}},                     param::LayerNumber,    1.0f},
        {"steps know no edge",       {{param::Step1, 1.0f}, {param::Step1, 0.25f}},    param::Step1,          0.25f},
        {"no name: stored", {{67, 1.0f}, {153, 1.0f}, {param::HostCount, 1.0f}, {179, 1.0f}, {181, 1.0f}}, 67, 1.0f},
        {"what is not there is 0",   {{-1, 1.0f}, {param::Count, 1.0f}, {1 << 30, 1.0f}}, param::Count, 0.0f},
    };
    // clang-format on
    for (const Case& c : cases) {
        for (const auto& [index, value] : c.writes) Synth().SetParameter(index, value);
        EXPECT_EQ(Synth().GetParameter(c.read), c.value) << c.what;
    }
}

// A knob turns its setting of the selected and of every held channel, one of an effect that of every held effect.
TEST_F(Parameters, ReachWhatIsHeld)
{
    for (const int held : {param::Channel1 + 2, param::Fx1 + 1, param::Fx1 + 4}) Synth().SetParameter(held, 1.0f);
    Synth().SetParameter(ParamOf(slot::FxX), 0.9f);
    for (int c = 0; c < kChannels; ++c)
        for (int k = 0; k < kEffects; ++k) {
            const bool reached = (c == 2 || c == 8) && (k == 1 || k == 4);
            EXPECT_EQ(Engine().storedParams[c][slot::FxX + k], reached ? 0.9f : 0.5f) << c << ", " << k;
            EXPECT_EQ(Engine().Channel(c).fxActive[k], reached) << c << ", " << k;
        }
}

// Hosts know the parameters by number: which setting of the chosen page a number writes is published.
TEST_F(Parameters, WriteTheirPublishedSetting)
{
    // clang-format off
    struct Run { int first, last, setting, distance; };
    const Run runs[] = {
        {70, 70, slot::FxGlue + 4, 0}, {71, 71, slot::FxLfoRate + 4, 0}, {72, 72, slot::FxLfoAmount + 4, 0},
        {74, 74, slot::FxLfoShape + 4, 0}, {76, 76, slot::FxLfoSync + 4, 0}, {77, 77, slot::FxX + 4, 0},
        {78, 78, slot::FxY + 4, 0}, {79, 79, slot::FxBypassStutter, 0}, {80, 95, slot::MixLevel, 1},
        {99, 99, slot::EnvelopeDestination + 1, 0}, {100, 101, slot::EnvelopeAttack + 1, 2},
        {102, 103, slot::EnvelopeAmount + 1, 2}, {105, 105, slot::LfoRate + 1, 0}, {106, 106, slot::LfoAmount + 1, 0},
        {107, 107, slot::LfoRetrig + 1, 0}, {108, 108, slot::LfoInvert + 1, 0}, {110, 110, slot::LfoSync + 1, 0},
        {112, 112, slot::LfoDestination + 1, 0}, {114, 114, slot::LfoShape + 1, 0}, {115, 135, slot::MonoVoice, 1},
        {136, 145, slot::LayerLevel + 3, 4}, {146, 147, slot::LayerInvert + 3, 4}, {148, 151, slot::LayerBypass, 1},
        {182, 195, slot::VelocityAmount, 1},
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
    // clang-format off
    struct Case { int button, setting, last; };
    const Case cases[] = {
        {param::FilterTypeSwitch,     slot::FilterType,         2}, {param::LfoSyncSwitch,   slot::LfoSync + 1,   2},
        {param::FxLfoShapeSwitch,     slot::FxLfoShape + 4,     3}, {param::FxLfoSyncSwitch, slot::FxLfoSync + 4, 1},
        {param::LfoDestinationSwitch, slot::LfoDestination + 1, 3}, {param::LfoShapeSwitch,  slot::LfoShape + 1,  3},
        {param::EnvelopeDestinationSwitch, slot::EnvelopeDestination + 1, 3},
    };
    // clang-format on
    ChooseLastPages();
    for (const Case& c : cases)
        for (int press = 1; press <= c.last + 1; ++press) {
            std::vector<float> expected = Settings();
            expected[static_cast<std::size_t>(c.setting)] =
                static_cast<float>(press % (c.last + 1)) / static_cast<float>(c.last);
            Press(c.button);
            EXPECT_EQ(Settings(), expected) << c.button;
        }
}

// The score editor shows a stepped setting at the nearest of its steps.
TEST(ChannelSlots, ShowTheirStepsInALane)
{
    const std::tuple<int, float, float> rows[] = {
        {slot::FilterTracking, 0.6f, 1.0f}, {slot::FxLfoSync + 9, 0.3f, 0.5f}, {slot::FilterType, 0.4f, 1.0f / 3.0f},
        {slot::LfoShape + 1, 0.3f, 0.25f},  {slot::Octave, 0.45f, 0.4f},       {slot::FxLfoRate, 0.5f, 5.0f / 9.0f},
        {slot::FilterCutoff, 0.37f, 0.37f}, {slot::MixLevel, 2.0f, 1.0f},      {slot::LayerBypass + 3, -1.0f, 0.0f}};
    for (const auto& [setting, value, shown] : rows) EXPECT_EQ(slot::LaneValue(setting, value), shown) << setting;
}

// A program switch reads, reports and applies each value, in order.
TEST_F(Parameters, AreReportedAtAProgramSwitch)
{
    const int cutoff = ParamOf(slot::FilterCutoff);
    Synth().SetParameter(cutoff, 0.25f);
    host.reports.clear();
    EXPECT_FALSE(Synth().SetProgramName(1, "there is one"));
    EXPECT_TRUE(Synth().SetProgramName(-5, "mine"));
    EXPECT_EQ(Written([this](char* text) { Synth().GetProgramName(0, text); }), "mine");
    Synth().SetProgram(7);
    ASSERT_EQ(host.reports.size(), kParameters.size());
    for (std::size_t n = 0; n < host.reports.size(); ++n) EXPECT_EQ(host.reports[n].first, static_cast<int>(n));
    EXPECT_EQ(host.reports[static_cast<std::size_t>(cutoff)].second, 0.25f);
    EXPECT_EQ(Engine().ext.extIndex, kExtControls - 1) << "applied: the last EXT control written";
}

} // namespace
} // namespace korvane
