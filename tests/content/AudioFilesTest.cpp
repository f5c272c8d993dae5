// WAV and AIFF files, good and bad, as the instrument takes them.
#include <gtest/gtest.h>

#include <algorithm>

#include "content/CFileStreamer.h"
#include "content/CWaveSample.h"
#include "support/ContentRoot.h"
#include "support/Riff.h"

namespace korvane {
namespace {

using namespace riff;
using namespace std::string_literals;

struct AudioFiles : testing::Test {
    bool Load(const Bytes& bytes)
    {
        WriteText(path, bytes);
        sample.Clear();
        return sample.LoadWav(path.c_str(), 10) || sample.LoadAiff(path.c_str(), 10);
    }
    /// What a voice relies on: zeros behind the sound, as many as were asked for, and a loop within it.
    void ExpectSoundInItsBuffers() const
    {
        for (int c = 0; c < sample.numChannels && sample.numFrames > 0; ++c)
            for (int pad = 1; pad < 10; ++pad) ASSERT_EQ(sample.channelData[c][sample.numFrames + pad], 0.0f);
        ASSERT_TRUE(0 <= sample.loopStart && sample.loopStart <= sample.loopEnd && sample.loopEnd <= sample.numFrames);
    }

    const ContentRoot root;
    const std::filesystem::path path = root.path / "sound";
    CWaveSample sample;
};

TEST_F(AudioFiles, DecodeEveryAcceptedDepth)
{
    using Frames = std::vector<float>; // of a side from index 0 on; none: the file is mono
    const float low = static_cast<float>(-8388608.0 / 8388607.0), step16 = 1.0f / 32768.0f;
    // clang-format off
    struct Case { const char* what; Bytes file; int frames; Frames left, right; double rate = 44100.0; };
    const Case cases[] = {
        {"16 bits", Wav(Format(kIntegers, 2, 16, 22050) + Data("\x01\x80\x00\x40\xff\x7f\xff\xff"s)), 2,
                    {step16 - 1.0f, 1.0f - step16}, {0.5f, -step16}, 22050.0},
        {"24 bits", Wav(Format(kIntegers, 2, 24, 48000) + Data("\xff\xff\x7f\x00\x00\x80"s)), 1, {1.0f}, {low}, 48e3},
        {"32 bits", Wav(Format(kIntegers, 1, 32) + Data("\0\0\0\xc0\0\0\0\x20"s)), 2, {-0.5f, 0.25f}, {}},
        {"floats", Wav(Format(kFloats, 2, 32, 4000000000u) + Data("\0\0\0\x3f\0\0\0\xc0"s)), 1, {0.5f}, {-2.0f}, 4.0e9},
        {"AIFF of 16", Aiff(Common(2, 1, 16) + Sound("\x80\x01\x40\x00"s)), 1, {0.0f, step16 - 1.0f}, {0.0f, 0.5f}},
        {"AIFF of 24", Aiff(Common(2, 1, 24) + Sound("\x7f\xff\xff\x80\x00\x00"s, 6)), 1, {0.0f, 1.0f}, {0.0f, low}},
        {"96000 Hz", Aiff(Common(1, 1, 16, 0x400F, 0xBB800000u) + Sound("\x40\x00"s)), 1, {0.0f, 0.5f}, {}, 96000.0},
        {"highest", Aiff(Common(1, 1, 16, 0x401F, UINT32_MAX) + Sound("\x40\x00"s)), 1, {0.0f, 0.5f}, {}, 4294967295.0},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ASSERT_TRUE(Load(c.file));
        EXPECT_EQ(std::tuple(sample.sampleRate, sample.numFrames, sample.numChannels),
                  std::tuple(c.rate, c.frames, c.right.empty() ? 1 : 2));
        for (const auto& [side, expected] : {std::pair{0, c.left}, {1, c.right}})
            for (std::size_t n = 0; n < expected.size(); ++n) EXPECT_EQ(sample.channelData[side][n], expected[n]);
        ExpectSoundInItsBuffers();
    }
}

// Damaged marker chunks cannot hold up their reader: it reads 1024 markers of a chunk and 65536 of a file.
TEST_F(AudioFiles, ReadLoops)
{
    const Bytes ten(20, 'x'), data = Data(ten);
    const auto wav = [](const Bytes& chunks) { return Wav(Format(kIntegers, 1, 16) + chunks); };
    const auto aiff = [&ten](const Bytes& chunks) { return Aiff(Common(1, 10, 16) + chunks + Sound(ten)); };
    const Bytes marks = Markers(4, Marker(1, 2, "a") + Marker(2, 9, "bc") + Marker(1, 4) + Marker(-3, 6));
    Bytes thousand, full;
    for (int n = 0; n < 1024; ++n) thousand += Marker(3, 5);
    for (int n = 0; n < 64; ++n) full += Markers(1024, thousand);
    const Bytes oneFewer = full.substr(Markers(1024, thousand).size());
    // clang-format off
    struct Case { const char* what; Bytes file; int start, end; };
    const Case cases[] = {
        {"none",       wav(data), 0, 10},               {"before the sound", wav(Loop(3, 7) + data), 0, 10},
        {"after it",   wav(data + Loop(3, 7)), 3, 7},   {"a short chunk",    wav(data + Loop(3, 7, 51)), 0, 10},
        {"last frame", wav(data + Loop(9, 10)), 9, 10}, {"behind the end",   wav(data + Loop(10, 4000000000u)), 0, 10},
        {"backward",   wav(data + Loop(9, 5)), 5, 5},   {"no markers",       aiff(SustainLoop(1, 2)), 0, 10},
        {"AIFF",    aiff(marks + SustainLoop(1, 2)), 4, 9},  {"no sustain loop", aiff(marks), 0, 10},
        {"no such", aiff(marks + SustainLoop(7, 8)), 0, 10}, {"below 0", aiff(SustainLoop(-3, 2) + marks), 6, 9},
        {"markers behind end", aiff(Markers(2, Marker(1, 99) + Marker(2, 4000000000u)) + SustainLoop(1, 2)), 10, 10},
        {"the 1024th marker",  aiff(Markers(1024, thousand.substr(8) + Marker(1, 2)) + SustainLoop(1, 3)), 2, 5},
        {"one too many",       aiff(Markers(1025, thousand + Marker(1, 2)) + SustainLoop(1, 3)), 0, 5},
        {"the file's last",    aiff(oneFewer + Markers(1, Marker(1, 2)) + SustainLoop(1, 1)), 2, 2},
        {"beyond it",          aiff(full + Markers(1, Marker(1, 2)) + SustainLoop(1, 1)), 0, 10},
    };
    // clang-format on
    for (const Case& c : cases) {
        ASSERT_TRUE(Load(c.file)) << c.what;
        EXPECT_EQ(std::pair(sample.loopStart, sample.loopEnd), std::pair(c.start, c.end)) << c.what;
    }
}

TEST_F(AudioFiles, TakeOddFilesAndRefuseWrongOnes)
{
    const Bytes format = Format(kIntegers, 1, 16), common = Common(1, 2, 16);
    const auto wav = [&format](const Bytes& sound) { return Wav(format + Data(sound)); };
    const auto announced = [&](std::uint32_t bytes) { return Wav(format + "data" + Little(bytes, 4) + "abcd"); };
    constexpr std::uint32_t kMost = 4 * 48 + (1 << 20); // four times such a file and 1 MiB
    Bytes otherByteRate = format;
    otherByteRate[8 + 8] ^= 1;
    // clang-format off
    struct Case { const char* what; Bytes file; int frames = -1; }; // none: refused
    const Case cases[] = {
        {"no format: the defaults", Wav(Data("abcd")), 2}, {"no sound", Wav(format), 0},
        {"empty sound", wav(""), 0}, {"odd chunk", Wav(Chunk("LIST", "abc") + format + Data("ab")), 1},
        {"behind the form's end", Wav(format) + Data("abcd"), 0}, {"nothing but a header", Wav(""), 0}, {"empty", ""},
        {"long format chunk", Wav(Chunk("fmt ", format.substr(8) + "xx") + Data("ab")), 1},
        {"sound cut off", announced(8), 4}, {"wide channels", Wav(Format(kIntegers, 0x301, 16) + Data("ab")), 1},
        {"a MiB missing", announced(kMost), kMost / 2}, {"AIFF of no frames", Aiff(Common(1, 0, 16) + Sound("")), 0},
        {"AIFF, more sound", Aiff(common + Sound("abcdef")), 2}, {"AIFF, less sound", Aiff(common + Sound("abc"))},
        {"other type", Wav("", "RIFF", "AVI ")}, {"other form", Wav(format, "RIFX")},
        {"more missing", announced(kMost + 2)}, {"impossible", announced(0x7FFFFFFE)}, {"torn frame", wav("abc")},
        {"tag 2", Wav(Format(2, 1, 16) + Data("ab"))}, {"8 bits", Wav(Format(kIntegers, 1, 8) + Data("ab"))},
        {"byte rate", Wav(otherByteRate + Data("ab"))}, {"floats of 16 bits", Wav(Format(kFloats, 1, 16) + Data("ab"))},
        {"AIFC", Aiff(common + Sound("abcd"), "AIFC")}, {"3 sides", Wav(Format(kIntegers, 3, 16) + Data("abcdef"))},
        {"block align", Wav(Format(kIntegers, 2, 16, 44100, 3) + Data("abc"))},
        {"no channel", Wav(Format(kIntegers, 0, 16, 44100, 2) + Data("ab"))},
        {"short format", Wav(Chunk("fmt ", format.substr(8, 14)) + Data("ab"))},
        {"AIFF, no sound", Aiff(common), 0}, {"short INST", Aiff(common + SustainLoop(1, 2, 19) + Sound("abcd"))},
        {"short SSND", Aiff(Common(1, 0, 16) + Chunk("SSND", Bytes(7, '\0'), Big))},
        {"short COMM", Aiff(Chunk("COMM", common.substr(8, 17), Big) + Sound("abcd"))},
        {"3 channels", Aiff(Common(3, 1, 16) + Sound("abcdef"))}, {"AIFF, 8 bits", Aiff(Common(1, 2, 8) + Sound("ab"))},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(Load(c.file), c.frames >= 0);
        EXPECT_EQ(sample.numFrames, std::max(c.frames, 0));
        ExpectSoundInItsBuffers();
    }
    for (const char* none : {"\\nowhere\\x.wav", "\\tmp"}) EXPECT_FALSE(sample.LoadWav(none, 10)) << none;
}

// Cut anywhere, or with any byte changed: refused or read, never beyond a buffer.
TEST_F(AudioFiles, SurviveDamage)
{
    const Bytes wav = Wav(Format(kIntegers, 2, 24) + Data(Bytes(60, 'x')) + Loop(1, 5) + Format(kIntegers, 1, 16));
    const Bytes marks = Markers(1, Marker(1, 2, "a")) + SustainLoop(1, 1);
    for (const Bytes& file : {wav, Aiff(Common(2, 10, 16) + marks + Sound(Bytes(40, 'x')))}) {
        for (std::size_t at = 0; at < file.size(); ++at) {
            const Bytes head = file.substr(0, at), tail = file.substr(at + 1);
            for (const Bytes& damaged : {head, head + '\x00' + tail, head + '\x7f' + tail, head + '\xff' + tail}) {
                Load(damaged);
                ExpectSoundInItsBuffers();
            }
        }
    }
}

TEST_F(AudioFiles, StreamerAnswersAsItShould)
{
    CFileStreamer file;
    EXPECT_TRUE(file.ReadDword() == 0u && !file.Seek(0) && !file.Write("x", 1) && !file.Open("\\nowhere\\x"));
    ASSERT_TRUE(file.Create(path.c_str()) && file.Write("abcdef", 6) && file.Open(path.c_str()));
    EXPECT_TRUE(file.ReadDword() == 0x64636261u && file.ReadDword() == 0x00006665u) << "what is missing reads as 0";
    EXPECT_TRUE(!file.Seek(6) && file.position == 8) << "the end is out of reach";
    EXPECT_TRUE(file.Seek(4) && file.Skip(-3) && file.ReadDwordBigEndian() == 0x62636465u);
    EXPECT_TRUE(file.ReadByte() == 'f' && file.ReadByte() == 0);
}

} // namespace
} // namespace korvane
