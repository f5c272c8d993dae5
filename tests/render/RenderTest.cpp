// korvane-render: MIDI files, command lines, what it writes.
#include <sndfile.h>

#include <algorithm>
#include <cmath>

#include "framework/ParameterTable.h"
#include "render/Failure.h"
#include "render/Library.h"
#include "render/MidiFile.h"
#include "render/Names.h"
#include "render/ParameterText.h"
#include "support/CommandTest.h"
#include "support/SynthRig.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using namespace render;
using namespace std::string_literals;

struct Render : CommandTest {
    std::string Write(const char* name, const std::string& bytes)
    {
        WriteText(folder / name, bytes);
        return (folder / name).string();
    }
    Answer Run(const std::string& arguments) const { return Shell(KORVANE_TOOLS "/korvane-render " + arguments); }
    /// The frames of a file, left and right in turn.
    std::vector<float> Read(const char* name, SF_INFO info = {})
    {
        SNDFILE* file = sf_open((folder / name).c_str(), SFM_READ, &info);
        std::vector<float> sound(static_cast<std::size_t>(2 * info.frames));
        sf_readf_float(file, sound.data(), info.frames);
        sf_close(file);
        format = info.format;
        return sound;
    }

    const BundleRoot root;
    int format = 0; // of the file read last
};

std::string Song(const std::string& first, const std::string& second)
{
    const auto track = [](const std::string& events) {
        return "MTrk\0\0\0"s + static_cast<char>(events.size() + 4) + events + "\0\xff\x2f\0"s;
    };
    return "MThd\0\0\0\6\0\1\0\2\0\x60"s + track(first) + track(second);
}
// 60 BPM from quarter 1 on; a note at 0 and, by running status, at quarter 2.
const std::string kSong = Song("\x60\xff\x51\3\x0f\x42\x40"s, "\0\x90\x3c\x64\x81\x40\x3e\x65\0\xf0\2\1\xf7\0\xc0\5"s);

TEST_F(Render, MidiFilesFollowTheirTempo)
{
    const MidiFile song(Write("song.mid", kSong));
    ASSERT_EQ(song.messages.size(), 3u);
    const MidiMessage note = song.messages[1], program = song.messages[2];
    EXPECT_EQ((std::vector<int>{note.status, note.data1, note.data2, program.status, program.data1}),
              (std::vector<int>{0x90, 0x3e, 0x65, 0xC0, 5}));
    EXPECT_EQ((std::vector{note.seconds, song.lengthSeconds, song.QuartersAt(1.5)}), (std::vector{1.5, 1.5, 2.0}));
    EXPECT_EQ(std::pair(song.TempoAt(0.4), song.TempoAt(0.5)), std::pair(120.0, 60.0));
    for (std::size_t at = 0; at < kSong.size(); ++at) {
        EXPECT_THROW(MidiFile(Write("cut.mid", kSong.substr(0, at))), Failure) << at;
        for (const char byte : {'\x00', '\x7f', '\x80', '\xff'}) {
            std::string wild = kSong;
            wild[at] = byte;
            try {
                EXPECT_GE(MidiFile(Write("wild.mid", wild)).lengthSeconds, 0.0);
            } catch (const Failure&) { // which is as good
            }
        }
    }
}

