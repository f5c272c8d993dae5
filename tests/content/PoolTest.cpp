// Files in use: found, shared, let go; waveforms as oscillator tables; libraries.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "content/CPresetList.h"
#include "content/WaveTables.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

struct Pool : SynthTest {
    /// A mono WAV of floats.
    void WriteWav(const char* name, const std::vector<float>& frames)
    {
        const auto bytes = static_cast<std::uint32_t>(4 * frames.size());
        std::vector<std::uint32_t> words = {0x46464952, 36 + bytes, 0x45564157, 0x20746d66, 16,   0x00010003,
                                            44100,      176400,     0x00200004, 0x61746164, bytes};
        std::vector<std::uint8_t> file(44 + bytes);
        std::memcpy(file.data(), words.data(), 44);
        std::memcpy(file.data() + 44, frames.data(), bytes);
        WriteBytes(root / name, file);
    }
    SamplePool& Files() { return *Synth().engine->samplePool; }
    int Entries()
    {
        int count = 0;
        for (const PoolEntry* entry = Files().entries.get(); entry; entry = entry->next.get()) ++count;
        return count;
    }
};

TEST_F(Pool, SharesAFileAmongItsUsers)
{
    WriteWav("kick.one.wav", {0.5f});
    const std::string path = Path("kick.one.wav");
    std::string slashes = path;
    std::replace(slashes.begin(), slashes.end(), '\\', '/');
    PoolEntry* first = Files().Load(path.c_str(), kind::Sample);
    ASSERT_TRUE(first);
    EXPECT_STREQ(first->name, "kick.one");
    EXPECT_EQ(Files().Load(slashes.c_str(), kind::Sample), first);
    EXPECT_EQ(first->refCount, 2);
    EXPECT_EQ(first->path, path);
    PoolEntry* wave = Files().Load(path.c_str(), kind::Waveform);
    EXPECT_NE(wave, first);
    EXPECT_EQ(Entries(), 2);
    Files().Release(first);
    EXPECT_EQ(Entries(), 2);
    Files().Release(first);
    EXPECT_EQ(Entries(), 1);
    Files().Release(wave);
    Files().Release(nullptr);
    EXPECT_EQ(Entries(), 0);
}

// Where it was, then beside the groove, then in the default folder of its kind, always by its name.
TEST_F(Pool, LooksForAFileInThreePlaces)
{
    WriteWav("Drum Samples/a.wav", {0.1f});
    WriteWav("Synth Waves/a.wav", {0.2f});
    WriteWav("G/Samples/a.wav", {0.3f});
    WriteWav("a.wav", {0.4f});
    const auto found = [this](const char* path, int kind) {
        char text[1024];
        return Files().Find(path, kind, text) ? std::string(text) : "";
    };
    EXPECT_EQ(found("D:\\old\\a.wav", kind::Sample), Path("Drum Samples/a.wav"));
    EXPECT_EQ(found("D:/old/a.wav", kind::Waveform), Path("Synth Waves/a.wav"));
    EXPECT_EQ(found(Path("a.wav").c_str(), kind::Sample), Path("a.wav"));
    EXPECT_EQ(found("a.wav", kind::Sample), "") << "without a folder there is no name to look for";
    EXPECT_EQ(found("\\b.wav", kind::Sample), "");
    EXPECT_EQ(found("", kind::Sample), "");
    Files().SetGrooveFolders(Path("G/").c_str());
    EXPECT_EQ(found("D:\\old\\a.wav", kind::Sample), Path("G/Samples/") + "\\a.wav");
    EXPECT_EQ(found("D:\\old\\a.wav", kind::Waveform), Path("Synth Waves/a.wav"));
    EXPECT_FALSE(Files().Load(nullptr, kind::Sample));
}

// Requests are served at the start of a block; "!" clears, what is not found clears too.
TEST_F(Pool, ServesTheSlotsOfAChannel)
{
    WriteWav("Drum Samples/a.wav", {0.1f});
    WriteBytes(root / "Drum Samples/text.wav", {'h', 'i'});
    Synth();
    Render();
    SampleSlot& slot = Synth().engine->Channel(0).sampleSlots[3];
    // clang-format off
    struct Case { const char *request, *name, *path; }; // name and path afterwards
    const Case cases[] = {{"\\a.wav",    "a",    "Drum Samples/a.wav"},    {"\\none.wav", "", ""},
                          {"\\text.wav", "text", "Drum Samples/text.wav"}, {"!",          "", ""}};
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.request);
        slot.request.Post(c.request);
        Render();
        EXPECT_EQ(TextOf(slot.name), c.name);
        EXPECT_EQ(TextOf(slot.path), *c.path ? Path(c.path) : "");
        EXPECT_EQ(slot.entry != nullptr, *c.name != '\0');
    }
}

