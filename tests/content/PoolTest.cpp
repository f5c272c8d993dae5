// Files in use: where they are looked for, found, shared, let go; waveforms as oscillator tables; libraries.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "content/CPresetList.h"
#include "content/ContentFolders.h"
#include "content/WaveTables.h"
#include "support/Riff.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

struct Pool : SynthTest {
    void WriteWav(const char* name, const std::vector<float>& frames) { WriteText(root / name, riff::WavOf(frames)); }
    SamplePool& Files() { return *Engine().samplePool; }
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
    PoolEntry* const first = Files().Load(path.c_str(), kind::Sample);
    ASSERT_TRUE(first);
    EXPECT_STREQ(first->name, "kick.one");
    EXPECT_EQ(Files().Load((root / "kick.one.wav").c_str(), kind::Sample), first);
    PoolEntry* const wave = Files().Load(path.c_str(), kind::Waveform);
    EXPECT_NE(wave, first);
    for (const auto& [gone, entries] : {std::pair{first, 2}, {first, 1}, {wave, 0}, {nullptr, 0}}) {
        Files().Release(gone);
        EXPECT_EQ(Entries(), entries);
    }
}

// A file that has not changed is not read again; one that has is, and who plays what it was goes on with that.
TEST_F(Pool, ReadsAFileAnewWhenItHasChanged)
{
    WriteWav("a.wav", {0.5f});
    const auto load = [this](KVInstrument& synth) {
        synth.LoadSample(0, kFirstLayerSlot, Path("a.wav").c_str());
        const PoolEntry* const playing = synth.engine->Channel(0).sound.sampleSlots[kFirstLayerSlot].Playing();
        synth.ProcessBlock(nullptr, nullptr, 64, true);
        return std::pair(playing, synth.engine->Channel(0).sound.sampleSlots[kFirstLayerSlot].Playing());
    };
    KVInstrument other(nullptr);
    const PoolEntry* const first = load(Synth()).second;
    ASSERT_TRUE(first && first->sample);
    EXPECT_EQ(load(Synth()).second, first);
    EXPECT_EQ(load(other).second->sample, first->sample) << "decoded once in the process";
    WriteWav("a.wav", {0.25f, 0.25f});
    const auto [before, after] = load(Synth());
    EXPECT_EQ(before, first);
    EXPECT_EQ(after->sample->numFrames, 2);
    EXPECT_EQ(other.engine->Channel(0).sound.sampleSlots[kFirstLayerSlot].Playing()->sample->numFrames, 1);
    Synth().FinishLoading();
    EXPECT_EQ(Entries(), 1);
}

// Where it was, then beside the groove, then in the default folder of its kind, always by its name.
TEST_F(Pool, LooksForAFileInThreePlaces)
{
    for (const char* name : {"Drum Samples/a.wav", "Synth Waves/a.wav", "Drum Samples/drum.wav", "G/Samples/a.wav",
                             "G/Waveforms/w.wav", "Synth Waves/w.wav", "a.wav"})
        WriteWav(name, {0.5f});
    // clang-format off
    struct Case { const char* what; std::string path; int kind; const char *found, *besideGroove; };
    const Case cases[] = {
        {"a sample elsewhere",   "D:\\old\\a.wav", kind::Sample,   "Drum Samples/a.wav", "G/Samples//a.wav"},
        {"a waveform",           "D:/old/w.wav",   kind::Waveform, "Synth Waves/w.wav",  "G/Waveforms//w.wav"},
        {"not beside the groove", "D:/old/drum.wav", kind::Sample, "Drum Samples/drum.wav", "Drum Samples/drum.wav"},
        {"of the other kind",    "D:/old/a.wav",   kind::Waveform, "Synth Waves/a.wav",  "Synth Waves/a.wav"},
        {"where it was",         Path("a.wav"),    kind::Sample,   "a.wav",              "a.wav"},
        {"without a folder",     "drum.wav",       kind::Sample,   nullptr,              nullptr},
        {"nowhere",              "\\c.wav",        kind::Sample,   nullptr,              nullptr},
        {"no name",              "",               kind::Sample,   nullptr,              nullptr},
    };
    // clang-format on
    for (const bool beside : {false, true}) {
        if (beside) Files().SetGrooveFolders(Path("G/").c_str());
        for (const Case& c : cases) {
            const char* expected = beside ? c.besideGroove : c.found;
            char found[1024];
            ASSERT_EQ(Files().Find(c.path.c_str(), c.kind, found), expected != nullptr) << c.what;
            if (expected) { EXPECT_EQ(found, Path("") + EnginePath(expected)) << c.what; }
        }
    }
}

