// WAV and AIFF files, good and bad, as the instrument takes them.
#include <gtest/gtest.h>
#include <unistd.h>

#include <bit>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "content/CFileStreamer.h"
#include "content/CWaveSample.h"

namespace korvane {
namespace {

using Bytes = std::string;

Bytes Number(std::uint32_t value, int count, bool big)
{
    Bytes bytes;
    for (int n = 0; n < count; ++n) bytes += static_cast<char>(value >> 8 * (big ? count - 1 - n : n));
    return bytes;
}

Bytes Chunk(const char* id, const Bytes& data, bool big)
{
    return id + Number(static_cast<std::uint32_t>(data.size()), 4, big) + data + Bytes(data.size() % 2, '\0');
}

// WAV

Bytes Format(int tag, int channels, int rate, int bits, int align = 0)
{
    if (align == 0) align = channels * bits / 8;
    return Chunk("fmt ",
                 Number(tag, 2, false) + Number(channels, 2, false) + Number(rate, 4, false) +
                     Number(align * rate, 4, false) + Number(align, 2, false) + Number(bits, 2, false),
                 false);
}
Bytes Data(const Bytes& data) { return Chunk("data", data, false); }
Bytes Loop(std::uint32_t start, std::uint32_t end)
{
    return Chunk("smpl", Bytes(44, '\0') + Number(start, 4, false) + Number(end, 4, false) + Bytes(8, '\0'), false);
}
Bytes Wav(const Bytes& chunks)
{
    return "RIFF" + Number(static_cast<std::uint32_t>(chunks.size() + 4), 4, false) + "WAVE" + chunks;
}

// AIFF

Bytes Common(int channels, std::uint32_t frames, int bits, int exponent, std::uint32_t mantissa)
{
    return Chunk("COMM",
                 Number(channels, 2, true) + Number(frames, 4, true) + Number(bits, 2, true) +
                     Number(exponent, 2, true) + Number(mantissa, 4, true) + Bytes(4, '\0'),
                 true);
}
Bytes Sound(const Bytes& data, std::uint32_t offset = 0)
{
    return Chunk("SSND", Number(offset, 4, true) + Bytes(4, '\0') + Bytes(offset, '\x55') + data, true);
}
Bytes Marker(int id, std::uint32_t position, const Bytes& name)
{
    return Number(id, 2, true) + Number(position, 4, true) + static_cast<char>(name.size()) + name +
           Bytes(1 - name.size() % 2, '\0');
}
Bytes SustainLoop(int begin, int end)
{
    return Chunk("INST", Bytes(10, '\0') + Number(begin, 2, true) + Number(end, 2, true) + Bytes(6, '\0'), true);
}
Bytes Aiff(const Bytes& chunks, const char* type = "AIFF")
{
    return "FORM" + Number(static_cast<std::uint32_t>(chunks.size() + 4), 4, true) + type + chunks;
}

struct AudioFiles : testing::Test {
    ~AudioFiles() override { std::filesystem::remove(path); }
    void Write(const Bytes& bytes) { std::ofstream(path, std::ios::binary).write(bytes.data(), std::ssize(bytes)); }
    bool Load(const Bytes& bytes)
    {
        Write(bytes);
        return sample.LoadWav(path.c_str(), 10) || sample.LoadAiff(path.c_str(), 10);
    }
    /// What the pool would get: no reader may leave more frames than its buffers hold.
    void Touch() const
    {
        float sum = 0.0f;
        for (int c = 0; c < sample.numChannels && sample.numFrames > 0; ++c)
            for (int n = 0; n < sample.numFrames + 10; ++n) sum += sample.channelData[c][n];
        EXPECT_TRUE(sample.loopStart >= 0 && sample.loopStart <= sample.loopEnd && sample.loopEnd <= sample.numFrames);
        EXPECT_TRUE(sum == sum || sum != sum);
    }

