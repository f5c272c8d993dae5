// Groove, part and program files and the host's chunks, as editor, host and MIDI use them.
#include <sys/resource.h>

#include <csignal>
#include <thread>

#include "content/state/ImageFile.h"
#include "content/state/ImageTags.h"
#include "content/state/Images.h"
#include "platform/SaveFile.h"
#include "support/Riff.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

struct Files : SynthTest {
    std::string NameAfter(bool success) { return success ? TextOf(Synth().grooveName) : "(refused)"; }
    bool Save(const fs::path& name, const std::string& bytes)
    {
        return SaveFile((root / "F" / name).c_str(), bytes.data(), bytes.size());
    }
    std::string Text(const char* name) { return ReadBytes<std::string>(root / "F" / name); }
    auto Entries() { return std::distance(fs::directory_iterator(root / "F"), {}); }
};

TEST_F(Files, GroovesNameTheGroove)
{
    GrooveEngine engine;
    FillGroove(engine, 1);
    WriteBytes(root / "default.kvprj", Saved(engine));
    EXPECT_TRUE(Saved(Engine()) == Saved(engine));
    EXPECT_EQ(TextOf(Engine().samplePool->grooveSampleFolder), "");
    EXPECT_EQ(NameAfter(Synth().SaveGrooveWithSamples(Path("one.a.kvprj").c_str())), "Default Groove");
    EXPECT_EQ(NameAfter(Synth().SaveGrooveFile(Path("two.b.kvprj").c_str())), "two.b");
    Engine().ResetGroove();
    EXPECT_EQ(NameAfter(Synth().LoadGrooveFile(Path("one.a.kvprj").c_str())), "one.a");
    EXPECT_TRUE(Saved(Engine()) == Saved(engine));
    for (const char* none : {"none.kvprj", "Brassmoor"}) EXPECT_FALSE(Synth().LoadGrooveFile(Path(none).c_str()));
    EXPECT_FALSE(Synth().SaveGrooveFile(Path("nowhere/x.kvprj").c_str()));
    EXPECT_EQ(NameAfter(true), "one.a");
    EXPECT_EQ(host.told, param::Count) << "told once, of the one that was loaded";
}

// The copies beside a groove are found again wherever both go; saving into the folder of the originals, by whatever
// path they were found, harms nothing.
TEST_F(Files, SamplesTravelWithTheirGroove)
{
    const std::string wave = riff::WavOf({0.5f}) + std::string(200000, '@'); // more than a copy's block
    WriteText(root / "F/Samples/kick.wav", wave);
    WriteText(root / "Synth Waves/Saw.wav", wave);
    const auto kept = [&](const char* name) { return ReadBytes<std::string>(root / name) == wave; };
    auto& slot = Engine().Channel(0).sound.sampleSlots[kFirstLayerSlot];
    Synth().LoadSample(0, kFirstLayerSlot, Path("F/Samples/kick.wav").c_str());
    Render();
    ASSERT_TRUE(Synth().SaveGrooveWithSamples(Path("F/g.kvprj").c_str()));
    for (const char* copy : {"F/Samples/kick.wav", "F/Waveforms/Saw.wav"}) EXPECT_TRUE(kept(copy)) << copy;
    EXPECT_FALSE(fs::exists(root / "F/Samples/Saw.wav"));
    fs::rename(root / "F", root / "G");
    ASSERT_TRUE(Synth().LoadGrooveFile(Path("G/g.kvprj").c_str()));
    Render();
    EXPECT_EQ(TextOf(slot.path), Path("G/Samples/") + "\\kick.wav");
    WriteText(root / "G/Waveforms/Saw.wav", "old");
    ASSERT_TRUE(Synth().SaveGrooveWithSamples(Path("G/g.kvprj").c_str()));
    for (const char* copy : {"G/Samples/kick.wav", "G/Waveforms/Saw.wav"}) EXPECT_TRUE(kept(copy)) << copy;
    EXPECT_GT(Synth().SetBankChunk(Saved(Engine()).data(), kEmptyGroove), 0);
    EXPECT_TRUE(Engine().samplePool->grooveSampleFolder.Empty()) << "a host's chunk stands beside nothing";
}