// One line that says what is wrong, a status, and no file.
TEST_F(Render, RefusesInOneLine)
{
    for (const char* text : {"text.so", "text.kvprj", "text.mid"}) Write(text, "nothing");
    fs::create_directory(folder / "folder.wav");
    fs::copy_file(KORVANE_BUNDLE "/default.kvprj", folder / "groove.wav");
    // clang-format off
    std::vector<std::string> cases = {
        "", "a.wav b.wav c.wav", "a.txt", "'' a.wav", "/dev/zero a.wav", "text.kvprj a.wav", "none.kvprj a.wav",
        "folder.wav a.wav", "--rate", "none/a.wav", "folder.wav", "groove.wav groove.wav",
        "--stems folder.wav 'folder.wav/Synth 1.wav'"};
    for (const char* options : {
        "--rate 0", "--rate 44100.5", "--bars 10000 --tempo 1 --rate 384000", "--rate x", "--block 1.5", "--tempo 1000",
        "--bars -1", "--tail nan", "--format 16", "--what 1", "--param Level", "--param 'No Such=0.5'", "--bars 0",
        "--param 'CHN:=0.5'", "--plugin text.so", "--plugin none.so", "--midi text.mid", "--midi none.mid",
        "--program 'No Such'", "--program 'Saw Bass' text.kvprj", "--stems none/x --bars 1", "--help=1", "--bars 0x2",
        "--param 'Filter Type=XP'", "--param 'CHN: Mix Level=20.1 dB'", "--param 'CHN: Mix Level=6'", "--program=",
        "--param 'LFO Rate=1/3'", "--param 'FX LFO Shape='", "--param 'SYNTH: Unison Voices=17'", "--program ''",
        "--param 'CHN: Pitch=2.5'", "--param 'Filter Cutoff=on'", "--param 'CHN: Mix Level=+-6 dB'",
        "--tempo 90 --midi song.mid", "--bars 2 --program 'Saw Bass'", "--bars=1.5", "--native --plugin libm.so.6"})
        cases.push_back(std::string(options) + " a.wav");
    // clang-format on
    for (const std::string& arguments : cases) {
        const Answer answer = Run(arguments);
        EXPECT_NE(answer.status, 0) << arguments;
        EXPECT_EQ(answer.errors.rfind("korvane-render: ", 0), 0u) << arguments << ": " << answer.errors;
        EXPECT_EQ(answer.errors.find('\n'), answer.errors.size() - 1) << arguments << ": " << answer.errors;
        EXPECT_FALSE(fs::exists(folder / "a.wav") || fs::exists(folder / "a.txt")) << arguments;
    }
    EXPECT_TRUE(Run("--tmpo 124 a.wav").Complains("did you mean '--tempo'?"));
}

// A name is found in any case, without its number, by its beginning; a mistyped one is answered with the nearest.
TEST_F(Render, FindsNames)
{
    // clang-format off
    const std::vector<std::string> names = {"Night Drive 124", "Steel Yard 134", "Steel Yard 90", "Saw Bass",
                                            "Saw Lead", "saw lead", "Steel 99"};
    const std::pair<const char*, const char*> cases[] = { // what is found, or why nothing
        {"Night Drive 124", "Night Drive 124"}, {"night drive", "Night Drive 124"}, {"steel yard 9", "Steel Yard 90"},
        {"saw bass", "Saw Bass"}, {"Saw Lead", "Saw Lead"}, {"saw lead", "saw lead"}, {"nig", "Night Drive 124"},
        {"steel", "Steel 99"},
        {"Nihgt Drive", "there is no groove 'Nihgt Drive'; did you mean 'Night Drive 124'?"},
        {"stele",       "there is no groove 'stele'; did you mean 'Steel 99'?"},
        {"lead saw",    "there is no groove 'lead saw'."},
        {"steel yard",  "which groove is 'steel yard': 'Steel Yard 134' or 'Steel Yard 90'?"},
        {"SAW LEAD",    "which groove is 'SAW LEAD': 'Saw Lead' or 'saw lead'?"},
        {"Bas",         "there is no groove 'Bas'; did you mean 'Saw Bass'?"},
    };
    // clang-format on
    for (const auto& [wanted, answer] : cases) {
        std::string found;
        try {
            found = names[FindName(names, wanted, "groove", ".")];
        } catch (const Failure& failure) {
            found = failure.what();
        }
        EXPECT_EQ(found, answer) << wanted;
    }
}

// The tempo of a groove stands in its name, --tempo and MIDI files overrule it.
TEST_F(Render, TakesTheTempoFromTheName)
{
    Write("song.mid", kSong);
    // clang-format off
    const std::pair<const char*, double> names[] = {
        {"Night Drive 124", 124.0}, {"/x/Dub 92.5.kvprj", 92.5}, {"/x/Dub 92.5", 92.5}, {"A 19", 0.0}, {"A 20", 20.0},
        {"A 400", 400.0}, {"A 401", 0.0}, {"120.kvprj", 0.0}, {"Night.kvprj", 0.0}, {"A 1.2.3.kvprj", 0.0}};
    struct Case { const char* arguments; std::size_t frames; bool byName; };
    const Case cases[] = {
        {"--bars 1 'night drive'",                 15484, true}, // four beats at 124 per minute
        {"--bars 1 --tempo=60 'Night Drive 124'",  32000, false},
        {"--midi song.mid 'night drive'",          12000, false},
        {"--bars 3 --midi song.mid 'night drive'", 48000, false}, // bars as long as its first tempo says
    };
    // clang-format on
    for (const auto& [name, tempo] : names) EXPECT_EQ(TempoInName(name).value_or(0.0), tempo) << name;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.arguments);
        const Answer answer = Run("--tail 0 --rate 8000 " + std::string(c.arguments) + " a.wav");
        EXPECT_EQ(answer.status, 0) << answer.errors;
        EXPECT_EQ(answer.Says("124 BPM, by the groove's name"), c.byName);
        EXPECT_EQ(Read("a.wav").size() / 2, c.frames);
    }
}