// Fourier series of the cycle, harmonic by harmonic, within 1e-6 of the sum of cosines.
TEST_F(Pool, TurnsACycleIntoBandLimitedTables)
{
    std::vector<float> cycle(kWaveTablePoints);
    for (std::size_t n = 0; n < cycle.size(); ++n)
        cycle[n] = static_cast<float>(n * 2654435761u % 1000) / 500.0f - 1.0f; // every harmonic, any phase
    std::vector<float> tables(kWaveTableFloats);
    FillWaveTables(cycle.data(), tables.data());
    std::vector<double> sum(kWaveTablePoints);
    double worst = 0.0;
    const auto angle = [](std::size_t n, std::size_t h) {
        return 2.0 * std::numbers::pi * static_cast<double>(n * h % kWaveTablePoints) / kWaveTablePoints;
    };
    for (std::size_t h = 1; h <= kWaveTables; ++h) {
        double re = 0.0, im = 0.0;
        for (std::size_t n = 0; n < cycle.size(); ++n) {
            re += static_cast<double>(cycle[n]) * std::cos(angle(n, h)) / kWaveTablePoints;
            im -= static_cast<double>(cycle[n]) * std::sin(angle(n, h)) / kWaveTablePoints;
        }
        const float* table = &tables[(h - 1) * kWaveTablePoints];
        for (std::size_t n = 0; n < sum.size(); ++n) {
            sum[n] += std::hypot(re, im) * std::cos(angle(n, h) + std::atan2(im, re));
            worst = std::max(worst, std::fabs(sum[n] - static_cast<double>(table[n])));
        }
    }
    EXPECT_LT(worst, 1e-6);

    std::vector<float> sine(2048);
    for (std::size_t n = 0; n < sine.size(); ++n)
        sine[n] = static_cast<float>(0.8 * std::cos(2.0 * std::numbers::pi * static_cast<double>(n) / 2048.0));
    WriteWav("sine.wav", sine);
    ASSERT_TRUE(BuildWaveTables(Path("sine.wav").c_str(), tables.data()));
    EXPECT_NEAR(tables[0], 0.4f, 1e-3f) << "half the amplitude";
    for (const std::size_t frames : {0, 1, 3, 3000000}) {
        WriteWav("any.wav", std::vector<float>(frames, 0.5f));
        EXPECT_TRUE(BuildWaveTables(Path("any.wav").c_str(), tables.data())) << frames;
        EXPECT_TRUE(std::all_of(tables.begin(), tables.end(), [](float x) { return std::isfinite(x); }));
    }
    EXPECT_FALSE(BuildWaveTables(Path("none.wav").c_str(), tables.data()));
    EXPECT_TRUE(std::all_of(tables.begin(), tables.end(), [](float x) { return x == 0.0f; }));
}

TEST_F(Pool, LibrariesListWhatTheyKnow)
{
    for (const char* name : {"Synth Programs/A/1.kvsynth", "Synth Programs/A/2.b.kvsynth", "Synth Programs/A/x.KVSYNTH",
                             "Synth Programs/B/y.txt", "Synth Waves/b.wav", "Synth Waves/A.WAV"})
        WriteBytes(root / name, {1});
    EXPECT_EQ(Synth().waveforms->Count(), 1);
    CPresetList& list = *Synth().synthPrograms;
    EXPECT_EQ(list.folders.Count(), 2);
    EXPECT_STREQ(list.fileName, "<noname>");
    EXPECT_STREQ(list.folderName, "<user>");
    EXPECT_EQ(list.CurrentPath(), Path("Synth Programs"));
    EXPECT_FALSE(list.NextEntry());
    const int a = Written([&list](char* name) { list.folders.GetEntry(0, name); }) == "A" ? 0 : 1;
    EXPECT_TRUE(list.SelectFolder(a));
    EXPECT_FALSE(list.SelectFolder(a));
    EXPECT_FALSE(list.SelectFolder(2));
    EXPECT_EQ(list.files.Count(), 2);
    EXPECT_EQ(list.fileIndex, 0);
    EXPECT_FALSE(list.SelectEntry(0));
    EXPECT_FALSE(list.PreviousEntry());
    EXPECT_TRUE(list.NextEntry());
    EXPECT_FALSE(list.NextEntry());
    EXPECT_TRUE(list.SelectFolder(1 - a));
    EXPECT_EQ(list.fileIndex, -1) << "no programs in it";
    list.Refresh();
    EXPECT_EQ(list.folderIndex, -1);
}

} // namespace
} // namespace korvane
