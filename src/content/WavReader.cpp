// RIFF WAVE into a sample.
#include <algorithm>
#include <bit>
#include <cstring>

#include "content/CFileStreamer.h"
#include "content/CWaveSample.h"
#include "content/SoundData.h"

namespace korvane {

namespace {

constexpr int kIntegers = 1, kFloats = 3; // format tags
constexpr int kFormatBytes = 16;          // of "fmt " without extension
constexpr int kLoopOffset = 44;           // in "smpl", of the first loop's start and end
constexpr int kFirstLoopBytes = 52;       // of "smpl" up to them

struct WavFormat {
    int tag = kIntegers;
    int channels = 1;
    std::uint32_t rate = 44100;
    std::uint32_t byteRate = 88200;
    int blockAlign = 2;
    int bits = 16;
};

std::uint32_t Little(const std::uint8_t* p, int count)
{
    std::uint32_t value = 0;
    for (int n = count - 1; n >= 0; --n) value = value << 8 | p[n];
    return value;
}

bool ReadFormat(CFileStreamer& file, std::uint32_t size, WavFormat& format)
{
    if (size < kFormatBytes) return false;
    format.tag = file.ReadWord();
    format.channels = file.ReadWord() & 0xFF;
    format.rate = file.ReadDword();
    format.byteRate = file.ReadDword();
    format.blockAlign = file.ReadWord();
    format.bits = file.ReadWord();
    const bool integers = format.tag == kIntegers && (format.bits == 16 || format.bits == 24 || format.bits == 32);
    const bool floats = format.tag == kFloats && format.bits == 32;
    return (integers || floats) && (format.channels == 1 || format.channels == 2) &&
           format.blockAlign == format.channels * format.bits / 8;
}

bool ReadData(CFileStreamer& file, CWaveSample& sample, const WavFormat& format, std::uint32_t size, int padFrames,
              std::int32_t& frames)
{
    const auto align = static_cast<std::uint32_t>(format.blockAlign);
    if (size % align != 0 || format.byteRate != align * format.rate) return false;
    frames = static_cast<std::int32_t>(size / align);
    if (frames == 0) {
        sample.Clear();
        return true;
    }
    const auto read = [&](auto convert) {
        return ReadFrames(file, sample, size, format.channels, format.bits / 8, frames, padFrames, 0, convert);
    };
    if (format.tag == kFloats) return read([](const std::uint8_t* p) { return std::bit_cast<float>(Little(p, 4)); });
    if (format.bits == 16) return read([](const std::uint8_t* p) { return FromInt16(Little(p, 2)); });
    if (format.bits == 24) return read([](const std::uint8_t* p) { return FromInt24(Little(p, 3)); });
    return read(
        [](const std::uint8_t* p) { return static_cast<float>(static_cast<std::int32_t>(Little(p, 4)) * 0x1p-31); });
}

} // namespace

bool CWaveSample::LoadWav(const char* path, int padFrames)
{
    CFileStreamer file;
    char tag[4];
    if (!file.Open(path)) return false;
    file.ReadBlock(tag, 4);
    if (std::memcmp(tag, "RIFF", 4) != 0) return false;
    const std::uint32_t formSize = file.ReadDword();
    file.ReadBlock(tag, 4);
    if (std::memcmp(tag, "WAVE", 4) != 0) return false;

    WavFormat format;
    std::int32_t frames = 0;
    std::uint32_t start = 0, end = 0;
    while (file.position >= 8 && static_cast<std::uint32_t>(file.position - 8) < formSize &&
           file.position < file.fileSize) {
        file.ReadBlock(tag, 4);
        const std::uint32_t size = file.ReadDword();
        const std::int64_t data = file.position;
        if (std::memcmp(tag, "fmt ", 4) == 0) {
            if (!ReadFormat(file, size, format)) {
                Clear();
                return false;
            }
        } else if (std::memcmp(tag, "smpl", 4) == 0 && size >= kFirstLoopBytes) {
            file.Seek(data + kLoopOffset);
            start = file.ReadDword();
            end = std::min(file.ReadDword(), static_cast<std::uint32_t>(frames));
            if (start >= static_cast<std::uint32_t>(frames)) start = 0;
        } else if (std::memcmp(tag, "data", 4) == 0) {
            if (!ReadData(file, *this, format, size, padFrames, frames)) {
                Clear();
                return false;
            }
            start = 0;
            end = static_cast<std::uint32_t>(frames);
        }
        file.Seek((data + size + 1) & ~std::int64_t{1});
    }
    numChannels = format.channels;
    numFrames = channelData[0] ? frames : 0;
    if (numChannels == 2 && numFrames > 0 && !channelData[1]) numChannels = 1; // the format changed behind its data
    sampleRate = format.rate;
    loopEnd = std::min(static_cast<std::int32_t>(end), numFrames);
    loopStart = std::min(std::max(static_cast<std::int32_t>(start), 0), loopEnd);
    return true;
}

} // namespace korvane