// What the instrument shows of a value leads back to a value that shows the same.
TEST_F(Render, ReadsWhatTheInstrumentShows)
{
    const auto shown = [](const ParameterInfo& parameter, float value) {
        const std::string text = Written([&](char* buffer) { FormatDisplay(parameter.display, value, buffer); });
        return text.rfind("-0.0", 0) == 0 ? text.substr(1) : text;
    };
    for (int n = 0; n < 1000 * param::Count; ++n) {
        const ParameterInfo& parameter = kParameters[static_cast<std::size_t>(n / 1000)];
        const std::string text = shown(parameter, static_cast<float>(n % 1000) / 999.0f);
        const float value = ParameterValue(parameter.index, text + UnshownUnit(parameter.index));
        ASSERT_EQ(shown(parameter, value), text) << parameter.name;
    }
    // clang-format off
    struct Case { std::string name; const char* text; float value; };
    const Case cases[] = {
        {"CHN: Mix Level", "0.3", 0.3f},      {"CHN: Mix Level", "-6 dB", 0.675f}, {"CHN: Mix Level", "+20DB", 1.0f},
        {"CHN: Mix Level", "-60.0 dB", 0.0f}, {"CHN: Panning", "-50", 0.25f},      {"CHN: Pitch", "-12", 0.25f},
        {"CHN: Pitch", "1", 1.0f},            {"CHN: Note Length", "4", 0.625f},   {"Filter Type", "LP", 0.0f},
        {"Filter Type", "bp", 0.5f},          {"Filter Type", "HP", 1.0f},         {"Filter Cutoff", "25%", 0.25f},
        {"FX LFO Shape", "Square", 1.0f},     {"LFO Rate", "1/4", 1.0f / 9},       {"LFO Rate", "8/1", 8.0f / 9},
        {"SYNTH: Mono Voice", "on", 1.0f},    {"SYNTH: Mono Voice", "Off", 0.0f},  {"LFO Sync", "Bars", 1.0f},
        {"SYNTH: Unison Voices", "16", 1.0f}, {"SYNTH: Osc 1 Detune", "-50", 0.0f}, {"LFO Number", "LFO 2", 1.0f},
        {"LFO Shape", "Falling", 2.0f / 3},   {"LFO Destination", "Level", 1.0f},  {"FX LFO Shape", "rising", 2.0f / 3},
        {"SYNTH: Octave", "-1 oct", 0.25f},   {"SYNTH: Mod Kind", "Amplitude", 2.0f},
        {"CHANNEL 13: Synth 5", "on", 1.0f},  {"SAMPLER: Layer Number", "Layer 2", 1.0f / 3},
    };
    // clang-format on
    for (const Case& c : cases) {
        const auto named = std::find_if(kParameters.begin(), kParameters.end(),
                                        [&c](const ParameterInfo& parameter) { return parameter.name == c.name; });
        EXPECT_FLOAT_EQ(ParameterValue(named->index, c.text), c.value) << c.name << " = " << c.text;
    }
    const Answer answer = Run("--param 'filter type=HP' --param 'CHN: Pitch = -5' --program 'saw bass' a.wav");
    EXPECT_EQ(answer.output.rfind("Filter Type = 100.0 %\nCHN: Pitch = -5 st\n", 0), 0u) << answer.output;
}

TEST_F(Render, TellsAboutItself)
{
    EXPECT_EQ(Run("--version").output, "korvane-render 1.0.2\n");
    EXPECT_TRUE(Run("--list").Says("    Night Drive 124\n"));
}