    const std::filesystem::path path =
        std::filesystem::path(testing::TempDir()) / ("korvane_audio." + std::to_string(getpid()));
    CWaveSample sample;
};

TEST_F(AudioFiles, DecodeEveryAcceptedDepth)
{
    const Bytes floats = Number(std::bit_cast<std::uint32_t>(0.3f), 4, false);
    // clang-format off
    struct Case { const char* what; Bytes file; int first; float value; }; // index of the first frame
    const Case cases[] = {
        {"16 bits",          Wav(Format(1, 1, 48000, 16) + Data("\x01\x80")), 0, -32767.0f / 32768.0f},
        {"24 bits, highest", Wav(Format(1, 1, 48000, 24) + Data("\xff\xff\x7f")), 0, 1.0f},
        {"24 bits, lowest",  Wav(Format(1, 1, 48000, 24) + Data(Bytes("\0\0\x80", 3))), 0, float(-8388608.0 / 8388607.0)},
        {"32 bits",          Wav(Format(1, 1, 48000, 32) + Data(Bytes("\0\0\0\xc0", 4))), 0, -0.5f},
        {"floats",           Wav(Format(3, 1, 48000, 32) + Data(floats)), 0, 0.3f},
        {"AIFF 16 bits", Aiff(Common(1, 1, 16, 0x400E, 0xBB800000u) + Sound("\x80\x01")), 1, -32767.0f / 32768.0f},
        {"AIFF 24 bits", Aiff(Common(1, 1, 24, 0x400E, 0xBB800000u) + Sound("\x7f\xff\xff", 6)), 1, 1.0f},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ASSERT_TRUE(Load(c.file));
        EXPECT_EQ(sample.numChannels, 1);
        EXPECT_EQ(sample.numFrames, 1);
        EXPECT_EQ(sample.sampleRate, 48000.0);
        EXPECT_EQ(sample.channelData[0][c.first], c.value);
        for (int pad = c.first + 1; pad < 11; ++pad) EXPECT_EQ(sample.channelData[0][pad], 0.0f);
        EXPECT_EQ(sample.channelData[0][0], c.first ? 0.0f : c.value);
    }
    ASSERT_TRUE(Load(Wav(Format(1, 2, 44100, 16) + Data(Bytes("\0\1\0\2\0\3\0\4", 8)))));
    EXPECT_EQ(sample.numFrames, 2);
    EXPECT_EQ(sample.channelData[1][1] * 32768.0f, 1024.0f);
}

TEST_F(AudioFiles, ReadRatesAndLoops)
{
    // clang-format off
    struct Rate { int exponent; std::uint32_t mantissa; double rate; };
    const Rate rates[] = {{0x400E, 0xAC440000u, 44100.0}, {0x400D, 0xAC440000u, 22050.0}, {0x400F, 0xBB800000u, 96000.0},
                          {0x401F, 0xFFFFFFFFu, 4294967295.0}, {0x4001, 0x80000000u, 4.0}};
    // clang-format on
    for (const auto& [exponent, mantissa, rate] : rates) {
        ASSERT_TRUE(Load(Aiff(Common(1, 1, 16, exponent, mantissa) + Sound("xx"))));
        EXPECT_EQ(sample.sampleRate, rate);
    }
    const Bytes ten = Bytes(20, 'x'), format = Format(1, 1, 44100, 16);
    const Bytes marks =
        Chunk("MARK", Number(3, 2, true) + Marker(1, 2, "a") + Marker(2, 9, "bc") + Marker(1, 4, ""), true);
    const Bytes common = Common(1, 10, 16, 0x400E, 0xAC440000u);
    // clang-format off
    struct Case { const char* what; Bytes file; int start, end; };
    const Case cases[] = {
        {"none",             Wav(format + Data(ten)), 0, 10},
        {"before the sound", Wav(format + Loop(3, 7) + Data(ten)), 0, 10},
        {"after it",         Wav(format + Data(ten) + Loop(3, 7)), 3, 7},
        {"behind the end",   Wav(format + Data(ten) + Loop(10, 4000000000u)), 0, 10},
        {"backward",         Wav(format + Data(ten) + Loop(9, 5)), 5, 5},
        {"AIFF",             Aiff(common + marks + SustainLoop(1, 2) + Sound(ten)), 4, 9},
        {"no such marker",   Aiff(common + marks + SustainLoop(7, 8) + Sound(ten)), 0, 10},
        {"no markers",       Aiff(common + SustainLoop(1, 2) + Sound(ten)), 0, 10},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ASSERT_TRUE(Load(c.file));
        EXPECT_EQ(sample.loopStart, c.start);
        EXPECT_EQ(sample.loopEnd, c.end);
    }
}

TEST_F(AudioFiles, TakeOddFilesAndRefuseWrongOnes)
{
    const Bytes format = Format(1, 1, 44100, 16), common = Common(1, 2, 16, 0x400E, 0xAC440000u);
    constexpr int kRefused = -1;
    // clang-format off
    struct Case { const char* what; Bytes file; int frames; };
    const Case cases[] = {
        {"no format: the defaults",  Wav(Data("abcd")), 2},
        {"no sound",                 Wav(format), 0},
        {"empty sound",              Wav(format + Data("")), 0},
        {"odd chunk before",         Wav(Chunk("LIST", "abc", false) + format + Data("abcd")), 2},
        {"long format chunk",        Wav(Chunk("fmt ", format.substr(8) + "xx", false) + Data("ab")), 1},
        {"sound cut off",            Wav(format + "data" + Number(8, 4, false) + "abcd"), 4},
        {"nothing but a header",     Wav(""), 0},
        {"AIFF without sound",       Aiff(common), 0},
        {"AIFF of no frames",        Aiff(Common(1, 0, 16, 0x400E, 0xAC440000u) + Sound("")), 0},
        {"empty",                    "", kRefused},
        {"other form",               "RIFX" + Wav(format).substr(4), kRefused},
        {"other type",               "RIFF" + Number(4, 4, false) + "AVI ", kRefused},
        {"short format",             Wav(Chunk("fmt ", Bytes(14, '\1'), false)), kRefused},
        {"tag 2",                    Wav(Format(2, 1, 44100, 16) + Data("ab")), kRefused},
        {"8 bits",                   Wav(Format(1, 1, 44100, 8) + Data("ab")), kRefused},
        {"floats of 16 bits",        Wav(Format(3, 1, 44100, 16) + Data("ab")), kRefused},
        {"3 channels",               Wav(Format(1, 3, 44100, 16) + Data("abcdef")), kRefused},
        {"no channel",               Wav(Format(1, 0, 44100, 16, 2) + Data("ab")), kRefused},
        {"block align",              Wav(Format(1, 2, 44100, 16, 3) + Data("abc")), kRefused},
        {"torn frame",               Wav(format + Data("abc")), kRefused},
        {"impossible length",        Wav(format + "data" + Number(0x7FFFFFFE, 4, false) + "ab"), kRefused},
        {"AIFC",                     Aiff(common + Sound("abcd"), "AIFC"), kRefused},
        {"AIFF of 8 bits",           Aiff(Common(1, 2, 8, 0x400E, 0xAC440000u) + Sound("ab")), kRefused},
        {"AIFF of 3 channels",       Aiff(Common(3, 1, 16, 0x400E, 0xAC440000u) + Sound("abcdef")), kRefused},
        {"short COMM",               Aiff(Chunk("COMM", Bytes(16, '\0'), true)), kRefused},
        {"short INST",               Aiff(common + Chunk("INST", Bytes(18, '\0'), true) + Sound("abcd")), kRefused},
        {"less sound than announced", Aiff(common + Sound("abc")), kRefused},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(Load(c.file), c.frames >= 0);
        EXPECT_EQ(sample.numFrames, std::max(c.frames, 0));
        Touch();
    }
    EXPECT_FALSE(sample.LoadWav("\\nowhere\\x.wav", 10));
    EXPECT_FALSE(sample.LoadWav("\\tmp", 10));
}

// Cut anywhere, or with any byte changed: refused or read, never beyond a buffer.
TEST_F(AudioFiles, SurviveDamage)
{
    const Bytes files[] = {
        Wav(Format(1, 2, 44100, 24) + Data(Bytes(60, 'x')) + Loop(1, 5) + Format(1, 1, 44100, 16)),
        Aiff(Common(2, 10, 16, 0x400E, 0xAC440000u) + Chunk("MARK", Number(1, 2, true) + Marker(1, 2, "a"), true) +
             SustainLoop(1, 1) + Sound(Bytes(40, 'x'))),
    };
    for (const Bytes& file : files) {
        for (std::size_t length = 0; length < file.size(); ++length) {
            Load(file.substr(0, length));
            Touch();
            for (char wild : {'\x00', '\x7f', '\xff'}) {
                Bytes damaged = file;
                damaged[length] = wild;
                Load(damaged);
                Touch();
            }
        }
    }
}

// Chunks that claim a thousand markers each where there is room for none.
TEST_F(AudioFiles, NeverHoldUpTheirReader)
{
    Bytes chunks = Common(1, 1, 16, 0x400E, 0xAC440000u);
    for (int n = 0; n < 30000; ++n) chunks += Chunk("MARK", "", true);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(Load(Aiff(chunks)));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

TEST_F(AudioFiles, StreamerAnswersAsItShould)
{
    CFileStreamer file;
    EXPECT_STREQ(file.errorText, "unknown");
    EXPECT_EQ(file.ReadDword(), 0u);
    EXPECT_STREQ(file.errorText, "No File Open");
    EXPECT_FALSE(file.Seek(0));
    EXPECT_FALSE(file.Open("\\nowhere\\x"));
    EXPECT_STREQ(file.errorText, "Failed to open the file");
    Write("abcdef");
    ASSERT_TRUE(file.Open(path.c_str()));
    EXPECT_EQ(file.ReadDword(), 0x64636261u);
    EXPECT_EQ(file.ReadDword(), 0x00006665u) << "what is missing reads as 0";
    EXPECT_EQ(file.position, 8);
    EXPECT_FALSE(file.Seek(6)) << "the end is out of reach";
    EXPECT_STREQ(file.errorText, "Wrong Parameter");
    EXPECT_EQ(file.position, 8);
    EXPECT_TRUE(file.Seek(4));
    EXPECT_TRUE(file.Skip(-3));
    EXPECT_EQ(file.ReadDwordBigEndian(), 0x62636465u);
    EXPECT_EQ(file.ReadByte(), 'f');
    EXPECT_EQ(file.ReadByte(), 0);
    EXPECT_STREQ(file.errorText, "Unknown File Error");
    file.Close();
    EXPECT_STREQ(file.path, "");
    EXPECT_FALSE(file.Write("x", 1));
    EXPECT_STREQ(file.errorText, "No File Open");
}

} // namespace
} // namespace korvane
