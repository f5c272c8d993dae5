// Groove, part and program files and the host's chunks, as editor, host and MIDI use them.
#include <gtest/gtest.h>

#include <filesystem>

#include "state/Images.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// A mono 16-bit wave of one frame.
constexpr char kWaveText[] = "RIFF\46\0\0\0WAVEfmt \20\0\0\0\1\0\1\0\104\254\0\0\210\130\1\0\2\0\20\0data\2\0\0\0\0";
const Bytes kWave(kWaveText, kWaveText + sizeof kWaveText);

using Files = SynthTest;

TEST_F(Files, GroovesNameTheGroove)
{
    GrooveEngine engine;
    FillGroove(engine, 1);
    WriteBytes(root / "default.kvprj", Saved(engine));
    EXPECT_TRUE(Saved(*Synth().engine) == Saved(engine));
    EXPECT_EQ(TextOf(Synth().grooveName), "Default Groove");
    EXPECT_TRUE(Synth().SaveGrooveWithSamples(Path("one.a.kvprj").c_str()));
    EXPECT_EQ(TextOf(Synth().grooveName), "Default Groove");
    EXPECT_TRUE(Synth().SaveGrooveFile(Path("two.b.kvprj").c_str()));
    EXPECT_EQ(TextOf(Synth().grooveName), "two.b");
    EXPECT_EQ(fs::file_size(root / "one.a.kvprj"), Saved(engine).size());
    Synth().engine->ResetGroove();
    EXPECT_TRUE(Synth().LoadGrooveFile(Path("one.a.kvprj").c_str()));
    EXPECT_EQ(TextOf(Synth().grooveName), "one.a");
    EXPECT_TRUE(Saved(*Synth().engine) == Saved(engine));
    EXPECT_EQ(host.told, 196);
    for (const char* refused : {"none.kvprj", "Brassmoor", "nowhere/x.kvprj"})
        EXPECT_FALSE(Synth().LoadGrooveFile(Path(refused).c_str())) << refused;
    EXPECT_FALSE(Synth().SaveGrooveFile(Path("nowhere/x.kvprj").c_str()));
    EXPECT_EQ(TextOf(Synth().grooveName), "one.a");
    EXPECT_EQ(host.told, 196);
}

// The copies beside a groove are found again wherever both go; saving into the folder of the originals, by whatever
// path they were found, harms nothing.
TEST_F(Files, SamplesTravelWithTheirGroove)
{
    Bytes kick = kWave;
    kick.resize(200000, 0x40); // more than a file's buffer holds
    WriteBytes(root / "F/Samples/kick.wav", kick);
    WriteBytes(root / "Synth Waves/Saw.wav", kWave);
    auto& slot = Synth().engine->Channel(0).sampleSlots[3];
    slot.request.Post(Path("F/Samples/kick.wav").c_str());
    Render();
    ASSERT_EQ(TextOf(slot.path), Path("F/Samples/kick.wav"));
    ASSERT_TRUE(Synth().SaveGrooveWithSamples(Path("F/g.kvprj").c_str()));
    EXPECT_TRUE(ReadBytes(root / "F/Samples/kick.wav") == kick);
    EXPECT_EQ(fs::file_size(root / "F/Waveforms/Saw.wav"), kWave.size());
    fs::rename(root / "F", root / "G");
    ASSERT_TRUE(Synth().LoadGrooveFile(Path("G/g.kvprj").c_str()));
    EXPECT_EQ(TextOf(slot.path), Path("F/Samples/kick.wav"));
    Render();
    EXPECT_EQ(fs::path(TextOf(slot.path)).string(), Path("G/Samples/") + "\\kick.wav");
    ASSERT_TRUE(Synth().SaveGrooveWithSamples(Path("G/g.kvprj").c_str()));
    EXPECT_TRUE(ReadBytes(root / "G/Samples/kick.wav") == kick);
    const Bytes image = Saved(*Synth().engine);
    EXPECT_EQ(Synth().SetBankChunk(image.data(), static_cast<int>(image.size())), static_cast<int>(image.size()));
    EXPECT_TRUE(Synth().engine->samplePool->grooveSampleFolder.Empty());
}

TEST_F(Files, APartKeepsLevelAndPan)
{
    GrooveEngine& engine = *Synth().engine;
    for (int n = 0; n < 10; ++n) engine.SetChannelParameter(n, 0.25f);
    ASSERT_TRUE(Synth().SavePartFile(Path("p.kvprt").c_str()));
    for (int n = 0; n < 10; ++n) engine.SetChannelParameter(n, 0.75f);
    ASSERT_TRUE(Synth().LoadPartFile(Path("p.kvprt").c_str()));
    for (int n = 0; n < 10; ++n) EXPECT_EQ(engine.GetChannelParameter(n), n < 2 ? 0.75f : 0.25f) << n;
    EXPECT_EQ(host.told, 196);
    engine.selectedChannel = 0;
    EXPECT_FALSE(Synth().LoadPartFile(Path("p.kvprt").c_str()));
}

