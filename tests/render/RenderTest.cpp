// korvane-render: MIDI files, command lines, what it writes.
#include <gtest/gtest.h>
#include <sndfile.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "render/Failure.h"
#include "render/MidiFile.h"

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
    // clang-format off
    const char* const cases[] = {
        "", "a.wav b.wav c.wav", "a.txt", "--rate 0 a.wav", "--rate 44100.5 a.wav", "'' a.wav", "/dev/zero a.wav",
        "--bars 10000 --tempo 1 --rate 384000 a.wav", "--rate x a.wav", "--block 1.5 a.wav", "--tempo 1000 a.wav",
        "--bars -1 a.wav", "--tail nan a.wav", "--format 16 a.wav", "--what 1 a.wav", "--rate", "--param Level a.wav",
        "--param 'No Such=0.5' a.wav", "--param 'CHN:=0.5' a.wav", "--plugin text.so a.wav", "--plugin none.so a.wav",
        "text.kvprj a.wav", "none.kvprj a.wav", "folder.wav a.wav", "--midi text.mid a.wav", "--midi none.mid a.wav",
        "--program 'No Such' a.wav", "--program 'Saw Bass' text.kvprj a.wav", "none/a.wav", "folder.wav",
        "--stems none/x --bars 0 a.wav",
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

TEST_F(RenderTest, WritesTheMixAndTheStems)
{
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