// Requests are served at the start of a block, the last one that was posted; "!" clears, what is not found clears too.
TEST_F(Pool, ServesTheSlotsOfAChannel)
{
    WriteWav("Drum Samples/a.wav", {0.1f});
    WriteWav("Synth Waves/a.wav", {0.1f});
    WriteText(root / "Drum Samples/text.wav", "hi");
    Render();
    // clang-format off
    struct Case { const char *request, *name, *path; int entries; }; // afterwards
    const Case cases[] = {{"\\a.wav",    "a",    "Drum Samples/a.wav",    1}, {"\\none.wav", "", "", 0},
                          {"\\text.wav", "text", "Drum Samples/text.wav", 1}, {"!", "", "", 0},
                          {"\\a.wav",    "a",    "Drum Samples/a.wav",    1}, {"", "a", "Drum Samples/a.wav", 1}};
    // clang-format on
    SampleSlot& layer = Engine().Channel(0).sound.sampleSlots[kFirstLayerSlot];
    for (const Case& c : cases) {
        SCOPED_TRACE(c.request);
        if (*c.request) layer.request.Post("\\other.wav");
        layer.request.Post(c.request);
        Synth().FinishLoading();
        Render();
        Synth().FinishLoading(); // frees what the block has returned
        EXPECT_EQ(TextOf(layer.name), c.name);
        EXPECT_EQ(TextOf(layer.path), *c.path ? Path(c.path) : "");
        EXPECT_EQ(Entries(), c.entries);
    }
    SampleSlot& oscillator = Engine().Channel(kSamplerChannels).sound.sampleSlots[kFirstLayerSlot - 1];
    Synth().LoadSample(kSamplerChannels, kFirstLayerSlot - 1, "\\a.wav");
    Render();
    EXPECT_EQ(TextOf(oscillator.path), Path("Synth Waves/a.wav"));
    EXPECT_TRUE(oscillator.Playing() && oscillator.Playing()->waveTables);
    oscillator.request.Post((Path("") + std::string(600, 'x')).c_str());
    char taken[LoadRequest::kPathBytes];
    ASSERT_TRUE(oscillator.request.Take(taken));
    EXPECT_EQ(std::strlen(taken), 511u);
}

// A file is one cycle, whatever its length. Table h holds its harmonics up to h, at half the height.
TEST_F(Pool, TurnsACycleIntoBandLimitedTables)
{
    std::vector<float> cycle(400), tables(kWaveTableFloats);
    const auto sine = [](std::size_t n, double frames, double harmonic) { // the two cancel at 0
        const double phase = harmonic < 10.0 ? 0.5 : -0.5;
        return std::sin(static_cast<double>(n) * harmonic * 2.0 * std::numbers::pi / frames + phase);
    };
    for (std::size_t n = 0; n < 400; ++n) cycle[n] = static_cast<float>(sine(n, 400.0, 1.0) + sine(n, 400.0, 20.0));
    WriteWav("cycle.wav", cycle);
    ASSERT_TRUE(BuildWaveTables(Path("cycle.wav").c_str(), tables.data()));
    for (std::size_t n = 0; n < 1024 * kWaveTables; ++n) {
        const double high = n < 1024 * 19 ? 0.0 : sine(n, 1024.0, 20.0);
        ASSERT_NEAR(static_cast<double>(tables[n]), 0.5 * (sine(n, 1024.0, 1.0) + high), 0.02) << n;
    }
    for (const std::size_t frames : {0, 1, 3, 3000000}) {
        WriteWav("any.wav", std::vector<float>(frames, 0.5f));
        EXPECT_TRUE(BuildWaveTables(Path("any.wav").c_str(), tables.data())) << frames;
        EXPECT_TRUE(std::all_of(tables.begin(), tables.end(), [](float x) { return std::isfinite(x); }));
    }
    EXPECT_FALSE(BuildWaveTables(Path("none.wav").c_str(), tables.data()));
    EXPECT_EQ(std::count(tables.begin(), tables.end(), 0.0f), std::ssize(tables));
}

