// Links from MIDI sources to parameters, pads, and the file in which links survive.
#include <gtest/gtest.h>

#include "support/Parameters.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

class MidiMapping : public SynthTest {
protected:
    std::string LastMoved()
    {
        return Written([this](char* text) { Synth().links.GetLastSourceText(text); }) + ", " +
               Written([this](char* text) { Synth().GetLastParameterText(text); });
    }
    void LinkTo(int parameter)
    {
        Synth().SetParameter(parameter, Synth().GetParameter(parameter));
        Synth().links.Link(true);
    }
};

// A source that was moved drives the parameter that was turned next.
TEST_F(MidiMapping, LinksDriveParameters)
{
    // clang-format off
    struct Case { std::uint8_t status, data1, data2; const char* texts; int parameter; float low, high; };
    const Case cases[] = {
        {0xB0, 7,  10,  "CC 7, CHN: Mix Level",           ParamOf(slot::MixLevel),     0.0f,  1.0f},
        {0xE0, 64, 64,  "Pitch Wheel, CHN: Panning",      ParamOf(slot::Panning),      -1.0f, 1.0f},
        {0x90, 60, 127, "Key 60 Velocity, Filter Cutoff", ParamOf(slot::FilterCutoff), 0.0f,  1.0f}, // a release: 0
    };
    // clang-format on
    KVSynth& synth = Synth();
    synth.links.Link(true);
    EXPECT_EQ(LastMoved(), "---, ---");
    for (const Case& c : cases) {
        Send(c.status, c.data1, c.data2);
        LinkTo(c.parameter);
        EXPECT_EQ(LastMoved(), c.texts);
        host.told = 0;
        for (const bool high : {false, true, false, true}) {
            const std::uint8_t value = high ? 127 : 0;
            Send(c.status, c.status == 0xE0 ? value : c.data1, value);
            EXPECT_EQ(synth.GetParameter(c.parameter), high ? c.high : c.low) << c.texts;
        }
        EXPECT_EQ(host.told, 0) << "hosts do not hear of links";
    }
    EXPECT_EQ(synth.engine->livePitchBend, 1.0f);
    EXPECT_EQ(synth.engine->Channel(8).voiceCounter, 1u) << "once linked, a key plays no pad";
    synth.links.Link(false);
    Send(0x80, 60);
    EXPECT_EQ(synth.GetParameter(ParamOf(slot::FilterCutoff)), 1.0f);
}

// A link that ignores its controller's value fires once per message; only controllers can be such pulses.
TEST_F(MidiMapping, PulsesFireTriggers)
{
    // clang-format off
    struct Case { std::uint8_t status; bool ignoreValue; std::vector<float> positions; };
    const Case cases[] = {{0xB0, true, {0.5f, 1.0f, 0.0f}}, {0xB0, false, {0.5f, 0.5f}}, {0xE0, true, {0.5f, 0.5f}}};
    // clang-format on
    for (const Case& c : cases) {
        Send(c.status, 20, 0);
        LinkTo(param::FilterTypeSwitch);
        Synth().links.SetIgnoreValue(c.ignoreValue);
        for (const float position : c.positions) {
            Send(c.status, 20, 64);
            EXPECT_EQ(Synth().GetParameter(ParamOf(slot::FilterType)), position);
        }
        Synth().links.Link(false);
    }
}

TEST_F(MidiMapping, LinksSurviveInTheirFile)
{
    Send(0xB0, 7, 10);
    LinkTo(ParamOf(slot::MixLevel));
    Synth().links.SetIgnoreValue(true);
    Close();
    const std::vector<std::uint8_t> file = ReadBytes(root / "linkmap");
    std::vector<std::uint8_t> expected(771, 0xFF); // 257 links of two bytes, then a flag of each
    std::fill_n(expected.begin() + 514, 257, std::uint8_t{0});
    expected[2 * 7] = ParamOf(slot::MixLevel);
    expected[2 * 7 + 1] = 0;
    expected[514 + 7] = 1;
    EXPECT_EQ(file, expected);
    Synth();
    Close();
    EXPECT_EQ(ReadBytes(root / "linkmap"), file);

    // Any size, any content: what is there is taken, what points nowhere moves nothing.
    for (std::size_t size : {0, 1, 15, 16, 514, 520, 771, 5000}) {
        WriteBytes(root / "linkmap", std::vector<std::uint8_t>(size, 0x7E));
        EXPECT_EQ(Synth().links.links[7], size < 16 ? -1 : 0x7E7E) << size;
        EXPECT_EQ(Synth().links.ignoreValue[200], size < 771 ? 0 : 0x7E) << size;
        for (const auto status : std::initializer_list<std::uint8_t>{0xB0, 0x90, 0xE0})
            for (std::uint8_t n = 0; n < 128; ++n) Send(status, n, 100);
        Close();
    }
    std::filesystem::remove(root / "linkmap");
    std::filesystem::create_directory(root / "linkmap"); // cannot be written: no error
    Synth();
    Close();
}

} // namespace
} // namespace korvane
