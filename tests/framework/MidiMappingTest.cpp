// Links from MIDI sources to parameters, pads, and the file in which links survive.
#include <gtest/gtest.h>

#include <array>

#include "support/Stage.h"

namespace korvane {
namespace {

constexpr int kWheel = 128, kFirstKey = 129; // sources after the controllers

class MidiMapping : public SynthTest {
protected:
    std::string SourceText()
    {
        return Written([this](char* text) { Synth().GetLastSourceText(text); });
    }
    std::string ParameterText()
    {
        return Written([this](char* text) { Synth().GetLastParameterText(text); });
    }
    void LinkTo(int parameter)
    {
        Synth().SetParameter(parameter, Synth().GetParameter(parameter));
        Synth().Link(true);
    }
};

TEST_F(MidiMapping, LinksDriveParameters)
{
    KVSynth& synth = Synth();
    synth.Link(true);
    EXPECT_EQ(SourceText(), "---");
    EXPECT_EQ(ParameterText(), "---");

    Send(0xB0, 7, 10);
    EXPECT_EQ(SourceText(), "CC 7");
    LinkTo(Knob(slot::MixLevel));
    EXPECT_EQ(ParameterText(), "CHN: Mix Level");
    host.told = 0;
    Send(0xB0, 7, 127);
    EXPECT_EQ(synth.GetParameter(Knob(slot::MixLevel)), 1.0f);

    Send(0xE0, 0, 0);
    EXPECT_EQ(SourceText(), "Pitch Wheel");
    LinkTo(Knob(slot::Panning));
    Send(0xE0, 0, 0);
    EXPECT_EQ(synth.GetParameter(Knob(slot::Panning)), -1.0f);
    EXPECT_EQ(synth.engine->livePitchBend, -1.0f);

    Send(0x90, 60, 127);
    EXPECT_EQ(SourceText(), "Key 60 Velocity");
    LinkTo(Knob(slot::FilterCutoff));
    Send(0x80, 60, 0);
    EXPECT_EQ(synth.GetParameter(Knob(slot::FilterCutoff)), 0.0f) << "a release writes 0";
    Send(0x90, 60, 127);
    EXPECT_EQ(synth.GetParameter(Knob(slot::FilterCutoff)), 1.0f);
    EXPECT_EQ(synth.engine->Channel(8).voiceCounter, 1u) << "once linked, it plays no pad";
    EXPECT_EQ(host.told, 0) << "hosts do not hear of links";
    synth.Link(false);
    EXPECT_EQ(synth.links[kFirstKey + 60], -1);

    Send(0xB0, 1, 127);
    EXPECT_EQ(synth.engine->liveModWheel, 1.0f);
    Send(0xD0, 127);
    EXPECT_EQ(synth.engine->livePressure, 1.0f);
}

// A link that ignores its controller's value fires once per message.
TEST_F(MidiMapping, PulsesFireTriggers)
{
    KVSynth& synth = Synth();
    Send(0xE0, 1, 1);
    LinkTo(param::FilterTypeSwitch);
    synth.SetIgnoreValue(true);
    EXPECT_EQ(synth.ignoreValue[kWheel], 0) << "only controllers can be pulses";
    synth.Link(false);
    Send(0xB0, 20, 0);
    LinkTo(param::FilterTypeSwitch);
    synth.SetIgnoreValue(true);
    for (const float expected : {0.5f, 1.0f, 0.0f}) {
        Send(0xB0, 20, 64);
        EXPECT_EQ(synth.GetParameter(Knob(slot::FilterType)), expected);
    }
    synth.Link(false);
    EXPECT_EQ(synth.ignoreValue[20], 0);
}

TEST_F(MidiMapping, LinksSurviveInTheirFile)
{
    Send(0xB0, 7, 10);
    LinkTo(Knob(slot::MixLevel));
    Synth().SetIgnoreValue(true);
    Close();
    std::vector<std::uint8_t> file = ReadBytes(root / "linkmap");
    ASSERT_EQ(file.size(), 771u);
    EXPECT_EQ(file[14], 0x50);
    EXPECT_EQ(file[15], 0x00);
    EXPECT_EQ(file[16], 0xFF);
    EXPECT_EQ(file[514 + 7], 1);
    Send(0xB0, 7, 127);
    EXPECT_EQ(Synth().links[7], Knob(slot::MixLevel));
    EXPECT_EQ(Synth().ignoreValue[7], 1);
    Close();
    EXPECT_EQ(ReadBytes(root / "linkmap"), file);

    // Any size, any content: what is there is taken, what points nowhere moves nothing.
    for (std::size_t size : {0, 1, 15, 16, 514, 520, 771, 5000}) {
        SCOPED_TRACE(size);
        std::vector<std::uint8_t> wild(size, 0x7E);
        WriteBytes(root / "linkmap", wild);
        EXPECT_EQ(Synth().links[7], size < 16 ? -1 : 0x7E7E);
        EXPECT_EQ(Synth().ignoreValue[200], size < 771 ? 0 : 0x7E);
        for (std::uint8_t n = 0; n < 128; ++n) Send(0xB0, n, n), Send(0x90, n, 100), Send(0xE0, n, n);
        Close();
    }
    std::filesystem::remove(root / "linkmap");
    std::filesystem::create_directory(root / "linkmap"); // cannot be written: no error
    Close();
    Synth();
    Close();
}

} // namespace
} // namespace korvane