// A part keeps its channel's level and pan, a program these and two more, as they are shown while a step is edited too.
TEST_F(Files, PartsAndProgramsKeepSettingsOfTheirChannel)
{
    // clang-format off
    using Operation = bool (KVInstrument::*)(const char*);
    struct Case { const char* name; Operation save, load; std::vector<int> kept; };
    const Case cases[] = {
        {"F/p.kvprt",   &KVInstrument::SavePartFile,    &KVInstrument::LoadPartFile,    {slot::MixLevel, slot::Panning}},
        {"F/p.kvsynth", &KVInstrument::SaveProgramFile, &KVInstrument::LoadProgramFile, {slot::MixLevel, slot::Panning,
                                                                               slot::NoteLength, slot::ShuffleEnable}},
    };
    // clang-format on
    GrooveEngine& engine = Engine();
    fs::create_directory(root / "F");
    for (const Case& c : cases) {
        for (const int edited : {-1, 3}) {
            SCOPED_TRACE(testing::Message() << c.name << ", edited step " << edited);
            auto& params = engine.storedParams[kSamplerChannels];
            const std::string path = Path(c.name);
            engine.selection.editStep = -1;
            engine.score.Current().ClearChannel(kSamplerChannels);
            for (auto& value : params) value = 0.25f;
            ASSERT_TRUE((Synth().*c.save)(path.c_str()));
            EXPECT_EQ(TextOf(engine.Channel(kSamplerChannels).programPath) == path, c.name == cases[1].name);
            for (auto& value : params) value = 0.75f;
            engine.selection.editStep = edited;
            host.told = 0;
            ASSERT_TRUE((Synth().*c.load)(path.c_str()));
            for (int n = 0; n < kChannelSlots; ++n) {
                const bool kept = std::count(c.kept.begin(), c.kept.end(), n) != 0;
                EXPECT_EQ(params[n], kept && edited == -1 ? 0.75f : 0.25f) << n;
                if (kept) { EXPECT_EQ(engine.GetChannelParameter(n), 0.75f) << n; }
            }
            EXPECT_EQ(host.told, param::Count);
            EXPECT_EQ(TextOf(engine.samplePool->grooveSampleFolder), Path("F/Samples/"));
            fs::resize_file(root / c.name, 4);
            EXPECT_FALSE((Synth().*c.load)(path.c_str())) << "too short for an image";
            EXPECT_EQ(params[slot::Pitch], 0.25f);
        }
    }
}

// Each name leads to the new bytes by the way by which it led to the old ones.
TEST_F(Files, ASaveKeepsModeAndLinksAndLeavesNothingBeside)
{
    for (const char* name : {"F/first", "F/real", "F/plain"}) WriteText(root / name, "a longer old text");
    fs::permissions(root / "F/real", fs::perms(0660));
    fs::create_hard_link(root / "F/first", root / "F/second");
    for (const auto& [to, link] : {std::pair{"real", "link"}, {"made", "loose"}})
        fs::create_symlink(to, root / "F" / link);
    for (const char* name : {"second", "link", "loose", "new"}) EXPECT_TRUE(Save(name, name)) << name;
    std::string bytes;
    for (const char* name : {"first", "real", "link", "made", "loose", "new"}) bytes += Text(name) + ' ';
    EXPECT_EQ(bytes, "second link link loose loose new ");
    EXPECT_TRUE(fs::is_symlink(root / "F/link") && fs::is_symlink(root / "F/loose"));
    EXPECT_EQ(fs::status(root / "F/real").permissions(), fs::perms(0660));
    EXPECT_EQ(fs::status(root / "F/new").permissions(), fs::status(root / "F/plain").permissions());
    EXPECT_EQ(Entries(), 8);
    EXPECT_FALSE(Save("", "into a folder") || Save("none/x", "into no folder") || Save("/dev/full", "into a device"));
    fs::permissions(root / "F", fs::perms(0555)); // takes no new file, but from root
    EXPECT_TRUE(Save("real", "in place"));
    fs::permissions(root / "F", fs::perms(0755));
}

