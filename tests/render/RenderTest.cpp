// korvane-render: MIDI files, command lines, what it writes.
#include <gtest/gtest.h>
#include <sndfile.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "framework/ParameterTable.h"
#include "render/Failure.h"
#include "render/Library.h"
#include "render/MidiFile.h"
#include "render/Names.h"
#include "render/ParameterText.h"

namespace korvane::render {
namespace {

namespace fs = std::filesystem;

struct RenderTest : testing::Test {
    const fs::path folder = fs::path(testing::TempDir()) / ("korvane_render." + std::to_string(getpid()));

    RenderTest() { fs::create_directories(folder); }
    ~RenderTest() override { fs::remove_all(folder); }

    std::string Write(const char* name, const std::string& bytes)
    {
        std::ofstream(folder / name, std::ios::binary).write(bytes.data(), std::ssize(bytes));
        return (folder / name).string();
    }

    struct Answer {
        int status;
        std::string output, errors;
    };
    /// Runs the program in the test's folder.
    Answer Run(const std::string& arguments)
    {
        const std::string command =
            "cd '" + folder.string() + "' && '" + KORVANE_TOOLS + "/korvane-render' " + arguments + " >out 2>err";
        const int status = std::system(command.c_str());
        const auto text = [this](const char* name) {
            std::ifstream file(folder / name);
            const std::string all{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            fs::remove(folder / name);
            return all;
        };
        return {WEXITSTATUS(status), text("out"), text("err")};
    }
};

std::string Track(const std::string& events)
{
    const auto size = static_cast<char>(events.size());
    return std::string("MTrk\0\0\0", 7) + size + events;
}
const std::string kTwoTracks = std::string("MThd\0\0\0\6\0\1\0\2\0\x60", 14);
// 60 BPM from quarter 1 on; a note at 0 and, by running status, at quarter 2.
const std::string kSong = kTwoTracks + Track(std::string("\x60\xff\x51\3\x0f\x42\x40\0\xff\x2f\0", 11)) +
                          Track(std::string("\0\x90\x3c\x64\x81\x40\x3e\x65\0\xf0\2\1\xf7\0\xc0\5\0\xff\x2f\0", 20));

TEST_F(RenderTest, MidiFilesFollowTheirTempo)
{
    const MidiFile song(Write("song.mid", kSong));
    ASSERT_EQ(song.messages.size(), 3u);
    EXPECT_EQ(song.messages[1].seconds, 1.5);
    EXPECT_EQ(song.messages[1].status, 0x90);
    EXPECT_EQ(song.messages[1].data1, 0x3e);
    EXPECT_EQ(song.messages[2].data1, 5);
    EXPECT_EQ(song.TempoAt(0.4), 120.0);
    EXPECT_EQ(song.TempoAt(0.5), 60.0);
    EXPECT_EQ(song.QuartersAt(1.5), 2.0);
    for (std::size_t length = 0; length < kSong.size(); ++length)
        EXPECT_THROW(MidiFile(Write("cut.mid", kSong.substr(0, length))), Failure) << length;
    for (std::size_t at = 0; at < kSong.size(); ++at) {
        std::string wild = kSong;
        for (const char byte : {'\x00', '\x7f', '\x80', '\xff'}) {
            wild[at] = byte;
            try {
                MidiFile(Write("wild.mid", wild));
            } catch (const Failure&) {
            }
        }
    }
}

// One line that says what is wrong, a status, and no file.
TEST_F(RenderTest, RefusesInOneLine)
{
    Write("text.so", "no library");
    Write("text.kvprj", "no groove");
    Write("text.mid", "no song");
    fs::create_directory(folder / "folder.wav");
    fs::copy_file(KORVANE_BUNDLE "/default.kvprj", folder / "groove.wav");
    // clang-format off
    const char* const cases[] = {
        "", "a.wav b.wav c.wav", "a.txt", "--rate 0 a.wav", "--rate 44100.5 a.wav", "'' a.wav", "/dev/zero a.wav",
        "--bars 10000 --tempo 1 --rate 384000 a.wav", "--rate x a.wav", "--block 1.5 a.wav", "--tempo 1000 a.wav",
        "--bars -1 a.wav", "--tail nan a.wav", "--format 16 a.wav", "--what 1 a.wav", "--rate", "--param Level a.wav",
        "--param 'No Such=0.5' a.wav", "--param 'CHN:=0.5' a.wav", "--plugin text.so a.wav", "--plugin none.so a.wav",
        "text.kvprj a.wav", "none.kvprj a.wav", "folder.wav a.wav", "--midi text.mid a.wav", "--midi none.mid a.wav",
        "--program 'No Such' a.wav", "--program 'Saw Bass' text.kvprj a.wav", "none/a.wav", "folder.wav",
        "--stems none/x --bars 1 a.wav", "--bars 0 a.wav", "--bars=1.5 a.wav", "--help=1 a.wav", "--param 'Filter Type=XP' a.wav",
        "--param 'CHN: Mix Level=20.1 dB' a.wav", "--param 'CHN: Mix Level=6' a.wav", "--param 'LFO Rate=1/3' a.wav",
        "--param 'FX LFO Shape=' a.wav", "--param 'SYNTH: Unison Voices=17' a.wav", "--param 'CHN: Pitch=2.5' a.wav",
        "--param 'Filter Cutoff=on' a.wav", "--param 'CHN: Mix Level=+-6 dB' a.wav", "--bars 0x2 a.wav", "--program= a.wav",
        "--program '' a.wav", "--tempo 90 --midi song.mid a.wav", "--bars 2 --program 'Saw Bass' a.wav",
        "groove.wav groove.wav", "--stems folder.wav 'folder.wav/Synth 1.wav'",
    };
    // clang-format on
    for (const char* arguments : cases) {
        SCOPED_TRACE(arguments);
        const Answer answer = Run(arguments);
        EXPECT_NE(answer.status, 0);
        EXPECT_EQ(answer.errors.rfind("korvane-render: ", 0), 0u) << answer.errors;
        EXPECT_EQ(answer.errors.find('\n'), answer.errors.size() - 1) << answer.errors;
        for (const auto& entry : fs::directory_iterator(folder)) EXPECT_NE(entry.path().stem(), "a");
    }
}

// A name is found in any case, without its number, by its beginning; a mistyped one is answered with the nearest.
TEST_F(RenderTest, FindsNames)
{
    const std::vector<std::string> names = {"Night Drive 124", "Steel Yard 134", "Steel Yard 90", "Saw Bass",
                                            "Saw Lead",        "saw lead",       "Steel 99"};
    for (const auto& [wanted, index] : {std::pair{"Night Drive 124", 0},
                                        {"night drive", 0},

                                        {"steel yard 9", 2},
                                        {"saw bass", 3},
                                        {"Saw Lead", 4},
                                        {"saw lead", 5},
                                        {"nig", 0},
                                        {"steel", 6}})
        EXPECT_EQ(FindName(names, wanted, "groove"), static_cast<std::size_t>(index)) << wanted;
    struct Case {
        const char *wanted, *message;
    };
    const Case cases[] = {
        {"Nihgt Drive", "there is no groove 'Nihgt Drive'; did you mean 'Night Drive 124'?"},
        {"stele", "there is no groove 'stele'; did you mean 'Steel 99'?"},
        {"lead saw", "there is no groove 'lead saw'."},
        {"steel yard", "which groove is 'steel yard': 'Steel Yard 134' or 'Steel Yard 90'?"},
        {"SAW LEAD", "which groove is 'SAW LEAD': 'Saw Lead' or 'saw lead'?"},
        {"Bas", "there is no groove 'Bas'; did you mean 'Saw Bass'?"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.wanted);
        try {
            FindName(names, c.wanted, "groove", ".");
            ADD_FAILURE() << "found";
        } catch (const Failure& failure) {
            EXPECT_STREQ(failure.what(), c.message);
        }
    }
}

TEST_F(RenderTest, TakesTheTempoFromTheName)
{
    // clang-format off
    for (const auto& [groove, tempo] : {std::pair{"Night Drive 124", 124.0}, {"/x/Dub 92.5.kvprj", 92.5}, {"/x/Dub 92.5", 92.5},
                                        {"A 19", 0.0}, {"A 20", 20.0}, {"A 400", 400.0}, {"A 401", 0.0},
                                        {"120.kvprj", 0.0}, {"Night.kvprj", 0.0}, {"A 1.2.3.kvprj", 0.0}})
        // clang-format on
        EXPECT_EQ(TempoInName(groove).value_or(0.0), tempo) << groove;
    const auto frames = [this](const std::string& arguments) {
        const Answer answer = Run("--bars 1 --tail 0 --rate 8000 " + arguments + " a.wav");
        EXPECT_EQ(answer.status, 0) << answer.errors;
        EXPECT_EQ(answer.output.find("124 BPM, by the groove's name") != std::string::npos,
                  arguments.find("tempo") == std::string::npos);
        SF_INFO info{};
        sf_close(sf_open((folder / "a.wav").c_str(), SFM_READ, &info));
        return info.frames;
    };
    EXPECT_EQ(frames("'night drive'"), 15484) << "four beats at 124 per minute";
    EXPECT_EQ(frames("--tempo=60 'Night Drive 124'"), 32000);
    const std::string midi = "--tail 0 --rate 8000 --midi " + Write("song.mid", kSong) + " 'night drive' a.wav";
    EXPECT_EQ(Run(midi).output.find("BPM"), std::string::npos) << "the MIDI file's tempo rules";
    EXPECT_EQ(Run("--bars 3 " + midi).status, 0);
    SF_INFO info{};
    sf_close(sf_open((folder / "a.wav").c_str(), SFM_READ, &info));
    EXPECT_EQ(info.frames, 3 * 4 * 4000) << "bars as long as its first tempo says";
}

// What the instrument shows of a value leads back to a value that shows the same.
TEST_F(RenderTest, ReadsWhatTheInstrumentShows)
{
    const auto shown = [](const ParameterInfo& parameter, float value) {
        char text[32];
        FormatDisplay(parameter.display, value, text);
        return std::string(text);
    };
    for (const ParameterInfo& parameter : kParameters) {
        for (int n = 0; n <= 1000; ++n) {
            std::string text = shown(parameter, static_cast<float>(n) / 1000.0f);
            if (text.rfind("-0.0", 0) == 0) text.erase(0, 1);
            ASSERT_EQ(shown(parameter, ParameterValue(parameter.index, text + UnshownUnit(parameter.index))), text)
                << parameter.name;
        }
    }
    struct Case {
        int index;
        const char* text;
        float value;
    };
    const Case cases[] = {
        {80, "0.3", 0.3f},        {80, "-6 dB", 0.675f},      {80, "+20DB", 1.0f},    {80, "-60.0 dB", 0.0f},
        {81, "-50", 0.25f},       {82, "-12", 0.25f},         {82, "1", 1.0f},        {83, "4", 0.625f},
        {95, "LP", 0.0f},         {95, "bp", 0.5f},           {95, "HP", 1.0f},       {92, "25%", 0.25f},
        {74, "Square", 1.0f},     {105, "1/4", 1.0f / 9},     {105, "8/1", 8.0f / 9}, {115, "on", 1.0f},
        {115, "Off", 0.0f},       {116, "16", 1.0f},          {131, "-50", 0.0f},     {110, "Bars", 1.0f},
        {74, "rising", 2.0f / 3}, {114, "Falling", 2.0f / 3}, {112, "Level", 1.0f},   {126, "Amplitude", 2.0f},
        {119, "-1 oct", 0.25f},   {152, "Layer 2", 1.0f / 3}, {104, "LFO 2", 1.0f},   {33, "on", 1.0f},
    };
    for (const Case& c : cases) EXPECT_FLOAT_EQ(ParameterValue(c.index, c.text), c.value) << c.index << " " << c.text;
    const Answer answer = Run("--param 'filter type=HP' --param 'CHN: Pitch = -5' --program 'saw bass' a.wav");
    EXPECT_EQ(answer.output.rfind("Filter Type = 100.0 %\nCHN: Pitch = -5 st\n", 0), 0u) << answer.output;
    EXPECT_NE(answer.output.find("Synth 2            -inf       -inf"), std::string::npos) << answer.output;
}

TEST_F(RenderTest, TellsAboutItself)
{
    EXPECT_EQ(Run("--version").output, "korvane-render 1.0.2\n");
    const Answer help = Run("--help");
    EXPECT_EQ(help.status, 0);
    for (const char* part : {"--tail SECONDS", "(default 44100)", "Examples:"})
        EXPECT_NE(help.output.find(part), std::string::npos) << part;
    EXPECT_NE(Run("--tmpo 124 a.wav").errors.find("did you mean '--tempo'?"), std::string::npos);
}

// Readers warn of a format of floats whose extension has no size, and of sizes that do not add up.
TEST_F(RenderTest, WritesTheWholeHeader)
{
    ASSERT_EQ(Run("--bars 1 --tail 0 --rate 8000 a.wav").status, 0);
    std::ifstream file(folder / "a.wav", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const auto word = [&bytes](std::size_t at) {
        std::uint32_t number = 0;
        std::memcpy(&number, &bytes.at(at), bytes.size() - at < 4 ? 0 : 4);
        return number;
    };
    EXPECT_EQ(word(4) + 8, bytes.size());
    std::string chunks;
    for (std::size_t at = 12; at + 8 <= bytes.size(); at += 8 + word(at + 4)) {
        chunks += bytes.substr(at, 4);
        if (bytes.compare(at, 4, "fmt ") == 0) { EXPECT_EQ(word(at + 4), 18u); }
    }
    EXPECT_EQ(chunks, "fmt factPAD data");
}

TEST_F(RenderTest, WritesTheMixAndTheStems)
{
    const std::string silence = Write("silence.mid", kTwoTracks + Track(std::string("\0\xff\x2f\0", 4)) +
                                                         Track(std::string("\0\xff\x2f\0", 4)));
    EXPECT_EQ(Run("--midi " + silence + " --tail 0 --format 24 none.wav").status, 0) << "a file without a frame";
    const Answer answer = Run("--bars 1 --tail 0.5 --rate 48000 --format 24 --stems stems mix.wav");
    ASSERT_EQ(answer.status, 0) << answer.errors;
    EXPECT_NE(answer.output.find("Sampler 8"), std::string::npos);
    EXPECT_NE(answer.output.find("times faster than real time"), std::string::npos);
    SF_INFO info{};
    SNDFILE* file = sf_open((folder / "mix.wav").c_str(), SFM_READ, &info);
    ASSERT_TRUE(file);
    sf_close(file);
    EXPECT_EQ(info.frames, 48000 * 5 / 2);
    EXPECT_EQ(info.format, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
    int stems = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder / "stems")) ++stems;
    EXPECT_EQ(stems, 13);
    EXPECT_EQ(Run("--midi " + Write("song.mid", kSong) + " song.wav").status, 0);
    const std::string key = kTwoTracks + Track(std::string("\0\xff\x2f\0", 4)) +
                            Track(std::string("\x60\x90\x24\x64\x60\x24\0\0\xff\x2f\0", 11));
    for (const char* block : {"64", "441", "4096"}) { // a quarter at 120 BPM, whatever the blocks
        const std::string call = "--program 'Saw Bass' --stems stems --midi " + Write("key.mid", key);
        ASSERT_EQ(Run(call + " --block " + block + " key.wav").status, 0);
        file = sf_open((folder / "stems/Synth 1.wav").c_str(), SFM_READ, &info);
        std::vector<float> sound(2 * 22060);
        sf_readf_float(file, sound.data(), 22060);
        sf_close(file);
        const auto first = std::find_if(sound.begin(), sound.end(), [](float x) { return x != 0.0f; });
        EXPECT_EQ((first - sound.begin()) / 2, 22050) << block;
    }
    EXPECT_EQ(Run("--list").status, 0);
}

} // namespace
} // namespace korvane::render