TEST_F(Files, AProgramKeepsTheChannelsFourSettings)
{
    GrooveEngine& engine = *Synth().engine;
    for (int n = 0; n < 12; ++n) engine.SetChannelParameter(n, 0.25f);
    ASSERT_TRUE(Synth().SaveProgramFile(Path("p.kvsynth").c_str()));
    EXPECT_EQ(TextOf(engine.Channel(8).programPath), Path("p.kvsynth"));
    // clang-format off
    struct Case { std::uintmax_t size; bool accepted; float pitch; std::string path; }; // pitch and path afterwards
    const Case cases[] = {{4948, true,  0.25f, Path("p.kvsynth")}, {4436, true,  0.25f, Path("p.kvsynth")},
                          {4435, false, 0.25f, ""},                {4,    false, 0.75f, "old"}};
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.size);
        fs::resize_file(root / "p.kvsynth", c.size);
        engine.selectedChannel = 10;
        for (int n = 0; n < 12; ++n) engine.SetChannelParameter(n, 0.75f);
        engine.Channel(10).programPath.Set("old");
        host.told = 0;
        EXPECT_EQ(Synth().LoadProgramFile(Path("p.kvsynth").c_str()), c.accepted);
        for (const int n : {0, 1, 3, 9}) EXPECT_EQ(engine.GetChannelParameter(n), 0.75f) << n;
        EXPECT_EQ(engine.GetChannelParameter(2), c.pitch);
        EXPECT_EQ(TextOf(engine.Channel(10).programPath), c.path);
        EXPECT_EQ(host.told, c.accepted ? 196 : 0);
    }
}

TEST_F(Files, MidiChoosesFromTheLibraryOfTheSelectedKind)
{
    Bytes program(4948);
    Synth().engine->SaveChannelChunk(program.data(), 8);
    for (const char* name : {"Synth Programs/A/1.kvsynth", "Synth Programs/A/2.kvsynth", "Sampler Programs/B/1.kvsmp"})
        WriteBytes(root / name, program);
    Close();
    const auto loads = [this] { return std::exchange(host.told, 0) / 196; };
    loads();
    Send(0xC0, 0);
    EXPECT_EQ(loads(), 0) << "no folder is selected yet";
    // clang-format off
    struct Case { const char* what; std::uint8_t status, data1, data2; int loads; };
    const Case cases[] = {
        {"bank loads its first program", 0xB0, 32, 0, 1}, {"and again",    0xB0, 32, 0, 1}, {"program", 0xC0, 1,  0, 1},
        {"same program",                 0xC0, 1,  0, 0}, {"no program",   0xC0, 2,  0, 0}, {"no bank", 0xB0, 32, 9, 1},
    };
    // clang-format on
    for (const Case& c : cases) {
        Send(c.status, c.data1, c.data2);
        EXPECT_EQ(loads(), c.loads) << c.what;
    }
    Synth().engine->selectedChannel = 0;
    Send(0xB0, 32, 0);
    EXPECT_EQ(TextOf(Synth().engine->Channel(0).programPath), Path("Sampler Programs/B/1.kvsmp"));
}

TEST_F(Files, ChunksNeverOutgrowTheSizeTheHostWasTold)
{
    GrooveEngine& engine = *Synth().engine;
    FillGroove(engine, 2);
    const Bytes before = Saved(engine);
    Bytes chunk(static_cast<std::size_t>(Synth().GetBankChunk(nullptr)) + 6);
    ASSERT_EQ(chunk.size(), before.size() + 6);
    engine.patterns[0]->locks[0][0].Append(1, 0.5f);
    EXPECT_EQ(Synth().GetBankChunk(chunk.data()), static_cast<int>(before.size()));
    EXPECT_TRUE(std::equal(before.begin(), before.end(), chunk.begin()));
    EXPECT_EQ(Synth().GetProgramChunk(nullptr), static_cast<int>(chunk.size()));
    EXPECT_EQ(Synth().GetProgramChunk(chunk.data()), static_cast<int>(chunk.size()));
    EXPECT_TRUE(chunk == Saved(engine));
    EXPECT_EQ(Synth().SetProgramChunk(nullptr, 100), 0);
    EXPECT_EQ(Synth().SetProgramChunk(chunk.data(), 3), 0);
    EXPECT_TRUE(chunk == Saved(engine));
    EXPECT_EQ(Synth().SetProgramChunk(chunk.data(), 90), 0);
    EXPECT_EQ(Synth().SetProgramChunk(before.data(), static_cast<int>(before.size())), static_cast<int>(before.size()));
    EXPECT_TRUE(before == Saved(engine));
}

} // namespace
} // namespace korvane