TEST_F(Files, AFullDiskLeavesTheOldFileAndOneOfTwoWritersWins)
{
    const auto save = [this](char letter) {
        for (int n = 0; n < 200; ++n) EXPECT_TRUE(Save("file", std::string(9000, letter)));
    };
    WriteText(root / "F/file", "old");
    std::thread other(save, 'b');
    save('a');
    other.join();
    const std::string old = Text("file");
    EXPECT_EQ(old, std::string(9000, old.at(0)));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit room{};
    getrlimit(RLIMIT_FSIZE, &room);
    const rlimit little{2000, room.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    EXPECT_FALSE(Save("file", std::string(4000, 'n')) || Save("new", std::string(4000, 'n')));
    setrlimit(RLIMIT_FSIZE, &room);
    EXPECT_EQ(std::pair(Text("file") == old, Entries()), std::pair(true, std::ptrdiff_t{1}));
}

TEST_F(Files, MidiChoosesFromTheLibraryOfTheSelectedKind)
{
    Bytes program(kChannelChunk);
    SaveChannelChunk(Engine(), program.data(), 8);
    for (const char* name : {"Synth Programs/A/1.kvsynth", "Synth Programs/A/2.kvsynth", "Sampler Programs/B/1.kvsmp"})
        WriteBytes(root / name, program);
    Close();
    // clang-format off
    struct Case { const char* what; int channel; std::uint8_t status, data1, data2; int loads; };
    const Case cases[] = {
        {"no folder yet", 8, 0xC0, 0, 0, 0},  {"bank, its first", 8, 0xB0, 32, 0, 1}, {"and again",  8, 0xB0, 32, 0, 1},
        {"program",       8, 0xC0, 1, 0, 1},  {"same program",    8, 0xC0, 1,  0, 0}, {"no program", 8, 0xC0, 2,  0, 0},
        {"no bank",       8, 0xB0, 32, 9, 1}, {"other library",   7, 0xB0, 32, 0, 1},
    };
    // clang-format on
    host.whenTold = [] { std::this_thread::sleep_for(std::chrono::microseconds(10)); }; // who does not wait is early
    for (const Case& c : cases) {
        Engine().selection.selectedChannel = c.channel;
        host.told = 0;
        Send(c.status, c.data1, c.data2);
        EXPECT_EQ(host.told, c.loads * param::Count) << c.what;
    }
    EXPECT_EQ(TextOf(Engine().Channel(7).programPath), Path("Sampler Programs/B/1.kvsmp"));
    Engine().selection.selectedChannel = 8; // the last of two is selected
    EXPECT_FALSE(Synth().StepProgram(1) || Synth().SelectProgram(2) || Synth().SelectProgramFolder(9));
    EXPECT_TRUE(Synth().SelectProgram(1) && Synth().StepProgram(-1) && !Synth().StepProgram(-1));
    EXPECT_EQ(TextOf(Engine().Channel(8).programPath), Synth().Library(false).path);
}

// Numbers of any size may stand in a groove: levels, gains, amounts. They play like a thousand, and finite.
TEST_F(Files, WildGroovesPlayFiniteSound)
{
    constexpr int kFrames = 12000;
    WriteText(root / "a.wav", riff::WavOf(std::vector<float>(9000, 0.5f)));
    for (unsigned seed = 0; seed < 3; ++seed) {
        std::vector<float> thousand;
        for (const float wild : {1.0e3f, 1.0e9f, 3.0e38f}) {
            std::mt19937 random(seed);
            Close();
            for (int c = 0; c < kChannels; ++c) {
                auto& params = Engine().storedParams[c];
                for (int n = 0; n < 5; ++n) params[random() % slot::Count] = n % 2 ? wild : -wild;
                for (const auto loud : {slot::LfoAmount, slot::MixLevel, slot::EqGain}) params[loud] = wild;
                params[slot::LfoDestination] = 1.0f; // the level
                params[slot::EqOn] = static_cast<float>(c % 2);
                for (auto& slot : Engine().Channel(c).sound.sampleSlots) slot.path.Set(Path("a.wav").c_str());
                for (auto& word : Engine().score.Current().steps[c]) word = 0xffffu;
            }
            ASSERT_EQ(Synth().SetBankChunk(Saved(Engine()).data(), kEmptyGroove), kEmptyGroove);
            Synth().SetSampleRate(44100.0);
            Synth().SetPlaying(true);
            std::vector<float> sound(28 * kFrames);
            std::array<float*, 28> outputs;
            for (std::size_t n = 0; n < outputs.size(); ++n) outputs[n] = &sound[n * kFrames];
            Synth().ProcessBlock(nullptr, outputs.data(), kFrames, true);
            if (wild == 1.0e3f) thousand = sound;
            EXPECT_TRUE(sound == thousand) << seed << ": " << wild; // a number that is none is not equal to itself
        }
        EXPECT_LT(std::count(thousand.begin(), thousand.end(), 0.0f), 27 * kFrames) << seed << " is silent";
        for (const float x : thousand) ASSERT_TRUE(std::isfinite(x)) << seed;
    }
}

TEST_F(Files, OfAFileThatIsNoGrooveLittleIsRead)
{
    constexpr std::pair<const char*, int> kCases[] = {{"3gnS", 1000}, {"RIFF", 5}, {"3gn", 5}};
    for (const auto& [begin, read] : kCases) {
        WriteText(root / "long", begin + std::string(1000 - std::strlen(begin), 'S' + 1));
        Image image;
        EXPECT_TRUE(ReadImageFile(Path("long").c_str(), image, INT32_MAX, tag::kGroove));
        EXPECT_EQ(image.size, read) << begin;
        EXPECT_EQ(std::string(image.bytes.get(), image.bytes.get() + 3), std::string(begin, 3));
    }
    EXPECT_FALSE(Synth().LoadGrooveFile(Path("long").c_str()));
}

TEST_F(Files, ChunksNeverOutgrowTheSizeTheHostWasTold)
{
    GrooveEngine& engine = Engine();
    FillGroove(engine, 2);
    const Bytes before = Saved(engine);
    const int size = static_cast<int>(before.size());
    Bytes chunk = before;
    chunk.resize(before.size() + kRecord);
    EXPECT_EQ(Synth().GetBankChunk(nullptr), size);
    engine.score.patterns[0]->locks[0][0].Append(1, 0.5f);
    EXPECT_EQ(Synth().GetBankChunk(chunk.data()), size);
    EXPECT_TRUE(std::equal(before.begin(), before.end(), chunk.begin()));
    for (void* buffer : {static_cast<void*>(nullptr), static_cast<void*>(chunk.data())})
        EXPECT_EQ(Synth().GetProgramChunk(buffer), size + kRecord);
    EXPECT_EQ(Synth().SetProgramChunk(nullptr, 100) + Synth().SetProgramChunk(chunk.data(), 3), 0);
    EXPECT_TRUE(chunk == Saved(engine)) << "nothing was loaded";
    EXPECT_EQ(Synth().SetProgramChunk(before.data(), size), size);
    EXPECT_TRUE(before == Saved(engine));
}

} // namespace
} // namespace korvane