TEST_F(Render, WritesTheMixAndTheStems)
{
    Write("silence.mid", Song("", ""));
    EXPECT_EQ(Run("--midi silence.mid --tail 0 --format 24 none.wav").status, 0) << "a file without a frame";
    const Answer answer = Run("--bars 1 --tail 0.5 --rate 48000 --format 24 --stems stems mix.wav");
    ASSERT_EQ(answer.status, 0) << answer.errors;
    EXPECT_EQ(Read("mix.wav").size() / 2, 48000u * 5 / 2);
    EXPECT_EQ(format, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "stems"), fs::directory_iterator{}), 13);
    Write("key.mid", Song("", "\x60\x90\x24\x64\x60\x24\0"s));
    for (const char* block : {"64", "441", "4096"}) { // a quarter at 120 BPM, whatever the blocks
        const std::string call = "--program 'Saw Bass' --stems stems --midi key.mid --block ";
        ASSERT_EQ(Run(call + block + " key.wav").status, 0);
        const std::vector<float> sound = Read("stems/Synth 1.wav");
        const auto first = std::find_if(sound.begin(), sound.end(), [](float x) { return x != 0.0f; });
        EXPECT_EQ((first - sound.begin()) / 2, 22050) << block;
    }
}

// Both interfaces give the same bytes of every file, wherever in a block its events are. A pedal follows the notes that
// it comes with: these are let go.
TEST_F(Render, PlaysTheSameByTheNativeInterface)
{
    const std::string tempo = "\x30\xff\x51\3\6\x1a\x80"s, keys = "\0\x90\x24\x64\x33\x26\1\x11\x24\0"s;
    Write("keys.mid", Song(tempo, keys + "\1\xb0\x40\x7f\1\x80\x26\0\x25\xb0\x40\x40"s));
    Write("wheels.mid", Song("", keys + "\0\xd0\x7f\1\xb0\1\x7f\5\x0a\0\x20\x90\x28\x7f\5\xb0\x7b\0"s));
    Write("order.mid", Song("", "\0\x90\x24\x64\x60\x24\0\0\xb0\x40\x7f"s));
    // clang-format off
    const char* cases[] = {
        "--bars 2", "--bars 1 --rate 48000 --block 64 'night drive'", "--bars 1 --rate 96000 --block 1000 steel",
        "--program 'saw bass' --rate 22050 --block 300", "--program 'saw bass' --midi keys.mid --block 4096",
        "--program 'saw bass' --midi wheels.mid", "--bars 1 --midi keys.mid --block 4096 steel",
        "--bars 1 --param 'CHN: Mix Level=0.75' --param 'Filter Type=BP'", "--program 'saw bass' --midi order.mid"};
    // clang-format on
    for (const std::string arguments : cases) {
        const Answer answer = Run("--tail .3 --stems vst " + arguments + " vst.wav");
        const Answer native = Run("--tail .3 --native --stems native " + arguments + " native.wav");
        ASSERT_EQ(answer.status + native.status, 0) << arguments << answer.errors << native.errors;
        const auto levels = [](const std::string& text) { return text.substr(0, text.rfind('\n', text.size() - 2)); };
        EXPECT_EQ(levels(native.output), levels(answer.output)) << arguments;
        if (arguments.find("order") != std::string::npos) continue;
        EXPECT_EQ(Shell("cmp vst.wav native.wav && diff -r vst native").status, 0) << arguments << Text("out");
    }
}

// Without settings, content is what lies beside the plug-in. A program sounds on its channel alone, its sides where
// they belong, and the report tells the levels of the file.
TEST_F(Render, TellsTheLevelsOfWhatItWrites)
{
    fs::copy(KORVANE_BUNDLE "/korvane.so", root.path);
    fs::remove(root.path / "Brassmoor/Korvane.conf");
    const Answer answer =
        Run("--plugin '" + root.path.string() + "/korvane.so' --program 'saw bass' --param 'CHN: Panning=-90 %' a.wav");
    EXPECT_TRUE(answer.Says("Synth 2            -inf       -inf")) << answer.output << answer.errors;
    const std::vector<float> sound = Read("a.wav");
    double peak = 0.0, sides[2] = {};
    for (std::size_t n = 0; n < sound.size(); ++n) {
        const double x = static_cast<double>(sound[n]);
        peak = std::max(peak, std::fabs(x));
        sides[n % 2] += x * x;
    }
    EXPECT_LT(sides[1], 0.1 * sides[0]);
    char line[64];
    for (const char* pair : {"Master", "Synth 1"}) {
        std::snprintf(line, sizeof line, "%-12s %10.1f %10.1f\n", pair, 20.0 * std::log10(peak),
                      10.0 * std::log10((sides[0] + sides[1]) / static_cast<double>(sound.size())));
        EXPECT_TRUE(answer.Says(line)) << line << answer.output;
    }
}

} // namespace
} // namespace korvane