// Folders hold the programs of a library; a list stands in the order in which the system gives it.
TEST_F(Pool, LibrariesListWhatTheyKnow)
{
    for (const char* name : {"A/7.kvsynth", "A/2.b.kvsynth", "A/5.kvsynth", "A/1.kvsynth", "A/x.KVSYNTH", "A/kvsynth",
                             "A/folder.kvsynth/6.kvsynth", "B/y.txt", "loose.kvsynth"})
        WriteText(root / "Synth Programs" / name, "x");
    for (const char* name : {"a.wav", "b.aif", "c.aiff", "A.WAV", "d.mp3"}) WriteText(root / "Synth Waves" / name, "x");
    EXPECT_EQ(Synth().waveforms.Count(), 3);
    CPresetList& list = Synth().synthPrograms;
    EXPECT_EQ(list.folders.Count(), 2);
    EXPECT_EQ(std::string(list.fileName) + list.folderName, "<noname><user>");
    EXPECT_FALSE(list.NextEntry());
    const int a = Written([&list](char* name) { list.folders.GetEntry(0, name); }) == "A" ? 0 : 1;
    EXPECT_TRUE(!list.SelectFolder(2) && list.SelectFolder(a) && !list.SelectFolder(a))
        << "true when it is another one";
    std::vector<std::string> expected, found;
    for (const auto& entry : std::filesystem::directory_iterator(root / "Synth Programs/A"))
        if (entry.is_regular_file() && entry.path().extension() == ".kvsynth") expected.push_back(entry.path().stem());
    EXPECT_TRUE(!list.SelectEntry(0) && !list.PreviousEntry()) << "the first is selected with its folder";
    do found.push_back(list.fileName);
    while (list.NextEntry());
    EXPECT_EQ(found, expected);
    EXPECT_TRUE(list.PreviousEntry() && list.fileIndex == 2);
    EXPECT_EQ(list.CurrentPath(), Path("Synth Programs/A/") + list.fileName + ".kvsynth");
    EXPECT_TRUE(list.SelectFolder(1 - a) && list.fileIndex == -1) << "no programs in it";
    list.Refresh();
    EXPECT_TRUE(list.folderIndex == -1 && list.folders.Count() == 2);
}

// The user's setting, then the machine's, then the folder of the plug-in; under the native host only that.
TEST(ContentFolders, AreFoundByTheSettingOfUserThenMachine)
{
    const std::string module = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    const std::string longest = std::string("/") + std::string(1022, 'x');
    // clang-format off
    struct Case { const char* what; std::string user, home, machine, other; int kind; std::string root; };
    const Case cases[] = { // lines of the settings
        {"the user's",      "rootFolder=/u", "",              "rootFolder=/m", "",              host::Vst2,    "/u"},
        {"of no host",      "rootFolder=/u", "",              "",              "",              host::Unknown, "/u"},
        {"native host",     "rootFolder=/u", "",              "rootFolder=/m", "",              host::Native,  module},
        {"the machine's",   "rootfolder=/u", "",              "rootFolder=/m", "rootFolder=/o", host::Vst2,    "/m"},
        {"its second one",  "",              "",              "skin=1",        "rootFolder=/o", host::Vst2,    "/o"},
        {"nobody's",        "rootFolder",    "",              "",              "",              host::Vst2,    module},
        {"of the home",     "-",             "rootFolder=/h", "rootFolder=/m", "",              host::Vst2,    "/h"},
        {"blanks, comment", "# x=y\n rootFolder =  /u v\t\r\nrootFolder=/w", "", "", "",       host::Vst2,    "/u v"},
        {"too long",        std::string("rootFolder=") + longest + "x", "", "", "", host::Vst2, longest},
    };
    // clang-format on
    const ContentRoot root;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const auto path = [&root](const char* name) { return (root.path / name).string(); };
        for (const auto& [folder, lines] :
             {std::pair{"u", c.user}, {"h/.config", c.home}, {"m", c.machine}, {"o", c.other}})
            WriteText(root.path / folder / "Brassmoor/Korvane.conf", lines);
        setenv("XDG_CONFIG_HOME", c.home.empty() ? path("u").c_str() : "", 1);
        setenv("HOME", path("h").c_str(), 1);
        setenv("XDG_CONFIG_DIRS", ("relative:" + path("m") + ":" + path("o")).c_str(), 1);
        EXPECT_EQ(ContentFolders::Find(c.kind).root, EnginePath(c.root.c_str()));
    }
}

} // namespace
} // namespace korvane
